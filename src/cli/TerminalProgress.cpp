#include "cli/TerminalProgress.h"

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <utility>

#include "system/ProgramStart.h"

namespace hullwright {
namespace {

bool lineStands = false;

/// Begins the line anew; false in a pipe. No line takes memory: an import may be short of it.
bool BeginLine()
{
  static const bool isTerminal = HasTerminal();
  if (!isTerminal) return false;
  std::fputs("\r\033[K", stderr);
  lineStands = true;
  return true;
}

}  // namespace

void ShowStep(const char* step)
{
  if (BeginLine()) std::fprintf(stderr, "%s ...", step);
}

void ClearTerminalLine()
{
  if (std::exchange(lineStands, false)) std::fputs("\r\033[K", stderr);
}

void TerminalProgress::Show(int percent)
{
  constexpr std::string_view done = "########################################";
  constexpr std::string_view open = "........................................";
  constexpr int width = done.size();
  const int part = std::clamp(percent, 0, 100) * width / 100;
  if (!BeginLine()) return;
  std::fprintf(stderr, "importing [%.*s%.*s] %3d %%", part, done.data(), width - part, open.data(),
               percent);
}

}  // namespace hullwright
