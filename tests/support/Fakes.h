#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/Code.h"
#include "headless/NoTree.h"
#include "platform/Framework.h"
#include "platform/MainWindowPort.h"

namespace hullwright::test {

/// Records what a main window is notified of: "repaint", "tree", "modified", "clean", or a number;
/// of an import "start", its percentages and "end".
class RecordedNotifications : public IMainWindow {
public:
  bool HasWindow() const override { return hasWindow; }
  void Notify(Notification code) override
  {
    list.emplace_back(code == Notification::RepaintDesign ? "repaint"
                      : code == Notification::RebuildTree ? "tree"
                                                          : std::to_string(NumberOf(code)));
    if (onNotification) onNotification();
  }
  void SetModifiedFlag(bool modified) override
  {
    list.emplace_back(modified ? "modified" : "clean");
    if (onNotification) onNotification();
  }
  void StartProgress(std::string_view text) override
  {
    list.emplace_back("start");
    progressText = text;
  }
  void ShowProgress(int percent) override { list.push_back(std::to_string(percent) + " %"); }
  void EndProgress() override { list.emplace_back("end"); }

  bool hasWindow = true;
  std::vector<std::string> list;
  std::string_view progressText;         ///< of the last import
  std::function<void()> onNotification;  ///< called at each notification of a change
};

/// Writes down what the frame shows.
class FakeWidgets : public IFrameWidgets {
public:
  void SetViewButtonImage(CommandId command) override
  {
    calls.push_back("image " + std::to_string(NumberOf(command)));
  }
  void InvalidateToolBar() override
  {
    calls.emplace_back("invalidate");
    if (onInvalidate) onInvalidate();
  }
  void ApplyLook(Look look) override { calls.push_back("look " + std::to_string(NumberOf(look))); }
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

/// Counts the rebuilds of the tree's control, and keeps the menus that are offered.
class FakeTreeControl : public NoTree {
public:
  void BeforeRebuild() override { ++announced; }
  void Rebuilt() override
  {
    ++rebuilds;
    EXPECT_EQ(announced, 1);
    announced = 0;
  }
  void ImagesChanged() override { ++imageChanges; }
  void ShowMenu(std::span<const PopupEntry> entries) override
  {
    menu.clear();
    for (const PopupEntry& entry : entries) menu.emplace_back(entry.id, entry.text);
  }
  int announced = 0;
  int rebuilds = 0;
  int imageChanges = 0;
  std::vector<std::pair<CommandId, std::u16string>> menu;
};

}  // namespace hullwright::test
