#include "qt/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTimer>
#include <QToolBar>

#include "qt/Busy.h"
#include "qt/DroppedFiles.h"
#include "qt/Looks.h"
#include "qt/MenuKeys.h"
#include "qt/QtText.h"
#include "qt/ShellCommandTable.h"
#include "resources/Commands.h"
#include "resources/Strings.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

constexpr const char* geometryKey = "Workspace/Geometry";
constexpr const char* layoutKey = "Workspace/Layout";
constexpr const char* statusBarKey = "Workspace/StatusBar";

}  // namespace

MainWindow::MainWindow(const DeskPorts& ports)
    : ports_(ports),
      design_(new DesignWidget(this)),
      tree_(new ObjectTreeWidget(this)),
      editor_({.settings = ports.settings,
               .messages = ports.messages,
               .dialogs = ports.dialogs,
               .fileDialogs = ports.fileDialogs,
               .units = ports.units,
               .log = ports.log,
               .widgets = *this,
               .tree = *tree_,
               .cursor = *design_,
               .rubberBand = *design_,
               .popupMenu = *design_}),
      recentFiles_(ports.settings),
      documents_(document_, app_,
                 {documentDialogs_, recentFiles_, ports.formerVersions, *this,
                  [this] { return view_.drawing && !view_.newShape->vertices.empty(); }}),
      actions_(new Actions(this, [this](CommandId command) { RunCommand(command); }))
{
  setCentralWidget(design_);
  BuildMenus();
  BuildStatusBar();
  BuildObjectPane();
  for (const CommandEntry& command : Commands()) {
    if (!command.key.empty()) actions_->Get(command.id);
  }
  documents_.onChange = [this] { UpdateAll(); };
  connect(design_, &DesignWidget::Pressed, this, [this] { note_.clear(); });
  connect(design_, &DesignWidget::ViewChanged, this, [this] { UpdateAll(); });
  // No command looks different because the mouse has moved.
  connect(design_, &DesignWidget::Moved, this, [this] { UpdatePanes(); });
  design_->iconOf = [this](CommandId command) { return actions_->Get(command)->icon(); };
  design_->Attach(view_);
  UpdateCommands();
  UpdateTitle();
}

MainWindow::~MainWindow()
{
  design_->Detach();
  tree_->Detach();
  frame_.hasWindow = false;
}

void MainWindow::LoadSettings(std::size_t recentFiles)
{
  ports_.messages.SetParent(this);
  ports_.dialogs.SetParent(this);
  ports_.fileDialogs.SetParent(this);
  app_.LoadLook();
  documents_.KeepRecentFiles(recentFiles);
  BuildToolBars();
  UpdateCommands();
}

void MainWindow::ShowAsBefore()
{
  frame_.OnApplicationLook(app_.applicationLook);
  // As wide as the standard toolbar.
  resize(QSize(1340, 860).boundedTo(screen()->availableSize() * 0.95));
  if (const QSettings* const file = settings_.File()) {
    restoreGeometry(file->value(QLatin1String(geometryKey)).toByteArray());
    restoreState(file->value(QLatin1String(layoutKey)).toByteArray());
    statusBar()->setVisible(file->value(QLatin1String(statusBarKey), true).toBool());
  }
  frame_.hasWindow = true;
  show();
  UpdateCommands();
}

void MainWindow::GoToNextPane()
{
  // There are two panes, so the next one is also the one before.
  QWidget* const next = design_->hasFocus() && objectPane_->isVisible()
                            ? static_cast<QWidget*>(tree_)
                            : static_cast<QWidget*>(design_);
  next->window()->activateWindow();
  next->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::ApplyLook(Look look)
{
  QApplication::setOverrideCursor(Qt::WaitCursor);
  hullwright::ApplyLook(look);
  QApplication::restoreOverrideCursor();
}

void MainWindow::ShowNote(std::u16string_view text)
{
  note_ = ToQString(text);
  // The prompt of the button that the mouse rests on, most often the one just pressed, would hide
  // it.
  notePlace_ = QCursor::pos();
  statusBar()->clearMessage();
  UpdatePanes();
}

bool MainWindow::event(QEvent* event)
{
  if (event->type() == QEvent::Paint && !painted_) {
    painted_ = true;
    QTimer::singleShot(0, this, [this] { UpdatePanes(); });
  }
  // A dialog that closes under a resting mouse makes the button below it send its prompt anew.
  const bool hidesNote = event->type() == QEvent::StatusTip && !note_.isEmpty() &&
                         QCursor::pos() == notePlace_ &&
                         !static_cast<QStatusTipEvent*>(event)->tip().isEmpty();
  return hidesNote || QMainWindow::event(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
  if (!OpenMenuByKey(*this, *event)) QMainWindow::keyPressEvent(event);
}

void MainWindow::StartProgress(std::string_view text)
{
  prompt_->hide();
  progress_->Start(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void MainWindow::ShowProgress(int percent) { progress_->SetPercent(percent); }

void MainWindow::EndProgress()
{
  progress_->End();
  prompt_->show();
}

void MainWindow::FillRecentFiles(QMenu& menu)
{
  menu.clear();
  int number = 0;
  for (const std::u16string& file : documents_.RecentFiles()) {
    const QString path = ToQString(file);
    QAction* const entry =
        menu.addAction(QStringLiteral("&%1 %2").arg(++number).arg(AsMenuText(path)));
    connect(entry, &QAction::triggered, this, [this, path] { OpenFromOutside({path}); });
  }
}

void MainWindow::OpenFromOutside(const QStringList& paths)
{
  note_.clear();
  ShowBusy();
  documents_.Open(ToWide(paths.first()));
  if (paths.size() > 1) {
    const QString others = NotOpened(paths.mid(1));
    ShowNote(ToWide(note_.isEmpty() ? others : note_ + QLatin1Char(' ') + others));
  }
  UpdateAll();
}

void MainWindow::SetViewButtonImage(CommandId command)
{
  if (toolBars_ != nullptr) toolBars_->SetViewImage(command);
}

void MainWindow::InvalidateToolBar()
{
  for (QToolBar* const bar : toolBars_->Bars()) bar->update();
}

void MainWindow::RunCommand(CommandId command)
{
  if (!Query(command).enabled) return;
  note_.clear();
  if (!hullwright::RunCommand(ShellCommandTable::rows, *this, command)) frame_.OnCommand(command);
  UpdateAll();
}

void MainWindow::OnMemoryEnded()
{
  editor_.Recover();
  ShowNote(ToWide(tr("There is not enough memory for that")));
  UpdateAll();
}

CommandState MainWindow::Query(CommandId command) const
{
  const bool isOwn = HasHandler(ShellCommandTable::rows, command);
  return isOwn ? StateOf(ShellCommandTable::rows, *this, command) : frame_.QueryCommand(command);
}

bool MainWindow::ShowsStatusBar() const { return !statusBar()->isHidden(); }

void MainWindow::ToggleStatusBar() { statusBar()->setVisible(!ShowsStatusBar()); }

void MainWindow::UpdateAll()
{
  UpdateCommands();
  UpdatePanes();
  UpdateTitle();
}

void MainWindow::UpdateCommands()
{
  actions_->ForEach([this](CommandId command, QAction& action) {
    CommandState state = Query(command);
    if (const ViewSideEntry* const side = FindViewSideByCommand(command)) {
      state.checkable = true;
      state.checked = side->code == app_.activeView;
    }
    action.setEnabled(state.enabled);
    action.setCheckable(state.checkable);
    action.setChecked(state.checked);
  });
}

void MainWindow::UpdatePanes()
{
  coordinatesPane_->Show(ToQString(view_.statusText));
  // Its text takes the unit database, which nobody should wait for to see the window.
  if (painted_) unitsPane_->Show(ToQString(view_.UnitsPaneText()));
  prompt_->Show(Prompt());
}

QString MainWindow::Prompt() const
{
  if (!note_.isEmpty()) return note_;
  if (view_.drawing) {
    return tr("Left click adds a vertex, right click ends the polyline: %n so far", nullptr,
              static_cast<int>(view_.newShape->vertices.size()));
  }
  return ToQString(Strings::ready);
}

void MainWindow::UpdateTitle()
{
  // Doubled, the mark for a modified document is shown as it stands in a file's name.
  const QString name =
      ToQString(documents_.Name()).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
  setWindowTitle(name + QStringLiteral("[*] - ") + QString::fromLatin1(Strings::program));
  setWindowModified(document_.IsModified());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
  if (!documents_.MayLeave()) {
    event->ignore();
    return;
  }
  if (QSettings* const file = settings_.File()) {
    file->setValue(QLatin1String(geometryKey), saveGeometry());
    file->setValue(QLatin1String(layoutKey), saveState());
    file->setValue(QLatin1String(statusBarKey), !statusBar()->isHidden());
  }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
  if (!DroppedFiles(*event->mimeData()).isEmpty()) AcceptCopy(*event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
  const QStringList paths = DroppedFiles(*event->mimeData());
  if (paths.isEmpty()) return;
  AcceptCopy(*event);
  // Opening may ask a question, for which the source of the drop must not wait. A dialog that has
  // opened meanwhile works on the design as it is; it goes first.
  QTimer::singleShot(0, this, [this, paths] {
    if (QApplication::activeModalWidget() == nullptr) {
      OpenFromOutside(paths);
    } else {
      ShowNote(ToWide(NotOpened(paths)));
    }
  });
}

void MainWindow::changeEvent(QEvent* event)
{
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && guideAction_ != nullptr) {
    RefreshIcons();
  }
}

}  // namespace hullwright
