#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/GridSettingsStore.h"
#include "headless/MemorySettings.h"

namespace hullwright {
namespace {

class GridStore : public testing::Test {
protected:
  double Stored(double spacing)
  {
    GridSettings grid;
    grid.spacingSnapY = spacing;
    SaveGridSettings(store, grid);
    return LoadGridSettings(store).spacingSnapY;
  }

  MemorySettings store;
};

TEST_F(GridStore, AnEmptyStoreGivesTheDefaults)
{
  const GridSettings grid = LoadGridSettings(store);
  EXPECT_EQ(grid.show, 1);
  EXPECT_EQ(grid.snap, 1);
  EXPECT_EQ(grid.spacingShowX, 2.5);
  EXPECT_EQ(grid.spacingShowY, 2.5);
  EXPECT_EQ(grid.spacingSnapX, 2.5);
  EXPECT_EQ(grid.spacingSnapY, 2.5);
  EXPECT_TRUE(store.written.empty());
}

TEST_F(GridStore, EachKeyIsItsOwnField)
{
  store.values = {{"Grid/Show", 0},           {"Grid/Snap", 7},
                  {"Grid/SpacingShowX", 100}, {"Grid/SpacingShowY", 200},
                  {"Grid/SpacingSnapX", 300}, {"Grid/SpacingSnapY", 400}};
  const GridSettings grid = LoadGridSettings(store);
  EXPECT_EQ(grid.show, 0);
  EXPECT_EQ(grid.snap, 7);
  EXPECT_EQ(grid.spacingShowX, 1.0);
  EXPECT_EQ(grid.spacingShowY, 2.0);
  EXPECT_EQ(grid.spacingSnapX, 3.0);
  EXPECT_EQ(grid.spacingSnapY, 4.0);
}

TEST_F(GridStore, WritesTheSixKeysInOrder)
{
  SaveGridSettings(store, {});
  EXPECT_THAT(store.written,
              testing::ElementsAre("Grid/Show", "Grid/Snap", "Grid/SpacingShowX",
                                   "Grid/SpacingShowY", "Grid/SpacingSnapX", "Grid/SpacingSnapY"));
  EXPECT_EQ(store.values["Grid/SpacingSnapX"], 250);
}

TEST_F(GridStore, SpacingsAreTruncatedToHundredths)
{
  EXPECT_EQ(Stored(2.505), 2.5);
  EXPECT_EQ(Stored(1.15), 1.14);
  EXPECT_EQ(Stored(0.29), 0.28);
}

TEST_F(GridStore, ANegativeSpacingComesBackHuge)
{
  EXPECT_EQ(Stored(-1.0), 42949671.96);
  EXPECT_EQ(store.values["Grid/SpacingSnapY"], -100);
}

TEST_F(GridStore, ASpacingThatDoesNotFitIsTheLowestInteger)
{
  Stored(1e30);
  EXPECT_EQ(store.values["Grid/SpacingSnapY"], std::numeric_limits<std::int32_t>::min());
}

}  // namespace
}  // namespace hullwright
