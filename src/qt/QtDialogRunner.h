#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/DialogPort.h"

namespace hullwright {

/// Runs dialogs as real ones over the main window, laid out from their templates.
class QtDialogRunner : public IDialogRunner {
public:
  DialogEnd Run(IDialog& dialog) override;
  void SetParent(QWidget* parent) { parent_ = parent; }

  /// Names the libraries that the program runs on, with their versions; asked for by the about box
  /// alone.
  std::function<QString()> libraries;

private:
  QPointer<QWidget> parent_;
};

}  // namespace hullwright
