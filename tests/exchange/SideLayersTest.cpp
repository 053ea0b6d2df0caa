#include "exchange/SideLayers.h"

#include <gtest/gtest.h>

#include "exchange/ExportedDesign.h"
#include "model/ShapePoint.h"
#include "model/ShapePolyline.h"

namespace hullwright {
namespace {

/// What an import gives of a drawing: shapes in one group, with their layers.
class ImportedDrawing : public testing::Test {
protected:
  template <class T>
  T& Add(std::u16string layer)
  {
    auto shape = std::make_unique<T>();
    shape->attributes = std::make_unique<CShapeAttributes>();
    shape->attributes->Append(u"LAYER", std::move(layer));
    shape->attributes->Append(u"HANDLE", u"40");
    T& added = *shape;
    GetShapes(groups, ViewSide::Top)->shapes.push_back(std::move(shape));
    return added;
  }

  CShape& AddLine(std::u16string layer) { return Add<CShapePolyline>(std::move(layer)); }

  OwnedArray<CShapes> groups;
};

TEST(SideNames, AreThoseThatAnExportWrites)
{
  for (const int code : {1, 2, 4, 8, 16, 32, 63, 3, 0, 255, -1}) {
    const std::string name = NameOfSide(ViewSide{code});
    EXPECT_EQ(SideOfName(std::u16string(name.begin(), name.end())), ViewSide{code}) << name;
  }
  EXPECT_EQ(SideOfName(u"TOP"), ViewSide::Top);
  EXPECT_EQ(SideOfName(u"View-0a"), ViewSide{10});
  for (const char16_t* const other :
       {u"", u"tops", u"view-", u"view-0g", u"view-100000000", u"0", u"t\u00F6p"}) {
    EXPECT_FALSE(SideOfName(other));
  }
}

TEST_F(ImportedDrawing, HasSidesWhereEachPolylineIsOnASidesLayer)
{
  EXPECT_FALSE(HasSideLayers(groups));
  Add<CShapePoint>(u"anchors");
  EXPECT_FALSE(HasSideLayers(groups));
  AddLine(u"left");
  AddLine(u"all");
  EXPECT_TRUE(HasSideLayers(groups));
  AddLine(u"HULL");
  EXPECT_FALSE(HasSideLayers(groups));
}

TEST_F(ImportedDrawing, HasNoSidesWhereAPolylineHasNoLayer)
{
  AddLine(u"top");
  EXPECT_TRUE(HasSideLayers(groups));
  AddLine(u"top").attributes.reset();
  EXPECT_FALSE(HasSideLayers(groups));
}

TEST_F(ImportedDrawing, IsPartedByItsLayersInOrder)
{
  const CShape& first = AddLine(u"left");
  AddLine(u"top");
  const CShape& third = AddLine(u"LEFT");
  AddLine(u"all");
  const CShape& anchor = Add<CShapePoint>(u"anchors");
  PartBySideLayers(groups);
  ASSERT_EQ(groups.size(), 3U);
  const auto group = [this](ViewSide side) {
    return FindEntry(groups, [side](const CShapes& g) { return g.viewCode == side; });
  };
  const CShapes* const left = group(ViewSide::Left);
  ASSERT_NE(left, nullptr);
  ASSERT_EQ(left->shapes.size(), 2U);
  EXPECT_EQ(left->shapes[0].get(), &first);
  EXPECT_EQ(left->shapes[1].get(), &third);
  ASSERT_NE(group(ViewSide::All), nullptr);
  EXPECT_EQ(group(ViewSide::All)->shapes.size(), 1U);
  ASSERT_EQ(group(ViewSide::Top)->shapes.size(), 2U);
  EXPECT_EQ(group(ViewSide::Top)->shapes[1].get(), &anchor);
}

}  // namespace
}  // namespace hullwright
