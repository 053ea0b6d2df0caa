#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QThread>

#include <random>

#include "app/GridSettingsStore.h"
#include "qt/QtRecentFiles.h"
#include "qt/QtSettingsStore.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

class SettingsStore : public test::ShellFixture {};

TEST_F(SettingsStore, BeforeItIsOpenItGivesTheDefaults)
{
  QtSettingsStore store;
  store.WriteInteger("Grid", "Show", 0);
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 1);
}

TEST_F(SettingsStore, BeforeItIsOpenItKeepsNoRecentFiles)
{
  QtSettingsStore store;
  QtRecentFiles files(store);
  files.Write({u"/boats/boat.xml"});
  EXPECT_TRUE(files.Read().empty());
}

TEST_F(SettingsStore, KeepsIntegersInAnIniFileOfTheMakers)
{
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  store.WriteInteger("Grid", "SpacingShowX", -100);
  store.File()->sync();
  EXPECT_EQ(store.ReadInteger("Grid", "SpacingShowX", 250), -100);
  const std::string text = folder.Read("config/Quillmere/Hullwright.ini");
  EXPECT_NE(text.find("[Grid]\nSpacingShowX=-100\n"), std::string::npos) << text;
}

TEST_F(SettingsStore, WhatIsNoIntegerReadsAsTheDefault)
{
  std::filesystem::create_directories(folder.Path() / "config/Quillmere");
  folder.Write("config/Quillmere/Hullwright.ini",
               "[Grid]\nShow=abc\nSnap=99999999999\nSpacingShowX=1.5\n");
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 1);
  EXPECT_EQ(store.ReadInteger("Grid", "Snap", 1), 1);
  EXPECT_EQ(store.ReadInteger("Grid", "SpacingShowX", 250), 250);
}

TEST_F(SettingsStore, ARefreshTakesInWhatAnotherProgramHasWritten)
{
  QtSettingsStore first;
  first.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  first.WriteInteger("Grid", "Show", 1);
  first.File()->sync();
  EXPECT_EQ(first.ReadInteger("Grid", "Show", 5), 1);
  QThread::msleep(20);  // file times have a grain
  folder.Write("config/Quillmere/Hullwright.ini", "[Grid]\nShow=0\n");
  EXPECT_EQ(first.ReadInteger("Grid", "Show", 5), 1);
  first.Refresh();
  EXPECT_EQ(first.ReadInteger("Grid", "Show", 5), 0);
}

TEST_F(SettingsStore, ARefreshLeavesAFileAloneThatIsAsItWasRead)
{
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  store.WriteInteger("Grid", "Show", 1);
  store.File()->sync();
  store.Refresh();
  // What is stored goes into the file with the events that follow.
  store.WriteInteger("Grid", "Show", 2);
  store.Refresh();
  EXPECT_EQ(folder.Read("config/Quillmere/Hullwright.ini"), "[Grid]\nShow=1\n");
}

TEST_F(SettingsStore, TheGridIsReadAsAnotherProgramHasLeftIt)
{
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  store.WriteInteger("Grid", "Show", 1);
  store.File()->sync();
  EXPECT_EQ(LoadGridSettings(store).show, 1);
  QThread::msleep(20);  // file times have a grain
  folder.Write("config/Quillmere/Hullwright.ini", "[Grid]\nShow=0\n");
  EXPECT_EQ(LoadGridSettings(store).show, 0);
}

TEST_F(SettingsStore, APipeIsLeftAloneAndGivesTheDefaults)
{
  std::filesystem::create_directories(folder.Path() / "config/Quillmere");
  const auto pipe = folder.Path() / "config/Quillmere/Hullwright.ini";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  QtSettingsStore store;
  // Would wait for ever.
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  store.Refresh();
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 1);
}

TEST_F(SettingsStore, GarbageGivesTheDefaultsAndGivesWayToWhatIsStored)
{
  std::mt19937 random(5);
  std::string garbage;
  for (int i = 0; i < 20000; ++i) garbage.push_back(static_cast<char>(random() % 256));
  std::filesystem::create_directories(folder.Path() / "config/Quillmere");
  folder.Write("config/Quillmere/Hullwright.ini", garbage);
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(LoadGridSettings(store).show, LoadGridSettings(QtSettingsStore()).show);
  store.WriteInteger("Grid", "Show", 5);
  store.File()->sync();
  QtSettingsStore next;
  next.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(next.ReadInteger("Grid", "Show", 1), 5);
}

TEST_F(SettingsStore, AFileThatCannotBeReadGivesTheDefaults)
{
  // Whoever may read everything can't read a folder as a file either.
  std::filesystem::create_directories(folder.Path() / "config/Quillmere/Hullwright.ini");
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 3), 3);
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "config/Quillmere/Hullwright.ini"));
}

TEST_F(SettingsStore, WhereNothingCanBeWrittenASessionKeepsWhatItStores)
{
  // A file stands where the folder of the settings should be made.
  std::filesystem::create_directories(folder.Path() / "config");
  folder.Write("config/Quillmere", "precious");
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 1);
  store.WriteInteger("Grid", "Show", 5);
  store.File()->sync();
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 5);
  EXPECT_EQ(folder.Read("config/Quillmere"), "precious");
}

/// Folders of the system's settings, while it lives.
class SystemFolders {
public:
  explicit SystemFolders(const std::filesystem::path& folder) { qputenv(name, folder.c_str()); }
  SystemFolders(const SystemFolders&) = delete;
  SystemFolders& operator=(const SystemFolders&) = delete;
  ~SystemFolders()
  {
    if (before_.isNull()) {
      qunsetenv(name);
    } else {
      qputenv(name, before_);
    }
  }

private:
  static constexpr const char* name = "XDG_CONFIG_DIRS";
  QByteArray before_ = qgetenv(name);
};

TEST_F(SettingsStore, DefaultsOfTheSystemHoldWhereTheUserHasNone)
{
  const SystemFolders system(folder.Path() / "system");
  std::filesystem::create_directories(folder.Path() / "system/Quillmere");
  folder.Write("system/Quillmere/Hullwright.ini", "[Grid]\nShow=7\nSnap=7\n");
  std::filesystem::create_directories(folder.Path() / "config/Quillmere");
  folder.Write("config/Quillmere/Hullwright.ini", "[Grid]\nSnap=3\n");
  QtSettingsStore store;
  store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
  EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 7);
  EXPECT_EQ(store.ReadInteger("Grid", "Snap", 1), 3);
}

TEST_F(SettingsStore, APipeAmongTheDefaultsOfTheSystemIsLeftAlone)
{
  for (const char* const name : {"Quillmere.ini", "Quillmere/Hullwright.ini"}) {
    const SystemFolders system(folder.Path() / "system");
    std::filesystem::create_directories(folder.Path() / "system/Quillmere");
    ASSERT_EQ(mkfifo((folder.Path() / "system" / name).c_str(), 0600), 0);
    QtSettingsStore store;
    // Would wait for ever.
    store.Open(QStringLiteral("Quillmere"), QStringLiteral("Hullwright"));
    store.WriteInteger("Grid", "Show", 5);
    store.File()->sync();
    EXPECT_EQ(store.ReadInteger("Grid", "Show", 1), 5);
    EXPECT_EQ(folder.Read("config/Quillmere/Hullwright.ini"), "[Grid]\nShow=5\n") << name;
    std::filesystem::remove_all(folder.Path() / "system");
  }
}

}  // namespace
}  // namespace hullwright
