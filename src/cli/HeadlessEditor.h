#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "app/SharedLibraries.h"
#include "file/HullwrightDoc.h"
#include "view/HullwrightView.h"

namespace hullwright {

/// Settings that last as long as the program.
class MemorySettings : public ISettingsStore {
public:
  std::int32_t ReadInteger(std::string_view section, std::string_view key,
                           std::int32_t fallback) const override;
  void WriteInteger(std::string_view section, std::string_view key, std::int32_t value) override;

private:
  std::map<std::string, std::int32_t> values_;
};

/// Keeps the last message instead of showing it.
class KeptMessages : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override { last = text; }
  bool AskYesNo(std::u16string_view) override { return false; }
  std::u16string last;
};

/// The editor without a window: application, document and view as the window has them, on a drawing
/// surface of the caller's.
class HeadlessEditor {
public:
  HeadlessEditor(IDrawingBackEnd& drawing, IDrawingWindow& surface);
  ~HeadlessEditor();

  /// Opens a design; false with `Problem` telling why.
  bool Open(std::u16string_view path);
  const std::u16string& Problem() const { return problem_; }

  /// Repaints a side with all its shapes, and on the top side its devices and anchors, in view.
  void ShowSide(std::int32_t side, int width, int height);

private:
  struct NoWidgets;
  struct NoPointer;
  struct NoDialogs;

  void FitSide();

  MemorySettings settings_;
  KeptMessages messages_;
  SharedLibraries libraries_;
  std::unique_ptr<NoWidgets> widgets_;
  std::unique_ptr<NoPointer> pointer_;
  std::unique_ptr<NoDialogs> dialogs_;
  CHullwrightApp app_;
  CMainFrame frame_;
  CHullwrightDoc document_;
  CHullwrightView view_;
  std::u16string problem_;
};

}  // namespace hullwright
