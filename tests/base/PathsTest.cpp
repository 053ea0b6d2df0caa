#include "base/Paths.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

class PathFromTheRoot : public testing::Test {
protected:
  test::TempFolder folder;
};

TEST_F(PathFromTheRoot, LeadsThroughTheCurrentFolderAndWithoutDots)
{
  const std::u16string inCurrent = WideFromUtf8(TextOf(fs::current_path() / "boat.xml"));
  EXPECT_EQ(AbsolutePath(u"boat.xml"), AbsolutePath(inCurrent));
  EXPECT_TRUE(PathOf(AbsolutePath(u"boat.xml")).is_absolute());
  fs::create_directory(folder.Path() / "there");
  EXPECT_EQ(AbsolutePath(folder.File("there/../boat.xml")), AbsolutePath(folder.File("boat.xml")));
}

TEST_F(PathFromTheRoot, FollowsALinkToTheFolderAndKeepsTheNameOfALinkToTheFile)
{
  fs::create_directory(folder.Path() / "there");
  fs::create_directory_symlink(folder.Path() / "there", folder.Path() / "link");
  fs::create_symlink(folder.Path() / "boat.xml", folder.Path() / "there" / "named.xml");
  const std::u16string found = AbsolutePath(folder.File("link/named.xml"));
  EXPECT_EQ(found, AbsolutePath(folder.File("there/named.xml")));
  EXPECT_TRUE(found.ends_with(u"/there/named.xml"));
}

TEST_F(PathFromTheRoot, IsThePathItselfInAFolderThatIsGone)
{
  const fs::path before = fs::current_path();
  fs::create_directory(folder.Path() / "there");
  fs::current_path(folder.Path() / "there");
  fs::remove(folder.Path() / "there");
  const std::u16string found = AbsolutePath(u"none/../boat.xml");
  fs::current_path(before);
  EXPECT_EQ(found, u"none/../boat.xml");
}

}  // namespace
}  // namespace hullwright
