#include <QFile>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include "qt/Icons.h"
#include "qt/MainWindow.h"
#include "qt/QtText.h"
#include "resources/Strings.h"
#include "resources/ToolBarButtons.h"

// What the window is built of: menus, toolbars, status bar, object pane.
namespace hullwright {

void MainWindow::BuildMenus()
{
  // What a menu shows is brought up to date when it opens.
  actions_->onMenu = [this](QMenu& menu) {
    connect(&menu, &QMenu::aboutToShow, this, [this] { UpdateCommands(); });
  };
  actions_->FillMenuBar(*menuBar(), mainMenu);
  QMenu* const help = menuBar()->actions().constLast()->menu();
  guideAction_ = help->addAction(ThemedIcon("help", palette()), tr("&Help"));
  guideAction_->setShortcut(Qt::Key_F1);
  guideAction_->setStatusTip(tr("Read the guide"));
  connect(guideAction_, &QAction::triggered, this, [this] { ShowGuide(); });
  recentMenu_ = new QMenu(this);
  actions_->Get(CommandId::RecentFile)->setMenu(recentMenu_);
  toolBarsMenu_ = new QMenu(this);
  actions_->Get(CommandId::ViewToolbars)->setMenu(toolBarsMenu_);
  connect(recentMenu_, &QMenu::aboutToShow, this, [this] { FillRecentFiles(*recentMenu_); });
}

void MainWindow::BuildToolBars()
{
  using Row = std::span<const CommandId>;
  const Row commands = app_.paneStyleFlag != 0 ? Row(mainToolBar) : Row(smallToolBar);
  toolBars_ = new ToolBars(*this, *actions_, QList<CommandId>(commands.begin(), commands.end()));
  if (const QSettings* const file = settings_.File()) {
    toolBars_->Load(*file);
  } else {
    toolBars_->Build({toolBars_->StandardSpec()});
  }
  QAction* const customize = actions_->Get(CommandId::Customize);
  customize->setText(ToQString(Strings::customize));
  connect(toolBarsMenu_, &QMenu::aboutToShow, this, [this] { FillToolBarsMenu(); });
}

void MainWindow::FillToolBarsMenu()
{
  toolBarsMenu_->clear();
  for (const QToolBar* const bar : toolBars_->Bars()) {
    toolBarsMenu_->addAction(bar->toggleViewAction());
  }
  toolBarsMenu_->addAction(objectPane_->toggleViewAction());
  toolBarsMenu_->addSeparator();
  toolBarsMenu_->addAction(actions_->Get(CommandId::Customize));
}

QMenu* MainWindow::createPopupMenu()
{
  // The menu on toolbars and panes; it is the caller's to delete.
  FillToolBarsMenu();
  auto* const menu = new QMenu(this);
  menu->addActions(toolBarsMenu_->actions());
  return menu;
}

void MainWindow::Customize()
{
  if (customizing_ == nullptr) {
    customizing_ = new CustomizeDialog(*toolBars_, *actions_, this);
    customizing_->setAttribute(Qt::WA_DeleteOnClose);
    connect(customizing_, &QDialog::accepted, this, [this] {
      toolBars_->Build(customizing_->Specs());
      if (QSettings* const file = settings_.File()) toolBars_->Store(*file);
      UpdateCommands();
    });
  }
  customizing_->show();
  customizing_->raise();
  customizing_->activateWindow();
}

void MainWindow::ShowGuide()
{
  if (guide_ == nullptr) {
    const QString folder = guideFolder.isEmpty() ? GuideWindow::Folder() : guideFolder;
    const QString contents = GuideWindow::Contents(folder);
    if (!QFile::exists(contents)) {
      ports_.messages.ShowMessage(
          ToWide(tr("The guide is not installed: there is no file %1.").arg(contents)));
      return;
    }
    guide_ = new GuideWindow(folder, this);
    guide_->setAttribute(Qt::WA_DeleteOnClose);
  }
  guide_->show();
  guide_->raise();
  guide_->activateWindow();
}

void MainWindow::RefreshIcons()
{
  actions_->RefreshIcons();
  guideAction_->setIcon(ThemedIcon("help", palette()));
  SetViewButtonImage(frame_.viewButtonImage);
}

void MainWindow::BuildStatusBar()
{
  const auto dataPane = [this](int width) {
    auto* const pane = new StatusPane(ToQString(Strings::paneEmpty), width, this);
    statusBar()->addPermanentWidget(pane);
    return pane;
  };
  prompt_ = new PromptPane(ToQString(Strings::ready), this);
  statusBar()->addWidget(prompt_, 1);
  progress_ = new ProgressPane(this);
  statusBar()->addWidget(progress_, 1);
  progress_->hide();  // adding has shown it
  constexpr auto widths = PaneWidths(0);
  coordinatesPane_ = dataPane(widths[1]);
  unitsPane_ = dataPane(widths[2]);
  unitsPane_->setToolTip(tr("Click to change the unit of the design"));
  unitsPane_->setCursor(Qt::PointingHandCursor);
  unitsPane_->onPress = [this] { RunCommand(CommandId::Units); };
}

void MainWindow::BuildObjectPane()
{
  constexpr int startWidth = 200;
  constexpr int leastWidth = 120;
  tree_->setMinimumWidth(leastWidth);  // a window made tiny would keep it at a sliver
  tree_->iconOf = [this](CommandId command) { return actions_->Get(command)->icon(); };
  tree_->Attach(editor_.objects);
  editor_.objects.BuildTree();
  objectPane_ = new QDockWidget(ToQString(Strings::objectView), this);
  objectPane_->setObjectName(QStringLiteral("ObjectView"));
  objectPane_->setWidget(tree_);
  addDockWidget(Qt::LeftDockWidgetArea, objectPane_);
  resizeDocks({objectPane_}, {startWidth}, Qt::Horizontal);
  connect(tree_, &ObjectTreeWidget::Changed, this, [this] { UpdateAll(); });
}

}  // namespace hullwright
