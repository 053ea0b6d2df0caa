#include "compare/AnchorChanges.h"

#include "support/DesignPair.h"

namespace hullwright::test {
namespace {

class ComparedAnchors : public DesignPair {
protected:
  /// The only anchor that differs.
  AnchorDifference Only() const
  {
    const Differences differences = Compare();
    EXPECT_EQ(differences.anchors.size(), 1U);
    return differences.anchors.empty() ? AnchorDifference() : differences.anchors[0];
  }
};

TEST_F(ComparedAnchors, OfOneNumberAndNameMove)
{
  AddAnchor(former, 1, u"Bow", 1.0, 2.0);
  AddAnchor(current, 1, u"Bow", 1.0, 2.5);
  const AnchorDifference moved = Only();
  EXPECT_TRUE(moved.moved);
  EXPECT_EQ(moved.anchor.former->place.y, 2.0);
  EXPECT_EQ(moved.anchor.current->place.y, 2.5);
}

TEST_F(ComparedAnchors, OfOneNameAreRenumbered)
{
  AddAnchor(former, 1, u"Bow", 1.0, 2.0);
  AddAnchor(former, 2, u"Stern", 5.0, 2.0);
  AddAnchor(current, 2, u"Bow", 1.0, 2.0);
  AddAnchor(current, 1, u"Stern", 5.0, 2.0);
  const Differences differences = Compare();
  ASSERT_EQ(differences.anchors.size(), 2U);
  EXPECT_EQ(differences.anchors[0].anchor.former->id, 1U);
  EXPECT_EQ(differences.anchors[0].anchor.current->id, 2U);
  EXPECT_FALSE(differences.anchors[0].moved);
}

TEST_F(ComparedAnchors, OfOneNumberAreRenamed)
{
  AddAnchor(former, 1, u"", 1.0, 2.0);
  AddAnchor(current, 1, u"Bow", 1.0, 2.0);
  EXPECT_EQ(Only().anchor.current->name, u"Bow");
  EXPECT_EQ(Only().anchor.former->name, u"");
}

TEST_F(ComparedAnchors, WithoutNameAreNotOneByIt)
{
  AddAnchor(former, 1, u"", 1.0, 2.0);
  AddAnchor(current, 2, u"", 1.0, 2.0);
  const Differences differences = Compare();
  ASSERT_EQ(differences.anchors.size(), 2U);
  EXPECT_FALSE(differences.anchors[0].anchor.former);
  EXPECT_FALSE(differences.anchors[1].anchor.current);
}

TEST_F(ComparedAnchors, OfOneNumberAndNameKeepTheirPlacesFirst)
{
  AddAnchor(former, 1, u"Bow", 1.0, 0.0);
  AddAnchor(former, 1, u"Bow", 2.0, 0.0);
  AddAnchor(current, 1, u"Bow", 2.0, 0.0);
  AddAnchor(current, 1, u"Bow", 1.5, 0.0);
  EXPECT_EQ(Only().anchor.former->place.x, 1.0);
  EXPECT_EQ(Only().anchor.current->place.x, 1.5);
}

TEST_F(ComparedAnchors, OfTwoUnitsAreConverted)
{
  AddAnchor(former, 1, u"Bow", 10.0, 0.0);
  AddAnchor(current, 1, u"Bow", 32.808, 0.0);
  current.unitCode = UnitCode{9002};
  EXPECT_TRUE(Compare().anchors.empty());
}

}  // namespace
}  // namespace hullwright::test
