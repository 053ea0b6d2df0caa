#pragma once

#include "headless/NoWidgets.h"

namespace hullwright {

/// Shows the progress of an import on a terminal; in a pipe it is silent.
class TerminalProgress : public NoWidgets {
public:
  TerminalProgress();

  void StartProgress(std::string_view) override { Show(0); }
  void ShowProgress(int percent) override { Show(percent); }
  void EndProgress() override;

private:
  void Show(int percent) const;

  bool isTerminal_;
};

}  // namespace hullwright
