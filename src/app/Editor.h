#pragma once

#include <new>

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

  /// Carries out what an event asks for. Where memory ends the rest of it is left out: whole shapes
  /// are changed or none, and what refers to the design is made anew. Whether all was done.
  template <class Step>
  bool Run(Step step)
  {
    try {
      step();
      return true;
    } catch (const std::bad_alloc&) {
      Recover();
      return false;
    }
  }

  CHullwrightApp app;
  CMainFrame frame;
  CHullwrightDoc document;
  CHullwrightView view;
  CObjectView objects;

private:
  /// Lets go of what may have left the design, and shows what is in it.
  void Recover();
};

}  // namespace hullwright
