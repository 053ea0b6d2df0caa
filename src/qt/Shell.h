#pragma once

#include <QString>
#include <memory>

#include "app/HullwrightApp.h"
#include "platform/Framework.h"
#include "qt/MainWindow.h"
#include "qt/QtDialogRunner.h"
#include "qt/QtFileDialogs.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtSettingsStore.h"
#include "system/CommonDataPorts.h"
#include "system/FormerVersions.h"

namespace hullwright {

/// The framework's side of start-up and exit: settings, messages, application and window of one
/// run.
class Shell : public IFramework {
public:
  /// `file` is the design that the command line names; empty for none.
  explicit Shell(QString file);

  CHullwrightApp& App() { return app_; }
  MainWindow* Window() { return window_.get(); }

  void InitialiseControls() override;
  bool InitialiseLibraries() override;
  void OpenUserStore(const char* maker, int recentFiles) override;
  bool CreateDocumentTemplate() override;
  bool ProcessCommandLine() override;
  void ShowMainWindow() override;
  void AcceptDroppedFiles() override;
  void ReleaseLibraries() override;

private:
  QString file_;
  std::size_t recentFiles_ = 0;  ///< length of the list of recent files
  QtSettingsStore settings_;
  QtMessageBoxes messages_;
  CommonDataPorts commonData_{messages_};
  FormerVersions formerVersions_{StateFolder()};
  QtDialogRunner dialogs_;
  QtFileDialogs fileDialogs_{settings_};
  CHullwrightApp app_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace hullwright
