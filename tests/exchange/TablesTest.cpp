#include <gmock/gmock.h>

#include "exchange/CsvExport.h"
#include "exchange/DesignFixture.h"
#include "exchange/GeoJsonExport.h"

namespace hullwright::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr const char* head = "kind,side,number,vertex,name,x,y,z,unit,colour,width\r\n";

class CsvExportTest : public testing::Test, public DesignFixture {};
class GeoJsonExportTest : public testing::Test, public DesignFixture {};

TEST_F(CsvExportTest, ARowAVertexWithAllDigitsAndTheSignOfZero)
{
  CShapePolyline& line =
      AddLine(design, ViewSide::Rear, {{0.1, -0.0, 3.0}, {1.0 / 3.0, 1e-7, 123456789.012345}});
  Style(line, 0x0000FF, 3.5F);
  EXPECT_EQ(MakeCsv(Gather(ViewSide::Rear)),
            std::string(head) +
                "vertex,rear,1,1,,0.1,-0,3,metre,#FF0000,3.5\r\n"
                "vertex,rear,1,2,,0.3333333333333333,1e-07,123456789.012345,metre,#FF0000,3.5\r\n");
}

TEST_F(CsvExportTest, ARowAnOffsetOrAnchor)
{
  AddAnchor(4294967295, u"Bow", 1.5, -2.0);
  EXPECT_EQ(MakeCsv(Gather()), std::string(head) +
                                   "offset,top,,,GNSS antenna,10,0,0,metre,,\r\n"
                                   "offset,top,,,echo sounder,-10,0,0,metre,,\r\n"
                                   "offset,top,,,pivot,0,10,0,metre,,\r\n"
                                   "anchor,top,4294967295,,Bow,1.5,-2,,metre,,\r\n");
}

TEST_F(CsvExportTest, ANameThatCouldBeTakenForSeveralFieldsIsQuoted)
{
  RemoveOffsets();
  for (const char16_t* const name : {u"a,b", u"a\"b", u"a\nb", u"a\rb", u"\u00E4 b"}) {
    AddAnchor(1, name, 0.0, 0.0);
  }
  const std::string csv = MakeCsv(Gather());
  for (const char* const field : {R"("a,b")", R"("a""b")", "\"a\nb\"", "\"a\rb\"", "\u00E4 b"}) {
    EXPECT_THAT(csv, HasSubstr("anchor,top,1,," + std::string(field) + ",0,0,,metre,,\r\n"));
  }
}

TEST_F(GeoJsonExportTest, TheCollectionStatesThatTheseAreNoLongitudes)
{
  RemoveOffsets();
  EXPECT_EQ(MakeGeoJson(Gather()),
            "{\"type\":\"FeatureCollection\",\"note\":\"Vessel coordinates in the unit of length "
            "that is named here, not longitudes and latitudes.\",\"unit\":{\"code\":"
            "9001,\"name\":\"metre\"},\"features\":[]}\n");
}

TEST_F(GeoJsonExportTest, ALineHasItsPropertiesAndAllDigits)
{
  CShapePolyline& line =
      AddLine(design, ViewSide::Front, {{0.1, -0.0, 3.0}, {1.0 / 3.0, 1e-7, 2.0}});
  Style(line, 0x00FF00, 2.0F);
  const std::string json = MakeGeoJson(Gather(ViewSide::Front));
  EXPECT_THAT(json, HasSubstr("{\"type\":\"Feature\",\"properties\":{\"kind\":\"polyline\","
                              "\"side\":\"front\",\"unit\":\"metre\",\"number\":1,\"name\":null,"
                              "\"colour\":\"#00FF00\",\"width\":2.0,\"closed\":false},"
                              "\"geometry\":{\"type\":\"LineString\",\"coordinates\":"
                              "[[0.1,-0.0,3.0],[0.3333333333333333,1e-07,2.0]]}}]}\n"));
}

TEST_F(GeoJsonExportTest, AClosedLineKeepsItsLastVertex)
{
  AddLine(design, ViewSide::Front, {{0, 0, 0}, {1, 0, 0}, {0, 0, 0}});
  const std::string json = MakeGeoJson(Gather(ViewSide::Front));
  EXPECT_THAT(json, HasSubstr("\"closed\":true"));
  EXPECT_THAT(json, HasSubstr("[[0.0,0.0,0.0],[1.0,0.0,0.0],[0.0,0.0,0.0]]"));
}

TEST_F(GeoJsonExportTest, OffsetsHaveThreeCoordinatesAndAnchorsTwo)
{
  AddAnchor(2, u"\"B\"\n\u00E4", 1.5, -2.0);
  const std::string json = MakeGeoJson(Gather());
  EXPECT_THAT(json, HasSubstr("\"kind\":\"offset\",\"side\":\"top\",\"unit\":\"metre\","
                              "\"number\":null,\"name\":\"pivot\",\"colour\":null,\"width\":null},"
                              "\"geometry\":{\"type\":\"Point\",\"coordinates\":[0.0,10.0,0.0]}"));
  EXPECT_THAT(json, HasSubstr("\"number\":2,\"name\":\"\\\"B\\\"\\u000A\u00E4\""));
  EXPECT_THAT(json, EndsWith("\"coordinates\":[1.5,-2.0]}}]}\n"));
}

}  // namespace
}  // namespace hullwright::test
