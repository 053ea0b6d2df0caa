#include "cli/TerminalProgress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

namespace hullwright {
namespace {

bool lineStands = false;

/// Writes the line anew.
void ShowLine(const std::string& text)
{
  static const bool isTerminal = isatty(STDERR_FILENO) != 0;
  if (!isTerminal) return;
  std::fprintf(stderr, "\r\033[K%s", text.c_str());
  lineStands = true;
}

}  // namespace

void ShowStep(const char* step) { ShowLine(std::string(step) + " ..."); }

void ClearTerminalLine()
{
  if (std::exchange(lineStands, false)) std::fputs("\r\033[K", stderr);
}

void TerminalProgress::Show(int percent)
{
  constexpr int width = 40;
  const int done = std::clamp(percent, 0, 100) * width / 100;
  const std::string number = std::to_string(percent);
  ShowLine("importing [" + std::string(static_cast<std::size_t>(done), '#') +
           std::string(static_cast<std::size_t>(width - done), '.') + "] " +
           std::string(3 - std::min<std::size_t>(number.size(), 3), ' ') + number + " %");
}

}  // namespace hullwright
