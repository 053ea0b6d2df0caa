#pragma once

#include "headless/NoWidgets.h"

namespace hullwright {

/// Names what is done now on a line of the terminal, in the place of what stood there; in a pipe it
/// is silent.
void ShowStep(const char* step);

/// Removes what `ShowStep` or a progress has left on the terminal, before anything else is written.
void ClearTerminalLine();

/// Shows the progress of an import on a terminal; in a pipe it is silent.
class TerminalProgress : public NoWidgets {
public:
  void StartProgress(std::string_view) override { Show(0); }
  void ShowProgress(int percent) override { Show(percent); }
  void EndProgress() override { ClearTerminalLine(); }

private:
  static void Show(int percent);
};

}  // namespace hullwright
