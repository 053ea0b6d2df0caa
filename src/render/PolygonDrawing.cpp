#include <algorithm>
#include <array>
#include <vector>

#include "model/ShapePolygon.h"
#include "render/Canvas.h"
#include "render/ShapeDrawing.h"

namespace hullwright {
namespace {

/// The rings as figures of one path; null on failure.
std::unique_ptr<IPathGeometry> OutlineOf(const CShapePolygon& polygon, const CViewPort& viewPort,
                                         const CCanvas& canvas)
{
  auto path = canvas.CreateGeometry();
  if (!path) return nullptr;
  const auto sink = path->Open();
  if (Failed(sink.code) || !sink.object) return nullptr;
  std::vector<PixelPoint> points;
  ForEachEntry(polygon.rings, [&](const CShapePolygonRing& ring) {
    points.clear();
    ForEachEntry(ring.vertices, [&](const CShapeVertex& v) {
      points.push_back(Narrowed(viewPort.WorldToScreen(v.x, v.y)));
    });
    if (points.empty()) return;  // a figure has to begin somewhere
    sink.object->BeginFigure(points.front(), FigureFill::Filled);
    sink.object->AddLines(points);
    sink.object->EndFigure(FigureEnd::Closed);
  });
  return Failed(sink.object->Close()) ? nullptr : std::move(path);
}

}  // namespace

void CShapePolygon::Draw(const CViewPort* viewPort)
{
  CCanvas* const canvas = DrawableCanvas(viewPort);
  if (canvas == nullptr) return;
  // The outline is white on the pale paper and the inside is not filled, whatever the style says.
  const auto brush = canvas->renderTarget->CreateSolidColourBrush(Colours::white);
  if (!brush) return;
  const auto outline = OutlineOf(*this, *viewPort, *canvas);
  if (!outline) return;
  if (selected) brush->SetColour(Colours::highlight);
  canvas->renderTarget->DrawGeometry(*outline, *brush, 1.0F);
}

bool CShapePolygon::HitTest(const CViewPort*, double x, double y) const
{
  bool inside = false;
  ForEachEntry(rings, [&](const CShapePolygonRing& ring) {
    if (ring.ContainsPoint(x, y)) inside = !inside;
  });
  return inside;
}

bool CShapePolygon::IsVisible(const CViewPort&) const { return true; }

bool CShapePolygonRing::IsVisible(const CViewPort& viewPort) const
{
  const auto inView = [&](const auto& vertex) {
    return vertex && viewPort.Contains(vertex->x, vertex->y);
  };
  if (std::ranges::any_of(vertices, inView)) return true;
  const std::array<WorldPoint, 4> corners = {{{viewPort.left, viewPort.bottom},
                                              {viewPort.right, viewPort.bottom},
                                              {viewPort.right, viewPort.top},
                                              {viewPort.left, viewPort.top}}};
  return std::ranges::any_of(corners,
                             [this](const WorldPoint& c) { return ContainsPoint(c.x, c.y); });
}

}  // namespace hullwright
