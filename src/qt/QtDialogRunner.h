#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/DialogPort.h"

namespace hullwright {

/// Runs dialogs as real ones over the main window, laid out from their templates.
class QtDialogRunner : public IDialogRunner {
public:
  DialogEnd Run(IDialog& dialog) override;
  void SetParent(QWidget* parent) { parent_ = parent; }

private:
  QPointer<QWidget> parent_;
};

}  // namespace hullwright
