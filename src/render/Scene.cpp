#include "render/Scene.h"

#include <array>
#include <cmath>
#include <new>
#include <string>

#include "base/Text.h"
#include "model/OffsetPoints.h"
#include "render/Canvas.h"
#include "render/OutOfView.h"
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

constexpr Stroke gridStroke{grey, 1.0F};

constexpr std::u16string_view symbolFont = u"Arial";

void DrawOriginCross(const CViewPort& viewPort, IDrawingTarget& target)
{
  constexpr float arm = 10.0F;
  const PixelPoint o = Narrowed(viewPort.WorldToScreenFlat(0.0, 0.0));
  target.DrawLine({o.x - arm, o.y}, {o.x + arm, o.y}, gridStroke);
  target.DrawLine({o.x, o.y - arm}, {o.x, o.y + arm}, gridStroke);
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

void DrawGridPoints(const CViewPort& viewPort, const GridSettings& grid, IDrawingTarget& target)
{
  ForEachGridValue(viewPort.left, viewPort.right, grid.spacingShowX, [&](double gx) {
    ForEachGridValue(viewPort.bottom, viewPort.top, grid.spacingShowY, [&](double gy) {
      const PixelPoint p = Narrowed(viewPort.WorldToScreenFlat(gx, gy));
      target.DrawRectangle({p.x - 1.0F, p.y - 1.0F, p.x + 1.0F, p.y + 1.0F}, gridStroke);
    });
  });
}

/// One of the three offset symbols.
struct OffsetSymbol {
  const CShapeVertex* vertex;
  const CShapeVertex* required;  ///< nothing is drawn when this one is null
  Colour colour;
  std::u16string_view label;
};

/// A crossed circle of fixed pixel size with its label above it.
void DrawOffsetSymbol(const CViewPort& viewPort, const OffsetSymbol& symbol)
{
  constexpr TextStyle style{symbolFont, 14.0F, true};
  constexpr float radius = 15.0F;
  const CCanvas* const canvas = DrawableCanvas(&viewPort);
  if (canvas == nullptr || symbol.required == nullptr || symbol.vertex == nullptr) return;
  if (!canvas->CanWrite(style)) return;
  IDrawingTarget& target = *canvas->Target();
  const Stroke stroke{symbol.colour, 2.0F};
  const PixelPoint p = Narrowed(viewPort.WorldToScreenFlat(symbol.vertex->x, symbol.vertex->y));
  target.DrawEllipse(p, radius, radius, stroke);
  target.DrawLine({p.x - radius, p.y - radius}, {p.x + radius, p.y + radius}, stroke);
  target.DrawLine({p.x + radius, p.y - radius}, {p.x - radius, p.y + radius}, stroke);
  const PixelRect above{p.x - 50.0F, p.y - 40.0F, p.x + 50.0F, p.y - 10.0F};
  target.DrawText({.text = symbol.label, .style = style, .rect = above, .colour = symbol.colour});
}

void DrawOffsetsAndAnchors(const DesignState& design, const CViewPort& viewPort)
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

void DrawContent(const DesignState& design, const CViewPort& viewPort, CShapePolyline* newShape,
                 const GridSettings& grid)
{
  if (CShapes* const group = FindViewGroup(design.shapeGroups, design.activeView)) {
    const OutOfView outOfView(viewPort, TargetOf(&viewPort));
    Walk(group->cursor, group->shapes, [&](CShape& shape) {
      if (!outOfView.Holds(shape)) shape.Draw(&viewPort);
    });
  }
  if (newShape != nullptr) newShape->Draw(&viewPort);
  DrawGrid(viewPort, grid);
  if (ShowsOffsetsAndAnchors(design.activeView)) DrawOffsetsAndAnchors(design, viewPort);
}

}  // namespace

void DrawScene(const DesignState& design, const CViewPort* viewPort, CShapePolyline* newShape,
               const GridSettings& grid)
{
  if (viewPort == nullptr || viewPort->canvas == nullptr || !design.anchors) return;
  CCanvas& canvas = *viewPort->canvas;
  try {
    if (canvas.Target() != nullptr) canvas.Target()->BeginFrame(background);
    DrawContent(design, *viewPort, newShape, grid);
  } catch (const std::bad_alloc&) {
    // No target stays in the middle of a frame: its picture may go before the next one.
    if (canvas.Target() != nullptr) canvas.Target()->EndFrame();
    throw;
  }
  if (canvas.Target() != nullptr) canvas.EndFrame(canvas.Target()->EndFrame());
}

void DrawGrid(const CViewPort& viewPort, const GridSettings& grid)
{
  constexpr double mostIntervals = 40.0;
  IDrawingTarget* const target = TargetOf(&viewPort);
  if (target == nullptr || grid.show == 0) return;
  DrawOriginCross(viewPort, *target);
  if (viewPort.width / grid.spacingShowX > mostIntervals) return;
  if (viewPort.height / grid.spacingShowY > mostIntervals) return;
  DrawGridPoints(viewPort, grid, *target);
}

void DrawAnchor(const CAnchor& anchor, const CViewPort& viewPort)
{
  constexpr TextStyle style{symbolFont, 16.0F, true};
  constexpr float textReach = 20.0F;
  constexpr float radius = 10.0F;
  const CCanvas* const canvas = DrawableCanvas(&viewPort);
  if (canvas == nullptr || !anchor.visible || !canvas->CanWrite(style)) return;
  IDrawingTarget& target = *canvas->Target();
  const std::u16string number = WideFromAscii(std::to_string(anchor.id));
  const PixelPoint p = Narrowed(viewPort.WorldToScreen(anchor.attachmentX, anchor.attachmentY));
  const PixelRect around{p.x - textReach, p.y - textReach, p.x + textReach, p.y + textReach};
  target.DrawText({.text = number, .style = style, .rect = around, .colour = purple});
  target.DrawEllipse(p, radius, radius, {purple, 1.0F});
}

}  // namespace hullwright
