#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "model/DesignState.h"
#include "render/Canvas.h"
#include "render/ViewPort.h"
#include "support/AddLine.h"
#include "support/RecordedDrawing.h"

namespace hullwright::test {

/// A design in a window of 800 by 600 whose drawing is written down. The view is 200 wide and 150
/// high, so that 4 pixels are one world unit.
class SceneFixture : public testing::Test {
protected:
  SceneFixture()
  {
    design.viewPort = &viewPort;
    viewPort.canvas = &canvas;
    canvas.Initialize(&recorder);
    viewPort.screenWidth = 800.0;
    viewPort.screenHeight = 600.0;
    viewPort.KeepAspect();
  }

  /// Shows a stretch of the world that is `width` wide around the origin.
  void ShowWidth(double width)
  {
    viewPort.left = width * -0.5;
    viewPort.right = width * 0.5;
    viewPort.KeepAspect();
  }

  CShapePolyline& AddLine(ViewSide side, std::initializer_list<CShapeVertex> vertices)
  {
    return test::AddLine(design, side, vertices);
  }

  CAnchor& AddAnchor(std::uint32_t id, double x, double y)
  {
    return test::AddAnchor(design, id, x, y);
  }

  RecordedDrawing recorder;
  CCanvas canvas;
  CViewPortDesigner viewPort;
  DesignState design;
};

}  // namespace hullwright::test
