#include "paint/Stroker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "paint/Fours.h"

namespace hullwright {
namespace {

/// Points nearer than this to the one before them make no difference to the picture, in its pixels.
constexpr float nearestPoints = 0.5F;

/// What is paler than this changes no pixel.
constexpr float faintest = 0.5F / 255.0F;

/// Beyond this many client pixels to the left of the picture's corner or above it, and twice as
/// many to the right or below, where the picture lies, single precision is not good enough for the
/// edge of a line.
constexpr float farthestPoint = 8000.0F;

/// The first two of some points.
Four Pair(const PixelPoint* points)
{
  std::array<float, 4> numbers;
  static_assert(sizeof(numbers) == 2 * sizeof(PixelPoint));
  std::memcpy(numbers.data(), points, sizeof(numbers));
  return Four::Of(numbers);
}

/// The bounds of points. They are wild where a coordinate is infinite or no number.
struct PixelBounds {
  explicit PixelBounds(std::span<const PixelPoint> points)
  {
    const Four none(0.0F);
    const PixelPoint& last = points.back();
    Four least = Four::Of({last.x, last.y, last.x, last.y});
    Four most = least;
    Four zero = least * none;
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
      const Four two = Pair(points.data() + i);
      least = least.Min(two);
      most = most.Max(two);
      zero = zero + two * none;
    }
    const std::array<float, 4> low = least.Numbers();
    const std::array<float, 4> high = most.Numbers();
    left = std::min(low[0], low[2]);
    top = std::min(low[1], low[3]);
    right = std::max(high[0], high[2]);
    bottom = std::max(high[1], high[3]);
    // A product with zero is zero but of what is infinite or no number; then it is no number.
    const std::array<float, 4> sums = zero.Numbers();
    isWild = !(sums[0] + sums[1] + sums[2] + sums[3] == 0.0F);
  }

  bool Misses(const ClipRect& area) const
  {
    return right < area.left || left > area.right || bottom < area.top || top > area.bottom;
  }
  bool IsFar() const
  {
    return std::min(left, top) < -farthestPoint || std::max(right, bottom) > 2.0F * farthestPoint;
  }

  float left;
  float top;
  float right;
  float bottom;
  bool isWild;
};

float SquaredDistance(PixelPosition a, PixelPosition b)
{
  return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

bool IsNear(PixelPosition a, PixelPosition b)
{
  return SquaredDistance(a, b) < nearestPoints * nearestPoints;
}

/// The pixel that holds a coordinate, among so many.
int PixelAt(float coordinate, int count)
{
  return static_cast<int>(std::clamp(coordinate, -1.0F, static_cast<float>(count)));
}

/// The direction from one point to another, of length 1.
PixelPosition DirectionOf(PixelPosition from, PixelPosition to)
{
  const float length = std::sqrt(SquaredDistance(from, to));
  return {(to.x - from.x) / length, (to.y - from.y) / length};
}

}  // namespace

void Stroker::Begin(const PixelView& picture, double ratio)
{
  constexpr int narrowest = 4;
  picture_ = picture.width < narrowest ? PixelView{} : picture;
  ratio_ = static_cast<float>(ratio);
}

ClipRect Stroker::ReachOf(float width) const
{
  const double margin = 2.0 + width;
  return {-margin, -margin, static_cast<float>(picture_.width) / ratio_ + margin,
          static_cast<float>(picture_.height) / ratio_ + margin};
}

void Stroker::Draw(const Figures& figures, const Pen& pen)
{
  std::size_t begin = 0;
  for (const std::size_t end : figures.pointEnds) {
    DrawFigure(figures.points.subspan(begin, end - begin), figures.kind, pen);
    begin = end;
  }
}

void Stroker::DrawFigure(std::span<const PixelPoint> points, FigureKind kind, const Pen& pen)
{
  const ClipRect area = ReachOf(pen.width);
  const PixelBounds bounds(points);
  if (!bounds.isWild && bounds.Misses(area)) return;
  if (bounds.isWild || bounds.IsFar()) {
    DrawClipped(points, kind, pen, area);
    return;
  }
  Gather(points);
  const bool closed = kind == FigureKind::Outline && line_.size() > 2;
  if (closed) Close();
  StrokeGathered(closed, pen);
}

void Stroker::Close()
{
  if (IsNear(line_.back(), line_.front())) {
    line_.back() = line_.front();
  } else {
    line_.push_back(line_.front());
  }
}

/// The cut ends lie outside the picture, so it doesn't matter how they look.
void Stroker::DrawClipped(std::span<const PixelPoint> points, FigureKind kind, const Pen& pen,
                          const ClipRect& area)
{
  std::vector<PixelPoint> closed(points.begin(), points.end());
  if (kind == FigureKind::Outline) closed.push_back(points.front());
  for (const auto& run : ClipPolyline(closed, area)) {
    std::vector<PixelPoint> part;
    part.reserve(run.size());
    for (const ScreenPoint& p : run) {
      part.push_back({static_cast<float>(p.x), static_cast<float>(p.y)});
    }
    Gather(part);
    StrokeGathered(false, pen);
  }
}

void Stroker::Gather(std::span<const PixelPoint> points)
{
  const auto position = [this](PixelPoint p) { return PixelPosition{p.x * ratio_, p.y * ratio_}; };
  line_.assign(1, position(points.front()));
  for (const PixelPoint& point : points.subspan(1)) {
    const PixelPosition p = position(point);
    if (!IsNear(line_.back(), p)) line_.push_back(p);
  }
  // The line ends where its last point is.
  const PixelPosition end = position(points.back());
  if (line_.size() > 1) {
    line_.back() = end;
  } else if (points.size() <= 2) {
    line_.push_back(end);
  }
}

PixelArea Stroker::AreaOf(float radius) const
{
  const float margin = 2.0F * radius + 1.0F;  // corners reach that far
  PixelPosition least = line_.front();
  PixelPosition most = least;
  for (const PixelPosition& p : line_) {
    least = {std::min(least.x, p.x), std::min(least.y, p.y)};
    most = {std::max(most.x, p.x), std::max(most.y, p.y)};
  }
  const PixelArea area{
      PixelAt(least.y - margin, picture_.height), PixelAt(most.y + margin, picture_.height),
      PixelAt(least.x - margin, picture_.width), PixelAt(most.x + margin, picture_.width)};
  return area.Within({0, picture_.height - 1, 0, picture_.width - 1});
}

void Stroker::StrokeGathered(bool closed, const Pen& pen)
{
  const float width = pen.width * ratio_;
  const float radius = std::max(width, 1.0F) * 0.5F;
  const float alpha = pen.alpha * std::min(width, 1.0F);
  const PixelArea area = AreaOf(radius);
  if (area.IsEmpty() || alpha < faintest) return;
  mask_.Begin(picture_, area, alpha, line_.size());
  if (line_.size() == 1) mask_.Add({line_.front(), line_.front(), radius});
  mask_.AddLine(line_, radius, closed);
  if (closed) AddCorners(radius);
  mask_.Paint(pen.colour);
}

void Stroker::AddCorners(float radius)
{
  for (std::size_t i = 0; i + 1 < line_.size(); ++i) {
    AddCorner(line_[i == 0 ? line_.size() - 2 : i - 1], line_[i], line_[i + 1], radius);
  }
}

void Stroker::AddCorner(PixelPosition before, PixelPosition at, PixelPosition after, float radius)
{
  // A blunter turn looks round anyway, and a sharper one would end in a spike.
  constexpr float bluntest = 0.94F;  // cosine of 20 degrees
  constexpr float sharpest = -0.01F;
  const PixelPosition in = DirectionOf(before, at);
  const PixelPosition out = DirectionOf(at, after);
  const float cosine = in.x * out.x + in.y * out.y;
  if (!(cosine > sharpest && cosine < bluntest)) return;
  // Both edges go on to the point where they meet.
  const float reach = radius * std::sqrt((1.0F - cosine) / (1.0F + cosine));
  const PixelPosition behind{at.x + in.x * reach, at.y + in.y * reach};
  const PixelPosition ahead{at.x - out.x * reach, at.y - out.y * reach};
  mask_.Add({{at.x - in.x, at.y - in.y}, behind, radius, true, true});
  mask_.Add({{at.x + out.x, at.y + out.y}, ahead, radius, true, true});
}

}  // namespace hullwright
