#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "file/HullwrightDoc.h"
#include "support/Fakes.h"
#include "support/RecordingBackEnd.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"
#include "system/CommonDataPorts.h"
#include "view/HullwrightView.h"

namespace hullwright::test {

class FakeWidgets : public IFrameWidgets {
public:
  void SetViewButtonImage(int command) override
  {
    calls.push_back("image " + std::to_string(command));
  }
  void InvalidateToolBar() override
  {
    calls.emplace_back("invalidate");
    if (onInvalidate) onInvalidate();
  }
  void ApplyLook(int look) override { calls.push_back("look " + std::to_string(look)); }
  void ShowNote(std::u16string_view text) override { notes.emplace_back(text); }
  void StartProgress(std::string_view text) override
  {
    calls.push_back("start " + std::string(text));
  }
  void ShowProgress(int percent) override { calls.push_back(std::to_string(percent) + " %"); }
  void EndProgress() override { calls.emplace_back("end"); }
  std::vector<std::string> calls;
  std::vector<std::u16string> notes;
  std::function<void()> onInvalidate;
};

/// Answers every question for a file with one path, or not at all.
class FakeFileDialogs : public IFileDialogs {
public:
  std::optional<std::u16string> AskOpen(std::u16string_view extension,
                                        std::u16string_view filter) override
  {
    asked.emplace_back(extension, filter);
    return answer;
  }
  std::optional<std::u16string> answer;
  std::vector<std::pair<std::u16string, std::u16string>> asked;
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
  FakeFileDialogs fileDialogs;
  FakeWidgets widgets;
  RecordingBackEnd backEnd;
  RecordingWindow window;
  TempFolder dataFolder;  ///< the common data folder, empty
  CommonDataPorts commonData{messages, [this](CommonData) { return dataFolder.File(""); }};
  CHullwrightApp app{{settings, messages, dialogs, fileDialogs, commonData.units, commonData.log}};
  CMainFrame frame{app, widgets};
  CHullwrightDoc document{app, frame, messages};
  CHullwrightView view{app, app, {backEnd, messages, cursor, band, popup}};
};

}  // namespace hullwright::test
