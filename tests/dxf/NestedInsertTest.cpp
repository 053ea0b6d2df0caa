#include <algorithm>
#include <limits>

#include "support/DxfFixture.h"

// Blocks that insert blocks, and what their copies may cost.
namespace hullwright {
namespace {

using namespace test;
using testing::Contains;

const std::string unitLine = Entity("LINE", {{5, "A1"}, {8, "part"}, {10, "1"}, {11, "2"}});

std::string Insert(const std::string& name) { return Entity("INSERT", {{2, name}}); }

class NestedInserts : public DxfFixture {};

// ---------------------------------------------------------------------------------------------------
// Blocks that multiply

/// Each of these blocks inserts the one before it ten times.
std::string Multiplying(int levels)
{
  std::string blocks = Block("b0", unitLine);
  for (int level = 1; level <= levels; ++level) {
    std::string inserts;
    for (int i = 0; i < 10; ++i) inserts += Insert("b" + std::to_string(level - 1));
    blocks += Block("b" + std::to_string(level), inserts);
  }
  return Blocks(blocks);
}

std::ptrdiff_t FailuresIn(const std::vector<std::string>& records)
{
  return std::ranges::count_if(
      records, [](const std::string& record) { return record.starts_with("1 General: "); });
}

TEST_F(NestedInserts, StopCopyingAtABudgetAndReportThatOnce)
{
  const std::string inserts = unitLine + Insert("b30") + Insert("b0") + Insert("b0") + unitLine;
  EXPECT_EQ(Import(Multiplying(30) + Entities(inserts), {.copyBudget = 1000000}), 0);
  EXPECT_GT(ShapeCount(), 100U);  // copies made before stay, and so do the lines
  EXPECT_LT(ShapeCount(), 1000U);
  EXPECT_EQ(AttributesOf(ShapeCount() - 1).size(), 2U);
  EXPECT_EQ(Tally().cutInserts, 3U);
  EXPECT_TRUE(Tally().IsIncomplete());
  EXPECT_EQ(FailuresIn(Records()), 1);
  EXPECT_THAT(Records(),
              Contains("1 General: [DXF] The inserted blocks of this drawing take too much "
                       "memory; the rest of their copies is left out."));
  EXPECT_EQ(BlockOf("b2").ShapesWhenInserted(), 100U);
}

TEST_F(NestedInserts, OfAnOrdinaryDrawingStayFarBelowTheBudget)
{
  Import(Multiplying(4) + Entities(Insert("b4")));
  EXPECT_EQ(ShapeCount(), 10000U);
  EXPECT_EQ(FailuresIn(Records()), 0);
  EXPECT_GT(file->Drawing().copyBudget.Left(), (std::int64_t{1} << 30) * 9 / 10);
}

TEST_F(NestedInserts, PayForVerticesRingsTextsAndAttributes)
{
  const std::string lwpolyline =
      Entity("LWPOLYLINE", {{10, "0"}, {20, "0"}, {42, "1"}, {10, "9"}, {20, "0"}});
  for (const auto& [entity, least] : {std::pair<std::string, std::int64_t>{lwpolyline, 180 * 56},
                                      {Entity("SOLID"), 4 * 56},
                                      {Entity("TEXT", {{1, std::string(500, 'x')}}), 1000},
                                      {Entity("POINT", {{8, std::string(500, 'x')}}), 1000}}) {
    Import(Blocks(Block("B", entity)) + Entities(Insert("B")));
    const std::int64_t paid = (std::int64_t{1} << 30) - file->Drawing().copyBudget.Left();
    EXPECT_GE(paid, least + 400);
    EXPECT_LE(paid, least + 2000);
  }
}

/// Each of these blocks inserts the one before it, and none has a shape of its own but the first.
std::string Chain(int length, const std::string& first)
{
  std::string blocks = Block("b0", first);
  for (int i = 1; i < length; ++i) {
    blocks += Block("b" + std::to_string(i), Insert("b" + std::to_string(i - 1)));
  }
  return Blocks(blocks);
}

TEST_F(NestedInserts, ThatNobodyInsertsCostNoCopies)
{
  Import(Chain(4000, unitLine) + Entities(unitLine));
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(file->Drawing().copyBudget.Left(), std::int64_t{1} << 30);
  EXPECT_FALSE(Tally().IsIncomplete());
}

TEST_F(NestedInserts, OfAChainOfThousandsCostTheOneCopyThatTheDrawingNeeds)
{
  Import(Chain(4000, unitLine) + Entities(Insert("b3999")));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(AttributesOf(0).size(), 2U + 4000U * 2U);
  EXPECT_GT(file->Drawing().copyBudget.Left(), (std::int64_t{1} << 30) * 9 / 10);
}

TEST_F(NestedInserts, OfBlocksWithoutShapesAreNothingHoweverManyThereAre)
{
  std::string blocks = Block("b0", {});
  for (int level = 1; level < 100; ++level) {
    const std::string before = Insert("b" + std::to_string(level - 1));
    blocks += Block("b" + std::to_string(level), before + before);
  }
  Import(Blocks(blocks) + Entities(Insert("b99") + unitLine));  // 2 to the 99th of nothing
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_FALSE(Tally().IsIncomplete());
}

TEST_F(NestedInserts, CountMoreShapesThanNumbersGoAsTheLargest)
{
  Import(Multiplying(60));
  EXPECT_EQ(BlockOf("b3").ShapesWhenInserted(), 1000U);
  EXPECT_EQ(BlockOf("b60").ShapesWhenInserted(),
            static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()));
}

TEST_F(NestedInserts, KeepTheirPlaceAmongTheShapesOfTheirBlock)
{
  const auto line = [](const char* x) { return Entity("LINE", {{10, x}}); };
  Import(Blocks(Block("in", line("2") + line("3")) +
                Block("out", Insert("in") + line("1") + Insert("in") + Insert("in") + line("4"))) +
         Entities(Insert("out") + line("9")));
  std::string places;
  for (std::size_t i = 0; i < ShapeCount(); ++i) {
    places += std::to_string(static_cast<int>(VerticesOf(i).at(0).at(0)));
  }
  EXPECT_EQ(places, "231232349");
}

TEST_F(NestedInserts, PayForTheWayThroughEachBlock)
{
  const std::string circle = Entity("CIRCLE", {{40, "1"}});
  Import(Chain(2, circle) + Entities(Insert("b1")));
  const std::int64_t two = file->Drawing().copyBudget.Left();
  Import(Chain(102, circle) + Entities(Insert("b101")));
  EXPECT_GE(two - file->Drawing().copyBudget.Left(), 100 * (61 * 8 + 2 * 64));
}

}  // namespace
}  // namespace hullwright
