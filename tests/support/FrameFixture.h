#pragma once

#include <QToolBar>
#include <memory>

#include "qt/Shell.h"
#include "support/ShellFixture.h"

namespace hullwright::test {

/// The whole program with a new design, which can be started again with the settings that it left.
class FrameFixture : public ShellFixture {
protected:
  FrameFixture() { Restart(); }

  void Restart()
  {
    if (shell) shell->Window()->close();
    shell.reset();
    shell = std::make_unique<Shell>(QString());
    EXPECT_TRUE(shell->App().InitInstance(*shell));
  }

  MainWindow& Window() { return *shell->Window(); }
  QList<QToolBar*> Bars() { return Window().findChildren<QToolBar*>(Qt::FindDirectChildrenOnly); }

  std::unique_ptr<Shell> shell;
};

}  // namespace hullwright::test
