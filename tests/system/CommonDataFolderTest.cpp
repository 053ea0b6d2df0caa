#include "system/CommonDataFolder.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "support/System.h"
#include "support/TempFolder.h"
#include "system/CommonDataPorts.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

class DataFolder : public testing::Test {
protected:
  std::string Sub(const char* name) const { return (folder.Path() / name).string(); }
  void EquipDatabase(const std::string& name) const
  {
    const fs::path place = folder.Path() / name / "Sondaris" / "Database";
    fs::create_directories(place);
    fs::copy_file(HULLWRIGHT_UNIT_DATABASE, place / "geo.db");
  }
  void EquipLogs(const std::string& name) const
  {
    fs::create_directories(folder.Path() / name / "Sondaris" / "Tracing");
  }
  std::string Chosen(CommonData what) const
  {
    return Utf8FromWide(CommonDataFolder(candidates, what));
  }
  std::string ForUnits() const { return Chosen(CommonData::UnitDatabase); }
  std::string ForLogs() const { return Chosen(CommonData::Logs); }

  test::TempFolder folder;
  DataFolderCandidates candidates{Sub("user"), {Sub("local"), Sub("system")}, Sub("program")};
};

TEST_F(DataFolder, IsBesideTheProgramWhereNobodyHasTheThing)
{
  EXPECT_EQ(ForUnits(), Sub("program"));
  EXPECT_EQ(ForLogs(), Sub("program"));
}

TEST_F(DataFolder, TheSystemsComesBeforeTheProgramsInItsOrder)
{
  for (const char* name : {"program", "system"}) {
    EquipDatabase(name);
    EquipLogs(name);
  }
  EXPECT_EQ(ForUnits(), Sub("system"));
  EXPECT_EQ(ForLogs(), Sub("system"));
  EquipDatabase("local");
  EquipLogs("local");
  EXPECT_EQ(ForUnits(), Sub("local"));
  EXPECT_EQ(ForLogs(), Sub("local"));
}

TEST_F(DataFolder, TheUsersComesFirst)
{
  for (const char* name : {"program", "local", "user"}) {
    EquipDatabase(name);
    EquipLogs(name);
  }
  EXPECT_EQ(ForUnits(), Sub("user"));
  EXPECT_EQ(ForLogs(), Sub("user"));
}

TEST_F(DataFolder, TheUsersLogsLeaveTheDatabaseWhereItIs)
{
  EquipLogs("user");
  EXPECT_EQ(ForUnits(), Sub("program"));
  EquipDatabase("system");
  EXPECT_EQ(ForUnits(), Sub("system"));
  EXPECT_EQ(ForLogs(), Sub("user"));
}

TEST_F(DataFolder, TheUsersDatabaseLeavesTheLogsWhereTheyAre)
{
  EquipDatabase("user");
  EXPECT_EQ(ForLogs(), Sub("program"));
  EquipLogs("local");
  EXPECT_EQ(ForLogs(), Sub("local"));
  EXPECT_EQ(ForUnits(), Sub("user"));
}

TEST_F(DataFolder, AFolderOfThePackageWithNeitherIsPassedOver)
{
  fs::create_directories(folder.Path() / "user" / "Sondaris" / "Database");
  EquipDatabase("local");
  EquipLogs("system");
  EXPECT_EQ(ForUnits(), Sub("local"));
  EXPECT_EQ(ForLogs(), Sub("system"));
}

TEST_F(DataFolder, AFolderIsNoDatabaseAndAFileIsNoFolderOfLogs)
{
  fs::create_directories(folder.Path() / "user" / "Sondaris" / "Database" / "geo.db");
  folder.Write("user/Sondaris/Tracing", "");
  EXPECT_EQ(ForUnits(), Sub("program"));
  EXPECT_EQ(ForLogs(), Sub("program"));
}

TEST_F(DataFolder, AnEmptyCandidateIsNotTheFolderTheProgramRunsIn)
{
  EquipDatabase(".");
  EquipLogs(".");
  candidates.user.clear();
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_EQ(ForUnits(), Sub("program"));
  EXPECT_EQ(ForLogs(), Sub("program"));
  fs::current_path(before);
}

class CommonDataOfTheProgram : public DataFolder {
protected:
  std::string LogOf(const std::string& name) const
  {
    return folder.Read(name + "/Sondaris/Tracing/Trace_General.txt");
  }

  std::u16string FirstUnit()
  {
    const std::vector<UnitRecord> units = ports.units.ReadUnits();
    return units.empty() ? std::u16string() : units.front().strUnit;
  }

  KeptMessages messages;
  CommonDataPorts ports{messages,
                        [this](CommonData what) { return CommonDataFolder(candidates, what); }};
};

TEST_F(CommonDataOfTheProgram, TheUsersFolderOfLogsSwitchesThemOnAndLeavesTheUnits)
{
  EquipDatabase("program");
  EquipLogs("user");
  ports.log.Trace(0.0, TraceLevel::Failure, u"General", u"x");
  EXPECT_EQ(LogOf("user"), "1\n1|0.000|1|x\r\n");
  EXPECT_EQ(LogOf("program"), "(no file)");
  EXPECT_EQ(FirstUnit(), u"metre");
}

TEST_F(CommonDataOfTheProgram, TheUsersDatabaseIsReadAndDoesNotSwitchTheLogsOn)
{
  EquipDatabase("user");
  ports.log.Trace(0.0, TraceLevel::Failure, u"General", u"x");
  EXPECT_EQ(LogOf("user"), "(no file)");
  EXPECT_EQ(FirstUnit(), u"metre");
  EXPECT_FALSE(fs::exists(folder.Path() / "program"));
}

TEST_F(CommonDataOfTheProgram, TheFolderOfLogsMayComeAndGoDuringTheRun)
{
  ports.log.Trace(0.0, TraceLevel::Failure, u"General", u"lost");
  EquipLogs("system");
  ports.log.Trace(0.0, TraceLevel::Failure, u"General", u"first");
  EquipLogs("user");
  ports.log.Trace(0.0, TraceLevel::Failure, u"General", u"second");
  EXPECT_EQ(LogOf("system"), "1\n1|0.000|1|first\r\n");
  EXPECT_EQ(LogOf("user"), "1\n1|0.000|1|second\r\n");
}

TEST(DataFolderCandidates, ComeFromTheDesktopsRules)
{
  test::SetVariable("XDG_DATA_HOME", "/some/home");
  test::SetVariable("XDG_DATA_DIRS", "/a::/b");
  const DataFolderCandidates found = FindDataFolderCandidates();
  EXPECT_EQ(found.user, "/some/home");
  EXPECT_EQ(found.system, (std::vector<std::string>{"/a", "/b"}));
  EXPECT_TRUE(found.besideProgram.ends_with("/share"));
  test::SetVariable("XDG_DATA_HOME", nullptr);
  test::SetVariable("XDG_DATA_DIRS", nullptr);
  const std::string home = getenv("HOME") == nullptr ? "" : getenv("HOME");
  test::SetVariable("HOME", "/home/someone");
  const DataFolderCandidates usual = FindDataFolderCandidates();
  EXPECT_EQ(usual.user, "/home/someone/.local/share");
  EXPECT_EQ(usual.system, (std::vector<std::string>{"/usr/local/share", "/usr/share"}));
  test::SetVariable("XDG_DATA_HOME", "relative");
  EXPECT_EQ(FindDataFolderCandidates().user, "/home/someone/.local/share");
  test::SetVariable("HOME", "relative");
  EXPECT_EQ(FindDataFolderCandidates().user, "");
  test::SetVariable("XDG_DATA_HOME", nullptr);
  test::SetVariable("HOME", home.c_str());
}

}  // namespace
}  // namespace hullwright
