#include "app/CommonDataFolder.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

class DataFolder : public testing::Test {
protected:
  std::string Sub(const char* name) const { return (folder.Path() / name).string(); }
  void Equip(const char* name) const
  {
    std::filesystem::create_directories(folder.Path() / name / "Sondaris");
  }
  std::string Chosen() const { return Utf8FromWide(CommonDataFolder(candidates)); }

  test::TempFolder folder;
  DataFolderCandidates candidates{Sub("user"), {Sub("local"), Sub("system")}, Sub("program")};
};

TEST_F(DataFolder, IsBesideTheProgramWhereNobodyHasThePackage)
{
  EXPECT_EQ(Chosen(), Sub("program"));
}

TEST_F(DataFolder, TheSystemsComesBeforeTheProgramsInItsOrder)
{
  Equip("program");
  Equip("system");
  EXPECT_EQ(Chosen(), Sub("system"));
  Equip("local");
  EXPECT_EQ(Chosen(), Sub("local"));
}

TEST_F(DataFolder, TheUsersComesFirst)
{
  Equip("system");
  Equip("user");
  EXPECT_EQ(Chosen(), Sub("user"));
}

TEST_F(DataFolder, AFileOfThatNameIsNoFolder)
{
  std::filesystem::create_directories(folder.Path() / "user");
  folder.Write("user/Sondaris", "");
  EXPECT_EQ(Chosen(), Sub("program"));
}

TEST(DataFolderCandidates, ComeFromTheDesktopsRules)
{
  setenv("XDG_DATA_HOME", "/some/home", 1);
  setenv("XDG_DATA_DIRS", "/a::/b", 1);
  const DataFolderCandidates found = FindDataFolderCandidates();
  EXPECT_EQ(found.user, "/some/home");
  EXPECT_EQ(found.system, (std::vector<std::string>{"/a", "/b"}));
  EXPECT_TRUE(found.besideProgram.ends_with("/share"));
  unsetenv("XDG_DATA_HOME");
  unsetenv("XDG_DATA_DIRS");
  const std::string home = getenv("HOME") == nullptr ? "" : getenv("HOME");
  setenv("HOME", "/home/someone", 1);
  const DataFolderCandidates usual = FindDataFolderCandidates();
  EXPECT_EQ(usual.user, "/home/someone/.local/share");
  EXPECT_EQ(usual.system, (std::vector<std::string>{"/usr/local/share", "/usr/share"}));
  setenv("HOME", home.c_str(), 1);
}

}  // namespace
}  // namespace hullwright
