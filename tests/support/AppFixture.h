#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "app/SharedLibraries.h"
#include "file/HullwrightDoc.h"
#include "support/Fakes.h"
#include "support/RecordedDrawing.h"
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
    view.OnCreate(&recorder);
    view.OnSize(800, 600);
    recorder.calls.clear();
  }
  ~AppFixture() override
  {
    frame.view = nullptr;
    frame.document = nullptr;
  }

  int Frames() const { return recorder.Frames(); }

  FakeSettings settings;
  FakeMessages messages;
  FakeCursor cursor;
  FakeBand band;
  FakePopup popup;
  ScriptedDialogs dialogs;
  FakeFileDialogs fileDialogs;
  FakeWidgets widgets;
  RecordedDrawing recorder;
  SharedLibraries libraries;
  TempFolder dataFolder;  ///< the common data folder, empty
  CHullwrightApp app{{settings, messages, libraries, dialogs, fileDialogs,
                      [this](CommonData) { return dataFolder.File(""); }}};
  CMainFrame frame{app, widgets};
  CHullwrightDoc document{app, frame, messages};
  CHullwrightView view{app, app, {messages, cursor, band, popup}};
};

}  // namespace hullwright::test
