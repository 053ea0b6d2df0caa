#include "cli/HeadlessEditor.h"

#include <algorithm>
#include <limits>

#include "app/CommonDataFolder.h"

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

struct HeadlessEditor::NoWidgets : IFrameWidgets {
  void SetViewButtonImage(int) override {}
  void InvalidateToolBar() override {}
  void ApplyLook(int) override {}
  void StartProgress(std::string_view) override {}
  void ShowProgress(int) override {}
  void EndProgress() override {}
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

HeadlessEditor::HeadlessEditor(IDrawingBackEnd& drawing, IDrawingWindow& surface)
    : widgets_(std::make_unique<NoWidgets>()),
      pointer_(std::make_unique<NoPointer>()),
      dialogs_(std::make_unique<NoDialogs>()),
      app_({settings_, messages_, libraries_, *dialogs_, *dialogs_, FindCommonDataFolder}),
      frame_(app_, *widgets_),
      document_(app_, frame_, messages_),
      view_(app_, app_, {drawing, messages_, *pointer_, *pointer_, *pointer_})
{
  frame_.document = &document_;
  frame_.view = &view_;
  view_.OnCreate(&surface);
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
  problem_ = messages_.last.empty() ? u"not a well-formed design file" : messages_.last;
  return false;
}

void HeadlessEditor::ShowSide(std::int32_t side, int width, int height)
{
  app_.activeView = side;
  view_.OnSize(width, height);
  FitSide();
  view_.Repaint();
}

void HeadlessEditor::FitSide()
{
  constexpr double largest = std::numeric_limits<double>::max();
  CViewPort& viewPort = *view_.viewPort;
  double minX = largest;
  double minY = largest;
  double maxX = -largest;
  double maxY = -largest;
  const auto widen = [&](double x, double y) {
    minX = std::min(minX, x);
    minY = std::min(minY, y);
    maxX = std::max(maxX, x);
    maxY = std::max(maxY, y);
  };
  if (const CShapes* const group = FindViewGroup(app_.shapeGroups, app_.activeView)) {
    ForEachEntry(group->shapes,
                 [&](const CShape& shape) { shape.GetExtents(minX, minY, maxX, maxY); });
  }
  if (app_.activeView == ViewSide::Top) {
    for (const CShapeVertex* offset :
         {app_.offsetGps.get(), app_.offsetTransducer.get(), app_.offsetPivot.get()}) {
      widen(offset->x, offset->y);
    }
    ForEachEntry(app_.anchors->items,
                 [&](const CAnchor& anchor) { widen(anchor.attachmentX, anchor.attachmentY); });
  }
  if (minX > maxX || minY > maxY) return;
  // The width rules in a fit, so a tall box is given the width that its height needs.
  const double wanted = (maxY - minY) * viewPort.screenWidth / viewPort.screenHeight;
  const double missing = std::max(wanted - (maxX - minX), 0.0) * 0.5;
  viewPort.FitExtents(minX - missing, minY, maxX + missing, maxY);
}

}  // namespace hullwright
