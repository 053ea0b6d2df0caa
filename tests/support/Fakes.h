#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/GridSettings.h"
#include "platform/MainWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/Pointer.h"
#include "platform/PopupMenu.h"
#include "platform/SettingsStore.h"

namespace hullwright::test {

class FakeSettings : public ISettingsStore {
public:
  std::int32_t ReadInteger(std::string_view section, std::string_view key,
                           std::int32_t fallback) const override
  {
    const auto found = values.find(std::string(section).append("/").append(key));
    return found == values.end() ? fallback : found->second;
  }
  void WriteInteger(std::string_view section, std::string_view key, std::int32_t value) override
  {
    const std::string path = std::string(section).append("/").append(key);
    values[path] = value;
    written.push_back(path);
  }

  std::map<std::string, std::int32_t> values;
  std::vector<std::string> written;
};

class FakeMessages : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override
  {
    shown.emplace_back(text);
    if (onShow) onShow();
  }
  bool AskYesNo(std::u16string_view question) override
  {
    asked.emplace_back(question);
    if (onQuestion) onQuestion();
    return answer;
  }

  std::vector<std::u16string> shown;
  std::function<void()> onShow;
  std::vector<std::u16string> asked;
  bool answer = false;
  std::function<void()> onQuestion;  ///< runs while the question is open
};

class FakeCursor : public ICursor {
public:
  void SetCursor(CursorShape shape) override { shapes.push_back(shape); }
  std::vector<CursorShape> shapes;
};

class FakeBand : public IRubberBand {
public:
  void InvertLine(ClientPoint from, ClientPoint to) override { lines.emplace_back(from, to); }
  std::vector<std::pair<ClientPoint, ClientPoint>> lines;
};

/// Keeps the menus that were offered.
class FakePopup : public IPopupMenu {
public:
  void Show(std::span<const PopupEntry> entries, ClientPoint at) override
  {
    offered.clear();
    for (const PopupEntry& entry : entries) offered.emplace_back(entry.id, entry.text);
    place = at;
  }
  std::vector<std::pair<int, std::u16string>> offered;
  ClientPoint place;
};

/// A main window that only counts what it is told.
class FakeMainWindow : public IMainWindow {
public:
  bool HasWindow() const override { return hasWindow; }
  void Notify(int code, std::intptr_t value) override
  {
    codes.push_back(code);
    values.push_back(value);
    if (onTold) onTold();
  }
  void SetModifiedFlag(bool modified) override
  {
    flags.push_back(modified);
    if (onTold) onTold();
  }

  bool hasWindow = true;
  std::vector<int> codes;
  std::vector<std::intptr_t> values;
  std::vector<bool> flags;
  std::function<void()> onTold;  ///< looks at what stands when it is told something
};

}  // namespace hullwright::test
