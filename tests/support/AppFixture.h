#pragma once

#include <gtest/gtest.h>

#include "app/Editor.h"
#include "headless/FileAnswers.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "headless/MemorySettings.h"
#include "headless/ScriptedDialogs.h"
#include "support/AddLine.h"
#include "support/Fakes.h"
#include "support/RecordedDrawing.h"
#include "support/TempFolder.h"
#include "system/CommonDataPorts.h"

namespace hullwright::test {

/// The whole editor over recording ports, in a window of 800 by 600.
class AppFixture : public testing::Test {
protected:
  AppFixture()
  {
    frame.hasWindow = true;
    view.OnCreate(&recorder);
    view.OnSize(800, 600);
    recorder.calls.clear();
  }

  int Frames() const { return recorder.Frames(); }

  CShapePolyline& AddLine(ViewSide side, std::initializer_list<CShapeVertex> vertices)
  {
    return test::AddLine(app, side, vertices);
  }

  MemorySettings settings;
  KeptMessages messages;
  KeptPointer pointer;
  ScriptedDialogs dialogs;
  FileAnswers fileDialogs;
  FakeWidgets widgets;
  FakeTreeControl control;
  RecordedNotifications notified;
  RecordedDrawing recorder;
  TempFolder dataFolder;  ///< the common data folder, empty
  CommonDataPorts commonData{messages, [this](CommonData) { return dataFolder.File(""); }};
  Ports ports{.settings = settings,
              .messages = messages,
              .dialogs = dialogs,
              .fileDialogs = fileDialogs,
              .units = commonData.units,
              .log = commonData.log,
              .widgets = widgets,
              .tree = control,
              .cursor = pointer,
              .rubberBand = pointer,
              .popupMenu = pointer,
              .listener = &notified};
  Editor editor{ports};
  CHullwrightApp& app = editor.app;
  CMainFrame& frame = editor.frame;
  CHullwrightDoc& document = editor.document;
  CHullwrightView& view = editor.view;
};

}  // namespace hullwright::test
