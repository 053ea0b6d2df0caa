#include <gtest/gtest.h>

#include <cstdlib>

#include "file/FileVessel.h"
#include "file/HullwrightDoc.h"
#include "headless/KeptMessages.h"
#include "headless/SilentWindow.h"
#include "model/ShapePolyline.h"
#include "support/FailingNew.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

/// A design file for whose block memory ends once.
class ShortOfMemory : public CFileVessel {
public:
  using CFileVessel::CFileVessel;
  int until = -1;  ///< resizes that still succeed; below 0 all do
  int resizes = 0;

protected:
  void* Reallocate(void* block, std::size_t size) override
  {
    ++resizes;
    if (until-- != 0) return CFileVessel::Reallocate(block, size);
    std::free(block);
    return nullptr;
  }
};

/// A design file whose text, when its block is full for the first time, is nearly as long as a text
/// can be. The system has no memory for the most of the block, as nobody writes there.
class NearlyFull : public CFileVessel {
public:
  using CFileVessel::CFileVessel;
  bool wasRefused = false;

protected:
  void* Reallocate(void* block, std::size_t size) override
  {
    constexpr std::size_t longestText = std::size_t{1} << 32U;
    if (size > longestText) {
      wasRefused = true;
      return CFileVessel::Reallocate(block, size);
    }
    return block == nullptr ? std::malloc(longestText) : block;
  }
  void OnFullBlock() override
  {
    if (outLength < almostAll) outLength = almostAll;
  }

private:
  static constexpr std::uint32_t almostAll = 0xFFFF0000;
};

class LostBlock : public testing::Test {
protected:
  LostBlock()
  {
    auto line = std::make_unique<CShapePolyline>();
    for (int i = 0; i < 3000; ++i) line->AddVertex(i, i, i);
    groups.push_back(std::make_unique<CShapes>(ViewSide::Top));
    groups.back()->shapes.push_back(std::move(line));
  }

  KeptMessages messages;
  test::TempFolder folder;
  ShortOfMemory file{messages};
  OwnedArray<CShapes> groups;
};

TEST_F(LostBlock, IsKnownWhereverMemoryEnded)
{
  int resizes = 0;
  for (;; ++resizes) {
    file.until = resizes;
    file.Compose(groups);
    if (file.until >= 0) break;  // that many resizes were not asked for
    EXPECT_TRUE(file.LostBlock()) << resizes;
  }
  EXPECT_GT(resizes, 3);
  EXPECT_FALSE(file.LostBlock());
}

TEST_F(LostBlock, IsNotReplacedByAFreshOne)
{
  file.until = 1;
  file.Compose(groups);
  EXPECT_EQ(file.resizes, 2);
  EXPECT_TRUE(file.Output().empty());
}

TEST_F(LostBlock, IsForgottenByTheNextDocument)
{
  file.until = 1;
  file.Compose(groups);
  EXPECT_TRUE(file.LostBlock());
  file.Compose(groups);
  EXPECT_FALSE(file.LostBlock());
  EXPECT_TRUE(file.Output().ends_with("</vessel>\n"));
  EXPECT_EQ(file.Output().find('\0'), std::string_view::npos);
}

TEST_F(LostBlock, ReachesNoFile)
{
  const std::u16string path = folder.Write("boat.xml", "before");
  file.until = 1;
  EXPECT_EQ(file.Save(path, groups), -1);
  EXPECT_EQ(folder.Read("boat.xml"), "before");
  EXPECT_EQ(file.WriteError(), 0);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(file.Save(path, groups), 0);
  EXPECT_TRUE(folder.Read("boat.xml").ends_with("</vessel>\n"));
}

TEST_F(LostBlock, OfATextThatPassesFourGibibytesReachesNoFile)
{
#ifdef HULLWRIGHT_SANITIZE
  GTEST_SKIP() << "the address sanitizer takes memory for what nobody writes to";
#endif
  const std::u16string path = folder.Write("boat.xml", "before");
  NearlyFull large(messages);
  EXPECT_EQ(large.Save(path, groups), -1);
  EXPECT_TRUE(large.wasRefused);
  EXPECT_TRUE(large.LostBlock());
  EXPECT_EQ(folder.Read("boat.xml"), "before");
}

TEST_F(LostBlock, IsNotAllThatASaveNeedsMemoryFor)
{
  DesignState design;
  design.shapeGroups = std::move(groups);
  SilentWindow window;
  CHullwrightDoc document(design, window, messages);
  const std::u16string path = folder.Write("boat.xml", "before");
  int failures = 0;
  for (std::size_t which = 1;; ++which) {
    folder.Write("boat.xml", "before");
    const test::FailingNew memory(which);
    document.OnSaveDocument(path);
    if (!test::FailingNew::Stop()) break;
    ++failures;
    EXPECT_EQ(document.SaveProblem(), u"Cannot allocate memory") << which;
    EXPECT_EQ(folder.Read("boat.xml"), "before") << which;
  }
  EXPECT_GT(failures, 3);
  EXPECT_TRUE(document.SavedWhole());
  EXPECT_TRUE(folder.Read("boat.xml").ends_with("</vessel>\n"));
}

TEST_F(LostBlock, ForTheFileObjectItselfLeavesTheModifiedFlag)
{
  DesignState design;
  test::RecordedNotifications window;
  CHullwrightDoc document(design, window, messages);
  const std::u16string path = folder.Write("boat.xml", "before");
  const test::FailingNew memory(1);
  const bool saved = document.OnSaveDocument(path);
  ASSERT_TRUE(test::FailingNew::Stop());
  EXPECT_TRUE(saved);
  EXPECT_FALSE(document.SavedWhole());
  EXPECT_TRUE(window.list.empty());
  EXPECT_EQ(folder.Read("boat.xml"), "before");
}

}  // namespace
}  // namespace hullwright
