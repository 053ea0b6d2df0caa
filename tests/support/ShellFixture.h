#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <functional>

#include "support/TempFolder.h"

namespace hullwright::test {

/// A shell whose settings and former versions lie in the test's own folder.
class ShellFixture : public testing::Test {
protected:
  ShellFixture()
  {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString((folder.Path() / "config").string()));
    qputenv("XDG_STATE_HOME", (folder.Path() / "state").c_str());
    qputenv("XDG_DATA_HOME", (folder.Path() / "data").c_str());
    qputenv("XDG_DATA_DIRS", (folder.Path() / "data").c_str());
  }

  /// Calls `act` with the next modal dialog as soon as it is open, if it opens before the test
  /// ends. `dialogs` counts them.
  template <class Dialog>
  void WhenAsked(std::function<void(Dialog&)> act)
  {
    QTimer::singleShot(1, &waiting_, [this, act] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return WhenAsked<Dialog>(act);
      ++dialogs;
      act(*dialog);
    });
  }

  /// Presses a button of the next message box and keeps its text.
  void Answer(QMessageBox::StandardButton button)
  {
    WhenAsked<QMessageBox>([this, button](QMessageBox& box) {
      lastQuestion = box.text();
      box.button(button)->click();
    });
  }

  TempFolder folder;
  int dialogs = 0;
  QString lastQuestion;

private:
  QObject waiting_;  ///< what waits for a dialog goes with the test
};

}  // namespace hullwright::test
