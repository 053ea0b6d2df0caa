#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/FileDialogs.h"
#include "qt/QtSettingsStore.h"

namespace hullwright {

/// Asks for files over the main window, beginning in the folder of the last answer.
class QtFileDialogs : public IFileDialogs {
public:
  explicit QtFileDialogs(QtSettingsStore& settings) : settings_(settings) {}

  std::optional<std::u16string> AskOpen(std::u16string_view extension,
                                        std::u16string_view filter) override;
  void SetParent(QWidget* parent) { parent_ = parent; }

private:
  QtSettingsStore& settings_;
  QPointer<QWidget> parent_;
};

}  // namespace hullwright
