#include <cmath>

#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;

class Texts : public DxfFixture {
protected:
  /// The label that a text entity of these groups gives.
  const CShapeText& Label(const char* keyword, Pairs pairs)
  {
    ImportEntities(Entity(keyword) + Lines(pairs));
    return At<CShapeText>(0);
  }
};

TEST_F(Texts, ATextHasPlaceHeightAndNames)
{
  const CShapeText& label = Label("TEXT", {{5, "1A"},
                                           {8, "names"},
                                           {62, "1"},
                                           {10, "1"},
                                           {20, "2"},
                                           {30, "3"},
                                           {40, "2.5"},
                                           {1, "Winch"},
                                           {7, "STYLE"},
                                           {41, "0.8"},
                                           {51, "15"},
                                           {72, "4"},
                                           {73, "2"}});
  EXPECT_EQ(label.type, ShapeType::Text);
  EXPECT_EQ(label.text, u"Winch");
  EXPECT_EQ(label.height, 2.5);
  EXPECT_EQ(label.angle, 0.0);
  EXPECT_EQ(label.tag, 0x1A);
  EXPECT_EQ(ColourOf(0), 0xFFU);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 2.0, 3.0)));
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=names", "HANDLE=1A"));
}

TEST_F(Texts, ARotationIsTurnedTheOtherWay)
{
  for (const char* keyword : {"TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    EXPECT_EQ(Label(keyword, {{50, "90"}, {1, "x"}}).angle, 270.0) << keyword;
    EXPECT_EQ(Label(keyword, {{50, "0"}, {21, "1"}}).angle, 360.0) << keyword;
    EXPECT_EQ(Label(keyword, {{50, "400"}, {1, "x"}}).angle, -40.0) << keyword;
  }
}

TEST_F(Texts, OfSeveralRotationsTheLastOneCounts)
{
  EXPECT_EQ(Label("TEXT", {{50, "90"}, {50, "45"}}).angle, 315.0);
}

TEST_F(Texts, ARotationOfNearlyNothingIsOne)
{
  EXPECT_EQ(Label("TEXT", {{50, "359.9999999999999"}, {21, "1"}}).angle, 360.0 - 359.9999999999999);
}

TEST_F(Texts, WithoutARotationTheDirectionCountsAsItIs)
{
  EXPECT_EQ(Label("MTEXT", {{11, "0"}, {21, "1"}}).angle, std::atan2(1.0, 0.0) * 57.29577951308232);
  EXPECT_EQ(Label("TEXT", {{11, "5"}, {21, "5"}}).angle, std::atan2(5.0, 5.0) * 57.29577951308232);
  EXPECT_EQ(Label("TEXT", {{50, "360"}, {11, "0"}, {21, "1"}}).angle,
            std::atan2(1.0, 0.0) * 57.29577951308232);
  EXPECT_EQ(Label("ATTRIB", {{11, "-1"}}).angle, std::atan2(0.0, -1.0) * 57.29577951308232);
  EXPECT_EQ(Label("TEXT", {{1, "x"}}).angle, 0.0);
}

TEST_F(Texts, TheDirectionIsNotExtruded)
{
  for (const char* keyword : {"TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    const CShapeText& label = Label(keyword, {{10, "1"}, {11, "1"}, {21, "1"}, {230, "-1"}});
    EXPECT_EQ(label.angle, std::atan2(1.0, 1.0) * 57.29577951308232) << keyword;
    EXPECT_EQ(label.vertices[0]->x, -1.0) << keyword;
  }
}

TEST_F(Texts, WithoutAHeightHaveNone)
{
  for (const char* keyword : {"TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    EXPECT_EQ(Label(keyword, {{1, "x"}}).height, 0.0) << keyword;
  }
}

TEST_F(Texts, OnlyParagraphTextsHaveChunks)
{
  const Pairs pairs = {{3, "first "}, {3, "second "}, {1, "last"}};
  EXPECT_EQ(Label("MTEXT", pairs).text, u"first second last");
  EXPECT_EQ(Label("TEXT", pairs).text, u"last");
  EXPECT_EQ(Label("ATTDEF", pairs).text, u"last");
  EXPECT_EQ(Label("TEXT", {{1, "a"}, {1, "b"}}).text, u"ab");
  EXPECT_EQ(Label("MTEXT", {{1, "b"}, {3, "a"}, {1, "c"}}).text, u"bac");
}

TEST_F(Texts, AnAttributeIsDroppedByTheLowestBitOfItsFlags)
{
  for (const char* keyword : {"ATTRIB", "ATTDEF"}) {
    for (const auto& [flags, shapes] :
         {std::pair{"1", 0U}, {"2", 1U}, {"4", 1U}, {"8", 1U}, {"9", 0U}, {"0", 1U}}) {
      ImportEntities(Entity(keyword, {{1, "x"}, {70, flags}}));
      EXPECT_EQ(ShapeCount(), shapes) << keyword << flags;
    }
  }
  for (const char* keyword : {"TEXT", "MTEXT"}) {
    ImportEntities(Entity(keyword, {{1, "x"}, {70, "1"}}));
    EXPECT_EQ(ShapeCount(), 1U) << keyword;
  }
}

TEST_F(Texts, TagAndPromptOfADefinitionAreNotRead)
{
  EXPECT_EQ(Label("ATTDEF", {{3, "Number?"}, {2, "NUMBER"}, {1, "7"}}).text, u"7");
}

TEST_F(Texts, OnAHiddenLayerOrInPaperSpaceAreLeftOut)
{
  Import(LayerTable(LayerRecord("off", -1, 0)) +
         Entities(Entity("TEXT", {{8, "off"}}) + Entity("MTEXT", {{67, "1"}}) +
                  Entity("ATTRIB", {{8, "off"}})));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Texts, AreReadAsUtf8WithReplacements)
{
  EXPECT_EQ(Label("TEXT", {{1, "Kr\xC3\xA4n \xF0\x9F\x9A\xA2"}}).text, u"Kr\u00E4n \U0001F6A2");
  EXPECT_EQ(Label("TEXT", {{1, "Kr\xE4n"}}).text, u"Kr\uFFFDn");
  // Each line by itself, so that a character has no parts in two of them.
  EXPECT_EQ(Label("MTEXT", {{3, "\xC3"}, {1, "\xA4"}}).text, u"\uFFFD\uFFFD");
}

TEST_F(Texts, WithoutTextAreEmptyShapes)
{
  ImportEntities(Entity("TEXT", {{8, "A"}}) + Entity("MTEXT", {{1, "\\L"}}));
  EXPECT_EQ(ShapeCount(), 2U);
  EXPECT_TRUE(At<CShapeText>(1).text.empty());
}

TEST_F(Texts, AColourIndexInTheTextColoursTheShape)
{
  EXPECT_EQ(Label("MTEXT", {{62, "3"}, {1, "\\C1;Red"}}).text, u"Red");
  EXPECT_EQ(ColourOf(0), 0x0000FFU);
  EXPECT_EQ(At<CShapeText>(0).style->fillColour, 0x0000FFU);
}

TEST_F(Texts, TheFirstColourIndexCountsAndAllCodesGo)
{
  EXPECT_EQ(Label("TEXT", {{1, "\\C3;a\\C1;b"}}).text, u"ab");
  EXPECT_EQ(ColourOf(0), 0x00FF00U);
}

TEST_F(Texts, ATrueColourCountsLastAndIsTakenToTheNearestIndex)
{
  EXPECT_EQ(Label("TEXT", {{1, "\\c16711680;X\\C1;Y"}}).text, u"XY");
  EXPECT_EQ(ColourOf(0), 0xFF0000U);
  Label("TEXT", {{1, "\\c250;X"}});  // nearly red
  EXPECT_EQ(ColourOf(0), 0x0000FFU);
  Label("TEXT", {{1, "\\c4674016;X"}});  // whose nearest depends on the weights of the channels
  EXPECT_EQ(ColourOf(0), 0x7E7EBDU);
}

TEST_F(Texts, IndexByLayerInATextLooksForTheLayerWithoutAName)
{
  Import(Entities(Entity("LINE", {{62, "3"}}) +
                  Entity("TEXT", {{8, "A"}, {62, "1"}, {1, "\\C256;X"}})));
  EXPECT_EQ(ColourOf(1), 0x00FF00U);
  Label("TEXT", {{8, "A"}, {62, "1"}, {1, "\\C256;X"}});
  EXPECT_EQ(ColourOf(0), 0U);
  Label("TEXT", {{62, "1"}, {1, "\\C99999999999;X"}});
  EXPECT_EQ(ColourOf(0), 0U);
}

TEST_F(Texts, IndexByLayerInATextFindsTheLayerThatTheTextItselfHasMade)
{
  EXPECT_EQ(Label("TEXT", {{62, "3"}, {1, "\\C256;X"}}).text, u"X");
  EXPECT_EQ(ColourOf(0), 0x00FF00U);
}

TEST_F(Texts, IndexByLayerInATextFindsTheNamelessLayerOfAnEarlierOne)
{
  ImportEntities(Entity("TEXT", {{62, "3"}, {1, "first"}}) +
                 Entity("MTEXT", {{8, "A"}, {62, "1"}, {1, "\\C256;X"}}));
  EXPECT_EQ(ColourOf(1), 0x00FF00U);
}

TEST_F(Texts, TheLayerOfATextGetsTheColourOfTheEntityNotOfTheCode)
{
  Label("TEXT", {{8, "A"}, {62, "3"}, {1, "\\C1;X"}});
  EXPECT_EQ(Layers().at("A").colour, ColourIndex{3});
}

}  // namespace
}  // namespace hullwright
