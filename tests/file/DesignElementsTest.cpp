#include "file/DesignElements.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "file/AnchorListReader.h"
#include "file/SaveLosses.h"
#include "headless/KeptMessages.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

constexpr std::string_view design =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
    "<vessel>\n"
    " <units id=\"9002\" />\n"
    " <shapes view=\"10\" >\n"
    "  <polyline>\n"
    "   <vertex x=\"1.500\" y=\"-2.500\" z=\"3.500\" />\n"
    "  </polyline>\n"
    " </shapes>\n"
    " <gps x=\"4.500\" y=\"5.500\" z=\"6.500\" />\n"
    " <txd x=\"7.500\" y=\"8.500\" z=\"9.500\" />\n"
    " <piv x=\"10.500\" y=\"11.500\" z=\"12.500\" />\n"
    " <anchors>\n"
    "  <anchor>\n"
    "   <id>17</id>\n"
    "   <name>Bow</name>\n"
    "   <attachmentX>13.500</attachmentX>\n"
    "   <attachmentY>14.500</attachmentY>\n"
    "  </anchor>\n"
    " </anchors>\n"
    "</vessel>\n";

/// An element with what stands for it in the design above, and what else could stand there.
struct Written {
  std::string_view name;
  std::string_view parent;
  std::string_view text;
  std::string_view other;
};

constexpr auto saved = std::to_array<Written>({
    {"vessel", "", "\n<vessel>\n", "\n<vessel>\n"},
    {"units", "vessel", " <units id=\"9002\" />\n", " <units id=\"-7\" />\n"},
    {"shapes", "vessel", " <shapes view=\"10\" >\n", " <shapes view=\"2A\" >\n"},
    {"polyline", "shapes", "  <polyline>\n", "  <polyline>\n  </polyline>\n  <polyline>\n"},
    {"vertex", "polyline", "   <vertex x=\"1.500\" y=\"-2.500\" z=\"3.500\" />\n",
     "   <vertex x=\"0.001\" y=\"0.002\" z=\"0.003\" />\n"},
    {"gps", "vessel", " <gps x=\"4.500\" y=\"5.500\" z=\"6.500\" />\n",
     " <gps x=\"0.001\" y=\"0.002\" z=\"0.003\" />\n"},
    {"txd", "vessel", " <txd x=\"7.500\" y=\"8.500\" z=\"9.500\" />\n",
     " <txd x=\"0.001\" y=\"0.002\" z=\"0.003\" />\n"},
    {"piv", "vessel", " <piv x=\"10.500\" y=\"11.500\" z=\"12.500\" />\n",
     " <piv x=\"0.001\" y=\"0.002\" z=\"0.003\" />\n"},
    {"anchors", "vessel", " <anchors>\n", " <anchors>\n"},
    {"anchor", "anchors", "  <anchor>\n",
     "  <anchor>\n   <id>1</id>\n   <name></name>\n   <attachmentX>0.000</attachmentX>\n"
     "   <attachmentY>0.000</attachmentY>\n  </anchor>\n  <anchor>\n"},
    {"id", "anchor", "   <id>17</id>\n", "   <id>4294967295</id>\n"},
    {"name", "anchor", "   <name>Bow</name>\n", "   <name> 1 &amp; &#xE1; </name>\n"},
    {"attachmentX", "anchor", "   <attachmentX>13.500</attachmentX>\n",
     "   <attachmentX>-0.001</attachmentX>\n"},
    {"attachmentY", "anchor", "   <attachmentY>14.500</attachmentY>\n",
     "   <attachmentY>-0.002</attachmentY>\n"},
});

/// A field of an anchor that no save writes.
struct ReadOnly {
  std::string_view name;
  ElementUse use;
  std::u16string_view before;  ///< its value in a new anchor
  std::string_view text;
  std::u16string_view after;  ///< its value once the text was read
};

constexpr auto notSaved = std::to_array<ReadOnly>({
    {"vessel", ElementUse::OnlyRead, u"0", "65553", u"17"},
    {"visible", ElementUse::OnlyInLists, u"1", "0", u"0"},
    {"state", ElementUse::OnlyInLists, u"0", "4294967295", u"-1"},
    {"easting", ElementUse::OnlyInLists, u"0.000", "1.25", u"1.250"},
    {"northing", ElementUse::OnlyInLists, u"0.000", "2.25", u"2.250"},
});

std::string Replaced(std::string_view text, std::string_view part, std::string_view other)
{
  const std::size_t place = text.find(part);
  EXPECT_NE(place, std::string_view::npos) << part;
  EXPECT_EQ(text.find(part, place + 1), std::string_view::npos) << part;
  return std::string(text).replace(place, part.size(), other);
}

class DesignElements : public testing::Test {
protected:
  /// What a save makes of a design once it was read.
  std::string SavedAgain(std::string_view text)
  {
    CFileVessel file(messages);
    OwnedArray<CShapes> groups;
    file.groups = &groups;
    EXPECT_EQ(file.Read(folder.Write("in.xml", text)), 0);
    EXPECT_EQ(file.Save(folder.File("out.xml"), groups), 0);
    return folder.Read("out.xml");
  }

  /// The kinds of losses that are found in a design.
  std::set<LossKind> Losses(std::string_view text)
  {
    CSaveLosses losses(messages);
    EXPECT_EQ(losses.Read(folder.Write("in.xml", text)), 0);
    std::set<LossKind> kinds;
    for (const auto& [kind, loss] : losses.Found()) kinds.insert(kind);
    return kinds;
  }

  KeptMessages messages;
  test::TempFolder folder;
};

TEST_F(DesignElements, AllRowsAreTriedHere)
{
  std::set<std::pair<std::string_view, std::string_view>> tried;
  for (const Written& row : saved) tried.emplace(row.name, row.parent);
  for (const ReadOnly& row : notSaved) tried.emplace(row.name, "anchor");
  std::set<std::pair<std::string_view, std::string_view>> rows;
  for (const DesignElement& element : designElements) rows.emplace(element.name, element.parent);
  EXPECT_EQ(rows, tried);
  EXPECT_EQ(rows.size(), designElements.size());
}

TEST_F(DesignElements, EachIsReadAndWrittenBackWithoutTouchingTheOthers)
{
  EXPECT_EQ(SavedAgain(design), design);
  for (const Written& row : saved) {
    const std::string changed = Replaced(design, row.text, row.other);
    EXPECT_EQ(SavedAgain(changed), changed);
  }
}

TEST_F(DesignElements, NoneLosesAnythingInASave)
{
  EXPECT_EQ(Losses(design), std::set<LossKind>());
  for (const Written& row : saved) {
    if (row.name == "shapes") continue;  // its other value is that of no side
    EXPECT_EQ(Losses(Replaced(design, row.text, row.other)), std::set<LossKind>()) << row.other;
  }
}

TEST_F(DesignElements, EachIsReportedWithAnAttributeThatItDoesNotHave)
{
  for (const Written& row : saved) {
    const std::string tag = "<" + std::string(row.name);
    const std::string text = Replaced(row.text, tag, tag + " colour=\"1\"");
    EXPECT_EQ(Losses(Replaced(design, row.text, text)),
              std::set<LossKind>({LossKind::UnknownAttribute}))
        << tag;
  }
}

TEST_F(DesignElements, EachIsReportedWhereItDoesNotBelong)
{
  for (const Written& row : saved) {
    const std::string tag(row.name);
    const std::string misplaced =
        Replaced(design, "\n<vessel>\n", "\n<vessel><strange><" + tag + " /></strange>\n");
    EXPECT_TRUE(Losses(misplaced).contains(LossKind::MisplacedElement)) << tag;
  }
}

TEST_F(DesignElements, EachIsReportedUnderAnotherName)
{
  for (const DesignElement& element : designElements) {
    const std::string tag = "<strange" + std::string(element.name) + " />";
    EXPECT_EQ(Losses(Replaced(design, "\n<vessel>\n", "\n<vessel>" + tag + "\n")),
              std::set<LossKind>({LossKind::UnknownElement}));
  }
}

TEST_F(DesignElements, FieldsThatNoSaveWritesAreReadByThoseWhoKnowThem)
{
  for (const ReadOnly& row : notSaved) {
    SCOPED_TRACE(row.name);
    const DesignElement& element = *FindAnchorField(row.name);
    EXPECT_EQ(element.use, row.use);
    const std::string tag(row.name);
    const std::string field = "<" + tag + ">" + std::string(row.text) + "</" + tag + ">";
    const std::string text = Replaced(design, "  <anchor>\n", "  <anchor>" + field + "\n");
    EXPECT_EQ(SavedAgain(text), design);
    EXPECT_EQ(Losses(text),
              std::set<LossKind>({row.use == ElementUse::OnlyRead ? LossKind::AnchorVessel
                                                                  : LossKind::UnknownElement}));
    CFileVessel file(messages);
    EXPECT_EQ(file.Read(folder.Write("in.xml", text)), 0);
    EXPECT_EQ(MemberText(element, *file.anchors->items.at(0)),
              row.use == ElementUse::OnlyRead ? row.after : row.before);
    CAnchors list;
    EXPECT_EQ(CAnchorListReader(list, messages).Read(folder.File("in.xml")), 0);
    EXPECT_EQ(MemberText(element, *list.items.at(0)), row.after);
    EXPECT_EQ(list.items.at(0)->name, u"Bow");
  }
}

TEST_F(DesignElements, AMemberOfAnotherClassIsLeftAlone)
{
  CShapes group(ViewSide::Rear);
  ReadMember(ElementOf(ElementKind::Unit), group, "5");
  EXPECT_EQ(group.viewCode, ViewSide::Rear);
  EXPECT_EQ(MemberText(ElementOf(ElementKind::Unit), group), u"");
}

}  // namespace
}  // namespace hullwright
