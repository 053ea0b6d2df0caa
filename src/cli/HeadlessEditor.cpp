#include "cli/HeadlessEditor.h"

#include <algorithm>
#include <cmath>

#include "app/ImportText.h"
#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/DesignContent.h"
#include "render/Canvas.h"

namespace hullwright {

HeadlessEditor::HeadlessEditor(IFrameWidgets* widgets) : HeadlessEditor(nullptr, widgets) {}

HeadlessEditor::HeadlessEditor(IDrawingTarget& target) : HeadlessEditor(&target, nullptr) {}

HeadlessEditor::HeadlessEditor(IDrawingTarget* target, IFrameWidgets* widgets)
    : editor_({.settings = settings_,
               .messages = messages_,
               .dialogs = dialogs_,
               .fileDialogs = fileDialogs_,
               .units = commonData_.units,
               .log = commonData_.log,
               .widgets = widgets == nullptr ? noWidgets_ : *widgets,
               .tree = tree_,
               .cursor = pointer_,
               .rubberBand = pointer_,
               .popupMenu = pointer_})
{
  commonData_.units.onProblem = [](std::u16string_view reason) { Fail(Utf8FromWide(reason)); };
  editor_.view.OnCreate(target);
  editor_.view.viewPort->canvas->ReleaseResources();
  editor_.frame.hasWindow = true;
}

bool HeadlessEditor::Open(std::u16string_view path)
{
  messages_.shown.clear();
  if (editor_.document.OnOpenDocument(path)) {
    // Half a design is worse than none where nobody sees it.
    if (editor_.document.LeftOutParts() == 0) return true;
    problem_ = u"the design can't be read: out of memory";
    return false;
  }
  const ReadError& error = editor_.document.OpenError();
  if (!messages_.shown.empty()) {
    problem_ = messages_.shown.back();
  } else if (error.line == 0) {
    problem_ = u"the design can't be read: " + error.message;
  } else {
    problem_ = u"not a well-formed design file (" + DescribeBriefly(error) + u")";
  }
  return false;
}

bool HeadlessEditor::Import(std::u16string_view path)
{
  if (editor_.app.ImportDrawing(path, tally_) != 0) {
    problem_ = DescribeUnreadable(tally_);
  } else if (!tally_.IsDrawing()) {
    problem_ = DescribeImport(tally_);
  } else {
    return true;
  }
  return false;
}

void HeadlessEditor::RemoveSymbols()
{
  editor_.app.offsetGps.reset();
  editor_.app.offsetTransducer.reset();
  editor_.app.offsetPivot.reset();
  editor_.app.anchors->Clear();
}

void HeadlessEditor::ShowGrid(bool shown)
{
  GridSettings grid = editor_.app.LoadGridSettings();
  grid.show = shown ? 1 : 0;
  editor_.app.SaveGridSettings(grid);
}

bool HeadlessEditor::Save(std::u16string_view path)
{
  editor_.document.OnSaveDocument(path);
  if (editor_.document.SavedWhole()) return true;
  problem_ = u"the design can't be written: " + editor_.document.SaveProblem();
  return false;
}

bool HeadlessEditor::SaveAndLetGo(std::u16string_view path)
{
  editor_.document.LetGoAtSave();
  return Save(path);
}

Extents HeadlessEditor::SideBox() const
{
  const CHullwrightApp& app = editor_.app;
  Extents box = ContentOf(app, app.activeView).box;
  if (app.activeView == ViewSide::Top) WidenBySymbols(app, box);
  return box;
}

void HeadlessEditor::ShowSide(ViewSide side, int width, int height)
{
  constexpr double margin = 1.0 / 6.0;
  editor_.app.activeView = side;
  editor_.view.OnSize(width, height);
  Frame(SideBox(), margin);
}

void HeadlessEditor::ShowSide(ViewSide side, int width, int height, const Extents& stretch)
{
  editor_.app.activeView = side;
  editor_.view.OnSize(width, height);
  Frame(stretch, 0.0);
}

void HeadlessEditor::Draw()
{
  const CViewPort& viewPort = *editor_.view.viewPort;
  CCanvas& canvas = *viewPort.canvas;
  canvas.Initialize(canvas.window);
  if (IDrawingTarget* const target = canvas.Target()) {
    target->Resize(static_cast<int>(viewPort.screenWidth), static_cast<int>(viewPort.screenHeight));
  }
  editor_.view.Repaint();
  canvas.ReleaseResources();
}

void HeadlessEditor::Frame(const Extents& box, double marginPart) const
{
  if (box.IsEmpty()) return;
  CViewPort& viewPort = *editor_.view.viewPort;
  // The width rules, so a tall box is given the width that its height needs.
  const double boxWidth = box.maxX - box.minX;
  const double needed = (box.maxY - box.minY) * viewPort.screenWidth / viewPort.screenHeight;
  const double half = std::max(boxWidth, needed) * (0.5 + marginPart);
  if (half <= 0.0 || !std::isfinite(half)) return;
  const double cx = (box.minX + box.maxX) * 0.5;
  viewPort.left = cx - half;
  viewPort.right = cx + half;
  viewPort.bottom = box.minY;
  viewPort.top = box.maxY;
  viewPort.KeepAspect();
}

std::string ProblemOfDesign(const InputFile& input)
{
  if (std::string problem = input.Problem(); !problem.empty()) return problem;
  if (input.IsDesign()) return {};
  return input.Name() + ": not a design: it does not begin as XML does";
}

std::string OpenDesign(const InputFile& input, HeadlessEditor& editor)
{
  if (std::string problem = ProblemOfDesign(input); !problem.empty()) return problem;
  if (editor.Open(WideFromUtf8(input.Path()))) return {};
  return input.Name() + ": " + Utf8FromWide(editor.Problem());
}

void WidenBySymbols(const CHullwrightApp& app, Extents& box)
{
  for (const CShapeVertex* offset :
       {app.offsetGps.get(), app.offsetTransducer.get(), app.offsetPivot.get()}) {
    if (offset != nullptr) box.Widen(*offset);
  }
  ForEachEntry(app.anchors->items,
               [&](const CAnchor& anchor) { box.Widen(anchor.attachmentX, anchor.attachmentY); });
}

}  // namespace hullwright
