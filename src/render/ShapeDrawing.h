#pragma once

#include "platform/Drawing.h"
#include "render/ViewPort.h"

namespace hullwright {

class CCanvas;
struct ShapeStyle;

namespace Colours {
inline constexpr Colour black{0.0F, 0.0F, 0.0F, 1.0F};
inline constexpr Colour white{1.0F, 1.0F, 1.0F, 1.0F};
inline constexpr Colour highlight{1.0F, 1.0F, 0.0F, 1.0F};
}  // namespace Colours

/// The viewport's canvas if it has a target, else null.
const CCanvas* DrawableCanvas(const CViewPort* viewPort);

/// What the viewport's canvas draws on; null without it.
IDrawingTarget* TargetOf(const CViewPort* viewPort);

/// Narrows a pixel position to what the canvas takes.
inline PixelPoint Narrowed(const ScreenPoint& point)
{
  return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

/// Ten pixels in world units, measured along x for both axes.
double HitTolerance(const CViewPort& viewPort);

/// Colour of a shape's line.
Colour LineColour(const ShapeStyle& style);

}  // namespace hullwright
