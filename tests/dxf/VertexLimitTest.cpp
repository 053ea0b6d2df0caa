#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::Contains;

/// A drawing that may become fewer vertices than it holds.
class VertexLimitOfADrawing : public DxfFixture {
protected:
  /// The vertices of all shapes.
  std::size_t Vertices() const
  {
    std::size_t count = 0;
    for (const auto& shape : layer->shapes->shapes) count += shape->vertices.size();
    return count;
  }
};

const std::string arc = Entity("ARC", {{40, "1"}, {51, "1e300"}});

std::string Repeated(int times, const std::string& entity)
{
  std::string all;
  for (int i = 0; i < times; ++i) all += entity;
  return all;
}

TEST_F(VertexLimitOfADrawing, LeavesOutAndCountsTheEntitiesBehindTheOneThatReachesIt)
{
  Import(Entities(Repeated(10, arc)), {.mostVertices = 500});
  EXPECT_EQ(ShapeCount(), 3U);
  EXPECT_EQ(Tally().beyondLimit, 7U);
  EXPECT_TRUE(Tally().IsIncomplete());
  EXPECT_THAT(Records(), Contains("1 General: [DXF] Left out: 7 records. A drawing may become 500 "
                                  "vertices at most."));
}

TEST_F(VertexLimitOfADrawing, IsNotReachedByOneThatFits)
{
  Import(Entities(Repeated(10, arc)), {.mostVertices = 2000});
  EXPECT_EQ(ShapeCount(), 10U);
  EXPECT_FALSE(Tally().IsIncomplete());
  EXPECT_THAT(Records(), testing::Not(Contains(testing::HasSubstr("Left out"))));
}

TEST_F(VertexLimitOfADrawing, CountsShapesWithoutVerticesToo)
{
  Import(Entities(Repeated(100, Entity("POINT") + Entity("TEXT", {{1, "a"}}))),
         {.mostVertices = 800});
  EXPECT_LT(ShapeCount(), 101U);
  EXPECT_GT(ShapeCount(), 90U);
  EXPECT_EQ(ShapeCount() + Tally().beyondLimit, 200U);
}

TEST_F(VertexLimitOfADrawing, CountsWhatStandsInBlocks)
{
  Import(Blocks(Block("B", Repeated(10, arc))), {.mostVertices = 500});
  EXPECT_EQ(BlockOf("B").shapes.size(), 3U);
  EXPECT_EQ(Tally().beyondLimit, 7U);
}

TEST_F(VertexLimitOfADrawing, LeavesOutAPolylineWhoseBulgesBecomeTooManyVertices)
{
  std::string light = Entity("LWPOLYLINE");
  for (int i = 0; i < 10; ++i) light += Lines({{10, std::to_string(i)}, {20, "0"}, {42, "1"}});
  std::string heavy = Entity("POLYLINE");
  for (int i = 0; i < 10; ++i) heavy += Entity("VERTEX", {{10, std::to_string(i)}, {42, "1"}});
  heavy += Entity("SEQEND");
  const std::string line = Entity("LINE", {{11, "1"}});
  Import(Entities(light + heavy + line), {.mostVertices = 500});
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(Tally().beyondLimit, 2U);
  Import(Entities(light + heavy + line), {.mostVertices = 5000});
  EXPECT_EQ(ShapeCount(), 3U);
  EXPECT_FALSE(Tally().IsIncomplete());
}

TEST_F(VertexLimitOfADrawing, CountsTheVertexThatClosesAPolyline)
{
  const std::string closed = Entity("POLYLINE", {{70, "1"}}) +
                             Repeated(3, Entity("VERTEX", {{10, "1"}})) + Entity("SEQEND");
  Import(Entities(closed), {.mostVertices = 3});
  EXPECT_EQ(ShapeCount(), 0U);
  EXPECT_EQ(Tally().beyondLimit, 1U);
  Import(Entities(closed), {.mostVertices = 4});
  EXPECT_EQ(Vertices(), 4U);
  EXPECT_FALSE(Tally().IsIncomplete());
}

TEST_F(VertexLimitOfADrawing, LeavesOutAPolylineWhoseBulgesLeadStraightUp)
{
  std::string heavy = Entity("POLYLINE");
  for (int i = 0; i < 10; ++i) heavy += Entity("VERTEX", {{30, std::to_string(i)}, {42, "1"}});
  Import(Entities(heavy + Entity("SEQEND")), {.mostVertices = 500});
  EXPECT_EQ(ShapeCount(), 0U);
  EXPECT_EQ(Tally().beyondLimit, 1U);
}

TEST_F(VertexLimitOfADrawing, HoldsForVerticesThatAreGatheredWithoutAnEnd)
{
  Import(Entities(Entity("LWPOLYLINE") + Repeated(1000, Lines({{10, "1"}, {20, "2"}})) +
                  Repeated(1000, Entity("VERTEX", {{10, "1"}}))),
         {.mostVertices = 100});
  EXPECT_EQ(file->Drawing().vertices.size(), 101U);
  EXPECT_EQ(file->Drawing().polyline.VertexCount(), 101U);
  EXPECT_EQ(Vertices(), 0U);
}

}  // namespace
}  // namespace hullwright
