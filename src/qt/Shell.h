#pragma once

#include <QString>

#include "platform/Framework.h"
#include "qt/MainWindow.h"
#include "qt/QtDialogRunner.h"
#include "qt/QtFileDialogs.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtSettingsStore.h"
#include "system/CommonDataPorts.h"
#include "system/FormerVersions.h"

namespace hullwright {

/// The framework's side of start-up and exit: the ports and the window, which holds the editor, of
/// one run.
class Shell : public IFramework {
public:
  /// `file` is the design that the command line names; empty for none.
  explicit Shell(QString file);

  CHullwrightApp& App() { return window_.App(); }
  MainWindow* Window() { return &window_; }

  void InitialiseControls() override;
  bool InitialiseLibraries() override;
  void OpenUserStore(const char* maker, int recentFiles) override;
  bool CreateDocumentTemplate() override;
  bool ProcessCommandLine() override;
  void ShowMainWindow() override;
  void AcceptDroppedFiles() override;
  void ReleaseLibraries() override {}

  /// The libraries that the program runs on, with the versions that were found.
  static QString Libraries();

private:
  QString file_;
  std::size_t recentFiles_ = 0;  ///< length of the list of recent files
  QtSettingsStore settings_;
  QtMessageBoxes messages_;
  CommonDataPorts commonData_{messages_};
  FormerVersions formerVersions_{StateFolder()};
  QtDialogRunner dialogs_;
  QtFileDialogs fileDialogs_{settings_};
  MainWindow window_{{settings_, messages_, dialogs_, fileDialogs_, commonData_.units,
                      commonData_.log, formerVersions_}};
};

}  // namespace hullwright
