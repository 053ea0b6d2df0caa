#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

#include "app/DocumentLife.h"
#include "app/Editor.h"
#include "platform/Framework.h"
#include "qt/Actions.h"
#include "qt/CustomizeDialog.h"
#include "qt/DesignWidget.h"
#include "qt/GuideWindow.h"
#include "qt/ObjectTreeWidget.h"
#include "qt/ProgressPane.h"
#include "qt/PromptPane.h"
#include "qt/QtDialogRunner.h"
#include "qt/QtDocumentDialogs.h"
#include "qt/QtFileDialogs.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtRecentFiles.h"
#include "qt/StatusPane.h"
#include "qt/ToolBars.h"

namespace hullwright {

/// What the start of the program gives the window: the desktop's ports and the system's.
struct DeskPorts {
  QtSettingsStore& settings;
  QtMessageBoxes& messages;
  QtDialogRunner& dialogs;
  QtFileDialogs& fileDialogs;
  IUnitDatabase& units;
  ITrace& log;
  IFormerVersions& formerVersions;
};

/// The window: menu bar, main toolbar, status bar with three panes, and the design view in the
/// middle. It owns the editor and passes every command on to its handler.
class MainWindow : public QMainWindow, public IFrameWidgets {
  Q_OBJECT

public:
  explicit MainWindow(const DeskPorts& ports);
  ~MainWindow() override;

  CHullwrightApp& App() { return app_; }

  /// Builds what hangs on the settings store, which is open from now on: look, toolbars, recent
  /// files.
  void LoadSettings(std::size_t recentFiles);

  DocumentLife& Document() { return documents_; }

  /// Why the last open failed.
  const std::u16string& OpenProblem() const { return document_.OpenProblem(); }

  /// Carries out a command of menu, toolbar or key, if it is enabled.
  void RunCommand(CommandId command);

  /// Makes good what an event has left open that memory ended in, and says so.
  void OnMemoryEnded();

  QString guideFolder;  ///< where the guide lies; empty for beside the program

  /// Shows the window where and as it was closed last.
  void ShowAsBefore();

  void SetViewButtonImage(CommandId command) override;
  void InvalidateToolBar() override;
  void ApplyLook(Look look) override;
  void ShowNote(std::u16string_view text) override;
  void StartProgress(std::string_view text) override;
  void ShowProgress(int percent) override;
  void EndProgress() override;

protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  QMenu* createPopupMenu() override;

private:
  friend struct ShellCommandTable;

  void BuildMenus();
  void BuildToolBars();
  void FillToolBarsMenu();
  void Customize();
  void ShowGuide();
  void RefreshIcons();
  void BuildStatusBar();
  void BuildObjectPane();
  void GoToNextPane();
  void FillRecentFiles(QMenu& menu);
  void OpenFromOutside(const QStringList& paths);

  CommandState Query(CommandId command) const;
  bool ShowsStatusBar() const;
  void ToggleStatusBar();
  void UpdateAll();
  void UpdateCommands();
  void UpdatePanes();
  QString Prompt() const;
  void UpdateTitle();

  DeskPorts ports_;
  QtSettingsStore& settings_ = ports_.settings;
  DesignWidget* design_;
  ObjectTreeWidget* tree_;
  Editor editor_;
  CHullwrightApp& app_ = editor_.app;
  CMainFrame& frame_ = editor_.frame;
  CHullwrightDoc& document_ = editor_.document;
  CHullwrightView& view_ = editor_.view;
  QtDocumentDialogs documentDialogs_{this};
  QtRecentFiles recentFiles_;
  DocumentLife documents_;
  QDockWidget* objectPane_ = nullptr;
  Actions* actions_ = nullptr;
  ToolBars* toolBars_ = nullptr;
  QAction* guideAction_ = nullptr;
  QPointer<GuideWindow> guide_;            ///< while it is open
  QPointer<CustomizeDialog> customizing_;  ///< while it is open
  QMenu* recentMenu_ = nullptr;
  QMenu* toolBarsMenu_ = nullptr;
  QString note_;      ///< what came of the last command; empty for nothing to report
  QPoint notePlace_;  ///< of the mouse on the screen when the note came
  PromptPane* prompt_ = nullptr;
  ProgressPane* progress_ = nullptr;  ///< takes the prompt's place
  StatusPane* coordinatesPane_ = nullptr;
  StatusPane* unitsPane_ = nullptr;
  bool painted_ = false;  ///< the window has been seen
};

}  // namespace hullwright
