#pragma once

#include <string>
#include <string_view>

#include "app/Editor.h"
#include "dxf/ImportTally.h"
#include "headless/FileAnswers.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "headless/MemorySettings.h"
#include "headless/NoDialogs.h"
#include "headless/NoTree.h"
#include "headless/NoWidgets.h"
#include "system/CommonDataPorts.h"
#include "system/InputFile.h"

namespace hullwright {

/// The editor on designs and drawings without a user: opens, imports, saves, and brings sides
/// into view on a drawing target of the caller's, or without a picture.
class HeadlessEditor {
public:
  /// Without a picture. `widgets` shows the progress of imports; may be null.
  explicit HeadlessEditor(IFrameWidgets* widgets = nullptr);
  explicit HeadlessEditor(IDrawingTarget& target);

  CHullwrightApp& App() { return editor_.app; }

  /// Opens a design; false with the reason in `Problem`.
  bool Open(std::u16string_view path);
  const std::u16string& Problem() const { return problem_; }

  /// Adds a drawing to the side in view; false with the reason in `Problem`, also for a file that
  /// is no drawing.
  bool Import(std::u16string_view path);

  /// What the last import took in and passed over.
  const ImportTally& Tally() const { return tally_; }

  /// Takes offsets and anchors out of the picture and out of the design.
  void RemoveSymbols();

  /// Sets whether the grid is drawn.
  void ShowGrid(bool shown);

  /// Writes the design; false with the reason in `Problem`.
  bool Save(std::u16string_view path);

  /// Likewise, for a design that nobody needs afterwards: its shapes are empty then.
  bool SaveAndLetGo(std::u16string_view path);

  /// Brings a side into view at a client size, with all its shapes, and on the top side its devices
  /// and anchors if they are not removed, or with at least a stretch of the world.
  void ShowSide(ViewSide side, int width, int height);
  void ShowSide(ViewSide side, int width, int height, const Extents& stretch);

  /// Draws the side in view as one frame. What a window would show on the way to it isn't drawn.
  void Draw();

private:
  HeadlessEditor(IDrawingTarget* target, IFrameWidgets* widgets);

  Extents SideBox() const;
  void Frame(const Extents& box, double marginPart) const;

  MemorySettings settings_;
  KeptMessages messages_;
  NoDialogs dialogs_;
  FileAnswers fileDialogs_;
  NoWidgets noWidgets_;
  NoTree tree_;
  KeptPointer pointer_;
  CommonDataPorts commonData_{messages_};
  Editor editor_;
  std::u16string problem_;
  ImportTally tally_;
};

/// Why a file can't be opened as a design, seen by its beginning alone, with its name; empty where
/// it may be one.
std::string ProblemOfDesign(const InputFile& input);

/// Opens a file as a design. Empty on success, else what is wrong with the file, with its name.
std::string OpenDesign(const InputFile& input, HeadlessEditor& editor);

/// Widens a box by the places of the offsets, those that there are, and of the anchors.
void WidenBySymbols(const CHullwrightApp& app, Extents& box);

}  // namespace hullwright
