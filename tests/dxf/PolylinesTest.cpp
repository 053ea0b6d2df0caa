#include "dxf/DxfCurves.h"
#include "support/DxfPolylines.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class Polylines : public DxfFixture {
protected:
  std::size_t CountOf(std::size_t index) const
  {
    return layer->shapes->shapes.at(index)->vertices.size();
  }
};

// ---------------------------------------------------------------------------------------------------
// POLYLINE, VERTEX, SEQEND

TEST_F(Polylines, AnOpenOneHasItsVerticesAndItsMark)
{
  ImportEntities(Header(Lines({{5, "2B"}, {8, "Hull"}, {62, "1"}, {66, "1"}, {30, "99"}})) +
                 Vertex(1, 2, Lines({{30, "3"}})) + Vertex(4, 5) + seqEnd);
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 2.0, 3.0), ElementsAre(4.0, 5.0, 0.0)));
  EXPECT_THAT(AttributesOf(0), ElementsAre("FEATURE=POLYLINE", "LAYER=Hull", "HANDLE=2B"));
  EXPECT_EQ(At(0).tag, 0x2B);
  EXPECT_EQ(ColourOf(0), 0xFFU);
  EXPECT_EQ(At(0).style->fillColour, 0xFFU);
  EXPECT_EQ(At(0).style->lineWidth, 1.0F);
}

TEST_F(Polylines, OnlyFlagsOfExactlyOneClose)
{
  for (const auto& [flags, vertices] : {std::pair{"1", 4U}, {"0", 3U}, {"9", 3U}, {"129", 3U}}) {
    ImportEntities(Header(Lines({{70, flags}})) + triangle + seqEnd);
    EXPECT_EQ(CountOf(0), vertices) << flags;
  }
  ImportEntities(Header(Lines({{70, "1"}})) + triangle + seqEnd);
  EXPECT_EQ(VerticesOf(0).back(), VerticesOf(0).front());
}

TEST_F(Polylines, FlagsPassOnToTheNextOneWithoutAny)
{
  ImportEntities(Header(Lines({{70, "1"}})) + triangle + seqEnd + Header() + triangle + seqEnd +
                 Header(Lines({{70, "0"}})) + triangle + seqEnd + Header() + triangle + seqEnd);
  EXPECT_EQ(CountOf(0), 4U);
  EXPECT_EQ(CountOf(1), 4U);
  EXPECT_EQ(CountOf(2), 3U);
  EXPECT_EQ(CountOf(3), 3U);
}

TEST_F(Polylines, FlagsOfAHiddenOnePassOnToTheNextOneWithoutAny)
{
  Import(LayerTable(LayerRecord("frozen", 1, 1)) +
         Entities(Header(Lines({{8, "frozen"}, {70, "1"}})) + triangle + seqEnd + Header() +
                  triangle + seqEnd));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(CountOf(0), 4U);
}

TEST_F(Polylines, AHiddenOneWithoutAnEndLeavesItsVerticesForTheNext)
{
  Import(
      LayerTable(LayerRecord("frozen", 1, 1)) +
      Entities(Header(Lines({{8, "frozen"}})) + Vertex(1, 1) + Header() + Vertex(2, 2) + seqEnd));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 1.0, 0.0), ElementsAre(2.0, 2.0, 0.0)));
}

TEST_F(Polylines, TheClosingCopyKeepsItsHeight)
{
  ImportEntities(Header(Lines({{70, "1"}})) + Vertex(1, 2, Lines({{30, "3"}})) + Vertex(4, 5) +
                 seqEnd);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 2.0, 3.0), ElementsAre(4.0, 5.0, 0.0),
                                         ElementsAre(1.0, 2.0, 3.0)));
}

TEST_F(Polylines, AClosedOneOfOneVertexHasItTwice)
{
  ImportEntities(Header(Lines({{70, "1"}})) + Vertex(1, 2) + seqEnd);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 2.0, 0.0), ElementsAre(1.0, 2.0, 0.0)));
}

TEST_F(Polylines, TheCurveTypeIsKeptAndNotUsed)
{
  ImportEntities(Header(Lines({{75, "6"}})) + triangle + seqEnd);
  EXPECT_EQ(file->Drawing().polyline.CurveType(), 6);
  EXPECT_EQ(CountOf(0), 3U);
  ImportEntities(Header(Lines({{75, "6"}})) + triangle + seqEnd + Header() + triangle + seqEnd);
  EXPECT_EQ(file->Drawing().polyline.CurveType(), 6);
}

TEST_F(Polylines, AWidthIsDoubledAndZeroIsAWidth)
{
  for (const auto& [width, line] : {std::pair{"2.5", 5.0F}, {"0", 0.0F}, {"-1", -2.0F}}) {
    ImportEntities(Header(Lines({{40, width}, {41, "7"}})) + triangle + seqEnd);
    EXPECT_EQ(At(0).style->lineWidth, line);
  }
}

TEST_F(Polylines, OfThePaperSpaceAreImported)
{
  ImportEntities(Header(Lines({{67, "1"}})) + triangle + seqEnd);
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Polylines, OnAFrozenLayerLeaveNothingBehind)
{
  Import(LayerTable(LayerRecord("frozen", 1, 1)) +
         Entities(Header(Lines({{8, "frozen"}})) + triangle + seqEnd + Header() + Vertex(9, 9) +
                  seqEnd));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(9.0, 9.0, 0.0)));
}

TEST_F(Polylines, OnAFrozenLayerEndTheOneBefore)
{
  Import(LayerTable(LayerRecord("frozen", 1, 1)) +
         Entities(Header() + Vertex(1, 1) + Header(Lines({{8, "frozen"}})) + seqEnd));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Polylines, TheirEndHasApplicationDataReadAsPairs)
{
  ImportEntities(Header() + triangle + Entity("SEQEND", {{102, "{A"}}) +
                 Entity("LINE", {{10, "1"}}));
  EXPECT_EQ(ShapeCount(), 2U);
}

TEST_F(Polylines, ControlPointsOfSplinesAreDroppedByFlagsOfExactlySixteen)
{
  ImportEntities(Header() + Vertex(1, 1, Lines({{70, "16"}})) + Vertex(2, 2, Lines({{70, "17"}})) +
                 Vertex(3, 3, Lines({{70, "8"}})) + seqEnd);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(2.0, 2.0, 0.0), ElementsAre(3.0, 3.0, 0.0)));
}

TEST_F(Polylines, AVertexIsPairsOnlyEvenWithApplicationData)
{
  // The brace does not hide the group behind it.
  ImportEntities(Header() + Entity("VERTEX", {{102, "{A"}, {10, "5"}, {102, "}"}}) + seqEnd);
  EXPECT_EQ(VerticesOf(0)[0][0], 5.0);
}

TEST_F(Polylines, WithoutAnEndAreLost)
{
  ImportEntities(Header() + triangle);
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Polylines, TheVerticesOfAnUnfinishedOnePassIntoTheNext)
{
  ImportEntities(Header() + Vertex(1, 1) + Header() + Vertex(2, 2) + seqEnd);
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(CountOf(0), 2U);
}

TEST_F(Polylines, AStrayVertexJoinsTheNextOneThatEnds)
{
  ImportEntities(Vertex(7, 7) + Header() + Vertex(1, 1) + seqEnd);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(7.0, 7.0, 0.0), ElementsAre(1.0, 1.0, 0.0)));
}

TEST_F(Polylines, AnEndWithoutABeginningThrowsStrayVerticesAway)
{
  ImportEntities(Vertex(7, 7) + seqEnd + Header() + Vertex(1, 1) + seqEnd);
  EXPECT_EQ(CountOf(0), 1U);
}

TEST_F(Polylines, WithoutVerticesAreEmptyShapes)
{
  ImportEntities(Header(Lines({{70, "1"}})) + seqEnd + Entity("LWPOLYLINE", {{70, "1"}}));
  ASSERT_EQ(ShapeCount(), 2U);
  EXPECT_EQ(CountOf(0), 0U);
  EXPECT_EQ(CountOf(1), 0U);
}

TEST_F(Polylines, AnOpenOneCrossesBlocksAndSections)
{
  Import(
      Blocks(Block("A", Header(Lines({{8, "Hull"}})) + Vertex(1, 1)) + Block("B", Vertex(2, 2))) +
      Entities(Vertex(3, 3) + seqEnd));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(CountOf(0), 3U);
  EXPECT_THAT(BlockOf("A").shapes, IsEmpty());
}

TEST_F(Polylines, OfABlockGoToTheBlockThatSeesTheirEnd)
{
  Import(Blocks(Block("A", Header() + Vertex(1, 1)) + Block("B", seqEnd)));
  EXPECT_EQ(BlockOf("B").shapes.size(), 1U);
}

TEST_F(Polylines, AnExtrusionTurnsTheVertices)
{
  ImportEntities(Header(Lines({{230, "-1"}})) + Vertex(2, 3, Lines({{30, "4"}})) + seqEnd);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(-2.0, 3.0, -4.0)));
}

TEST_F(Polylines, ALightweightOneInBetweenResetsTheExtrusion)
{
  for (const char* name : {"seen", "frozen"}) {
    Import(LayerTable(LayerRecord("frozen", 1, 1)) +
           Entities(Header(Lines({{230, "-1"}})) + Vertex(2, 3) +
                    Entity("LWPOLYLINE", {{8, name}, {10, "1"}, {20, "1"}}) + seqEnd));
    EXPECT_THAT(VerticesOf(ShapeCount() - 1), ElementsAre(ElementsAre(2.0, 3.0, 0.0)));
  }
}

// ---------------------------------------------------------------------------------------------------
// LWPOLYLINE

TEST_F(Polylines, ALightweightRectangleIsClosedByItsFirstVertex)
{
  ImportEntities(Entity("LWPOLYLINE", {{5, "C"},
                                       {8, "A"},
                                       {90, "4"},
                                       {70, "1"},
                                       {38, "7"},
                                       {10, "0"},
                                       {20, "0"},
                                       {10, "4"},
                                       {20, "0"},
                                       {10, "4"},
                                       {20, "3"},
                                       {10, "0"},
                                       {20, "3"},
                                       {230, "-1"},
                                       {67, "1"}}));
  ASSERT_EQ(CountOf(0), 5U);
  EXPECT_EQ(VerticesOf(0).front(), VerticesOf(0).back());
  EXPECT_THAT(VerticesOf(0)[2], ElementsAre(4.0, 3.0, 0.0));
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=A", "HANDLE=C"));
  EXPECT_EQ(At(0).tag, 0xC);
}

TEST_F(Polylines, ALightweightOneIsClosedByTheLowestBit)
{
  for (const auto& [flags, vertices] : {std::pair{"129", 2U}, {"128", 1U}, {"3", 2U}, {"2", 1U}}) {
    ImportEntities(Entity("LWPOLYLINE", {{70, flags}, {10, "1"}, {20, "2"}}));
    EXPECT_EQ(CountOf(0), vertices) << flags;
  }
}

TEST_F(Polylines, TheWidthOfALightweightOneIsDoubledUnlessZero)
{
  for (const auto& [width, line] : {std::pair{"2.5", 5.0F}, {"0", 1.0F}, {"-1", -2.0F}}) {
    ImportEntities(Entity("LWPOLYLINE", {{43, width}, {10, "1"}, {20, "2"}}));
    EXPECT_EQ(At(0).style->lineWidth, line);
  }
}

TEST_F(Polylines, CoordinatesOfALightweightOnePairUpInAnyOrder)
{
  ImportEntities(Entity("LWPOLYLINE", {{20, "1"}, {10, "2"}, {20, "3"}, {10, "4"}}));
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(2.0, 1.0, 0.0), ElementsAre(4.0, 3.0, 0.0)));
  // A coordinate that comes twice replaces the first; one that is missing makes no vertex.
  ImportEntities(Entity("LWPOLYLINE", {{10, "1"}, {10, "2"}, {20, "3"}, {10, "9"}}));
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(2.0, 3.0, 0.0)));
}

TEST_F(Polylines, ValuesOfALightweightOneHaveTheShortLimit)
{
  const std::string head = Entity("LWPOLYLINE", {{10, "1"}, {20, "1"}});
  ImportEntities(head + "999\n" + std::string(255, 'x') + "\n" + Lines({{10, "2"}, {20, "2"}}));
  EXPECT_EQ(CountOf(0), 2U);
  ImportEntities(head + "999\n" + std::string(256, 'x') + "\n" + Lines({{10, "2"}, {20, "2"}}));
  EXPECT_EQ(CountOf(0), 1U);
}

TEST_F(Polylines, ALightweightOneOnAHiddenLayerIsDropped)
{
  Import(LayerTable(LayerRecord("A", -1, 0)) +
         Entities(Entity("LWPOLYLINE", {{8, "A"}, {10, "1"}, {20, "2"}})));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Polylines, ALightweightOneHasNothingOfAHiddenOneInFrontOfIt)
{
  Import(LayerTable(LayerRecord("A", -1, 0)) +
         Entities(Entity("LWPOLYLINE", {{8, "A"}, {10, "1"}, {20, "2"}, {42, "3"}}) +
                  Entity("LWPOLYLINE", {{10, "4"}, {20, "5"}}) + Entity("LWPOLYLINE")));
  ASSERT_EQ(ShapeCount(), 2U);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(4.0, 5.0, 0.0)));
  EXPECT_THAT(VerticesOf(1), IsEmpty());
}

TEST_F(Polylines, FlatteningAppendsToWhatTheShapeHas)
{
  CShapePolyline shape;
  shape.AddVertex(7.0, 8.0, 9.0);
  AppendFlattened(shape, {}, Extrusion());
  EXPECT_EQ(shape.vertices.size(), 1U);
  AppendFlattened(shape, {{1.0, 2.0, 3.0, 0.0, 0}}, Extrusion());
  ASSERT_EQ(shape.vertices.size(), 2U);
  EXPECT_EQ(*shape.vertices[1], CShapeVertex(1.0, 2.0, 3.0));
}

}  // namespace
}  // namespace hullwright
