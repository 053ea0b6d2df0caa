#include "render/ClipPolyline.h"

#include <cmath>

namespace hullwright {
namespace {

/// A segment on its way through the edges. An end that was never cut is its point to the bit.
struct Segment {
  ScreenPoint from;
  ScreenPoint to;
  bool fromCut = false;
  bool toCut = false;
};

/// The other coordinate where a segment crosses an edge. Both ends have their weight, in extended
/// precision, so that an end far away takes nothing from the nearer one.
double Crossing(double edge, double cut0, double other0, double cut1, double other1)
{
  const long double weight1 = static_cast<long double>(edge) - cut0;
  const long double weight0 = static_cast<long double>(cut1) - edge;
  return static_cast<double>((other0 * weight0 + other1 * weight1) / (weight0 + weight1));
}

using Coordinate = double ScreenPoint::*;

/// Cuts a segment at one edge and keeps what lies on its inner side; false when nothing does.
/// `inward` is 1 where larger values are inside, else -1.
bool CutAtEdge(Segment& segment, Coordinate cut, Coordinate other, double edge, double inward)
{
  const auto outside = [&](const ScreenPoint& p) { return (p.*cut - edge) * inward < 0.0; };
  const bool fromOut = outside(segment.from);
  const bool toOut = outside(segment.to);
  if (fromOut && toOut) return false;
  if (!fromOut && !toOut) return true;
  ScreenPoint& end = fromOut ? segment.from : segment.to;
  const double crossing =
      Crossing(edge, segment.from.*cut, segment.from.*other, segment.to.*cut, segment.to.*other);
  end.*cut = edge;
  end.*other = crossing;
  (fromOut ? segment.fromCut : segment.toCut) = true;
  return true;
}

bool IsFinite(PixelPoint p) { return std::isfinite(p.x) && std::isfinite(p.y); }

bool Clip(Segment& segment, const ClipRect& clip)
{
  constexpr Coordinate x = &ScreenPoint::x;
  constexpr Coordinate y = &ScreenPoint::y;
  return CutAtEdge(segment, x, y, clip.left, 1.0) && CutAtEdge(segment, x, y, clip.right, -1.0) &&
         CutAtEdge(segment, y, x, clip.top, 1.0) && CutAtEdge(segment, y, x, clip.bottom, -1.0);
}

}  // namespace

std::vector<std::vector<ScreenPoint>> ClipPolyline(std::span<const PixelPoint> points,
                                                   const ClipRect& clip)
{
  std::vector<std::vector<ScreenPoint>> runs;
  bool connected = false;  // the last run ends at the point where the next segment begins
  for (std::size_t i = 1; i < points.size(); ++i) {
    const PixelPoint from = points[i - 1];
    const PixelPoint to = points[i];
    Segment segment{{from.x, from.y}, {to.x, to.y}};
    if (!IsFinite(from) || !IsFinite(to) || !Clip(segment, clip)) {
      connected = false;
      continue;
    }
    if (!connected || segment.fromCut) runs.push_back({segment.from});
    runs.back().push_back(segment.to);
    connected = !segment.toCut;
  }
  return runs;
}

}  // namespace hullwright
