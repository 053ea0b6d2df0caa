#pragma once

#include <string_view>

#include "platform/Progress.h"
#include "resources/CommandIds.h"

namespace hullwright {

/// What start-up and exit need of the application framework, in the order of use. Steps that can
/// stop the start-up answer with a boolean.
class IFramework {
public:
  virtual ~IFramework() = default;

  /// Widgets, tooltips and keyboard are ready.
  virtual void InitialiseControls() = 0;

  /// The shared libraries that files and pictures depend on are there, in a version that fits.
  virtual bool InitialiseLibraries() = 0;

  /// Opens the user's store under the maker's key and reads the list of recent files.
  virtual void OpenUserStore(const char* maker, int recentFiles) = 0;

  /// Makes document, main frame and view.
  virtual bool CreateDocumentTemplate() = 0;

  /// Opens the file that the command line names, or a new document.
  virtual bool ProcessCommandLine() = 0;

  virtual void ShowMainWindow() = 0;
  virtual void AcceptDroppedFiles() = 0;
  virtual void ReleaseLibraries() = 0;
};

/// The part of the main frame's look that commands and notifications change.
class IFrameWidgets : public IProgress {
public:
  /// Gives the side drop-down the image of a command.
  virtual void SetViewButtonImage(CommandId command) = 0;

  /// Draws the whole toolbar anew.
  virtual void InvalidateToolBar() = 0;

  /// Gives the program a look and draws the frame anew.
  virtual void ApplyLook(Look look) = 0;

  /// Shows what came of a command, until the next one.
  virtual void ShowNote(std::u16string_view text) = 0;
};

}  // namespace hullwright
