#include <gtest/gtest.h>

#include <new>
#include <optional>

#include "file/FileVessel.h"
#include "headless/KeptMessages.h"
#include "support/FailingNew.h"
#include "support/TempFolder.h"

// Memory that ends while a design is read.
namespace hullwright {
namespace {

constexpr const char* twoSides =
    "<vessel><shapes view='01'><polyline><vertex x='1'/><vertex x='2'/></polyline></shapes>"
    "<shapes view='02'><polyline><vertex x='3'/><vertex x='4'/></polyline></shapes>"
    "<anchors><anchor><id>7</id><name>a bollard with a long name of its own</name></anchor>"
    "</anchors></vessel>";

/// The vertices' x of all polylines in a row, which is how far a read has come.
std::string Places(const OwnedArray<CShapes>& groups)
{
  std::string places;
  for (const auto& group : groups) {
    for (const auto& shape : group->shapes) {
      for (const auto& vertex : shape->vertices) {
        places += std::to_string(static_cast<int>(vertex->x));
      }
    }
  }
  return places;
}

TEST(ReadMemory, ThatEndsIsAnErrorAndWhatCameBeforeIsWhole)
{
  const test::TempFolder folder;
  const std::u16string path = folder.Write("boat.xml", twoSides);
  KeptMessages messages;
  int failures = 0;
  for (std::size_t which = 1;; ++which) {
    CFileVessel file(messages);
    OwnedArray<CShapes> groups;
    file.groups = &groups;
    std::optional<int> result;  // none where memory ended before the file was read
    const test::FailingNew memory(which);
    try {
      result = file.Read(path);
    } catch (const std::bad_alloc&) {
    }
    const bool failed = test::FailingNew::Stop();
    EXPECT_TRUE(std::string("1234").starts_with(Places(groups))) << which;
    if (!failed) {
      EXPECT_EQ(result, 0);
      EXPECT_EQ(Places(groups), "1234");
      break;
    }
    if (!result) continue;
    ++failures;
    EXPECT_EQ(result, -1) << which;
    EXPECT_EQ(file.LastReadError().message, u"out of memory") << which;
    EXPECT_EQ(file.LastReadError().line, 0) << which;
  }
  EXPECT_GT(failures, 10);
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace hullwright
