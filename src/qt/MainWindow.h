#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

#include "app/DocumentLife.h"
#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "file/HullwrightDoc.h"
#include "platform/Framework.h"
#include "qt/Actions.h"
#include "qt/CustomizeDialog.h"
#include "qt/DesignWidget.h"
#include "qt/ObjectTreeWidget.h"
#include "qt/ProgressPane.h"
#include "qt/PromptPane.h"
#include "qt/QtDocumentDialogs.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtRecentFiles.h"
#include "qt/StatusPane.h"
#include "qt/ToolBars.h"

namespace hullwright {

/// The window: menu bar, main toolbar, status bar with three panes, and the design view in the
/// middle. It owns frame, document and view, and brings every command to whoever carries it out.
class MainWindow : public QMainWindow, public IFrameWidgets {
  Q_OBJECT

public:
  MainWindow(CHullwrightApp& app, QtSettingsStore& settings, QtMessageBoxes& messages,
             IFormerVersions& formerVersions, std::size_t recentFiles);
  ~MainWindow() override;

  DocumentLife& Document() { return documents_; }

  /// Why the last open failed.
  const std::u16string& OpenProblem() const { return document_.OpenProblem(); }

  /// Carries out a command of menu, toolbar or key, if it is enabled.
  void RunCommand(int command);

  /// Shows the window where and as it was closed last.
  void ShowAsBefore();

  void SetViewButtonImage(int command) override;
  void InvalidateToolBar() override;
  void ApplyLook(int look) override;
  void ShowNote(std::u16string_view text) override;
  void StartProgress(std::string_view text) override;
  void ShowProgress(int percent) override;
  void EndProgress() override;

protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;
  QMenu* createPopupMenu() override;

private:
  void BuildMenus();
  void BuildToolBars();
  void FillToolBarsMenu();
  void Customize();
  void BuildStatusBar();
  void BuildObjectPane();
  void GoToNextPane();
  void FillRecentFiles(QMenu& menu);
  void OpenFromOutside(const QStringList& paths);

  bool RunShellCommand(int command);
  CommandState Query(int command) const;
  void UpdateAll();
  void UpdateCommands();
  void UpdatePanes();
  QString Prompt() const;
  void UpdateTitle();

  QtSettingsStore& settings_;
  CHullwrightApp& app_;
  CMainFrame frame_;
  CHullwrightDoc document_;
  DesignWidget* design_;
  CHullwrightView view_;
  QtDocumentDialogs documentDialogs_{this};
  QtRecentFiles recentFiles_;
  DocumentLife documents_;
  ObjectTreeWidget* tree_;
  CObjectView objects_;
  QDockWidget* objectPane_ = nullptr;
  Actions* actions_ = nullptr;
  ToolBars* toolBars_ = nullptr;
  QPointer<CustomizeDialog> customizing_;  ///< while it is open
  QMenu* recentMenu_ = nullptr;
  QMenu* toolBarsMenu_ = nullptr;
  QString note_;  ///< what came of the last command; empty for nothing to tell
  PromptPane* prompt_ = nullptr;
  ProgressPane* progress_ = nullptr;  ///< takes the prompt's place
  StatusPane* coordinatesPane_ = nullptr;
  StatusPane* unitsPane_ = nullptr;
};

}  // namespace hullwright
