#include "support/DxfPolylines.h"

namespace hullwright {
namespace {

using namespace test;

/// Drawings without a table of layers: their entities make the layers.
class ImplicitLayers : public DxfFixture {
protected:
  /// One entity of groups that each kind can have.
  static std::string WithRecords(const std::string& keyword, const std::string& groups)
  {
    const bool hasRecords = keyword == "POLYLINE";
    return Entity(keyword) + groups + (hasRecords ? triangle + seqEnd : "");
  }
};

TEST_F(ImplicitLayers, EveryKindOfEntityMakesItsLayer)
{
  for (const char* keyword : {"LINE", "POINT", "ARC", "CIRCLE", "ELLIPSE", "SOLID", "3DFACE",
                              "POLYLINE", "LWPOLYLINE", "TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    ImportEntities(WithRecords(keyword, Lines({{5, "2F"}, {8, "A"}, {62, "3"}})) +
                   WithRecords("LINE", Lines({{8, "A"}})));
    ASSERT_EQ(Layers().size(), 1U) << keyword;
    EXPECT_EQ(Layers().at("A").colour, ColourIndex{3}) << keyword;
    EXPECT_EQ(Layers().at("A").name, "A") << keyword;
    EXPECT_EQ(ColourOf(0), 0x00FF00U) << keyword;
    EXPECT_EQ(ColourOf(1), 0x00FF00U) << keyword;
    EXPECT_EQ(At<CShape>(0).tag, 0x2F) << keyword;
  }
}

TEST_F(ImplicitLayers, EveryKindOfEntityThatIsByLayerLooksForItsLayerBeforeItMakesIt)
{
  for (const char* keyword : {"LINE", "POINT", "ARC", "SOLID", "3DFACE", "POLYLINE", "LWPOLYLINE",
                              "TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    ImportEntities(WithRecords(keyword, Lines({{8, "A"}})));
    EXPECT_EQ(Layers().at("A").colour, ColourIndex::ByLayer) << keyword;
    EXPECT_EQ(ColourOf(0), 0U) << keyword;
  }
}

TEST_F(ImplicitLayers, AnEntityThatIsLeftOutMakesNone)
{
  for (const char* keyword : {"LINE", "POINT", "ARC", "CIRCLE", "ELLIPSE", "SOLID", "3DFACE",
                              "TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    ImportEntities(WithRecords(keyword, Lines({{8, "A"}, {62, "3"}, {67, "1"}})));
    EXPECT_EQ(ShapeCount(), 0U) << keyword;
    EXPECT_TRUE(Layers().empty()) << keyword;
  }
  for (const char* keyword : {"ATTRIB", "ATTDEF"}) {
    ImportEntities(WithRecords(keyword, Lines({{8, "A"}, {62, "3"}, {70, "1"}})));
    EXPECT_TRUE(Layers().empty()) << keyword;
  }
}

TEST_F(ImplicitLayers, WhatMakesNoShapeMakesNone)
{
  for (const char* keyword : {"SPLINE", "HATCH", "VIEWPORT", "DIMENSION", "VERTEX", "SEQEND"}) {
    ImportEntities(WithRecords(keyword, Lines({{8, "A"}, {62, "3"}})));
    EXPECT_TRUE(Layers().empty()) << keyword;
  }
}

}  // namespace
}  // namespace hullwright
