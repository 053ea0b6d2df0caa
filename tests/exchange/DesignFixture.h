#pragma once

#include <memory>
#include <string>
#include <utility>

#include "exchange/ExportedDesign.h"
#include "model/ShapePolyline.h"
#include "support/AddLine.h"

namespace hullwright::test {

/// A design that a test fills, with the three offsets of a new one. A base beside that of a test.
class DesignFixture {
protected:
  ExportedDesign Gather(ViewSide side = ViewSide::All) const
  {
    return GatherExport(design, side, "metre");
  }

  void AddAnchor(std::uint32_t id, std::u16string name, double x, double y)
  {
    test::AddAnchor(design, id, x, y, std::move(name));
  }

  /// Gives a polyline a colour (0x00BBGGRR) and a width.
  static void Style(CShapePolyline& line, std::uint32_t colour, float width)
  {
    line.style = std::make_unique<ShapeStyle>();
    line.style->lineColour = colour;
    line.style->lineWidth = width;
  }

  void RemoveOffsets()
  {
    design.offsetGps.reset();
    design.offsetTransducer.reset();
    design.offsetPivot.reset();
  }

  DesignState design;
};

}  // namespace hullwright::test
