#include "exchange/ExportedDesign.h"

#include <gmock/gmock.h>

#include "exchange/DesignFixture.h"

namespace hullwright::test {
namespace {

using testing::ElementsAre;

class ExportedDesignTest : public testing::Test, public DesignFixture {
protected:
  /// The polylines as "side number".
  static std::vector<std::string> Lines(const ExportedDesign& exported)
  {
    std::vector<std::string> list;
    for (const ExportedPolyline& line : exported.polylines) {
      list.push_back(line.side + " " + std::to_string(line.number));
    }
    return list;
  }

  /// A group of its own, also of a side that has one.
  void AddGroup(ViewSide code)
  {
    design.shapeGroups.push_back(std::make_unique<CShapes>(code));
    auto line = std::make_unique<CShapePolyline>();
    line->AddVertex(0, 0, 0);
    line->AddVertex(1, 1, 0);
    design.shapeGroups.back()->shapes.push_back(std::move(line));
  }
};

TEST_F(ExportedDesignTest, EverythingHasTheGroupsThatNoViewShows)
{
  for (const ViewSide code : {ViewSide::Top, ViewSide::Rear, ViewSide::Top, ViewSide::All}) {
    AddGroup(code);
  }
  AddGroup(ViewSide{3});
  AddGroup(ViewSide{-1});
  EXPECT_THAT(Lines(Gather()),
              ElementsAre("top 1", "rear 1", "top 1", "all 1", "view-03 1", "view-FFFFFFFF 1"));
}

TEST_F(ExportedDesignTest, OneSideHasItsGroupsAndThoseOfEverySide)
{
  for (const ViewSide code : {ViewSide::Top, ViewSide::Rear, ViewSide::All, ViewSide::Rear}) {
    AddGroup(code);
  }
  EXPECT_THAT(Lines(Gather(ViewSide::Rear)), ElementsAre("rear 1", "all 1", "rear 1"));
}

TEST_F(ExportedDesignTest, LinesOfFewerThanTwoVerticesAreLeftOutAndKeepTheirNumbers)
{
  AddLine(design, ViewSide::Left, {});
  AddLine(design, ViewSide::Left, {{0, 0, 0}, {1, 0, 0}});
  AddLine(design, ViewSide::Left, {{0, 0, 0}});
  AddLine(design, ViewSide::Left, {{0, 0, 0}, {0, 0, 0}});
  EXPECT_THAT(Lines(Gather()), ElementsAre("left 2", "left 4"));
  EXPECT_EQ(Gather().leftOut, 2U);
}

TEST_F(ExportedDesignTest, OffsetsAndAnchorsComeWithTheTopSideAlone)
{
  AddAnchor(7, u"Bow", 3.0, 4.0);
  const ExportedDesign top = Gather(ViewSide::Top);
  ASSERT_EQ(top.places.size(), 4U);
  EXPECT_EQ(top.places[0].name, u"GNSS antenna");
  EXPECT_EQ(top.places[1].name, u"echo sounder");
  EXPECT_EQ(top.places[1].x, -10.0);
  EXPECT_EQ(top.places[2].name, u"pivot");
  EXPECT_FALSE(top.places[2].number);
  EXPECT_EQ(top.places[3].number, 7U);
  EXPECT_FALSE(top.places[3].z);
  EXPECT_EQ(Gather().places.size(), 4U);
  EXPECT_TRUE(Gather(ViewSide::Bottom).places.empty());
}

TEST_F(ExportedDesignTest, ALineIsClosedWhereItComesBackToTheBit)
{
  const auto closed = [this](std::initializer_list<CShapeVertex> vertices) {
    return IsClosed(AddLine(design, ViewSide::Top, vertices));
  };
  EXPECT_TRUE(closed({{0, 0, 0}, {1, 0, 0}, {0, 0, 0}}));
  EXPECT_FALSE(closed({{0, 0, 0}, {1, 0, 0}, {-0.0, 0, 0}}));
  EXPECT_FALSE(closed({{0, 0, 0}, {1, 0, 0}, {0, 0, 1}}));
  EXPECT_FALSE(closed({{0, 0, 0}, {0, 0, 0}}));
  EXPECT_FALSE(closed({}));
}

TEST_F(ExportedDesignTest, ALineWithoutAStyleIsBlackAndOnePixelWide)
{
  CShapePolyline& line = AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  EXPECT_EQ(LineColourOf(line), 0U);
  EXPECT_EQ(LineWidthOf(line), 1.0);
  Style(line, 0xFF563412, 2.5F);
  EXPECT_EQ(LineColourOf(line), 0x563412U);
  EXPECT_EQ(LineWidthOf(line), 2.5);
}

}  // namespace
}  // namespace hullwright::test
