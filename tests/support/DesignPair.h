#pragma once

#include <gtest/gtest.h>

#include "compare/CompareDesigns.h"
#include "support/AddLine.h"

namespace hullwright::test {

/// A former and a current design, which begin as two new ones.
class DesignPair : public testing::Test {
protected:
  using Line = std::initializer_list<CShapeVertex>;

  CShapePolyline& AddFormer(ViewSide side, Line vertices)
  {
    return AddLine(former, side, vertices);
  }
  CShapePolyline& AddCurrent(ViewSide side, Line vertices)
  {
    return AddLine(current, side, vertices);
  }

  /// Adds the same polyline to both.
  void AddToBoth(ViewSide side, Line vertices)
  {
    AddFormer(side, vertices);
    AddCurrent(side, vertices);
  }

  static CAnchor& AddAnchor(DesignState& design, std::uint32_t id, std::u16string name, double x,
                            double y)
  {
    return test::AddAnchor(design, id, x, y, std::move(name));
  }

  Differences Compare() const { return CompareDesigns(former, current, options); }

  /// The only shape that differs.
  ShapeDifference OnlyShape() const
  {
    const Differences differences = Compare();
    EXPECT_EQ(differences.shapes.size(), 1U);
    return differences.shapes.empty() ? ShapeDifference() : differences.shapes[0];
  }

  DesignState former;
  DesignState current;
  CompareOptions options;
};

}  // namespace hullwright::test
