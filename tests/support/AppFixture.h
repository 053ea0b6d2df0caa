#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "app/SharedLibraries.h"
#include "file/HullwrightDoc.h"
#include "support/Fakes.h"
#include "support/RecordingBackEnd.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"
#include "view/HullwrightView.h"

namespace hullwright::test {

class FakeWidgets : public IFrameWidgets {
public:
  void SetViewButtonImage(int command) override
  {
    calls.push_back("image " + std::to_string(command));
  }
  void InvalidateToolBar() override { calls.emplace_back("invalidate"); }
  void ApplyLook(int look) override { calls.push_back("look " + std::to_string(look)); }
  std::vector<std::string> calls;
};

/// The whole application over recording ports, in a window of 800 by 600.
class AppFixture : public testing::Test {
protected:
  AppFixture()
  {
    frame.document = &document;
    frame.view = &view;
    frame.hasWindow = true;
    view.OnCreate(&window);
    view.OnSize(800, 600);
    backEnd.log.clear();
  }
  ~AppFixture() override
  {
    frame.view = nullptr;
    frame.document = nullptr;
  }

  int Frames() const { return static_cast<int>(std::ranges::count(backEnd.log, "begin")); }

  FakeSettings settings;
  FakeMessages messages;
  FakeCursor cursor;
  FakeBand band;
  FakePopup popup;
  ScriptedDialogs dialogs;
  FakeWidgets widgets;
  RecordingBackEnd backEnd;
  RecordingWindow window;
  SharedLibraries libraries;
  TempFolder dataFolder;  ///< the common data folder, empty
  CHullwrightApp app{
      {settings, messages, libraries, dialogs, [this] { return dataFolder.File(""); }}};
  CMainFrame frame{app, widgets};
  CHullwrightDoc document{app, frame, messages};
  CHullwrightView view{app, app, {backEnd, messages, cursor, band, popup}};
};

}  // namespace hullwright::test
