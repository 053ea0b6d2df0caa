#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <new>

#include "base/Text.h"
#include "file/FileSax.h"
#include "file/SaxHandlers.h"
#include "headless/KeptMessages.h"
#include "support/System.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

/// Writes every callback down.
class Listener : public CFileSax {
public:
  using CFileSax::CFileSax;

  void StartElement(std::string_view name, SaxAttributes attributes) override
  {
    std::string line = "<" + std::string(name);
    for (const auto& [key, value] : attributes) {
      line += " " + std::string(key) + "=" + std::string(value);
    }
    events.push_back(line);
  }
  void EndElement(std::string_view name) override { events.push_back(">" + std::string(name)); }
  void Characters(std::string_view text) override
  {
    events.push_back("'" + std::string(text) + "'");
  }
  void Error(std::u16string_view message, int line, int column, int code) override
  {
    errorCode = code;
    error = Utf8FromWide(message);
    errorLine = line;
    errorColumn = column;
  }

  void PassOver(std::string_view markup) override { passedOver.emplace_back(markup); }

  std::vector<std::string> events;
  std::vector<std::string> passedOver;
  std::string error;
  int errorLine = -1;
  int errorColumn = -1;
  int errorCode = -1;
};

/// Has no memory for any element.
class OutOfMemory : public CFileSax {
public:
  using CFileSax::CFileSax;
  void StartElement(std::string_view, SaxAttributes) override { throw std::bad_alloc(); }
};

class SaxInput : public testing::Test {
protected:
  int Read(std::string_view xml) { return listener.Read(folder.Write("in.xml", xml)); }

  KeptMessages messages;
  test::TempFolder folder;
  Listener listener{messages};
};

TEST_F(SaxInput, DeliversElementsAttributesAndText)
{
  EXPECT_EQ(Read("<a y='2' x='1'><b>text</b></a>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a y=2 x=1", "<b", "'text'", ">b", ">a"));
}

TEST_F(SaxInput, NamesLoseTheirPrefix)
{
  EXPECT_EQ(Read("<a:vertex xmlns:a='urn:a' a:x='1' y='2'/>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<vertex x=1 y=2", ">vertex"));
}

TEST_F(SaxInput, AnUnboundPrefixIsNotWellFormed) { EXPECT_EQ(Read("<a:vertex/>"), -1); }

TEST_F(SaxInput, AttributesWithTheSameLocalNameComeInTheOrderOfTheFile)
{
  EXPECT_EQ(Read("<v xmlns:a='urn:a' x='1' a:x='2'/>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<v x=1 x=2", ">v"));
  listener.events.clear();
  EXPECT_EQ(Read("<v xmlns:a='urn:a' a:x='2' x='1'/>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<v x=2 x=1", ">v"));
}

TEST_F(SaxInput, TextIsNotCutAtReferencesOrPiecesOfTheFile)
{
  const std::string filler(0x10000 - 20, ' ');
  EXPECT_EQ(Read("<a>" + filler + "<b>A&amp;B &#xE4; end of a long name</b></a>"), 0);
  EXPECT_THAT(listener.events,
              ElementsAre("<a", "<b", "'A&B \xC3\xA4 end of a long name'", ">b", ">a"));
}

TEST_F(SaxInput, ALineBreakInsideAValueLosesWhatFollows)
{
  EXPECT_EQ(Read("<a>first\nsecond\r\nthird</a>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a", "'first'", ">a"));
}

TEST_F(SaxInput, ALineBreakWrittenAsAReferenceBelongsToItsText)
{
  EXPECT_EQ(Read("<a>first&#xA;second&#13;third</a>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a", "'first\nsecond\rthird'", ">a"));
}

TEST_F(SaxInput, ALongTokenTakesLinearTime)
{
  // Scanned again at each piece of a fixed size, this would take a minute.
  const std::string value(40'000'000, 'x');
  EXPECT_EQ(Read("<a v='" + value + "'/>"), 0);
  EXPECT_EQ(listener.events.at(0).size(), value.size() + 5);
}

TEST_F(SaxInput, APipeThatNobodyWritesToDoesNotHang)
{
  ASSERT_TRUE(test::MakePipe(folder.Path() / "pipe"));
  EXPECT_EQ(listener.Read(folder.File("pipe")), -1);
  EXPECT_EQ(listener.Read(u"/dev/zero"), -1);
}

TEST_F(SaxInput, CommentsAndInstructionsCutText)
{
  EXPECT_EQ(Read("<a>1<!-- c -->2<?p q?>3<![CDATA[<4>]]></a>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a", "'1'", "'2'", "'3<4>'", ">a"));
}

TEST_F(SaxInput, AnErrorIsReportedWithItsPlaceAndEndsTheReading)
{
  EXPECT_EQ(Read("<a>\n <b>\n</a>"), -1);
  EXPECT_THAT(listener.events, ElementsAre("<a", "<b"));
  EXPECT_EQ(listener.error, "mismatched tag");
  EXPECT_EQ(listener.errorLine, 3);
  EXPECT_EQ(listener.errorColumn, 3);
  EXPECT_EQ(listener.errorCode, 7);  // the parser's own number of a mismatched tag
}

TEST_F(SaxInput, MemoryThatEndsInACallbackEndsTheReadingAndIsNoFaultOfTheText)
{
  OutOfMemory file(messages);
  EXPECT_EQ(file.Read(folder.Write("in.xml", "<a/>")), -1);
  EXPECT_TRUE(file.LastReadError().outOfMemory);
  EXPECT_EQ(file.LastReadError().message, u"out of memory");
  EXPECT_EQ(file.LastReadError().line, 0);
}

TEST_F(SaxInput, ADocumentTypeIsRefused)
{
  EXPECT_EQ(Read("<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"), -1);
  EXPECT_EQ(Read("<!DOCTYPE a SYSTEM '/etc/passwd'><a/>"), -1);
  EXPECT_EQ(listener.error, "a document type is declared");
  EXPECT_THAT(listener.events, ElementsAre());
}

TEST_F(SaxInput, AnUndeclaredEntityIsNotWellFormed) { EXPECT_EQ(Read("<a>&e;</a>"), -1); }

TEST_F(SaxInput, AReferenceToASurrogateIsNotWellFormed)
{
  EXPECT_EQ(Read("<a>&#xD83D;&#xDE00;</a>"), -1);
}

TEST_F(SaxInput, WhatIsNoFileOrNoXmlFails)
{
  EXPECT_EQ(Read(""), -1);
  EXPECT_EQ(Read("0\nSECTION\n"), -1);
  EXPECT_EQ(listener.Read(folder.File("missing.xml")), -1);
  EXPECT_EQ(listener.Read(folder.File("")), -1);
}

TEST_F(SaxInput, OtherEncodingsAreRead)
{
  EXPECT_EQ(Read("<?xml version='1.0' encoding='windows-1252'?><a b='\x80\xE4'/>"), 0);
  EXPECT_EQ(Read(std::string("\xFE\xFF\0<\0a\0/\0>", 10)), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a b=\xE2\x82\xAC\xC3\xA4", ">a", "<a", ">a"));
  EXPECT_EQ(Read("<?xml version='1.0' encoding='x-none'?><a/>"), -1);
}

TEST_F(SaxInput, DeepNestingIsRead)
{
  constexpr int depth = 100000;
  std::string xml;
  for (int i = 0; i < depth; ++i) xml += "<a>";
  for (int i = 0; i < depth; ++i) xml += "</a>";
  EXPECT_EQ(Read(xml), 0);
  EXPECT_EQ(listener.events.size(), 2U * depth);
}

TEST_F(SaxInput, ReportsWhatItPassesOver)
{
  EXPECT_EQ(Read("<?xml version='1.0'?><!-- log --><a>\nlost<?mark at=1?></a>"), 0);
  EXPECT_THAT(listener.events, ElementsAre("<a", ">a"));
  EXPECT_THAT(listener.passedOver, ElementsAre("<!-- log -->", "\nlost", "<?mark at=1?>"));
}

class ContentHandler : public SaxInput {
protected:
  CFileSaxContentHandler handler{&listener};
};

TEST_F(ContentHandler, DropsChunksOfBlanksButNotOfTabs)
{
  handler.Characters("   ");
  handler.Characters("");
  handler.Characters("\t");
  handler.Characters("\t ");
  EXPECT_THAT(listener.events, ElementsAre("'\t'", "'\t '"));
}

TEST_F(ContentHandler, DropsChunksThatStartWithALineBreakWhateverFollows)
{
  handler.Characters("\nBow");
  handler.Characters("\rBow");
  handler.Characters(" \nBow");
  EXPECT_THAT(listener.events, ElementsAre("' \nBow'"));
}

TEST_F(ContentHandler, WithoutAnOwnerNothingHappens)
{
  CFileSaxContentHandler orphan(nullptr);
  orphan.StartElement("a", {});
  orphan.Characters("text");
  orphan.PassOver("<!-- -->");
  orphan.EndElement("a");
  CFileSaxErrorHandler(nullptr).Error(u"", 0, 0, 0);
  EXPECT_TRUE(listener.events.empty());
}

TEST(AttributeValue, OfAMissingAttributeIsEmpty)
{
  const std::array<SaxAttribute, 1> attributes = {{{"x", "1"}}};
  EXPECT_EQ(AttributeValue(attributes, "x"), "1");
  EXPECT_EQ(AttributeValue(attributes, "y"), "");
}

TEST(AttributeValue, OfSeveralWithOneNameIsTheLast)
{
  const std::array<SaxAttribute, 3> attributes = {{{"x", "1"}, {"x", "2"}, {"y", "3"}}};
  EXPECT_EQ(AttributeValue(attributes, "x"), "2");
}

}  // namespace
}  // namespace hullwright
