#include "file/DesignNumbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "model/ShapePoint.h"
#include "model/ShapePolyline.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();

class NonFiniteNumbersOfADesign : public testing::Test {
protected:
  /// The numbers with their places, a text each.
  std::vector<std::string> Places() const
  {
    std::vector<std::string> places;
    ForEachNonFiniteNumber(design, [&places](const DesignNumber& number) {
      std::string place = std::string(number.element.name) + "." + std::string(number.name);
      if (number.group != nullptr) {
        place += " " + std::to_string(static_cast<std::int32_t>(number.group->viewCode)) + "/" +
                 std::to_string(number.groupNumber) + " " + std::to_string(number.polylineNumber) +
                 "." + std::to_string(number.vertexNumber);
      }
      if (number.anchor != nullptr) place += " #" + std::to_string(number.anchor->id);
      places.push_back(place + (number.value < 0.0 ? " -" : ""));
    });
    return places;
  }

  /// The places with one number of the design not finite.
  std::vector<std::string> PlacesWith(double& number) const
  {
    const double before = std::exchange(number, std::numeric_limits<double>::quiet_NaN());
    std::vector<std::string> places = Places();
    number = before;
    return places;
  }

  CShapePolyline& AddLine(std::size_t group)
  {
    auto line = std::make_unique<CShapePolyline>();
    line->AddVertex(1.0, 2.0, 3.0);
    line->AddVertex(4.0, 5.0, 6.0);
    CShapePolyline& added = *line;
    design.shapeGroups.at(group)->shapes.push_back(std::move(line));
    return added;
  }

  CAnchor& AddAnchor()
  {
    design.anchors->items.push_back(design.anchors->NewAnchor());
    return *design.anchors->items.back();
  }

  void AddGroup(ViewSide code) { design.shapeGroups.push_back(std::make_unique<CShapes>(code)); }

  DesignState design;
};

TEST_F(NonFiniteNumbersOfADesign, EveryNumberThatASaveWritesIsLookedAt)
{
  AddGroup(ViewSide::Rear);
  AddLine(0);
  CShapePolyline& line = AddLine(0);
  CAnchor& anchor = AddAnchor();
  EXPECT_THAT(Places(), IsEmpty());
  EXPECT_THAT(PlacesWith(line.vertices[0]->x), ElementsAre("vertex.x 32/1 2.1"));
  EXPECT_THAT(PlacesWith(line.vertices[1]->y), ElementsAre("vertex.y 32/1 2.2"));
  EXPECT_THAT(PlacesWith(line.vertices[1]->z), ElementsAre("vertex.z 32/1 2.2"));
  EXPECT_THAT(PlacesWith(design.offsetGps->x), ElementsAre("gps.x"));
  EXPECT_THAT(PlacesWith(design.offsetTransducer->y), ElementsAre("txd.y"));
  EXPECT_THAT(PlacesWith(design.offsetPivot->z), ElementsAre("piv.z"));
  EXPECT_THAT(PlacesWith(anchor.attachmentX), ElementsAre("attachmentX.attachmentX #1"));
  EXPECT_THAT(PlacesWith(anchor.attachmentY), ElementsAre("attachmentY.attachmentY #1"));
  EXPECT_THAT(PlacesWith(anchor.easting), IsEmpty());
  EXPECT_THAT(PlacesWith(anchor.northing), IsEmpty());
}

TEST_F(NonFiniteNumbersOfADesign, AreReportedInTheOrderOfASave)
{
  AddAnchor().attachmentX = infinity;
  design.offsetPivot->x = -infinity;
  design.offsetGps->z = infinity;
  AddGroup(ViewSide::Top);
  AddGroup(ViewSide::Rear);
  AddLine(1).vertices[0]->x = infinity;
  AddLine(0).vertices[0]->y = infinity;
  EXPECT_THAT(Places(), ElementsAre("vertex.y 1/1 1.1", "vertex.x 32/1 1.1", "gps.z", "piv.x -",
                                    "attachmentX.attachmentX #1"));
}

TEST_F(NonFiniteNumbersOfADesign, GroupsOfOneCodeAreNumbered)
{
  for (const ViewSide code : {ViewSide::Top, ViewSide::Rear, ViewSide::Top}) AddGroup(code);
  for (const std::size_t group : {0U, 1U, 2U}) AddLine(group).vertices[1]->x = infinity;
  EXPECT_THAT(Places(), ElementsAre("vertex.x 1/1 1.2", "vertex.x 32/1 1.2", "vertex.x 1/2 1.2"));
}

TEST_F(NonFiniteNumbersOfADesign, WhatNoSaveWritesIsPassedOver)
{
  AddGroup(ViewSide::Top);
  OwnedArray<CShape>& shapes = design.shapeGroups[0]->shapes;
  shapes.push_back(std::make_unique<CShapePoint>());
  shapes[0]->vertices.push_back(std::make_unique<CShapeVertex>(infinity, 0.0, 0.0));
  AddLine(0).vertices[0]->x = infinity;
  EXPECT_THAT(Places(), ElementsAre("vertex.x 1/1 1.1"));
  OwnedArray<CShapeVertex>& vertices = shapes[1]->vertices;
  vertices.insert(vertices.begin(), nullptr);
  EXPECT_THAT(Places(), IsEmpty());
  vertices.erase(vertices.begin());
  shapes.insert(shapes.begin(), nullptr);
  EXPECT_THAT(Places(), IsEmpty());
  shapes.erase(shapes.begin());
  design.shapeGroups.insert(design.shapeGroups.begin(), nullptr);
  EXPECT_THAT(Places(), IsEmpty());
  design.anchors->items.push_back(nullptr);
  AddAnchor().attachmentX = infinity;
  EXPECT_THAT(Places(), IsEmpty());
}

TEST_F(NonFiniteNumbersOfADesign, LeaveTheCursorsAlone)
{
  AddGroup(ViewSide::Top);
  AddLine(0).cursor = 7;
  design.shapeGroups[0]->cursor = 8;
  design.anchors->cursor = 9;
  AddAnchor();
  EXPECT_THAT(Places(), IsEmpty());
  EXPECT_EQ(design.shapeGroups[0]->shapes[0]->cursor, 7U);
  EXPECT_EQ(design.shapeGroups[0]->cursor, 8U);
  EXPECT_EQ(design.anchors->cursor, 9U);
}

TEST_F(NonFiniteNumbersOfADesign, AnOffsetThatIsNotThereIsPassedOver)
{
  design.offsetTransducer.reset();
  design.offsetPivot->y = infinity;
  EXPECT_THAT(Places(), ElementsAre("piv.y"));
}

}  // namespace
}  // namespace hullwright
