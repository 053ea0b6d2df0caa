#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "app/HullwrightApp.h"
#include "app/MainFrame.h"
#include "file/HullwrightDoc.h"
#include "system/CommonDataPorts.h"
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

/// A stretch of the world; nothing when a lower bound is above its upper one.
struct WorldBox {
  double minX;
  double minY;
  double maxX;
  double maxY;
};

/// Hears of the frame's look and shows nothing; a base for what shows a part of it.
class NoWidgets : public IFrameWidgets {
public:
  void SetViewButtonImage(int) override {}
  void InvalidateToolBar() override {}
  void ApplyLook(int) override {}
  void ShowNote(std::u16string_view) override {}
  void StartProgress(std::string_view) override {}
  void ShowProgress(int) override {}
  void EndProgress() override {}
};

/// The editor without a window: application, document and view as the window has them, on a drawing
/// surface of the caller's, or without a picture.
class HeadlessEditor {
public:
  /// Without a picture. `widgets` shows the progress of imports; null for nobody.
  explicit HeadlessEditor(IFrameWidgets* widgets = nullptr);
  HeadlessEditor(IDrawingBackEnd& drawing, IDrawingWindow& surface,
                 IFrameWidgets* widgets = nullptr);
  ~HeadlessEditor();

  CHullwrightApp& App() { return app_; }
  CHullwrightView& View() { return view_; }

  /// Opens a design; false with `Problem` telling why.
  bool Open(std::u16string_view path);
  const std::u16string& Problem() const { return problem_; }

  /// Adds a drawing to the side in view; false with `Problem` telling why, also for a file that is
  /// no drawing.
  bool Import(std::u16string_view path);

  /// What the last import took in and passed over.
  const ImportTally& Tally() const { return tally_; }

  /// Takes offsets and anchors out of the picture and out of the design.
  void RemoveSymbols();

  /// Writes the design; false with `Problem` telling why.
  bool Save(std::u16string_view path);

  /// Brings a side into view at a client size, with all its shapes, and on the top side its devices
  /// and anchors if they are not removed, or with at least a stretch of the world.
  void ShowSide(std::int32_t side, int width, int height);
  void ShowSide(std::int32_t side, int width, int height, const WorldBox& stretch);

  /// Draws the side in view as one frame.
  void Draw() { view_.Repaint(); }

private:
  struct NoDrawing;
  struct NoPointer;
  struct NoDialogs;

  HeadlessEditor(std::unique_ptr<NoDrawing> nothing, IFrameWidgets* widgets);

  WorldBox SideBox() const;
  void Frame(const WorldBox& box, double marginPart) const;

  MemorySettings settings_;
  KeptMessages messages_;
  CommonDataPorts commonData_{messages_};
  NoWidgets noWidgets_;
  std::unique_ptr<NoDrawing> noDrawing_;
  std::unique_ptr<NoPointer> pointer_;
  std::unique_ptr<NoDialogs> dialogs_;
  CHullwrightApp app_;
  CMainFrame frame_;
  CHullwrightDoc document_;
  CHullwrightView view_;
  std::u16string problem_;
  ImportTally tally_;
};

}  // namespace hullwright
