#include "compare/CompareDesigns.h"

#include <cmath>
#include <limits>

#include "model/ShapePoint.h"
#include "model/ShapeText.h"
#include "support/DesignPair.h"

namespace hullwright::test {
namespace {

constexpr UnitCode foot{9002};

using ComparedDesigns = DesignPair;

TEST_F(ComparedDesigns, DoNotDifferWhereAllIsTheSame)
{
  AddToBoth(ViewSide::Top, {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}});
  AddAnchor(former, 1, u"Bow", 1.0, 2.0);
  AddAnchor(current, 1, u"Bow", 1.0, 2.0);
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, DoNotDifferByOrderNorByGroupsWithoutShapes)
{
  AddFormer(ViewSide::Top, {{1.0, 0.0, 0.0}});
  AddFormer(ViewSide::Top, {{2.0, 0.0, 0.0}, {3.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Top, {{2.0, 0.0, 0.0}, {3.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Top, {{1.0, 0.0, 0.0}});
  GetShapes(current.shapeGroups, ViewSide::Rear);
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, HaveTheOffsetsThatMoved)
{
  current.offsetTransducer->y = 0.5;
  const Differences differences = Compare();
  ASSERT_EQ(differences.offsets.size(), 1U);
  EXPECT_EQ(differences.offsets[0].kind, OffsetKind::EchoSounder);
  EXPECT_EQ(differences.offsets[0].place.former, (Place{-10.0, 0.0, 0.0}));
  EXPECT_EQ(differences.offsets[0].place.current, (Place{-10.0, 0.5, 0.0}));
}

TEST_F(ComparedDesigns, AreNotComparedByAnOffsetThatOneOfThemLacks)
{
  current.offsetPivot.reset();
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, ChangesUpToTheToleranceDoNotCount)
{
  AddFormer(ViewSide::Top, {{1.234, 0.0, 0.0}});
  AddCurrent(ViewSide::Top, {{1.235, 0.0, 0.0}});
  EXPECT_TRUE(Compare().None());
  options.tolerance = 0.0009;
  EXPECT_FALSE(Compare().None());
}

TEST_F(ComparedDesigns, AtNoToleranceTheLastBitCounts)
{
  options.tolerance = 0.0;
  current.offsetGps->x = std::nextafter(10.0, 11.0);
  EXPECT_EQ(Compare().offsets.size(), 1U);
}

TEST_F(ComparedDesigns, WhatIsNoNumberIsTheSameAsWhatIsNoNumber)
{
  former.offsetGps->x = current.offsetGps->x = std::numeric_limits<double>::quiet_NaN();
  former.offsetGps->y = current.offsetGps->y = -std::numeric_limits<double>::infinity();
  former.offsetGps->z = -0.0;
  EXPECT_TRUE(Compare().None());
  current.offsetGps->x = 0.0;
  EXPECT_EQ(Compare().offsets.size(), 1U);
}

TEST_F(ComparedDesigns, OfTwoUnitsAreComparedInTheCurrentOne)
{
  AddFormer(ViewSide::Top, {{1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Top, {{3.281, 0.0, 0.0}, {6.562, 0.0, 0.0}});
  current.unitCode = foot;
  *current.offsetGps = {32.808, 0.0, 0.0};
  *current.offsetTransducer = {-32.808, 0.0, 0.0};
  const Differences differences = Compare();
  ASSERT_TRUE(differences.unit);
  EXPECT_EQ(differences.unit->unit.former, UnitCode::Metre);
  EXPECT_EQ(differences.unit->unit.current, foot);
  EXPECT_FALSE(differences.unit->sameNumbers);
  EXPECT_TRUE(differences.shapes.empty());
  ASSERT_EQ(differences.offsets.size(), 1U);  // the pivot was not converted
  EXPECT_NEAR(differences.offsets[0].place.former.y, 32.808, 0.001);
  EXPECT_EQ(differences.offsets[0].place.current.y, 10.0);
}

TEST_F(ComparedDesigns, OfTwoUnitsMayHaveTheSameNumbers)
{
  AddToBoth(ViewSide::Left, {{1.0, 2.0, 3.0}});
  current.unitCode = foot;
  const Differences differences = Compare();
  EXPECT_TRUE(differences.unit && differences.unit->sameNumbers);
  EXPECT_EQ(differences.offsets.size(), 3U);
}

TEST_F(ComparedDesigns, HaveAPolylineThatWasMovedByOneWay)
{
  AddFormer(ViewSide::Front, {{0.1, 0.0, 0.0}, {4.1, 0.0, 0.0}, {4.1, 2.0, 0.0}});
  AddCurrent(ViewSide::Front, {{0.4, 0.0, 1.0}, {4.4, 0.0, 1.0}, {4.4, 2.0, 1.0}});
  const ShapeDifference moved = OnlyShape();
  EXPECT_EQ(moved.change, ShapeChange::Moved);
  EXPECT_NEAR(moved.by.x, 0.3, 1e-12);
  EXPECT_EQ(moved.by.z, 1.0);
}

TEST_F(ComparedDesigns, HaveAPolylineWithOneVertexThatMoved)
{
  AddFormer(ViewSide::Top, {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 2.0, 0.0}});
  AddCurrent(ViewSide::Top, {{0.0, 0.0, 0.0}, {4.0, 0.5, 0.0}, {4.0, 2.0, 0.0}});
  const ShapeDifference changed = OnlyShape();
  EXPECT_EQ(changed.change, ShapeChange::Changed);
  ASSERT_EQ(changed.vertices.size(), 1U);
  EXPECT_EQ(changed.vertices[0].number.current, 2U);
  EXPECT_EQ(changed.vertices[0].place.former.y, 0.0);
  EXPECT_EQ(changed.vertices[0].place.current.y, 0.5);
}

TEST_F(ComparedDesigns, HaveAPolylineThatWasDrawnTheOtherWayRound)
{
  AddFormer(ViewSide::Top, {{0.0, 0.0, 0.0}, {4.0, 0.0, 0.0}, {4.0, 2.0, 0.0}});
  AddCurrent(ViewSide::Top, {{4.0, 2.0, 0.0}, {4.0, 0.0, 0.0}, {0.0, 0.0, 0.0}});
  const ShapeDifference changed = OnlyShape();
  EXPECT_TRUE(changed.reversed);
  EXPECT_TRUE(changed.vertices.empty());
}

TEST_F(ComparedDesigns, HaveWhatWasAddedAndRemoved)
{
  AddFormer(ViewSide::Top, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Bottom, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[0].change, ShapeChange::Removed);
  EXPECT_EQ(differences.shapes[0].side, ViewSide::Top);
  EXPECT_EQ(differences.shapes[1].change, ShapeChange::Added);
  EXPECT_EQ(differences.shapes[1].box.maxX, 1.0);
}

TEST_F(ComparedDesigns, HaveOtherColoursAndWidths)
{
  AddToBoth(ViewSide::Top, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  CShape& line = *current.shapeGroups[0]->shapes[0];
  line.style = std::make_unique<ShapeStyle>();
  EXPECT_TRUE(Compare().None());
  line.style->lineColour = 0xFF;
  EXPECT_EQ(OnlyShape().style->current.colour, 0xFFU);
  line.style->lineColour = 0;
  line.style->lineWidth = 2.0F;
  EXPECT_EQ(OnlyShape().style->current.width, 2.0F);
}

TEST_F(ComparedDesigns, OfADrawingHaveOtherWordings)
{
  for (DesignState* const design : {&former, &current}) {
    auto label = std::make_unique<CShapeText>();
    label->vertices.push_back(std::make_unique<CShapeVertex>(1.0, 2.0, 0.0));
    label->text = design == &former ? u"Winch" : u"Crane";
    GetShapes(design->shapeGroups, ViewSide::Top)->shapes.push_back(std::move(label));
  }
  const ShapeDifference changed = OnlyShape();
  EXPECT_EQ(changed.type, ShapeType::Text);
  EXPECT_TRUE(changed.otherForm);
  EXPECT_EQ(changed.text.former, u"Winch");
  options.shapes.onlyLines = true;
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, WithADrawingHaveLinesOfTwoVerticesOrMore)
{
  AddCurrent(ViewSide::Top, {{1.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Top, {{1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}});
  EXPECT_EQ(Compare().shapes.size(), 2U);
  options.shapes.onlyLines = true;
  EXPECT_EQ(OnlyShape().number.current, 2U);
}

TEST_F(ComparedDesigns, AreComparedWithoutOffsetsAndAnchors)
{
  current.offsetGps->x = 1.0;
  AddAnchor(current, 1, u"Bow", 1.0, 2.0);
  options.symbols = false;
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, OnOneSideHaveWhatAnswersForIt)
{
  AddFormer(ViewSide::All, {{1.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Left, {{1.0, 0.0, 0.0}});
  EXPECT_EQ(Compare().shapes.size(), 2U);
  options.shapes.side = ViewSide::Left;
  EXPECT_TRUE(Compare().None());
}

TEST_F(ComparedDesigns, AreComparedOnOneSideAlone)
{
  AddCurrent(ViewSide::Top, {{1.0, 0.0, 0.0}});
  AddCurrent(ViewSide::Left, {{1.0, 0.0, 0.0}});
  options.shapes.side = ViewSide::Left;
  EXPECT_EQ(OnlyShape().side, ViewSide::Left);
}

}  // namespace
}  // namespace hullwright::test
