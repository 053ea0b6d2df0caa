#pragma once

#include "model/DesignState.h"
#include "model/GridSettings.h"
#include "model/ShapePolyline.h"
#include "render/ViewPort.h"

namespace hullwright {

/// Draws one whole frame of the side in view on the viewport's canvas: background, shapes, the
/// polyline under construction (may be null), grid, and on the top side offsets and anchors.
/// Without viewport, canvas or anchor list nothing is done.
void DrawScene(const DesignState& design, const CViewPort* viewPort, CShapePolyline* newShape,
               const GridSettings& grid);

/// Grid points and origin cross, drawn over the shapes. A view of more than 40 intervals on either
/// axis shows the cross alone.
void DrawGrid(const CViewPort& viewPort, const GridSettings& grid);

/// A purple circle of 20 pixels with the anchor's number in it; nothing for one that is not
/// visible.
void DrawAnchor(const CAnchor& anchor, const CViewPort& viewPort);

}  // namespace hullwright
