#include "cli/HeadlessEditor.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "app/ImportText.h"
#include "base/Text.h"
#include "cli/DesignCheck.h"

namespace hullwright {

std::int32_t MemorySettings::ReadInteger(std::string_view section, std::string_view key,
                                         std::int32_t fallback) const
{
  const auto found = values_.find(std::string(section).append("/").append(key));
  return found == values_.end() ? fallback : found->second;
}

void MemorySettings::WriteInteger(std::string_view section, std::string_view key,
                                  std::int32_t value)
{
  values_[std::string(section).append("/").append(key)] = value;
}

/// Has neither a window nor anything that could draw.
struct HeadlessEditor::NoDrawing : IDrawingBackEnd, IDrawingWindow {
  Created<IDrawFactory> CreateDrawFactory() override { return {-1, nullptr}; }
  Created<IWriteFactory> CreateWriteFactory() override { return {-1, nullptr}; }
  Created<IImagingFactory> CreateImagingFactory() override { return {-1, nullptr}; }
  std::optional<std::string> SystemMessage(ResultCode) const override { return std::nullopt; }
  bool IsWindow() const override { return false; }
  std::optional<PixelSize> ClientSize() const override { return std::nullopt; }
};

struct HeadlessEditor::NoPointer : ICursor, IRubberBand, IPopupMenu {
  void Show(std::span<const PopupEntry>, ClientPoint) override {}
  void SetCursor(CursorShape) override {}
  void InvertLine(ClientPoint, ClientPoint) override {}
};

struct HeadlessEditor::NoDialogs : IDialogRunner, IFileDialogs {
  DialogEnd Run(IDialog&) override { return DialogEnd::Cancel; }
  std::optional<std::u16string> AskOpen(std::u16string_view, std::u16string_view) override
  {
    return std::nullopt;
  }
};

HeadlessEditor::HeadlessEditor(IFrameWidgets* widgets)
    : HeadlessEditor(std::make_unique<NoDrawing>(), widgets)
{
}

HeadlessEditor::HeadlessEditor(std::unique_ptr<NoDrawing> nothing, IFrameWidgets* widgets)
    : HeadlessEditor(*nothing, *nothing, widgets)
{
  noDrawing_ = std::move(nothing);
}

HeadlessEditor::HeadlessEditor(IDrawingBackEnd& drawing, IDrawingWindow& surface,
                               IFrameWidgets* widgets)
    : pointer_(std::make_unique<NoPointer>()),
      dialogs_(std::make_unique<NoDialogs>()),
      app_({settings_, messages_, *dialogs_, *dialogs_, commonData_.units, commonData_.log}),
      frame_(app_, widgets == nullptr ? noWidgets_ : *widgets),
      document_(app_, frame_, messages_),
      view_(app_, app_, {drawing, messages_, *pointer_, *pointer_, *pointer_})
{
  frame_.document = &document_;
  frame_.view = &view_;
  view_.OnCreate(&surface);
  frame_.hasWindow = true;
}

HeadlessEditor::~HeadlessEditor()
{
  frame_.view = nullptr;
  frame_.document = nullptr;
}

bool HeadlessEditor::Open(std::u16string_view path)
{
  messages_.last.clear();
  if (document_.OnOpenDocument(path)) return true;
  if (messages_.last.empty()) {
    CDesignCheck check(messages_);
    check.Read(path);
    problem_ = u"not a well-formed design file (" + WideFromUtf8(check.Problem()) + u")";
  } else {
    problem_ = messages_.last;
  }
  return false;
}

bool HeadlessEditor::Import(std::u16string_view path)
{
  if (app_.ImportDrawing(path, tally_) != 0) {
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
  app_.offsetGps.reset();
  app_.offsetTransducer.reset();
  app_.offsetPivot.reset();
  app_.anchors->Clear();
}

bool HeadlessEditor::Save(std::u16string_view path)
{
  document_.OnSaveDocument(path);
  if (document_.SavedWhole()) return true;
  problem_ = u"the design can't be written: " + document_.SaveProblem();
  return false;
}

WorldBox HeadlessEditor::SideBox() const
{
  constexpr double largest = std::numeric_limits<double>::max();
  WorldBox box = {largest, largest, -largest, -largest};
  if (const CShapes* const group = FindViewGroup(app_.shapeGroups, app_.activeView)) {
    ForEachEntry(group->shapes, [&](const CShape& shape) {
      shape.GetExtents(box.minX, box.minY, box.maxX, box.maxY);
    });
  }
  if (app_.activeView != ViewSide::Top) return box;
  const auto widen = [&box](double x, double y) {
    box = {std::min(box.minX, x), std::min(box.minY, y), std::max(box.maxX, x),
           std::max(box.maxY, y)};
  };
  for (const CShapeVertex* offset :
       {app_.offsetGps.get(), app_.offsetTransducer.get(), app_.offsetPivot.get()}) {
    if (offset != nullptr) widen(offset->x, offset->y);
  }
  ForEachEntry(app_.anchors->items,
               [&](const CAnchor& anchor) { widen(anchor.attachmentX, anchor.attachmentY); });
  return box;
}

void HeadlessEditor::ShowSide(std::int32_t side, int width, int height)
{
  constexpr double margin = 1.0 / 6.0;
  app_.activeView = side;
  view_.OnSize(width, height);
  Frame(SideBox(), margin);
}

void HeadlessEditor::ShowSide(std::int32_t side, int width, int height, const WorldBox& stretch)
{
  app_.activeView = side;
  view_.OnSize(width, height);
  Frame(stretch, 0.0);
}

void HeadlessEditor::Frame(const WorldBox& box, double marginPart) const
{
  if (!(box.minX <= box.maxX && box.minY <= box.maxY)) return;
  CViewPort& viewPort = *view_.viewPort;
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
