#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/MessageBoxes.h"

namespace hullwright {

/// Message boxes over the main window, or alone before there is one.
class QtMessageBoxes : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override;
  bool AskYesNo(std::u16string_view question) override;
  void SetParent(QWidget* parent) { parent_ = parent; }

private:
  /// The dialog in front, if there is one, else the main window.
  QWidget* Parent() const;

  QPointer<QWidget> parent_;
};

}  // namespace hullwright
