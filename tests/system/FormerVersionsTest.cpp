#include "system/FormerVersions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <vector>

#include "base/Paths.h"
#include "base/Text.h"
#include "support/System.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Former : public testing::Test {
protected:
  /// Saves a text over a file, as the program does.
  std::u16string SaveOver(const std::string& name, const std::string& text)
  {
    std::u16string copy = versions.Keep(folder.File(name));
    folder.Write(name, text);
    versions.Release();
    return copy;
  }

  /// Makes a file one that nobody can write, also for a user who may write everything.
  void Block(const std::string& name) const
  {
    fs::remove(folder.Path() / name);
    fs::create_directory(folder.Path() / name);
  }
  void Unblock(const std::string& name) const { fs::remove(folder.Path() / name); }

  /// What the copies hold, by name.
  std::vector<std::string> Copies() const
  {
    std::vector<fs::path> paths;
    if (fs::exists(state)) {
      for (const auto& entry : fs::directory_iterator(state)) paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<std::string> texts;
    for (const fs::path& path : paths) {
      texts.push_back(folder.Read(fs::relative(path, folder.Path()).string()));
    }
    return texts;
  }

  test::TempFolder folder;
  fs::path state = folder.Path() / "state" / "hullwright";
  FormerVersions versions{state};
};

TEST_F(Former, ANewFileHasNone)
{
  EXPECT_EQ(SaveOver("boat.xml", "first"), u"");
  EXPECT_FALSE(fs::exists(state));
}

TEST_F(Former, TheCopyBearsTheNameOfTheFileAndTheTime)
{
  SaveOver("boat.xml", "first");
  const fs::path copy = PathOf(SaveOver("boat.xml", "second"));
  EXPECT_EQ(copy.parent_path(), state);
  const std::regex form(
      "boat\\.[0-9A-F]{16}\\.000001\\."
      "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}-[0-9]{2}-[0-9]{2}\\.[0-9]{3}Z\\.xml");
  EXPECT_TRUE(std::regex_match(TextOf(copy.filename()), form)) << copy;
  EXPECT_THAT(Copies(), ElementsAre("first"));
}

TEST_F(Former, TheLastFiveOfAPathAreKept)
{
  for (const char* text : {"1", "2", "3", "4", "5", "6", "7", "8"}) SaveOver("boat.xml", text);
  EXPECT_THAT(Copies(), ElementsAre("3", "4", "5", "6", "7"));
}

TEST_F(Former, PathsDoNotPushEachOthersVersionsOut)
{
  fs::create_directory(folder.Path() / "other");
  SaveOver("boat.xml", "mine");
  for (const char* text : {"1", "2", "3", "4", "5", "6", "7"}) SaveOver("other/boat.xml", text);
  SaveOver("boat.xml", "new");
  EXPECT_EQ(Copies().size(), 6U);
  EXPECT_THAT(Copies(), testing::Contains("mine"));
}

TEST_F(Former, SavingAgainWithoutAChangeAddsNoCopy)
{
  SaveOver("boat.xml", "same");
  const std::u16string first = SaveOver("boat.xml", "same");
  EXPECT_EQ(SaveOver("boat.xml", "same"), first);
  EXPECT_THAT(Copies(), ElementsAre("same"));
}

TEST_F(Former, AChangeAnywhereInALargeFileAddsACopy)
{
  std::string text(100'000, 'x');
  SaveOver("boat.xml", text);
  SaveOver("boat.xml", text);
  EXPECT_EQ(Copies().size(), 1U);
  for (const std::size_t at : {text.size() - 1, std::size_t{50'000}, std::size_t{0}}) {
    const std::size_t before = Copies().size();
    text[at] = 'y';
    SaveOver("boat.xml", text);
    SaveOver("boat.xml", text);
    EXPECT_EQ(Copies().size(), before + 1);
    EXPECT_EQ(Copies().back(), text);
  }
}

TEST_F(Former, AnEmptyFileIsKeptOnce)
{
  for (int i = 0; i < 3; ++i) SaveOver("boat.xml", "");
  EXPECT_THAT(Copies(), ElementsAre(""));
}

TEST_F(Former, AFileReachedThroughALinkIsTheFileThatTheLinkNames)
{
  SaveOver("boat.xml", "1");
  fs::create_symlink(folder.Path() / "boat.xml", folder.Path() / "link.xml");
  for (const char* text : {"2", "3", "4", "5", "6", "7"}) SaveOver("link.xml", text);
  EXPECT_THAT(Copies(), ElementsAre("2", "3", "4", "5", "6"));
}

TEST_F(Former, TheFolderIsForItsOwnerAloneFromTheFirstCopyOn)
{
  SaveOver("boat.xml", "1");
  SaveOver("boat.xml", "2");
  EXPECT_THAT(Copies(), ElementsAre("1"));
  EXPECT_EQ(fs::status(state).permissions(), fs::perms::owner_all);
}

TEST_F(Former, CopiesAreInTheOrderOfTheirMakingWhateverTheClockSays)
{
  SaveOver("boat.xml", "1");
  const fs::path first = Utf8FromWide(SaveOver("boat.xml", "2"));
  std::string future = first.filename().string();
  const std::string count = ".000001.";
  future.replace(future.find(count) + count.size(), 4, "2099");
  fs::rename(first, state / future);
  for (const char* text : {"3", "4", "5", "6", "7", "8"}) SaveOver("boat.xml", text);
  EXPECT_THAT(Copies(), ElementsAre("3", "4", "5", "6", "7"));
}

TEST_F(Former, TheCountOfACopyStaysOneOfSixDigits)
{
  SaveOver("boat.xml", "1");
  const fs::path first = PathOf(SaveOver("boat.xml", "2"));
  const std::regex count("\\.000001\\.");
  fs::rename(first, state / std::regex_replace(TextOf(first.filename()), count, ".999999."));
  const std::string next = TextOf(PathOf(SaveOver("boat.xml", "3")));
  EXPECT_NE(next.find(".000000."), std::string::npos) << next;
}

TEST_F(Former, AFileThatLostItsBytesGetsThemBack)
{
  SaveOver("boat.xml", "good\n\x1A\r\n");
  versions.Keep(folder.File("boat.xml"));
  folder.Write("boat.xml", "");
  EXPECT_EQ(versions.PutBack(), Restored::AsBefore);
  EXPECT_EQ(folder.Read("boat.xml"), "good\n\x1A\r\n");
  EXPECT_EQ(versions.PutBack(), Restored::AsBefore);
}

TEST_F(Former, WhatAFailedSaveLeavesWhereNoFileWasIsTakenAway)
{
  versions.Keep(folder.File("boat.xml"));
  EXPECT_EQ(versions.PutBack(), Restored::Nothing);
  folder.Write("boat.xml", "half");
  EXPECT_EQ(versions.PutBack(), Restored::Nothing);
  EXPECT_EQ(folder.Read("boat.xml"), "(no file)");
}

TEST_F(Former, ADamagedFileIsNotKeptInThePlaceOfTheGoodOne)
{
  SaveOver("boat.xml", "good");
  const std::u16string copy = versions.Keep(folder.File("boat.xml"));
  Block("boat.xml");
  EXPECT_EQ(versions.PutBack(), Restored::Damaged);
  Unblock("boat.xml");
  folder.Write("boat.xml", "torn");
  EXPECT_EQ(versions.Keep(folder.File("boat.xml")), copy);
  EXPECT_THAT(Copies(), ElementsAre("good"));
  EXPECT_EQ(versions.PutBack(), Restored::AsBefore);
  EXPECT_EQ(folder.Read("boat.xml"), "good");
}

TEST_F(Former, AfterAWholeSaveADamagedFileIsOneAsAnyOther)
{
  SaveOver("boat.xml", "good");
  versions.Keep(folder.File("boat.xml"));
  Block("boat.xml");
  EXPECT_EQ(versions.PutBack(), Restored::Damaged);
  Unblock("boat.xml");
  SaveOver("boat.xml", "new");
  SaveOver("boat.xml", "newer");
  EXPECT_THAT(Copies(), ElementsAre("good", "new"));
}

TEST_F(Former, WithoutAFolderToCopyToTheBytesCanStillBePutBack)
{
  folder.Write("state", "a file where the folder should be");
  SaveOver("boat.xml", "good");
  EXPECT_EQ(versions.Keep(folder.File("boat.xml")), u"");
  folder.Write("boat.xml", "half");
  EXPECT_EQ(versions.PutBack(), Restored::AsBefore);
  EXPECT_EQ(folder.Read("boat.xml"), "good");
}

TEST_F(Former, ACopyThatTheDiskHasNoRoomForIsTakenAway)
{
  folder.Write("boat.xml", std::string(10'000, 'x'));
  {
    const test::FileSizeLimit limit(4096);
    EXPECT_EQ(versions.Keep(folder.File("boat.xml")), u"");
  }
  EXPECT_TRUE(fs::exists(state));
  EXPECT_THAT(Copies(), IsEmpty());
}

TEST_F(Former, FilesTooLargeForADesignAreNotRead)
{
  folder.Write("large.xml", "");
  fs::resize_file(folder.Path() / "large.xml", (256U << 20U) + 1);
  EXPECT_EQ(versions.Keep(folder.File("large.xml")), u"");
  EXPECT_EQ(versions.PutBack(), Restored::Unknown);
}

TEST_F(Former, FoldersAndDevicesAreNoFilesToKeep)
{
  EXPECT_EQ(versions.Keep(folder.File("")), u"");
  EXPECT_EQ(versions.Keep(u"/dev/full"), u"");
  EXPECT_THAT(Copies(), IsEmpty());
}

TEST_F(Former, LongNamesAreCutBetweenCharacters)
{
  std::string name;
  for (int i = 0; i < 61; ++i) name += "\xE6\xB8\xAF";  // 183 bytes, and 160 is the limit
  folder.Write(name + ".xml", "long");
  const fs::path copy = PathOf(versions.Keep(folder.File(name + ".xml")));
  EXPECT_TRUE(TextOf(copy.filename()).starts_with(name.substr(0, 159) + "."));
  name.insert(0, "a");
  folder.Write(name + ".xml", "long");
  const fs::path odd = PathOf(versions.Keep(folder.File(name + ".xml")));
  EXPECT_TRUE(TextOf(odd.filename()).starts_with(name.substr(0, 160) + "."));
}

TEST_F(Former, AnEndingThatIsTooLongForANameIsLeftOff)
{
  const std::string name = "boat." + std::string(200, 'x');
  folder.Write(name, "long");
  const fs::path copy = Utf8FromWide(versions.Keep(folder.File(name)));
  EXPECT_EQ(copy.extension().string().back(), 'Z');
  EXPECT_THAT(Copies(), ElementsAre("long"));
  const std::string longest = "." + std::string(15, 'x');
  folder.Write("boat" + longest, "long");
  EXPECT_EQ(TextOf(PathOf(versions.Keep(folder.File("boat" + longest))).extension()), longest);
}

/// Gives an environment variable its value back.
class Variable {
public:
  explicit Variable(const char* name) : name_(name)
  {
    if (const char* const value = std::getenv(name)) before_ = value;
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable()
  {
    if (before_) {
      test::SetVariable(name_, before_->c_str());
    } else {
      test::SetVariable(name_, nullptr);
    }
  }

private:
  const char* name_;
  std::optional<std::string> before_;
};

TEST(UserState, FollowsTheRulesForBaseFolders)
{
  const Variable state("XDG_STATE_HOME");
  const Variable home("HOME");
  test::SetVariable("XDG_STATE_HOME", "/home/me/state");
  EXPECT_EQ(StateFolder(), "/home/me/state/hullwright");
  test::SetVariable("XDG_STATE_HOME", "relative");
  test::SetVariable("HOME", "/home/me");
  EXPECT_EQ(StateFolder(), "/home/me/.local/state/hullwright");
  test::SetVariable("XDG_STATE_HOME", nullptr);
  EXPECT_EQ(StateFolder(), "/home/me/.local/state/hullwright");
  test::SetVariable("HOME", nullptr);
  EXPECT_EQ(StateFolder(), "");
}

}  // namespace
}  // namespace hullwright
