#include <gtest/gtest.h>

#include "file/FileVessel.h"
#include "file/SaxHandlers.h"
#include "headless/KeptMessages.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

class VesselRead : public testing::Test {
protected:
  int Read(std::string_view content)
  {
    file.groups = &groups;
    return file.Read(folder.Write("in.xml", "<vessel>" + std::string(content) + "</vessel>"));
  }

  const CAnchor& Anchor(std::size_t index) const { return *file.anchors->items.at(index); }
  const CShape& Shape(std::size_t group, std::size_t shape) const
  {
    return *groups.at(group)->shapes.at(shape);
  }

  KeptMessages messages;
  test::TempFolder folder;
  CFileVessel file{messages};
  OwnedArray<CShapes> groups;
};

TEST_F(VesselRead, ReadsGroupsPolylinesAndVertices)
{
  ASSERT_EQ(Read("<shapes view='10'><polyline><vertex x='1.5' y='-2' z='3'/><vertex x='4'/>"
                 "</polyline><polyline/></shapes>"),
            0);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0]->viewCode, ViewSide::Front);
  ASSERT_EQ(groups[0]->shapes.size(), 2U);
  EXPECT_TRUE(*Shape(0, 0).vertices.at(0) == CShapeVertex(1.5, -2.0, 3.0));
  EXPECT_TRUE(*Shape(0, 0).vertices.at(1) == CShapeVertex(4.0, 0.0, 0.0));
  EXPECT_EQ(Shape(0, 0).style, nullptr);
}

TEST_F(VesselRead, AViewOfZeroOrNoneBecomesOne)
{
  ASSERT_EQ(Read("<shapes view='0'/><shapes/><shapes view='x'/>"), 0);
  ASSERT_EQ(groups.size(), 3U);
  for (const auto& group : groups) EXPECT_EQ(group->viewCode, ViewSide::Top);
}

TEST_F(VesselRead, ViewCodesAreHexadecimalInEitherCaseAndNotLimited)
{
  ASSERT_EQ(Read("<shapes view='3f'/><shapes view='3F'/><shapes view='5'/><shapes view='-1'/>"), 0);
  EXPECT_EQ(groups[0]->viewCode, ViewSide::All);
  EXPECT_EQ(groups[1]->viewCode, ViewSide::All);
  EXPECT_EQ(groups[2]->viewCode, ViewSide{5});
  EXPECT_EQ(groups[3]->viewCode, ViewSide{-1});
}

TEST_F(VesselRead, GroupsOfTheSameCodeStayApart)
{
  ASSERT_EQ(Read("<shapes view='01'/><shapes view='01'/>"), 0);
  EXPECT_EQ(groups.size(), 2U);
}

TEST_F(VesselRead, APolylineOutsideAnyGroupYieldsNoShape)
{
  ASSERT_EQ(Read("<polyline><vertex x='1'/></polyline><shapes view='01'/>"), 0);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_TRUE(groups[0]->shapes.empty());
}

TEST_F(VesselRead, AVertexOutsideAnyPolylineIsIgnored)
{
  ASSERT_EQ(Read("<vertex x='1'/><shapes view='01'><vertex x='1'/></shapes>"), 0);
  EXPECT_TRUE(groups.at(0)->shapes.empty());
}

TEST_F(VesselRead, NumbersThatDoNotParseAreZero)
{
  ASSERT_EQ(
      Read("<shapes view='01'><polyline><vertex x='abc' y='1.5m' z=' 2'/></polyline></shapes>"), 0);
  EXPECT_TRUE(*Shape(0, 0).vertices.at(0) == CShapeVertex(0.0, 1.5, 2.0));
}

TEST_F(VesselRead, OffsetsAndUnitAreReadAndTheLastOneWins)
{
  ASSERT_EQ(Read("<gps x='1' y='2' z='3'/><gps x='4'/><txd y='5'/><piv z='6'/><units id='9002'/>"),
            0);
  EXPECT_TRUE(*file.gps == CShapeVertex(4.0, 0.0, 0.0));
  EXPECT_TRUE(*file.txd == CShapeVertex(0.0, 5.0, 0.0));
  EXPECT_TRUE(*file.piv == CShapeVertex(0.0, 0.0, 6.0));
  EXPECT_EQ(file.unitCode, UnitCode{9002});
}

TEST_F(VesselRead, WhatIsAbsentIsZeroAndTheUnitIsTheMetre)
{
  ASSERT_EQ(Read("<something/>"), 0);
  EXPECT_TRUE(*file.gps == CShapeVertex());
  EXPECT_EQ(file.unitCode, UnitCode::Metre);
  EXPECT_TRUE(groups.empty());
}

TEST_F(VesselRead, AnyRootAndAnyUnknownElementWillDo)
{
  file.groups = &groups;
  EXPECT_EQ(file.Read(folder.Write("in.xml", "<other><x><shapes view='02'/></x></other>")), 0);
  EXPECT_EQ(groups.size(), 1U);
}

TEST_F(VesselRead, NamesInOtherCapitalsAreUnknown)
{
  ASSERT_EQ(Read("<Shapes view='02'/><shapes View='04'><polyline><Vertex x='1'/><vertex X='2'/>"
                 "</polyline></shapes><GPS x='3'/><Units id='9002'/><anchor><ID>7</ID></anchor>"),
            0);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0]->viewCode, ViewSide::Top);
  ASSERT_EQ(Shape(0, 0).vertices.size(), 1U);
  EXPECT_EQ(Shape(0, 0).vertices[0]->x, 0.0);
  EXPECT_EQ(file.gps->x, 0.0);
  EXPECT_EQ(file.unitCode, UnitCode::Metre);
  EXPECT_EQ(Anchor(0).id, 0U);
}

TEST_F(VesselRead, AnchorsAreReadWithTheirVesselAndAnywhere)
{
  ASSERT_EQ(Read("<anchor><id>7</id><name>Bow</name><vessel>65537</vessel>"
                 "<attachmentX>1.25</attachmentX><attachmentY>-2</attachmentY></anchor>"
                 "<anchors>\n <anchor>\n  <id>8</id>\n </anchor>\n</anchors>"),
            0);
  ASSERT_EQ(file.anchors->items.size(), 2U);
  EXPECT_EQ(Anchor(0).id, 7U);
  EXPECT_EQ(Anchor(0).name, u"Bow");
  EXPECT_EQ(Anchor(0).vessel, 1);
  EXPECT_EQ(Anchor(0).attachmentX, 1.25);
  EXPECT_EQ(Anchor(0).attachmentY, -2.0);
  EXPECT_TRUE(Anchor(0).visible);
  EXPECT_EQ(Anchor(1).id, 8U);
}

TEST_F(VesselRead, AnIdOfMinusOneWrapsAround)
{
  ASSERT_EQ(Read("<anchor><id>-1</id></anchor>"), 0);
  EXPECT_EQ(Anchor(0).id, 4294967295U);
}

TEST_F(VesselRead, TextBehindACloseTagOverwritesItsField)
{
  ASSERT_EQ(Read("<anchor><id>1</id>5<name>Bow</name>Stern</anchor>"), 0);
  EXPECT_EQ(Anchor(0).id, 5U);
  EXPECT_EQ(Anchor(0).name, u"Stern");
}

TEST_F(VesselRead, EachChunkReplacesTheOneBeforeIt)
{
  file.StartElement("anchor", {});
  file.StartElement("name", {});
  file.Characters("Bow");
  file.Characters("Stern");
  file.EndElement("name");
  file.EndElement("anchor");
  EXPECT_EQ(Anchor(0).name, u"Stern");
}

TEST_F(VesselRead, KeysOfTheStandAloneListAreNotKnown)
{
  ASSERT_EQ(Read("<anchor><id>1</id><visible>0</visible><state>4</state><easting>5</easting>"
                 "</anchor>"),
            0);
  EXPECT_TRUE(Anchor(0).visible);
  EXPECT_EQ(Anchor(0).state, 0);
  EXPECT_EQ(Anchor(0).easting, 0.0);
}

TEST_F(VesselRead, AnAnchorInsideAPolylineLeavesThePolylineOpen)
{
  ASSERT_EQ(Read("<shapes view='01'><polyline><vertex x='1'/><anchor><id>3</id></anchor></polyline>"
                 "<vertex x='2'/><polyline><vertex x='9'/></polyline></shapes>"),
            0);
  // The first polyline's end tag matched no rule, and the second one replaced it.
  ASSERT_EQ(groups.at(0)->shapes.size(), 1U);
  EXPECT_EQ(Shape(0, 0).vertices.at(0)->x, 9.0);
  EXPECT_EQ(file.anchors->items.size(), 1U);
}

TEST_F(VesselRead, AnAnchorBehindAGroupsLastPolylineLosesTheGroup)
{
  ASSERT_EQ(Read("<shapes view='01'><polyline/><anchor/></shapes>"), 0);
  EXPECT_TRUE(groups.empty());
}

TEST_F(VesselRead, WhatWasFinishedBeforeAnErrorStands)
{
  EXPECT_EQ(Read("<shapes view='01'><polyline/></shapes><shapes view='02'><polyline>"), -1);
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0]->viewCode, ViewSide::Top);
}

TEST_F(VesselRead, WithoutATargetTheGroupsAreDropped)
{
  EXPECT_EQ(file.Read(folder.Write("in.xml", "<vessel><shapes view='01'/></vessel>")), 0);
  EXPECT_TRUE(groups.empty());
}

TEST_F(VesselRead, GoesOnWithoutAnythingButTheUnitOrAnOffset)
{
  CFileSaxContentHandler parsed(&file);  // which the parser asks
  for (const char* name : {"vessel", "shapes", "polyline", "vertex", "anchor", "id", "other", ""}) {
    EXPECT_TRUE(parsed.GoOnWithout(name)) << name;
  }
  for (const char* name : {"units", "gps", "txd", "piv"}) {
    EXPECT_FALSE(parsed.GoOnWithout(name)) << name;
  }
  EXPECT_EQ(file.LeftOutParts(), 8U);
}

TEST_F(VesselRead, WhatTheDesignHasNoPlaceForIsPassedOver)
{
  file.gps.reset();
  file.anchors.reset();
  ASSERT_EQ(Read("<gps x='1'/><txd x='2'/><anchor><id>1</id></anchor><piv x='3'/>"), 0);
  EXPECT_EQ(file.txd->x, 2.0);
  EXPECT_EQ(file.piv->x, 3.0);
  EXPECT_EQ(file.gps, nullptr);
  EXPECT_EQ(file.anchors, nullptr);
}

}  // namespace
}  // namespace hullwright
