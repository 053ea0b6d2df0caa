#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

#include "file/FileSax.h"
#include "headless/KeptMessages.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

/// A file whose memory can run out.
class StingyFile : public CFileSax {
public:
  using CFileSax::CFileSax;
  int failures = 0;                 ///< how many resizes from now on fail
  std::vector<std::size_t> wanted;  ///< the size of each resize

  bool CanHave(std::size_t size)
  {
    // A block of before, so that a leak checker sees whether a refusal gives it back.
    void* const block = CFileSax::Reallocate(std::malloc(1), size);
    std::free(block);
    return block != nullptr;
  }

protected:
  void* Reallocate(void* block, std::size_t size) override
  {
    wanted.push_back(size);
    if (failures == 0) return CFileSax::Reallocate(block, size);
    --failures;
    std::free(block);
    return nullptr;
  }
};

class XmlOutput : public testing::Test {
protected:
  KeptMessages messages;
  StingyFile file{messages};
  test::TempFolder folder;
};

TEST_F(XmlOutput, TheDeclarationHasABlankBeforeItsEnd)
{
  file.WriteDeclaration();
  EXPECT_EQ(file.Output(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n");
}

TEST_F(XmlOutput, NestingIndentsByOneBlankALevel)
{
  file.OpenElement("vessel");
  file.OpenElement("anchors");
  file.WriteTextElement("id", u"1");
  file.CloseElement("anchors");
  file.CloseElement("vessel");
  EXPECT_EQ(file.Output(), "<vessel>\n <anchors>\n  <id>1</id>\n </anchors>\n</vessel>\n");
  EXPECT_EQ(file.indent, 0);
}

TEST_F(XmlOutput, AttributesOfAnOpenTagStandInDescendingOrder)
{
  file.OpenElement("shapes", {{u"a", u"1"}, {u"b", u"2"}});
  EXPECT_EQ(file.Output(), "<shapes b=\"2\" a=\"1\" >\n");
  EXPECT_EQ(file.indent, 1);
}

TEST_F(XmlOutput, AttributesOfAnEmptyElementStandInAscendingOrder)
{
  file.WriteEmptyElement("vertex", {{u"z", u"3"}, {u"x", u"1"}, {u"y", u"2"}});
  EXPECT_EQ(file.Output(), "<vertex x=\"1\" y=\"2\" z=\"3\" />\n");
}

TEST_F(XmlOutput, AnElementWithABodyIsClosedBehindIt)
{
  file.WriteEmptyElement("note", {{u"id", u"1"}}, u"a<b");
  EXPECT_EQ(file.Output(), "<note id=\"1\" >a&lt;b</note>\n");
}

TEST_F(XmlOutput, AnEmptyNameGivesTheTwoTags)
{
  file.WriteTextElement("name", u"");
  EXPECT_EQ(file.Output(), "<name></name>\n");
}

TEST_F(XmlOutput, ValuesOfAttributesAreEscaped)
{
  file.WriteEmptyElement("e", {{u"v", u"a<b"}});
  EXPECT_EQ(file.Output(), "<e v=\"a&lt;b\" />\n");
}

TEST(Escape, ReplacesMarkupAndEverythingThatIsNotPlainAscii)
{
  EXPECT_EQ(Escape(u"\"&'<>"), "&quot;&amp;&apos;&lt;&gt;");
  EXPECT_EQ(Escape(u"\t\n\r"), "&#x9;&#xA;&#xD;");
  EXPECT_EQ(Escape(u" ~\x7F"), " ~\x7F");
  EXPECT_EQ(Escape(u"\u0080\u00E4\u20AC"), "&#x80;&#xE4;&#x20AC;");
  EXPECT_EQ(Escape(u"\U0001F600"), "&#xD83D;&#xDE00;");
  EXPECT_EQ(Escape(std::u16string(1, u'\0')), "&#x0;");
}

TEST_F(XmlOutput, TheFirstPrimitiveAllocatesTheBlock)
{
  file.WriteDeclaration();
  EXPECT_EQ(file.outCapacity, 0x8200U);
  StingyFile other(messages);
  other.CloseElement("a");
  EXPECT_EQ(other.outCapacity, 0x8100U);
  EXPECT_EQ(other.indent, -1);
  EXPECT_EQ(other.Output(), "</a>\n");
}

TEST_F(XmlOutput, TheBlockGrowsWhenTheMarginReachesItsEnd)
{
  file.WriteDeclaration();
  while (file.outLength + 0x100 + 1 < 0x8200U) file.WriteTextElement("e", u"0");
  const std::uint32_t length = file.outLength;
  EXPECT_EQ(file.outCapacity, 0x8200U);
  file.WriteTextElement("e", u"0");
  EXPECT_EQ(file.outCapacity, length + 0x101 + 0x8000);
}

TEST_F(XmlOutput, TheBlockIsResizedFewTimesWhileItsCapacityGrowsByTheStep)
{
  constexpr std::uint32_t enough = 4'000'000;
  constexpr std::uint32_t margin = 0x101;
  while (file.outLength < enough) {
    const std::uint32_t before = file.outLength;
    const std::uint32_t capacity = file.outCapacity;
    file.WriteTextElement("e", u"0");
    const bool grows = before + margin >= capacity;
    ASSERT_EQ(file.outCapacity, grows ? before + margin + 0x8000 : capacity) << before;
  }
  EXPECT_LT(file.wanted.size(), 20U);
  EXPECT_GE(file.wanted.back(), file.outCapacity);
}

TEST_F(XmlOutput, ANameOf600CharactersIsWrittenInOnePiece)
{
  const std::u16string name(600, u'\u00E4');
  file.WriteTextElement("name", name);
  EXPECT_EQ(file.outLength, 600U * 6U + 14U);
  EXPECT_EQ(file.outCapacity, 0x100U + 3600U + 0x8000U);
}

TEST_F(XmlOutput, DeepNestingStaysInItsBlock)
{
  for (int level = 0; level < 3000; ++level) file.OpenElement("e");
  for (int level = 0; level < 3000; ++level) file.CloseElement("e");
  EXPECT_EQ(file.indent, 0);
  EXPECT_EQ(file.Output().size(), 3000U * (4 + 5) + 2999U * 3000U);
}

TEST_F(XmlOutput, WithoutMemoryNothingIsWrittenAndTheIndentationStays)
{
  file.failures = 2;
  file.OpenElement("a");
  file.WriteTextElement("b", u"1");
  EXPECT_EQ(file.indent, 0);
  EXPECT_EQ(file.outLength, 0U);
  file.OpenElement("c");
  EXPECT_EQ(file.Output(), "<c>\n");
}

TEST_F(XmlOutput, WithoutMemoryForTheMarginTheIndentationStays)
{
  file.indent = 2;
  file.failures = 3;
  file.OpenElement("a");
  EXPECT_EQ(file.indent, 2);
  file.OpenElement("a", {{u"b", u"1"}});
  EXPECT_EQ(file.indent, 2);
  file.CloseElement("a");
  EXPECT_EQ(file.indent, 2);
  EXPECT_EQ(file.outLength, 0U);
  EXPECT_EQ(file.failures, 0);
}

TEST_F(XmlOutput, WithoutMemoryForItsBlanksTheIndentationStays)
{
  const auto failsAtDepth = [this](auto write) {
    file.ResetOutput();
    file.WriteDeclaration();
    const std::uint32_t before = file.outLength;
    constexpr std::int32_t deeperThanTheBlock = 0x9000;
    file.indent = deeperThanTheBlock;
    file.failures = 1;
    write();
    EXPECT_EQ(file.failures, 0);
    EXPECT_EQ(file.outLength, before);
    EXPECT_EQ(file.indent, deeperThanTheBlock);
  };
  failsAtDepth([this] { file.OpenElement("a"); });
  failsAtDepth([this] { file.OpenElement("a", {{u"b", u"1"}}); });
  failsAtDepth([this] { file.CloseElement("a"); });
}

TEST_F(XmlOutput, ASumPastItsLimitAsksForTheLargestSizeAndFails)
{
  constexpr std::uint32_t largestSum = 0xFFFF7FFF;
  constexpr std::uint32_t margin = 0x200;
  file.failures = 2;  // four gigabytes are not needed to see what is asked for
  file.outLength = largestSum - margin;
  file.OpenElement("a");
  file.outLength = largestSum - margin + 1;
  file.OpenElement("a");
  EXPECT_THAT(file.wanted,
              testing::ElementsAre(0xFFFFFFFFU, std::numeric_limits<std::size_t>::max()));
  EXPECT_EQ(file.indent, 0);
  EXPECT_EQ(file.outLength, largestSum - margin + 1);
  EXPECT_FALSE(file.CanHave(file.wanted.back()));
  EXPECT_EQ(file.outCapacity, 0U);
  EXPECT_EQ(file.Output(), "");
}

TEST_F(XmlOutput, ABlockThatWasLostGoesOnAtItsOffset)
{
  file.OpenElement("vessel");
  const std::uint32_t before = file.outLength;
  file.failures = 1;
  file.WriteTextElement("name", std::u16string(0x9000, u'x'));
  EXPECT_EQ(file.outLength, before);
  EXPECT_EQ(file.Output(), "");
  file.CloseElement("vessel");
  EXPECT_EQ(file.Output(), std::string(before, '\0') + "</vessel>\n");
}

TEST_F(XmlOutput, FlushOfALostBlockFailsAndLeavesTheFile)
{
  const std::u16string path = folder.Write("out.xml", "before");
  file.OpenElement("vessel");
  file.failures = 1;
  file.WriteTextElement("name", std::u16string(0x9000, u'x'));
  EXPECT_EQ(file.Flush(path), -1);
  EXPECT_EQ(folder.Read("out.xml"), "before");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(XmlOutput, ResetOutputBeginsAnew)
{
  file.OpenElement("a");
  file.ResetOutput();
  EXPECT_EQ(file.indent, 0);
  EXPECT_EQ(file.outLength, 0U);
  EXPECT_EQ(file.outCapacity, 0U);
  EXPECT_EQ(file.Output(), "");
}

TEST_F(XmlOutput, FlushWritesTheBlock)
{
  file.OpenElement("a");
  EXPECT_EQ(file.Flush(folder.File("out.xml")), 0);
  EXPECT_EQ(folder.Read("out.xml"), "<a>\n");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(XmlOutput, FlushOverALongerFileLeavesNothingOfIt)
{
  folder.Write("out.xml", std::string(10000, 'x'));
  file.OpenElement("a");
  EXPECT_EQ(file.Flush(folder.File("out.xml")), 0);
  EXPECT_EQ(folder.Read("out.xml"), "<a>\n");
}

TEST_F(XmlOutput, FlushOfNothingOrToNowhereFails)
{
  EXPECT_EQ(file.Flush(folder.File("out.xml")), -1);
  EXPECT_EQ(folder.Read("out.xml"), "(no file)");
  file.OpenElement("a");
  EXPECT_EQ(file.Flush(u""), -1);
}

TEST_F(XmlOutput, FlushOfABlockWithoutLengthOrCapacityLeavesTheFileAndSaysNothing)
{
  folder.Write("out.xml", "before");
  file.OpenElement("a");
  const std::uint32_t length = file.outLength;
  file.outLength = 0;
  EXPECT_EQ(file.Flush(folder.File("out.xml")), -1);
  file.outLength = length;
  file.outCapacity = 0;
  EXPECT_EQ(file.Flush(folder.File("out.xml")), -1);
  EXPECT_EQ(folder.Read("out.xml"), "before");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(XmlOutput, AFileThatWontOpenFailsWithoutAMessage)
{
  file.OpenElement("a");
  EXPECT_EQ(file.Flush(folder.File("no-folder/out.xml")), -1);
  EXPECT_EQ(file.Flush(folder.File("")), -1);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(XmlOutput, AFullDiskIsReported)
{
  file.OpenElement("a");
  EXPECT_EQ(file.Flush(u"/dev/full"), -1);
  EXPECT_THAT(messages.shown, testing::ElementsAre(u"Error writing config file!!!"));
}

TEST_F(XmlOutput, NamesWithBlanksUmlautsAndEmojiAreFine)
{
  file.OpenElement("a");
  const char* const name = "Schiff \xC3\x84rger \xF0\x9F\x9A\xA2.xml";
  EXPECT_EQ(file.Flush(folder.File(name)), 0);
  EXPECT_EQ(folder.Read(name), "<a>\n");
}

}  // namespace
}  // namespace hullwright
