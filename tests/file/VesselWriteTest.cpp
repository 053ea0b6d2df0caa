#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "base/Numbers.h"
#include "base/Text.h"
#include "file/FileVessel.h"
#include "headless/KeptMessages.h"
#include "model/ShapePoint.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

constexpr const char* head = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<vessel>\n";
constexpr const char* tail =
    " <gps x=\"10.000\" y=\"0.000\" z=\"0.000\" />\n"
    " <txd x=\"-10.000\" y=\"0.000\" z=\"0.000\" />\n"
    " <piv x=\"0.000\" y=\"10.000\" z=\"0.000\" />\n";

class VesselWrite : public testing::Test {
protected:
  VesselWrite()
  {
    *file.gps = CShapeVertex(10.0, 0.0, 0.0);
    *file.txd = CShapeVertex(-10.0, 0.0, 0.0);
    *file.piv = CShapeVertex(0.0, 10.0, 0.0);
  }

  std::string Save()
  {
    EXPECT_EQ(file.Save(folder.File("out.xml"), groups), 0);
    return folder.Read("out.xml");
  }

  CShapePolyline& AddLine(ViewSide code)
  {
    groups.push_back(std::make_unique<CShapes>(code));
    groups.back()->shapes.push_back(std::make_unique<CShapePolyline>());
    return static_cast<CShapePolyline&>(*groups.back()->shapes.back());
  }

  KeptMessages messages;
  test::TempFolder folder;
  CFileVessel file{messages};
  OwnedArray<CShapes> groups;
};

TEST_F(VesselWrite, TheExampleIsWrittenByteForByte)
{
  CShapePolyline& line = AddLine(ViewSide::Top);
  line.AddVertex(0.0, 0.0, 0.0);
  line.AddVertex(12.5, 0.0, 0.0);
  auto anchor = file.anchors->NewAnchor();
  anchor->name = u"Bow";
  anchor->attachmentX = 1.0;
  anchor->attachmentY = 2.0;
  file.anchors->items.push_back(std::move(anchor));
  EXPECT_EQ(Save(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
            "<vessel>\n"
            " <units id=\"9001\" />\n"
            " <shapes view=\"01\" >\n"
            "  <polyline>\n"
            "   <vertex x=\"0.000\" y=\"0.000\" z=\"0.000\" />\n"
            "   <vertex x=\"12.500\" y=\"0.000\" z=\"0.000\" />\n"
            "  </polyline>\n"
            " </shapes>\n"
            " <gps x=\"10.000\" y=\"0.000\" z=\"0.000\" />\n"
            " <txd x=\"-10.000\" y=\"0.000\" z=\"0.000\" />\n"
            " <piv x=\"0.000\" y=\"10.000\" z=\"0.000\" />\n"
            " <anchors>\n"
            "  <anchor>\n"
            "   <id>1</id>\n"
            "   <name>Bow</name>\n"
            "   <attachmentX>1.000</attachmentX>\n"
            "   <attachmentY>2.000</attachmentY>\n"
            "  </anchor>\n"
            " </anchors>\n"
            "</vessel>\n");
}

TEST_F(VesselWrite, ADesignWithoutGroupsAndAnchorsHasItsOffsetsOnly)
{
  EXPECT_EQ(Save(), std::string(head) + " <units id=\"9001\" />\n" + tail +
                        " <anchors>\n </anchors>\n</vessel>\n");
}

TEST_F(VesselWrite, AUnitOfZeroIsLeftOutAndANegativeOneIsWritten)
{
  file.unitCode = UnitCode{0};
  EXPECT_EQ(Save(), std::string(head) + tail + " <anchors>\n </anchors>\n</vessel>\n");
  file.unitCode = UnitCode{-5};
  EXPECT_NE(Save().find("<units id=\"-5\" />"), std::string::npos);
}

TEST_F(VesselWrite, ViewCodesAreUpperCaseHexadecimalOfAtLeastTwoDigits)
{
  for (const int code : {8, 16, 63, 0, 300, -1}) {
    groups.push_back(std::make_unique<CShapes>(ViewSide{code}));
  }
  const std::string text = Save();
  for (const char* view : {"08", "10", "3F", "00", "12C", "FFFFFFFF"}) {
    const std::string element = std::string(" <shapes view=\"") + view + "\" >\n </shapes>\n";
    EXPECT_NE(text.find(element), std::string::npos) << view;
  }
}

TEST_F(VesselWrite, OnlyPolylinesAreSaved)
{
  groups.push_back(std::make_unique<CShapes>(ViewSide::Top));
  groups.back()->shapes.push_back(std::make_unique<CShapePoint>());
  EXPECT_NE(Save().find(" <shapes view=\"01\" >\n </shapes>\n"), std::string::npos);
}

TEST_F(VesselWrite, APolylineWithoutVerticesIsSaved)
{
  AddLine(ViewSide::Bottom);
  EXPECT_NE(Save().find("  <polyline>\n  </polyline>\n"), std::string::npos);
}

TEST_F(VesselWrite, CoordinatesHaveThreeDecimalsAndZeroKeepsItsSign)
{
  AddLine(ViewSide::Top).AddVertex(-0.0004, 1.0005, 1234567.8915);
  EXPECT_NE(Save().find("<vertex x=\"-0.000\" y=\"1.000\" z=\"1234567.891\" />"),
            std::string::npos);
}

TEST_F(VesselWrite, PlacesOfAnchorsAreRoundedAsVerticesAre)
{
  auto anchor = file.anchors->NewAnchor();
  anchor->attachmentX = 0.0625;
  anchor->attachmentY = -0.0004;
  file.anchors->items.push_back(std::move(anchor));
  EXPECT_NE(Save().find("   <attachmentX>0.062</attachmentX>\n"
                        "   <attachmentY>-0.000</attachmentY>\n"),
            std::string::npos);
}

TEST_F(VesselWrite, ANullGroupEndsTheGroups)
{
  AddLine(ViewSide::Top);
  groups.push_back(nullptr);
  AddLine(ViewSide::Bottom);
  const std::string text = Save();
  EXPECT_NE(text.find("view=\"01\""), std::string::npos);
  EXPECT_EQ(text.find("view=\"02\""), std::string::npos);
}

TEST_F(VesselWrite, ANullShapeEndsItsGroupWithTheGroupsCursor)
{
  AddLine(ViewSide::Top).AddVertex(1.0, 0.0, 0.0);
  groups[0]->shapes.push_back(nullptr);
  groups[0]->shapes.push_back(std::make_unique<CShapePolyline>());
  AddLine(ViewSide::Bottom).AddVertex(2.0, 0.0, 0.0);
  const std::string text = Save();
  EXPECT_NE(text.find(" <shapes view=\"01\" >\n  <polyline>\n   <vertex x=\"1.000\" y=\"0.000\" "
                      "z=\"0.000\" />\n  </polyline>\n </shapes>\n <shapes view=\"02\" >\n"),
            std::string::npos);
  EXPECT_NE(text.find("x=\"2.000\""), std::string::npos);
  EXPECT_EQ(groups[0]->cursor, 2U);
}

TEST_F(VesselWrite, ANullVertexEndsItsPolylineWithThePolylinesCursor)
{
  CShapePolyline& line = AddLine(ViewSide::Top);
  line.AddVertex(1.0, 0.0, 0.0);
  line.vertices.push_back(nullptr);
  line.AddVertex(2.0, 0.0, 0.0);
  groups[0]->shapes.push_back(std::make_unique<CShapePolyline>());
  EXPECT_NE(Save().find("  <polyline>\n   <vertex x=\"1.000\" y=\"0.000\" z=\"0.000\" />\n"
                        "  </polyline>\n  <polyline>\n  </polyline>\n </shapes>\n"),
            std::string::npos);
  EXPECT_EQ(line.cursor, 2U);
}

TEST_F(VesselWrite, ANullAnchorEndsTheAnchorsWithTheListsCursor)
{
  file.anchors->items.push_back(file.anchors->NewAnchor());
  file.anchors->items.push_back(nullptr);
  file.anchors->items.push_back(file.anchors->NewAnchor());
  const std::string text = Save();
  EXPECT_NE(text.find("<id>1</id>"), std::string::npos);
  EXPECT_EQ(text.find("<id>2</id>"), std::string::npos);
  EXPECT_EQ(file.anchors->cursor, 2U);
}

TEST_F(VesselWrite, WholeWalksLeaveTheirCursorsBehindTheEnd)
{
  AddLine(ViewSide::Top).AddVertex(1.0, 0.0, 0.0);
  file.anchors->items.push_back(file.anchors->NewAnchor());
  Save();
  EXPECT_EQ(groups[0]->cursor, 2U);
  EXPECT_EQ(groups[0]->shapes[0]->cursor, 2U);
  EXPECT_EQ(file.anchors->cursor, 2U);
}

TEST_F(VesselWrite, APolylineThatWasResetIsNotSaved)
{
  CShapePolyline& line = AddLine(ViewSide::Top);
  line.Reset();
  line.AddVertex(1.0, 0.0, 0.0);
  EXPECT_NE(Save().find(" <shapes view=\"01\" >\n </shapes>\n"), std::string::npos);
}

TEST_F(VesselWrite, ANullOffsetIsLeftOut)
{
  file.txd.reset();
  file.anchors.reset();
  const std::string text = Save();
  EXPECT_EQ(text.find("txd"), std::string::npos);
  EXPECT_EQ(text.find("anchors"), std::string::npos);
}

TEST_F(VesselWrite, NamesAreEscaped)
{
  auto anchor = file.anchors->NewAnchor();
  anchor->name = u"A&B \u00FC\U0001F600";
  file.anchors->items.push_back(std::move(anchor));
  EXPECT_NE(Save().find("<name>A&amp;B &#xFC;&#xD83D;&#xDE00;</name>"), std::string::npos);
}

TEST_F(VesselWrite, EachSaveBeginsWithAnEmptyBlock)
{
  const std::string first = Save();
  EXPECT_EQ(Save(), first);
}

TEST_F(VesselWrite, VerticesMakeTheRoomOfTheirAttributes)
{
  CShapePolyline& line = AddLine(ViewSide::Top);
  for (int i = 0; i < 3000; ++i) line.AddVertex(i, -i, 0.5);
  Save();
  CFileSax other(messages);
  other.WriteDeclaration();
  other.OpenElement("vessel");
  other.WriteEmptyElement("units", {{u"id", u"9001"}});
  other.OpenElement("shapes", {{u"view", u"01"}});
  other.OpenElement("polyline");
  for (const auto& vertex : line.vertices) {
    other.WriteEmptyElement("vertex", {{u"x", WideFromAscii(FormatFixed(vertex->x, 3))},
                                       {u"y", WideFromAscii(FormatFixed(vertex->y, 3))},
                                       {u"z", WideFromAscii(FormatFixed(vertex->z, 3))}});
  }
  EXPECT_EQ(file.outCapacity, other.outCapacity);
  EXPECT_GT(file.outCapacity, 100'000U);
}

/// Lines that surely fit go straight into the block, others by way of a copy.
TEST_F(VesselWrite, TheBlockGrowsAsForAnyElement)
{
  constexpr double huge = std::numeric_limits<double>::max();
  constexpr double infinite = std::numeric_limits<double>::infinity();
  constexpr std::array<double, 7> odd = {0.0,
                                         -0.0004,
                                         1234567.8905,
                                         9.5e15,
                                         -huge,
                                         -infinite,
                                         std::numeric_limits<double>::quiet_NaN()};
  CShapePolyline& line = AddLine(ViewSide::Top);
  for (std::size_t i = 0; i < 2000; ++i) {
    line.AddVertex(odd.at(i % 7), odd.at(i / 3 % 5), i % 50 == 0 ? huge : odd.at(i / 5 % 3));
  }
  file.Compose(groups);
  CFileSax plain{messages};
  plain.WriteDeclaration();
  plain.OpenElement("vessel");
  plain.WriteEmptyElement("units", {{u"id", u"9001"}});
  plain.OpenElement("shapes", {{u"view", u"01"}});
  plain.OpenElement("polyline");
  const auto text = [](double number) { return WideFromAscii(FormatFixed(number, 3)); };
  const auto write = [&](std::string_view name, const CShapeVertex& v) {
    plain.WriteEmptyElement(name, {{u"x", text(v.x)}, {u"y", text(v.y)}, {u"z", text(v.z)}});
  };
  for (const auto& vertex : line.vertices) write("vertex", *vertex);
  plain.CloseElement("polyline");
  plain.CloseElement("shapes");
  write("gps", *file.gps);
  write("txd", *file.txd);
  write("piv", *file.piv);
  plain.OpenElement("anchors");
  plain.CloseElement("anchors");
  plain.CloseElement("vessel");
  EXPECT_EQ(file.Output(), plain.Output());
  EXPECT_EQ(file.outCapacity, plain.outCapacity);
}

}  // namespace
}  // namespace hullwright
