#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "model/ShapeColours.h"
#include "model/ShapePolyline.h"
#include "render/Canvas.h"
#include "render/ScreenMapping.h"
#include "render/ShapeDrawing.h"

namespace hullwright {
namespace {

/// Whether (x, y) lies within `t` of the segment from `b`, the later vertex, to `a`. The projection
/// may reach up to one segment length past `b`; the bounding box holds that reach to within `t`.
bool HitsSegment(const CShapeVertex& a, const CShapeVertex& b, double x, double y, double t)
{
  const bool candidate = x + t > std::min(b.x, a.x) && std::max(b.x, a.x) > x - t &&
                         y + t > std::min(b.y, a.y) && std::max(b.y, a.y) > y - t;
  if (!candidate) return false;
  const double dx = a.x - b.x;
  const double dy = a.y - b.y;
  const double u = ((y - b.y) * dy + (x - b.x) * dx) / (dy * dy + dx * dx);
  if (!(1.0 >= std::abs(u))) return false;  // also a segment without length, whose u is NaN
  const double nearX = b.x + u * dx;
  const double nearY = b.y + u * dy;
  return std::sqrt((x - nearX) * (x - nearX) + (y - nearY) * (y - nearY)) < t;
}

}  // namespace

void CShapePolyline::Draw(const CViewPort* viewPort)
{
  constexpr float highlightWidth = 4.0F;
  const CCanvas* const canvas = DrawableCanvas(viewPort);
  if (canvas == nullptr || vertices.size() < 2) return;
  std::vector<PixelPoint>& room = viewPort->canvas->points;
  if (room.size() < vertices.size()) room.resize(vertices.size());
  const ScreenMapping mapping(*viewPort);
  std::size_t count = 0;
  ForEachEntry(vertices,
               [&](const CShapeVertex& v) { room[count++] = Narrowed(mapping.Map(v.x, v.y)); });
  const std::span<const PixelPoint> points(room.data(), count);
  if (selected) canvas->DrawPolyline(points, {Colours::highlight, highlightWidth});
  const ShapeStyle& stroke = StyleOf(*this);
  canvas->DrawPolyline(points, {LineColour(stroke), stroke.lineWidth});
}

bool CShapePolyline::HitTest(const CViewPort* viewPort, double x, double y) const
{
  if (viewPort == nullptr || vertices.size() < 2) return false;
  const double t = HitTolerance(*viewPort);
  for (std::size_t i = 1; i < vertices.size(); ++i) {
    const CShapeVertex* const b = vertices[i].get();
    const CShapeVertex* const a = vertices[i - 1].get();
    if (a != nullptr && b != nullptr && HitsSegment(*a, *b, x, y, t)) return true;
  }
  return false;
}

bool CShapePolyline::IsVisible(const CViewPort& viewPort) const
{
  return AnyEntry(
      vertices, [&](const CShapeVertex& vertex) { return viewPort.Contains(vertex.x, vertex.y); });
}

}  // namespace hullwright
