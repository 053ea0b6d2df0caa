#include "cli/HeadlessEditor.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/ImportText.h"
#include "base/Text.h"
#include "cli/DesignCheck.h"

namespace hullwright {

HeadlessEditor::HeadlessEditor(IFrameWidgets* widgets) : HeadlessEditor(nullptr, nullptr, widgets)
{
}

HeadlessEditor::HeadlessEditor(IDrawingBackEnd& drawing, IDrawingWindow& surface)
    : HeadlessEditor(&drawing, &surface, nullptr)
{
}

HeadlessEditor::HeadlessEditor(IDrawingBackEnd* drawing, IDrawingWindow* surface,
                               IFrameWidgets* widgets)
    : editor_({.settings = settings_,
               .messages = messages_,
               .dialogs = dialogs_,
               .fileDialogs = fileDialogs_,
               .units = commonData_.units,
               .log = commonData_.log,
               .widgets = widgets == nullptr ? noWidgets_ : *widgets,
               .tree = tree_,
               .drawing = drawing == nullptr ? noDrawing_ : *drawing,
               .cursor = pointer_,
               .rubberBand = pointer_,
               .popupMenu = pointer_})
{
  editor_.view.OnCreate(surface == nullptr ? &noDrawing_ : surface);
  editor_.frame.hasWindow = true;
}

bool HeadlessEditor::Open(std::u16string_view path)
{
  messages_.shown.clear();
  if (editor_.document.OnOpenDocument(path)) return true;
  if (messages_.shown.empty()) {
    CDesignCheck check(messages_);
    check.Read(path);
    problem_ = u"not a well-formed design file (" + WideFromUtf8(check.Problem()) + u")";
  } else {
    problem_ = messages_.shown.back();
  }
  return false;
}

bool HeadlessEditor::Import(std::u16string_view path)
{
  if (editor_.app.ImportDrawing(path, tally_) != 0) {
    problem_ = unreadableDrawing;
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

bool HeadlessEditor::Save(std::u16string_view path)
{
  editor_.document.OnSaveDocument(path);
  if (editor_.document.SavedWhole()) return true;
  problem_ = u"the design can't be written: " + editor_.document.SaveProblem();
  return false;
}

WorldBox HeadlessEditor::SideBox() const
{
  constexpr double largest = std::numeric_limits<double>::max();
  WorldBox box = {largest, largest, -largest, -largest};
  if (const CShapes* const group = FindViewGroup(editor_.app.shapeGroups, editor_.app.activeView)) {
    ForEachEntry(group->shapes, [&](const CShape& shape) {
      shape.GetExtents(box.minX, box.minY, box.maxX, box.maxY);
    });
  }
  if (editor_.app.activeView != ViewSide::Top) return box;
  const auto widen = [&box](double x, double y) {
    box = {std::min(box.minX, x), std::min(box.minY, y), std::max(box.maxX, x),
           std::max(box.maxY, y)};
  };
  for (const CShapeVertex* offset :
       {editor_.app.offsetGps.get(), editor_.app.offsetTransducer.get(),
        editor_.app.offsetPivot.get()}) {
    if (offset != nullptr) widen(offset->x, offset->y);
  }
  ForEachEntry(editor_.app.anchors->items,
               [&](const CAnchor& anchor) { widen(anchor.attachmentX, anchor.attachmentY); });
  return box;
}

void HeadlessEditor::ShowSide(std::int32_t side, int width, int height)
{
  constexpr double margin = 1.0 / 6.0;
  editor_.app.activeView = side;
  editor_.view.OnSize(width, height);
  Frame(SideBox(), margin);
}

void HeadlessEditor::ShowSide(std::int32_t side, int width, int height, const WorldBox& stretch)
{
  editor_.app.activeView = side;
  editor_.view.OnSize(width, height);
  Frame(stretch, 0.0);
}

void HeadlessEditor::Frame(const WorldBox& box, double marginPart) const
{
  if (!(box.minX <= box.maxX && box.minY <= box.maxY)) return;
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

}  // namespace hullwright
