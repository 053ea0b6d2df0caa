#include "cli/TerminalProgress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace hullwright {

TerminalProgress::TerminalProgress() : isTerminal_(isatty(STDERR_FILENO) != 0) {}

void TerminalProgress::EndProgress()
{
  if (isTerminal_) std::fputs("\r\033[K", stderr);
}

void TerminalProgress::Show(int percent) const
{
  constexpr int width = 40;
  if (!isTerminal_) return;
  const int done = std::clamp(percent, 0, 100) * width / 100;
  const std::string bar = std::string(static_cast<std::size_t>(done), '#') +
                          std::string(static_cast<std::size_t>(width - done), '.');
  std::fprintf(stderr, "\rimporting [%s] %3d %%", bar.c_str(), percent);
}

}  // namespace hullwright
