#include "file/SaveLosses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "headless/KeptMessages.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr std::string_view head =
    "<vessel><units id='9001'/><gps x='1' y='2' z='3'/><txd x='1' y='2' z='3'/>"
    "<piv x='1' y='2' z='3'/>";

/// Matches losses of a kind, by their number and the first place.
auto Is(LossKind kind, std::size_t count, const LossPlace& place)
{
  return Pair(kind, testing::Truly([count, place](const Loss& loss) {
                return loss.count == count && loss.first == place;
              }));
}

class SaveLosses : public testing::Test {
protected:
  /// The losses of a whole design with this text in it.
  const std::map<LossKind, Loss>& Find(std::string_view text)
  {
    return FindIn(std::string(head) + std::string(text) + "</vessel>");
  }

  /// The losses of an anchor with these fields.
  const std::map<LossKind, Loss>& FindInAnchor(std::string_view fields)
  {
    return Find("<anchors><anchor>" + std::string(fields) + "</anchor></anchors>");
  }

  const std::map<LossKind, Loss>& FindIn(std::string_view text)
  {
    losses = std::make_unique<CSaveLosses>(messages);
    EXPECT_EQ(losses->Read(folder.Write("in.xml", text)), 0);
    for (const auto& [kind, loss] : losses->Found()) seen.insert(kind);
    return losses->Found();
  }

  KeptMessages messages;
  test::TempFolder folder;
  std::unique_ptr<CSaveLosses> losses;
  std::set<LossKind> seen;
};

TEST_F(SaveLosses, AGroupBehindOneOfAllSidesIsHiddenUnlessAnotherOneWasThere)
{
  EXPECT_THAT(Find("<shapes view='01'/><shapes view='3F'/><shapes view='02'/><shapes view='04'/>"),
              ElementsAre(Is(LossKind::GroupBehindOneOfAllSides, 2,
                             {.element = "shapes", .attribute = "view", .text = "02"})));
  EXPECT_THAT(Find("<shapes view='01'/><shapes view='02'/><shapes view='3F'/>"), IsEmpty());
  EXPECT_THAT(Find("<shapes view='01'/><shapes view='3F'/><shapes view='01'/>"),
              ElementsAre(Is(LossKind::GroupsOfOneView, 1,
                             {.element = "shapes", .attribute = "view", .text = "01"})));
  EXPECT_THAT(Find("<shapes view='3F'/><shapes view='03'/>"),
              ElementsAre(Is(LossKind::GroupOfNoSide, 1,
                             {.element = "shapes", .attribute = "view", .text = "03"})));
  // Without a code it is one of the top side.
  EXPECT_TRUE(Find("<shapes view='3F'/><shapes/>").contains(LossKind::GroupBehindOneOfAllSides));
}

TEST_F(SaveLosses, ATabBehindAFieldReplacesIt)
{
  EXPECT_THAT(FindInAnchor("<id>7</id>\t<name>Bow</name> \t<attachmentX>1.5</attachmentX>\t"
                           "<attachmentY>2</attachmentY>\n\t"),
              ElementsAre(Is(LossKind::ReplacedAnchorField, 3,
                             {.element = "id", .text = "7", .saved = "0"})));
  EXPECT_THAT(FindInAnchor("<id>7</id><name>Bow</name>\t"),
              ElementsAre(Is(LossKind::ReplacedAnchorField, 1,
                             {.element = "name", .text = "Bow", .saved = "&#x9;"})));
}

TEST_F(SaveLosses, ATabThatReplacesNothingIsNotReported)
{
  EXPECT_THAT(FindInAnchor("\t<id>0</id>\t<name>Bow</name>\n\t<attachmentX>0</attachmentX>\t"),
              IsEmpty());
  EXPECT_THAT(FindInAnchor("<id>7</id>  <name>Bow</name>"), IsEmpty());
  EXPECT_THAT(Find("<anchors><anchor><id>7</id></anchor>\t</anchors>\t"), IsEmpty());
  EXPECT_FALSE(
      FindInAnchor("<id>7</id><vessel>2</vessel>\t").contains(LossKind::ReplacedAnchorField));
  EXPECT_FALSE(
      FindInAnchor("<id>7</id><easting>2</easting>\t").contains(LossKind::ReplacedAnchorField));
}

TEST_F(SaveLosses, ANameThatBeginsWithALineBreakIsLost)
{
  const LossPlace name = {.element = "name"};
  EXPECT_THAT(FindInAnchor("<id>7</id><name>&#10;</name>"),
              ElementsAre(Is(LossKind::NameBehindLineBreak, 1, name)));
  EXPECT_THAT(FindInAnchor("<id>7</id><name>&#13;Bow</name>"),
              ElementsAre(Is(LossKind::TextAfterLineBreak, 1, {.element = "name", .text = "\rBow"}),
                          Is(LossKind::NameBehindLineBreak, 1, name)));
  EXPECT_THAT(FindInAnchor("<id>7</id><name>\n  Bow\n  </name>"),
              testing::Contains(Is(LossKind::NameBehindLineBreak, 1, name)));
}

TEST_F(SaveLosses, ANameWithAPieceThatIsKeptIsNotReportedAsLost)
{
  EXPECT_THAT(FindInAnchor("<id>7</id><name>Bow\n</name>"), IsEmpty());
  EXPECT_THAT(FindInAnchor("<id>7</id><name>Bow&#10;roller</name>"), IsEmpty());
  EXPECT_FALSE(FindInAnchor("<id>7</id><name>\n<!-- lead -->Bow</name>")
                   .contains(LossKind::NameBehindLineBreak));
  EXPECT_FALSE(
      FindInAnchor("<id>7</id><name>Bow\nroller</name>").contains(LossKind::NameBehindLineBreak));
  EXPECT_THAT(FindInAnchor("<id>7</id><name></name>\n"), IsEmpty());
  EXPECT_THAT(FindInAnchor("<id>7\n</id>\n"), IsEmpty());
}

TEST_F(SaveLosses, EveryKindIsFoundWithItsPlace)
{
  EXPECT_THAT(
      Find("<engine/><x><gps/></x>lost\nlost<!--c-->"),
      ElementsAre(Is(LossKind::UnknownElement, 2, {.element = "engine", .parent = "vessel"}),
                  Is(LossKind::MisplacedElement, 1, {.element = "gps", .parent = "x"}),
                  Is(LossKind::TextBetweenElements, 1, {.element = "vessel", .text = "lost"}),
                  Is(LossKind::TextAfterLineBreak, 1, {.element = "vessel", .text = "\nlost"}),
                  Is(LossKind::Comment, 1, {.text = "<!--c-->"})));
  EXPECT_THAT(
      Find("<units id='0' name='m'/><gps x='1.2345' y='1a' z=''/>"),
      ElementsAre(
          Is(LossKind::RepeatedElement, 2, {.element = "units", .parent = "vessel"}),
          Is(LossKind::UnknownAttribute, 1, {.element = "units", .attribute = "name", .text = "m"}),
          Is(LossKind::CoordinateIsNoNumber, 2,
             {.element = "gps", .attribute = "y", .text = "1a", .saved = "1.000"}),
          Is(LossKind::Decimals, 1,
             {.element = "gps", .attribute = "x", .text = "1.2345", .saved = "1.234"}),
          Is(LossKind::UnitIsZero, 1, {.element = "units", .attribute = "id", .text = "0"})));
  EXPECT_THAT(
      Find("<units id='+5'/><shapes/><shapes view='7'/><shapes view='7'/>"),
      ElementsAre(
          Is(LossKind::RepeatedElement, 1, {.element = "units", .parent = "vessel"}),
          Is(LossKind::UnitChanges, 1, {.element = "units", .attribute = "id", .text = "+5"}),
          Is(LossKind::GroupWithoutView, 1, {.element = "shapes", .attribute = "view"}),
          Is(LossKind::GroupOfNoSide, 2, {.element = "shapes", .attribute = "view", .text = "7"}),
          Is(LossKind::GroupsOfOneView, 1,
             {.element = "shapes", .attribute = "view", .text = "7"})));
  EXPECT_THAT(
      FindInAnchor("<vessel>2</vessel><name>  </name><name>\U0001F6A2</name>"),
      ElementsAre(Is(LossKind::AnchorWithoutNumber, 1, {.element = "anchor"}),
                  Is(LossKind::AnchorVessel, 1, {.element = "vessel", .parent = "anchor"}),
                  Is(LossKind::RepeatedAnchorField, 1, {.element = "name", .parent = "anchor"}),
                  Is(LossKind::NameOfBlanks, 1, {.element = "name"}),
                  Is(LossKind::NameThatDoesNotOpen, 1, {.element = "name", .text = "\U0001F6A2"})));
  EXPECT_THAT(FindInAnchor("<id>007</id><attachmentX>0.0001</attachmentX>"),
              ElementsAre(Is(LossKind::Decimals, 1,
                             {.element = "attachmentX", .text = "0.0001", .saved = "0.000"}),
                          Is(LossKind::AnchorNumberChanges, 1, {.element = "id", .text = "007"})));
  FindInAnchor("<id>1</id>\t<name>&#10;</name>");
  Find("<shapes view='3F'/><shapes view='1'/>");
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(LossKind::NameThatDoesNotOpen) + 1);
}

TEST_F(SaveLosses, WhatASaveAddsIsReportedInTheOrderOfASave)
{
  FindIn("<other><vessel/></other>");
  EXPECT_THAT(losses->Missing(), ElementsAre("vessel", "units", "gps", "txd", "piv"));
  FindIn("<vessel><txd/></vessel>");
  EXPECT_THAT(losses->Missing(), ElementsAre("units", "gps", "piv"));
  EXPECT_THAT(Find(""), IsEmpty());
  EXPECT_THAT(losses->Missing(), IsEmpty());
}

TEST_F(SaveLosses, WhatIsWrongWithAFileIsKeptWithItsPlace)
{
  CSaveLosses broken(messages);
  EXPECT_EQ(broken.Read(folder.Write("in.xml", "<vessel>\n </wessel>")), -1);
  EXPECT_EQ(Describe(broken.LastReadError()), u"line 2, column 4: mismatched tag");
  EXPECT_EQ(DescribeBriefly(broken.LastReadError()), u"2:4: mismatched tag");
  EXPECT_EQ(DescribeBriefly({u"no place", 0, 0}), u"no place");
}

}  // namespace
}  // namespace hullwright
