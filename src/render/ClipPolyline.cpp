#include "render/ClipPolyline.h"

#include <algorithm>
#include <cmath>

namespace hullwright {
namespace {

/// The stretch of a segment that lies in a rectangle, as fractions of its length.
struct Stretch {
  double enter = 0.0;
  double leave = 1.0;
};

/// Shortens the stretch to one side of an edge; `step` is the segment's way across the edge and
/// `room` the way that is left to it. False when nothing stays.
bool CutAtEdge(double step, double room, Stretch& stretch)
{
  if (step == 0.0) return room >= 0.0;
  const double fraction = room / step;
  if (step < 0.0) {
    stretch.enter = std::max(stretch.enter, fraction);
  } else {
    stretch.leave = std::min(stretch.leave, fraction);
  }
  return stretch.enter <= stretch.leave;
}

bool IsFinite(PixelPoint p) { return std::isfinite(p.x) && std::isfinite(p.y); }

bool Holds(const ClipRect& clip, PixelPoint p)
{
  return p.x >= clip.left && p.x <= clip.right && p.y >= clip.top && p.y <= clip.bottom;
}

ScreenPoint At(PixelPoint from, PixelPoint to, double fraction)
{
  // The ends stay exactly themselves, so that neighbouring segments meet.
  if (fraction == 0.0) return {from.x, from.y};
  if (fraction == 1.0) return {to.x, to.y};
  return {from.x + (double{to.x} - from.x) * fraction, from.y + (double{to.y} - from.y) * fraction};
}

bool Clip(PixelPoint from, PixelPoint to, const ClipRect& clip, Stretch& stretch)
{
  if (!IsFinite(from) || !IsFinite(to)) return false;
  if (Holds(clip, from) && Holds(clip, to)) return true;
  const double dx = double{to.x} - from.x;
  const double dy = double{to.y} - from.y;
  return CutAtEdge(-dx, from.x - clip.left, stretch) && CutAtEdge(dx, clip.right - from.x, stretch) &&
         CutAtEdge(-dy, from.y - clip.top, stretch) && CutAtEdge(dy, clip.bottom - from.y, stretch);
}

}  // namespace

std::vector<std::vector<ScreenPoint>> ClipPolyline(std::span<const PixelPoint> points,
                                                   const ClipRect& clip)
{
  std::vector<std::vector<ScreenPoint>> runs;
  bool connected = false;  // the last run ends at the point where the next segment begins
  for (std::size_t i = 1; i < points.size(); ++i) {
    Stretch stretch;
    if (!Clip(points[i - 1], points[i], clip, stretch)) {
      connected = false;
      continue;
    }
    if (!connected || stretch.enter > 0.0) runs.push_back({At(points[i - 1], points[i], stretch.enter)});
    runs.back().push_back(At(points[i - 1], points[i], stretch.leave));
    connected = stretch.leave == 1.0;
  }
  return runs;
}

}  // namespace hullwright
