#include "render/Scene.h"

#include <array>
#include <cmath>
#include <string>

#include "base/Text.h"
#include "render/Canvas.h"
#include "render/ShapeDrawing.h"

namespace hullwright {
namespace {

constexpr float half = 0.5019608F;  // 128 of 255

constexpr Colour background{1.0F, 1.0F, 0.8784314F, 1.0F};
constexpr Colour grey{half, half, half, 1.0F};
constexpr Colour red{1.0F, 0.0F, 0.0F, 1.0F};
constexpr Colour blue{0.0F, 0.0F, 1.0F, 1.0F};
constexpr Colour green{0.0F, half, 0.0F, 1.0F};
constexpr Colour purple{half, 0.0F, half, 1.0F};

constexpr std::u16string_view symbolFont = u"Arial";

void DrawOriginCross(const CViewPort& viewPort, IRenderTarget& target, const IBrush& brush)
{
  constexpr float arm = 10.0F;
  const PixelPoint o = Narrowed(viewPort.WorldToScreenFlat(0.0, 0.0));
  target.DrawLine({o.x - arm, o.y}, {o.x + arm, o.y}, brush, 1.0F);
  target.DrawLine({o.x, o.y - arm}, {o.x, o.y + arm}, brush, 1.0F);
}

/// Calls `visit` with each multiple of the spacing from below `from` to above `to`. Ends where the
/// values are so large that adding the spacing no longer changes them.
template <class Visit>
void ForEachGridValue(double from, double to, double spacing, Visit visit)
{
  const double last = std::ceil(to / spacing) * spacing;
  for (double value = std::floor(from / spacing) * spacing; value <= last;) {
    visit(value);
    const double next = value + spacing;
    if (next == value) return;
    value = next;
  }
}

void DrawGridPoints(const CViewPort& viewPort, const GridSettings& grid, IRenderTarget& target,
                    const IBrush& brush)
{
  ForEachGridValue(viewPort.left, viewPort.right, grid.spacingShowX, [&](double gx) {
    ForEachGridValue(viewPort.bottom, viewPort.top, grid.spacingShowY, [&](double gy) {
      const PixelPoint p = Narrowed(viewPort.WorldToScreenFlat(gx, gy));
      target.DrawRectangle({p.x - 1.0F, p.y - 1.0F, p.x + 1.0F, p.y + 1.0F}, brush, 1.0F);
    });
  });
}

/// One of the three device symbols.
struct OffsetSymbol {
  const CShapeVertex* vertex;
  const CShapeVertex* required;  ///< nothing is drawn when this one is null
  Colour colour;
  std::u16string_view label;
};

/// A crossed circle of fixed pixel size with its label above it.
void DrawOffsetSymbol(const CViewPort& viewPort, const OffsetSymbol& symbol)
{
  constexpr float fontSize = 14.0F;
  constexpr float radius = 15.0F;
  constexpr float stroke = 2.0F;
  CCanvas* const canvas = DrawableCanvas(&viewPort);
  if (canvas == nullptr || symbol.required == nullptr || symbol.vertex == nullptr) return;
  IRenderTarget& target = *canvas->renderTarget;
  const auto format = canvas->CreateFormat(symbolFont, fontSize);
  if (!format) return;
  const auto brush = target.CreateSolidColourBrush(symbol.colour);
  if (!brush) return;
  format->CentreText();
  const PixelPoint p = Narrowed(viewPort.WorldToScreenFlat(symbol.vertex->x, symbol.vertex->y));
  target.DrawEllipse(p, radius, radius, *brush, stroke);
  target.DrawLine({p.x - radius, p.y - radius}, {p.x + radius, p.y + radius}, *brush, stroke);
  target.DrawLine({p.x + radius, p.y - radius}, {p.x - radius, p.y + radius}, *brush, stroke);
  format->DisableWordWrapping();
  target.DrawText(symbol.label, *format, {p.x - 50.0F, p.y - 40.0F, p.x + 50.0F, p.y - 10.0F},
                  *brush);
}

void DrawDevices(const DesignState& design, const CViewPort& viewPort)
{
  const CShapeVertex* const gps = design.offsetGps.get();
  const CShapeVertex* const transducer = design.offsetTransducer.get();
  // The pivot hangs on the transducer being there, not on itself.
  const std::array<OffsetSymbol, 3> symbols = {{
      {gps, gps, red, u"GPS"},
      {transducer, transducer, blue, u"TXD"},
      {design.offsetPivot.get(), transducer, green, u"PIV"},
  }};
  for (const OffsetSymbol& symbol : symbols) DrawOffsetSymbol(viewPort, symbol);
  Walk(design.anchors->cursor, design.anchors->items,
       [&](const CAnchor& anchor) { DrawAnchor(anchor, viewPort); });
}

}  // namespace

void DrawScene(const DesignState& design, const CViewPort* viewPort, CShapePolyline* newShape,
               const GridSettings& grid)
{
  if (viewPort == nullptr || viewPort->canvas == nullptr || !design.anchors) return;
  CCanvas& canvas = *viewPort->canvas;
  if (canvas.renderTarget) {
    canvas.renderTarget->BeginDraw();
    canvas.renderTarget->Clear(background);
  }
  if (CShapes* const group = FindViewGroup(design.shapeGroups, design.activeView)) {
    Walk(group->cursor, group->shapes, [&](CShape& shape) { shape.Draw(viewPort); });
  }
  if (newShape != nullptr) newShape->Draw(viewPort);
  DrawGrid(*viewPort, grid);
  if (design.activeView == ViewSide::Top || design.activeView == ViewSide::All) {
    DrawDevices(design, *viewPort);
  }
  if (canvas.renderTarget) canvas.EndFrame(canvas.renderTarget->EndDraw());
}

void DrawGrid(const CViewPort& viewPort, const GridSettings& grid)
{
  constexpr double mostIntervals = 40.0;
  CCanvas* const canvas = DrawableCanvas(&viewPort);
  if (canvas == nullptr) return;
  IRenderTarget& target = *canvas->renderTarget;
  const auto brush = target.CreateSolidColourBrush(grey);
  if (!brush || grid.show == 0) return;
  DrawOriginCross(viewPort, target, *brush);
  if (viewPort.width / grid.spacingShowX > mostIntervals) return;
  if (viewPort.height / grid.spacingShowY > mostIntervals) return;
  DrawGridPoints(viewPort, grid, target, *brush);
}

void DrawAnchor(const CAnchor& anchor, const CViewPort& viewPort)
{
  constexpr float fontSize = 16.0F;
  constexpr float textReach = 20.0F;
  constexpr float radius = 10.0F;
  CCanvas* const canvas = DrawableCanvas(&viewPort);
  if (canvas == nullptr || !anchor.visible) return;
  IRenderTarget& target = *canvas->renderTarget;
  const auto brush = target.CreateSolidColourBrush(purple);
  const auto format = canvas->CreateFormat(symbolFont, fontSize);
  if (!brush || !format) return;
  format->CentreText();
  const PixelPoint p = Narrowed(viewPort.WorldToScreen(anchor.attachmentX, anchor.attachmentY));
  format->DisableWordWrapping();
  target.DrawText(WideFromAscii(std::to_string(anchor.id)), *format,
                  {p.x - textReach, p.y - textReach, p.x + textReach, p.y + textReach}, *brush);
  target.DrawEllipse(p, radius, radius, *brush, 1.0F);
}

}  // namespace hullwright
