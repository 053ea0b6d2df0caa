#include <gtest/gtest.h>

#include <tuple>

#include "base/Code.h"
#include "model/ShapeAttributes.h"
#include "model/ShapeColours.h"
#include "model/ShapePolyline.h"
#include "render/ViewPort.h"
#include "support/PlainShape.h"

namespace hullwright {
namespace {

std::unique_ptr<ShapeAttribute> Pair(std::u16string name, std::u16string value)
{
  return std::make_unique<ShapeAttribute>(ShapeAttribute{std::move(name), std::move(value)});
}

TEST(ShapeStyle, HasTheDefaultsOfANewShape)
{
  const ShapeStyle style;
  EXPECT_EQ(style.lineColour, 0U);
  EXPECT_EQ(style.fillColour, 0xC0C0C0U);
  EXPECT_EQ(style.styleCode, 7);
  EXPECT_EQ(style.lineWidth, 1.0F);
  EXPECT_EQ(style.styleFlagA, 0);
  EXPECT_EQ(style.styleFlagB, 0);
}

TEST(ShapeStyle, AShapeWithoutOneIsStrokedAsANewShape)
{
  CShapePolyline shape;
  EXPECT_EQ(StyleOf(shape).lineColour, 0U);
  EXPECT_EQ(StyleOf(shape).lineWidth, 1.0F);
  shape.style = std::make_unique<ShapeStyle>();
  shape.style->lineWidth = 2.5F;
  EXPECT_EQ(&StyleOf(shape), shape.style.get());
}

TEST(ShapeColours, HaveRedInTheLowByteAndFirstInTheirText)
{
  constexpr std::uint32_t colour = 0xFF563412;
  EXPECT_EQ(RedOf(colour), 0x12);
  EXPECT_EQ(GreenOf(colour), 0x34);
  EXPECT_EQ(BlueOf(colour), 0x56);
  EXPECT_EQ(HexColour(colour), "#123456");
  EXPECT_EQ(HexColour(0x0000AB), "#AB0000");
}

TEST(ShapeAttributes, AppendFromAddsDeepCopiesBehindWhatIsThere)
{
  CShapeAttributes source;
  source.items.push_back(Pair(u"LAYER", u"Hull"));
  CShapeAttributes target;
  target.items.push_back(Pair(u"HANDLE", u"1F"));
  EXPECT_EQ(&target.AppendFrom(source), &target);
  source.items[0]->value = u"changed";
  ASSERT_EQ(target.items.size(), 2U);
  EXPECT_EQ(target.items[1]->name, u"LAYER");
  EXPECT_EQ(target.items[1]->value, u"Hull");
}

TEST(ShapeAttributes, ANullEntryEndsTheCopying)
{
  CShapeAttributes source;
  source.items.push_back(Pair(u"a", u"1"));
  source.items.push_back(nullptr);
  source.items.push_back(Pair(u"b", u"2"));
  CShapeAttributes target;
  target.AppendFrom(source);
  EXPECT_EQ(target.items.size(), 1U);
  EXPECT_EQ(source.cursor, 2U);
}

TEST(ShapeAttributes, AppendingAListToItselfDoublesItOnce)
{
  CShapeAttributes list;
  list.items.push_back(Pair(u"a", u"1"));
  list.AppendFrom(list);
  EXPECT_EQ(list.items.size(), 2U);
}

TEST(Shape, ResetClearsTypeTagSelectionAndVerticesButNotEditing)
{
  CShapePolyline shape;
  shape.AddVertex(1.0, 2.0, 3.0);
  shape.tag = 5;
  shape.selected = true;
  shape.editing = true;
  const std::size_t capacity = shape.vertices.capacity();
  shape.Reset();
  EXPECT_EQ(shape.type, ShapeType::None);
  EXPECT_EQ(shape.tag, 0);
  EXPECT_FALSE(shape.selected);
  EXPECT_TRUE(shape.editing);
  EXPECT_TRUE(shape.vertices.empty());
  EXPECT_EQ(shape.vertices.capacity(), capacity);
}

TEST(Shape, WithNothingOfItsOwnHasNeitherCopyNorExtentsNorVertices)
{
  test::PlainShape shape;
  EXPECT_EQ(shape.Clone(), nullptr);
  EXPECT_EQ(shape.type, ShapeType::None);
  shape.vertices.push_back(std::make_unique<CShapeVertex>(3.0, 4.0, 5.0));
  Extents box{1.0, 1.0, 2.0, 2.0};
  shape.GetExtents(box);
  EXPECT_EQ(std::tie(box.minX, box.minY, box.maxX, box.maxY), std::make_tuple(1.0, 1.0, 2.0, 2.0));
  std::vector<CShapeVertex*> list;
  shape.GetVertices(list);
  EXPECT_TRUE(list.empty());
  shape.RemoveVertex(shape.vertices[0].get());
  ASSERT_EQ(shape.vertices.size(), 1U);
  shape.Translate(1.0, 1.0, 1.0);
  shape.Scale(2.0, 2.0, 2.0);
  shape.Rotate(90.0);
  EXPECT_EQ(*shape.vertices[0], CShapeVertex(3.0, 4.0, 5.0));
  EXPECT_EQ(shape.DistanceTo(50.0, 50.0), 0.0);
  const CViewPort viewPort;
  EXPECT_FALSE(shape.HitTest(&viewPort, 3.0, 4.0));
  EXPECT_TRUE(shape.IsVisible(viewPort));
}

TEST(Shape, TypesHaveTheirCodes)
{
  EXPECT_EQ(NumberOf(ShapeType::Point), 1);
  EXPECT_EQ(NumberOf(ShapeType::Polyline), 2);
  EXPECT_EQ(NumberOf(ShapeType::Polygon), 3);
  EXPECT_EQ(NumberOf(ShapeType::Text), 8);
  EXPECT_EQ(NumberOf(ShapeType::Ring), 9);
}

TEST(Shape, CopyBaseToCopiesStyleAndAttributesWhereThereAreAny)
{
  CShapePolyline source;
  source.tag = 7;
  source.selected = true;
  source.editing = true;
  source.style = std::make_unique<ShapeStyle>();
  source.style->lineWidth = 3.0F;
  source.attributes = std::make_unique<CShapeAttributes>();
  source.attributes->items.push_back(Pair(u"LAYER", u"0"));
  CShapePolyline target;
  EXPECT_EQ(source.CopyBaseTo(&target), &target);
  EXPECT_EQ(target.tag, 7);
  EXPECT_TRUE(target.selected);
  EXPECT_FALSE(target.editing);
  EXPECT_EQ(target.type, ShapeType::Polyline);
  EXPECT_EQ(target.style->lineWidth, 3.0F);
  EXPECT_EQ(target.attributes->items.at(0)->name, u"LAYER");
}

TEST(Shape, CopyBaseToReplacesAStyleByACopyOfAllItsFields)
{
  CShapePolyline source;
  source.style = std::make_unique<ShapeStyle>(ShapeStyle{1, 2, 3, 4.5F, 5, 6});
  CShapePolyline target;
  target.style = std::make_unique<ShapeStyle>();
  source.CopyBaseTo(&target);
  EXPECT_NE(target.style, source.style);
  EXPECT_EQ(target.style->lineColour, 1U);
  EXPECT_EQ(target.style->fillColour, 2U);
  EXPECT_EQ(target.style->styleCode, 3);
  EXPECT_EQ(target.style->lineWidth, 4.5F);
  EXPECT_EQ(target.style->styleFlagA, 5);
  EXPECT_EQ(target.style->styleFlagB, 6);
}

TEST(Shape, CopyBaseToReplacesAttributesAlsoByNone)
{
  CShapePolyline source;
  source.Reset();
  source.attributes = std::make_unique<CShapeAttributes>();
  CShapePolyline target;
  target.attributes = std::make_unique<CShapeAttributes>();
  target.attributes->items.push_back(Pair(u"LAYER", u"0"));
  source.CopyBaseTo(&target);
  ASSERT_NE(target.attributes, nullptr);
  EXPECT_TRUE(target.attributes->items.empty());
  EXPECT_EQ(target.type, ShapeType::None);
  source.attributes->items.push_back(Pair(u"TYPE", u"LINE"));
  source.CopyBaseTo(&target);
  source.CopyBaseTo(&target);
  EXPECT_EQ(target.attributes->items.size(), 1U);
  CShapePolyline bare;
  source.CopyBaseTo(&bare);
  EXPECT_EQ(bare.attributes->items.size(), 1U);
}

TEST(Shape, CopyBaseToLeavesWhatTheSourceLacks)
{
  const CShapePolyline source;
  CShapePolyline target;
  target.style = std::make_unique<ShapeStyle>();
  target.attributes = std::make_unique<CShapeAttributes>();
  target.editing = true;
  source.CopyBaseTo(&target);
  EXPECT_NE(target.style, nullptr);
  EXPECT_NE(target.attributes, nullptr);
  EXPECT_TRUE(target.editing);
  EXPECT_EQ(source.CopyBaseTo(nullptr), nullptr);
}

TEST(Walk, StopsAtANullEntryAndAtTheEnd)
{
  OwnedArray<int> items;
  std::uint32_t cursor = 9;
  EXPECT_EQ(WalkFirst(cursor, items), nullptr);
  EXPECT_EQ(cursor, 1U);
  items.push_back(std::make_unique<int>(1));
  items.push_back(std::make_unique<int>(2));
  items.push_back(nullptr);
  items.push_back(std::make_unique<int>(3));
  int sum = 0;
  Walk(cursor, items, [&](int value) { sum += value; });
  EXPECT_EQ(sum, 3);
}

TEST(Walk, AWalkInsideAWalkDisturbsTheOuterOne)
{
  OwnedArray<int> items;
  for (int i = 1; i <= 3; ++i) items.push_back(std::make_unique<int>(i));
  std::uint32_t cursor = 0;
  std::vector<int> seen;
  Walk(cursor, items, [&](int value) {
    seen.push_back(value);
    if (value == 1) Walk(cursor, items, [](int) {});
  });
  EXPECT_EQ(seen, std::vector<int>{1});
}

TEST(Walk, ToAnEntryLeavesTheCursorBehindItAndEndsAtANullOne)
{
  OwnedArray<int> items;
  for (int i = 1; i <= 4; ++i) items.push_back(i == 3 ? nullptr : std::make_unique<int>(i));
  std::uint32_t cursor = 9;
  EXPECT_EQ(WalkTo(cursor, items, [](int value) { return value == 2; }), items[1].get());
  EXPECT_EQ(cursor, 2U);
  EXPECT_EQ(WalkTo(cursor, items, [](int value) { return value == 4; }), nullptr);
  EXPECT_EQ(cursor, 3U);
}

TEST(Entries, AreFoundBehindANullOne)
{
  OwnedArray<int> items;
  items.push_back(nullptr);
  for (const int i : {4, 5, 5}) items.push_back(std::make_unique<int>(i));
  EXPECT_EQ(FindEntry(items, [](int value) { return value == 5; }), items[2].get());
  EXPECT_EQ(FindEntry(items, [](int value) { return value == 6; }), nullptr);
  EXPECT_TRUE(AnyEntry(items, [](int value) { return value == 4; }));
  EXPECT_FALSE(AnyEntry(items, [](int value) { return value == 0; }));
  EXPECT_TRUE(HoldsEntry(items, items[3].get()));
  const int five = 5;
  EXPECT_FALSE(HoldsEntry(items, &five));
}

}  // namespace
}  // namespace hullwright
