#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "file/HullwrightDoc.h"
#include "headless/KeptMessages.h"
#include "headless/SilentWindow.h"
#include "support/FailingNew.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

/// What a design holds, a line each: its groups, polylines with their vertices, anchors with their
/// fields, offsets and unit.
std::vector<std::string> PartsOf(const DesignState& design)
{
  std::vector<std::string> parts;
  const auto add = [&parts](const std::string& what, double x, double y) {
    parts.push_back(what + ' ' + FormatFixed(x, 3) + ' ' + FormatFixed(y, 3));
  };
  for (const auto& group : design.shapeGroups) {
    parts.push_back("group " + std::to_string(NumberOf(group->viewCode)));
    for (const auto& shape : group->shapes) {
      parts.emplace_back("polyline");
      for (const auto& vertex : shape->vertices) add("vertex", vertex->x, vertex->y);
    }
  }
  for (const auto& anchor : design.anchors->items) {
    add("anchor " + std::to_string(anchor->id), anchor->attachmentX, anchor->attachmentY);
    if (!anchor->name.empty()) parts.push_back("name " + Utf8FromWide(anchor->name));
  }
  for (const auto* offset : {&design.offsetGps, &design.offsetTransducer, &design.offsetPivot}) {
    add("offset", (*offset)->x, (*offset)->y);
  }
  parts.push_back("unit " + std::to_string(NumberOf(design.unitCode)));
  return parts;
}

/// Whether all of `some` stand in `all`, in their order.
bool IsPartOf(const std::vector<std::string>& some, const std::vector<std::string>& all)
{
  auto at = all.begin();
  return std::ranges::all_of(some, [&](const std::string& part) {
    at = std::find(at, all.end(), part);
    return at != all.end() && at++ != all.end();
  });
}

constexpr const char* formerDesign =
    "<vessel><units id=\"9002\"/><shapes view=\"02\"><polyline><vertex x=\"7\" y=\"8\"/></polyline>"
    "</shapes><gps x=\"70\"/><anchors><anchor><id>7</id></anchor></anchors></vessel>";

/// Names too long to go without memory of their own, inside a group as well as in an anchor.
std::string LargeDesign()
{
  std::string text = "<vessel><units id=\"9003\"/>\n";
  for (int side = 1; side <= 4; side *= 2) {
    text += "<shapes view=\"0" + std::to_string(side) + "\">\n";
    for (int line = 0; line < 3; ++line) {
      text += "                 <polyline>\n";
      for (int i = 0; i < 40; ++i) {
        const std::string x = std::to_string(100 * side + i);
        text += "<vertex x=\"" + x + "\" y=\"" + std::to_string(line) + "\" z=\"0\"/>\n";
      }
      text += "</polyline>\n";
    }
    text +=
        "<polyline><vertex x=\"1\"/><polyline><vertex x=\"2\"/></polyline></polyline></shapes>\n";
  }
  text +=
      "<gps x=\"1\" y=\"2\" z=\"3\"/><txd x=\"4\" y=\"5\" z=\"6\"/><piv x=\"7\" y=\"8\" "
      "z=\"9\"/>\n";
  for (int i = 1; i <= 9; ++i) {
    const std::string id = std::to_string(i);
    text += "<anchor><id>" + id + "</id><name>the winch on the port side, number " + id +
            "</name><attachmentX>" + id + ".5</attachmentX></anchor>\n";
  }
  return text + "</vessel>\n";
}

class OpenShortOfMemory : public testing::Test {
protected:
  OpenShortOfMemory() { OpenFormer(); }

  void OpenFormer() { ASSERT_TRUE(document.OnOpenDocument(folder.Write("old.xml", formerDesign))); }

  test::TempFolder folder;
  DesignState design;
  SilentWindow window;
  KeptMessages messages;
  CHullwrightDoc document{design, window, messages};
};

TEST_F(OpenShortOfMemory, LeavesOutWhatMemoryEndsForAndCountsIt)
{
  const std::vector<std::string> former = PartsOf(design);
  const std::u16string path = folder.Write("new.xml", LargeDesign());
  ASSERT_TRUE(document.OnOpenDocument(path));
  const std::vector<std::string> whole = PartsOf(design);
  std::set<std::size_t> sizes;
  int refused = 0;
  bool failed = true;
  for (std::size_t which = 1; failed; ++which) {
    SCOPED_TRACE(which);
    OpenFormer();
    document.SetModifiedFlag(true);
    int emptied = 0;
    document.onEmptied = [&emptied] { ++emptied; };
    const test::FailingNew memory(which);
    const bool opened = document.OnOpenDocument(path);
    failed = test::FailingNew::Stop();
    EXPECT_EQ(emptied, opened ? 1 : 0);
    EXPECT_EQ(document.IsModified(), !opened);
    const std::vector<std::string> parts = PartsOf(design);
    if (!opened) {
      ++refused;
      EXPECT_EQ(parts, former);
      const bool early = !messages.shown.empty();
      EXPECT_EQ(document.OpenProblem(), early ? u"Cannot allocate memory" : u"out of memory");
      messages.shown.clear();
    } else if (parts != whole) {
      EXPECT_TRUE(IsPartOf(parts, whole)) << testing::PrintToString(parts);
      EXPECT_EQ(document.LeftOutParts(), 1U);
      sizes.insert(whole.size() - parts.size());
    }
    document.onEmptied = nullptr;
  }
  EXPECT_EQ(PartsOf(design), whole);
  EXPECT_EQ(document.LeftOutParts(), 0U);
  EXPECT_GT(refused, 3);
  // A vertex; an anchor and its name; a polyline of 40; a group of four polylines.
  EXPECT_TRUE(sizes.contains(1U) && sizes.contains(2U) && sizes.contains(41U) &&
              sizes.contains(126U))
      << testing::PrintToString(sizes);
}

TEST(OpenWithoutMemory, SaysWhyBeforeItNotifies)
{
  const test::TempFolder folder;
  DesignState design;
  test::RecordedNotifications window;
  KeptMessages messages;
  CHullwrightDoc document(design, window, messages);
  std::u16string problem;
  window.onNotification = [&] { problem = document.OpenProblem(); };
  const std::u16string path = folder.Write("new.xml", formerDesign);
  for (std::size_t which = 1; !document.OpenError().outOfMemory; ++which) {
    const test::FailingNew memory(which);
    document.OnOpenDocument(path);
    ASSERT_TRUE(test::FailingNew::Stop());
  }
  EXPECT_EQ(problem, u"out of memory");
}

}  // namespace
}  // namespace hullwright
