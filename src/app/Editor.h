#pragma once

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "app/ObjectView.h"
#include "file/HullwrightDoc.h"
#include "view/HullwrightView.h"

namespace hullwright {

/// What the editor asks of the platform; all of it must outlive the editor.
struct Ports {
  ISettingsStore& settings;
  IMessageBoxes& messages;
  IDialogRunner& dialogs;
  IFileDialogs& fileDialogs;
  IUnitDatabase& units;
  ITrace& log;
  IFrameWidgets& widgets;
  ITreeControl& tree;
  ICursor& cursor;
  IRubberBand& rubberBand;
  IPopupMenu& popupMenu;
  IMainWindow* listener = nullptr;  ///< gets the frame's notifications before it acts on them
};

/// The whole editor: application, frame, document, view and object pane, put together over one set
/// of ports. Whoever shows it calls `view.OnCreate` with what the picture appears on, and sets
/// `frame.hasWindow` once there is a window.
class Editor {
public:
  explicit Editor(const Ports& ports);
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;
  ~Editor();

  /// Called behind an event that was left because memory had ended, which changes what it changes
  /// of the design whole or not at all: lets go of what may be gone, and shows what is there.
  void Recover();

  CHullwrightApp app;
  CMainFrame frame;
  CHullwrightDoc document;
  CHullwrightView view;
  CObjectView objects;
};

}  // namespace hullwright
