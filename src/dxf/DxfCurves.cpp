#include "dxf/DxfCurves.h"

#include <cmath>
#include <numbers>

#include "model/Angle.h"

// The operations of the formulas stand in the order that they are carried out in: another order
// would round the vertices differently.
namespace hullwright {
namespace {

constexpr double twoPi = 2.0 * std::numbers::pi;
constexpr std::size_t mostArcVertices = 183;  // but for angles so large that steps are rounded
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

/// How many vertices they are flattened to, or a few more; some of more than `most`. An arc between
/// vertices in the same place has hardly any, one that leads straight up is a whole circle.
std::size_t FlattenedCount(const std::vector<CFileDxfVertex>& vertices, std::size_t most)
{
  std::size_t count = vertices.size();
  for (std::size_t i = 0; i + 1 < vertices.size() && count <= most; ++i) {
    const CFileDxfVertex& p = vertices[i];
    const CFileDxfVertex& q = vertices[i + 1];
    if (p.bulge != 0.0 && (p.x != q.x || p.y != q.y || p.z != q.z)) count += mostArcVertices - 1;
  }
  return count;
}

}  // namespace

void AppendArc(CShapePolyline& line, const DxfPoint& centre, const Extrusion& toWorld,
               double radius, double startDegrees, double endDegrees, bool clockwise)
{
  constexpr double nearlyEqual = 1e-10;
  constexpr double steps = 180.0;
  const auto emit = [&](double t) {
    AddWorldVertex(line,
                   {centre.x + radius * std::cos(t), centre.y + radius * std::sin(t), centre.z},
                   toWorld);
  };

  const double a = startDegrees * radiansPerDegree;
  double b = endDegrees * radiansPerDegree;
  if (!clockwise && b - nearlyEqual < a) b += twoPi;
  if (clockwise && a < b + nearlyEqual) b -= twoPi;
  const double step = (b - a) / steps;
  // Clockwise the rounding of the steps decides whether one more vertex stands behind the end.
  const double last = clockwise ? b + step : b;
  for (double t = a; clockwise ? t >= last : t <= last;) {
    emit(t);
    const double next = t + step;
    if (next == t) break;  // too large an angle for a step this small
    t = next;
  }
  emit(b);
}

std::unique_ptr<CShapePolyline> MakeArc(const DxfPoint& centre, const Extrusion& toWorld,
                                        double radius, double startDegrees, double endDegrees,
                                        bool clockwise)
{
  auto arc = std::make_unique<CShapePolyline>();
  arc->vertices.reserve(mostArcVertices);
  AppendArc(*arc, centre, toWorld, radius, startDegrees, endDegrees, clockwise);
  return arc;
}

std::unique_ptr<CShapePolyline> MakeEllipse(const DxfPoint& centre, const Extrusion& toWorld,
                                            double rotationDegrees, double majorLength,
                                            double minorLength, double startDegrees,
                                            double endDegrees)
{
  constexpr int lastVertex = 60;
  auto ellipse = std::make_unique<CShapePolyline>();
  const double c = std::cos(rotationDegrees * radiansPerDegree);
  const double s = std::sin(rotationDegrees * radiansPerDegree);
  const double step =
      (startDegrees * radiansPerDegree - endDegrees * radiansPerDegree) / lastVertex;
  for (int i = 0; i <= lastVertex; ++i) {
    const double t = i * step + startDegrees;  // the start in degrees, among steps in radians
    const double major = majorLength * std::cos(t);
    const double minor = minorLength * std::sin(t);
    AddWorldVertex(*ellipse,
                   {centre.x + major * c + minor * s, centre.y - (major * s + minor * c), centre.z},
                   toWorld);
  }
  return ellipse;
}

bool FlattensWithin(std::size_t most, const std::vector<CFileDxfVertex>& vertices)
{
  // Hardly any drawing needs more than the first look.
  return vertices.size() <= most / mostArcVertices || FlattenedCount(vertices, most) <= most;
}

void AppendFlattened(CShapePolyline& shape, const std::vector<CFileDxfVertex>& vertices,
                     const Extrusion& toWorld)
{
  constexpr std::size_t veryMany = std::size_t{1} << 20U;
  shape.vertices.reserve(shape.vertices.size() + FlattenedCount(vertices, veryMany));
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const CFileDxfVertex& p = vertices[i];
    if (p.bulge == 0.0) {
      AddWorldVertex(shape, p.Point(), toWorld);
    } else if (i + 1 < vertices.size()) {
      const BulgeArc arc = ArcOfBulge(p.Point(), vertices[i + 1].Point(), p.bulge);
      AppendArc(shape, arc.centre, toWorld, arc.radius, arc.startDegrees, arc.endDegrees,
                p.bulge < 0.0);
    }  // the last vertex has no segment of its own, so with a bulge it is lost
  }
}

}  // namespace hullwright
