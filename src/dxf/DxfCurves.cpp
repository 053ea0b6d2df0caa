#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

#include "dxf/FileDxf.h"
#include "model/Angle.h"

// Curves become polylines with fixed numbers of vertices. The formulas, and the order of their
// operations, are what the drawings of many years were imported with.
namespace hullwright {
namespace {

constexpr double twoPi = 2.0 * std::numbers::pi;
constexpr double quarterTurn = std::numbers::pi / 2.0;

/// The angle of the direction from one point to another that is `distance` away, from 0 to 2 pi.
double AngleOf(const DxfPoint& from, const DxfPoint& to, double distance)
{
  const double angle = std::acos((to.x - from.x) / distance);
  return (to.y - from.y) / distance < 0.0 ? twoPi - angle : angle;
}

double Distance(const DxfPoint& a, const DxfPoint& b)
{
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double dz = b.z - a.z;
  return std::sqrt(dx * dx + dy * dy + dz * dz);
}

/// The arc that a bulge stands for.
struct BulgeArc {
  DxfPoint centre;
  double radius;
  double startDegrees;
  double endDegrees;
};

BulgeArc ArcOfBulge(const DxfPoint& p, const DxfPoint& q, double bulge)
{
  const double theta = 4.0 * std::atan(bulge);
  const double d = Distance(p, q);
  const double half = d / 2.0;
  const double r = std::abs(half / std::sin(theta / 2.0));
  double phi = AngleOf(p, q, d);
  double h = std::sqrt(std::abs(r * r - half * half));
  phi = bulge > 0.0 ? phi + quarterTurn : phi - quarterTurn;
  if (std::abs(theta) > std::numbers::pi) h = -h;
  const DxfPoint c = {(p.x + q.x) / 2.0 + std::cos(phi) * h, (p.y + q.y) / 2.0 + std::sin(phi) * h,
                      (p.z + q.z) / 2.0};
  return {c, r, AngleOf(c, p, Distance(c, p)) * degreesPerRadian,
          AngleOf(c, q, Distance(c, q)) * degreesPerRadian};
}

}  // namespace

Extrusion CFileDxf::ExtrusionAlong(const DxfPoint& normal) const
{
  return Extrusion(ignoreExtrusion ? DxfPoint{0.0, 0.0, 1.0} : normal);
}

void CFileDxf::ApplyExtrusion(DxfPoint& point, const DxfPoint& normal) const
{
  point = ExtrusionAlong(normal)(point);
}

void CFileDxf::AddWorldVertex(CShapePolyline& line, DxfPoint point, const DxfPoint& normal) const
{
  ApplyExtrusion(point, normal);
  line.AddVertex(point.x, point.y, point.z);
}

std::unique_ptr<CShapePolyline> CFileDxf::MakeArc(const DxfPoint& centre, const DxfPoint& normal,
                                                  double radius, double startDegrees,
                                                  double endDegrees, bool clockwise) const
{
  constexpr double nearlyEqual = 1e-10;
  constexpr double steps = 180.0;
  constexpr std::size_t usualVertices = 182;
  const Extrusion toWorld = ExtrusionAlong(normal);
  auto arc = std::make_unique<CShapePolyline>();
  arc->vertices.reserve(usualVertices);
  const auto emit = [&](double t) {
    const DxfPoint p =
        toWorld({centre.x + radius * std::cos(t), centre.y + radius * std::sin(t), centre.z});
    arc->AddVertex(p.x, p.y, p.z);
  };

  const double a = startDegrees * radiansPerDegree;
  double b = endDegrees * radiansPerDegree;
  if (!clockwise && b - nearlyEqual < a) b += twoPi;
  if (clockwise && a < b + nearlyEqual) b -= twoPi;
  const double step = clockwise ? (a - b) / steps : (b - a) / steps;
  for (double t = a; clockwise ? t >= b - step : t <= b;) {
    emit(t);
    const double next = clockwise ? t - step : t + step;
    if (next == t) break;  // too large an angle for a step this small
    t = next;
  }
  emit(b);
  return arc;
}

std::unique_ptr<CShapePolyline> CFileDxf::MakeEllipse(const DxfPoint& centre,
                                                      const DxfPoint& normal,
                                                      double rotationDegrees, double majorLength,
                                                      double minorLength, double start,
                                                      double end) const
{
  constexpr int lastVertex = 60;
  const Extrusion toWorld = ExtrusionAlong(normal);
  auto ellipse = std::make_unique<CShapePolyline>();
  const double c = std::cos(rotationDegrees * radiansPerDegree);
  const double s = std::sin(rotationDegrees * radiansPerDegree);
  const double step = (start * radiansPerDegree - end * radiansPerDegree) / 60.0;
  for (int i = 0; i <= lastVertex; ++i) {
    const double t = i * step + start;  // the start in degrees, among steps in radians
    const double major = majorLength * std::cos(t);
    const double minor = minorLength * std::sin(t);
    const DxfPoint p =
        toWorld({centre.x + major * c + minor * s, centre.y - (major * s + minor * c), centre.z});
    ellipse->AddVertex(p.x, p.y, p.z);
  }
  return ellipse;
}

std::unique_ptr<CShapePolyline> CFileDxf::FlattenVertices(std::vector<CFileDxfVertex>& list) const
{
  const std::vector<CFileDxfVertex> route = std::exchange(list, {});
  if (route.empty()) return nullptr;
  auto flat = std::make_unique<CShapePolyline>();
  for (std::size_t i = 0; i < route.size(); ++i) {
    const CFileDxfVertex& p = route[i];
    if (p.bulge == 0.0) {
      AddWorldVertex(*flat, p.Point(), polylineExtrusion);
    } else if (i + 1 < route.size()) {
      const BulgeArc arc = ArcOfBulge(p.Point(), route[i + 1].Point(), p.bulge);
      const auto vertices = MakeArc(arc.centre, polylineExtrusion, arc.radius, arc.startDegrees,
                                    arc.endDegrees, p.bulge < 0.0);
      std::ranges::move(vertices->vertices, std::back_inserter(flat->vertices));
    }  // the last vertex has no segment of its own, so with a bulge it is lost
  }
  return flat;
}

}  // namespace hullwright
