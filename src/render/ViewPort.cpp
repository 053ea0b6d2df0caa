#include "render/ViewPort.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <tuple>

#include "model/Angle.h"
#include "model/DesignState.h"
#include "model/Extents.h"
#include "render/ScreenMapping.h"

namespace hullwright {
namespace {

constexpr double sixth = 0.16666666666666666;

}  // namespace

CViewPort::CViewPort() { SetRotation(0.0); }

void CViewPort::SetRotation(double degrees)
{
  // Steps of a whole turn would take forever, or have no effect, on an angle this large.
  constexpr double countable = 360.0 * 1e6;
  if (std::abs(degrees) > countable) degrees = std::fmod(degrees, 360.0) + 0.0;
  while (degrees < 0.0) degrees += 360.0;
  while (degrees >= 360.0) degrees -= 360.0;
  rotation = degrees;
  cosRotation = std::cos(rotation * radiansPerDegree);
  sinRotation = std::sin(rotation * radiansPerDegree);
  cosInverse = std::cos(-rotation * radiansPerDegree);
  sinInverse = std::sin(-rotation * radiansPerDegree);
}

void CViewPort::MeasureEdges()
{
  width = std::abs(right - left);
  height = std::abs(top - bottom);
}

void CViewPort::ZoomIn(double sx, double sy) { ZoomAbout(sx, sy, -0.125); }

void CViewPort::ZoomOut(double sx, double sy) { ZoomAbout(sx, sy, sixth); }

void CViewPort::ZoomAbout(double sx, double sy, double share)
{
  const double w = width;
  const double h = height;
  const WorldPoint centre = ScreenToWorld(sx, sy);
  const double newLeft = centre.x - w * 0.5;
  const double newBottom = centre.y - h * 0.5;
  left = newLeft - w * share;
  right = (newLeft + w) + w * share;
  bottom = newBottom - h * share;
  top = (newBottom + h) + h * share;
  MeasureEdges();
}

void CViewPort::CenterOn(double sx, double sy) { MoveCentreTo(ScreenToWorld(sx, sy)); }

void CViewPort::MoveCentreTo(const WorldPoint& centre)
{
  const double w = width;
  const double h = height;
  left = centre.x - w * 0.5;
  bottom = centre.y - h * 0.5;
  right = left + w;
  top = bottom + h;
  MeasureEdges();
}

void CViewPort::KeepAspect()
{
  if (screenWidth == 0.0 || screenHeight == 0.0) return;
  width = std::abs(right - left);
  height = (screenHeight / screenWidth) * width;
  const double cy = CentreY();
  bottom = cy - height * 0.5;
  top = cy + height * 0.5;
}

bool CViewPort::Contains(double wx, double wy) const
{
  const ScreenPoint p = WorldToScreen(wx, wy);
  return p.x >= 0.0 && p.x <= screenWidth && p.y >= 0.0 && p.y <= screenHeight;
}

ScreenPoint CViewPort::WorldToScreen(double wx, double wy) const
{
  return ScreenMapping(*this).Map(wx, wy);
}

ScreenPoint CViewPort::WorldToScreenFlat(double wx, double wy) const
{
  return ScreenMapping(*this).Flat(wx, wy);
}

WorldPoint CViewPort::ScreenToWorld(double sx, double sy) const
{
  const double cx = CentreX();
  const double cy = CentreY();
  const double dx = (sx / (screenWidth / width) + left) - cx;
  const double dy = (top - sy / (screenHeight / height)) - cy;
  return {dx * cosInverse + dy * sinInverse + cx, dy * cosInverse - dx * sinInverse + cy};
}

void CViewPort::WidenBySixth()
{
  const double mx = width * sixth;
  const double my = height * sixth;
  left -= mx;
  bottom -= my;
  right += mx;
  top += my;
  MeasureEdges();
}

void CViewPort::FitExtents(const Extents& box)
{
  left = box.minX;
  bottom = box.minY;
  right = box.maxX;
  top = box.maxY;
  MeasureEdges();
  WidenBySixth();
  KeepAspect();
}

void CViewPort::ZoomToExtents(const Extents& box)
{
  const double dx = std::abs(box.maxX - box.minX);
  const double dy = std::abs(box.maxY - box.minY);
  const double cx = (box.minX + box.maxX) * 0.5;
  const double cy = (box.minY + box.maxY) * 0.5;
  if (dx > dy) {
    height = dx;
    width = (screenWidth / screenHeight) * dx;
  } else {
    // The inverted shape, with the height as it stood, is how a tall box is framed; the loop below
    // widens what does not fit.
    width = (screenHeight / screenWidth) * dy;
  }
  left = cx - width * 0.5;
  right = cx + width * 0.5;
  bottom = cy - height * 0.5;
  top = cy + height * 0.5;
  KeepAspect();
  constexpr int mostSteps = 30;
  for (int step = 0; step < mostSteps; ++step) {
    if (Contains(box.minX, box.minY) || Contains(box.maxX, box.maxY)) break;
    WidenBySixth();
  }
  WidenBySixth();
  WidenBySixth();
}

void CViewPort::FitOrCentre(const Extents& box) { FrameOrCentre(&CViewPort::FitExtents, box); }

void CViewPort::ZoomOrCentre(const Extents& box) { FrameOrCentre(&CViewPort::ZoomToExtents, box); }

void CViewPort::FrameOrCentre(Frame frame, const Extents& box)
{
  Recover();
  const auto before = std::make_tuple(left, bottom, right, top, width, height);
  const auto restore = [&] { std::tie(left, bottom, right, top, width, height) = before; };
  (this->*frame)(box);
  if (IsUsable()) return;
  restore();
  // Bounds that nothing has reached are still the wrong way round: there is no centre.
  if (box.IsEmpty()) return;
  MoveCentreTo({std::midpoint(box.minX, box.maxX), std::midpoint(box.minY, box.maxY)});
  // Far enough out the scale is lost in the rounding of the edges.
  if (!IsUsable()) restore();
}

bool CViewPort::IsUsable() const
{
  const std::array<double, 6> all = {left, bottom, right, top, width, height};
  return width != 0.0 && height != 0.0 &&
         std::ranges::all_of(all, [](double value) { return std::isfinite(value); });
}

bool CViewPort::Recover()
{
  if (IsUsable()) return false;
  left = bottom = -initialReach;
  right = top = initialReach;
  MeasureEdges();
  KeepAspect();
  return true;
}

void RecoverView(const DesignState& design)
{
  if (design.viewPort != nullptr) design.viewPort->Recover();
}

}  // namespace hullwright
