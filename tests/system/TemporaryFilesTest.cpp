#include "system/TemporaryFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "support/TempFolder.h"
#include "system/Descriptors.h"
#include "system/InputFile.h"
#include "system/OutputFile.h"
#include "system/SystemFiles.h"

namespace hullwright {
namespace {

class TemporaryFiles : public testing::Test {
protected:
  bool IsEmpty() const { return std::filesystem::is_empty(folder.Path()); }

  test::TempFolder folder;
};

/// What another program does that is ended in the middle of its work.
void EndBy(int signal, const std::filesystem::path& folder)
{
  RemoveTemporaryFilesAtSignals();
  const OutputFile output((folder / "boat.xml").string());
  if (output.Path().empty() || !std::filesystem::exists(output.Path())) std::exit(1);
  std::raise(signal);
}

TEST_F(TemporaryFiles, GoWithTheSignalThatEndsTheProgram)
{
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) {
    EXPECT_EXIT(EndBy(signal, folder.Path()), testing::KilledBySignal(signal), "");
    EXPECT_TRUE(IsEmpty()) << signal;
  }
}

TEST_F(TemporaryFiles, LeaveASignalIgnoredThatTheProgramWasStartedToIgnore)
{
  const auto run = [] {
    std::signal(SIGHUP, SIG_IGN);
    RemoveTemporaryFilesAtSignals();
    std::raise(SIGHUP);
    std::exit(7);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(7), "");
}

TEST_F(TemporaryFiles, ThatWereKeptStayAtASignal)
{
  const auto run = [this] {
    RemoveTemporaryFilesAtSignals();
    OutputFile output((folder.Path() / "boat.xml").string());
    if (!output.Write("<vessel/>") || !output.Commit()) std::exit(1);
    std::raise(SIGTERM);
  };
  EXPECT_EXIT(run(), testing::KilledBySignal(SIGTERM), "");
  EXPECT_EQ(folder.Read("boat.xml"), "<vessel/>");
}

TEST_F(TemporaryFiles, ThatAreGoneLeaveTheirPlacesToThoseThatASignalTakesAlong)
{
  const auto run = [this] {
    RemoveTemporaryFilesAtSignals();
    for (int i = 0; i < 20; ++i) {
      RemoveTemporary(MakeTemporary(folder.Path()));
      KeepTemporary(MakeTemporary(folder.Path()), (folder.Path() / "boat.xml").string());
    }
    EndBy(SIGTERM, folder.Path());
  };
  EXPECT_EXIT(run(), testing::KilledBySignal(SIGTERM), "");
  EXPECT_TRUE(std::filesystem::remove(folder.Path() / "boat.xml"));
  EXPECT_TRUE(IsEmpty());
}

TEST_F(TemporaryFiles, ThatAreKeptTakeThePlaceOfWhatALinkNamesWithItsMode)
{
  namespace fs = std::filesystem;
  constexpr fs::perms forOwner = fs::perms::owner_read | fs::perms::owner_write;
  folder.Write("boat.xml", "former");
  fs::permissions(folder.Path() / "boat.xml", forOwner);
  fs::create_symlink(folder.Path() / "boat.xml", folder.Path() / "link.xml");
  OutputFile output((folder.Path() / "link.xml").string());
  ASSERT_TRUE(output.Write("new") && output.Commit()) << output.Problem();
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link.xml"));
  EXPECT_EQ(folder.Read("boat.xml"), "new");
  EXPECT_EQ(fs::status(folder.Path() / "boat.xml").permissions(), forOwner);
  EXPECT_EQ(OutputFile(folder.Path().string()).Path(), "");  // a folder is no output
}

TEST_F(TemporaryFiles, ThatCanNotTakeTheirPlaceAreReportedAndGo)
{
  const std::string path = (folder.Path() / "boat.xml").string();
  {
    OutputFile output(path);
    ASSERT_TRUE(output.Write("<vessel/>"));
    std::filesystem::create_directory(path);
    EXPECT_FALSE(output.Commit());
    EXPECT_EQ(output.Problem(), path + ": Is a directory");
    std::filesystem::remove(path);
  }
  EXPECT_TRUE(IsEmpty());
}

/// For as long as it lives the program runs for a user who may not write everything.
class PlainUser {
public:
  PlainUser() { EXPECT_TRUE(!isRoot_ || setresuid(nobody, nobody, 0) == 0); }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
  ~PlainUser() { EXPECT_TRUE(!isRoot_ || setresuid(0, 0, 0) == 0); }

private:
  static constexpr uid_t nobody = 65534;
  bool isRoot_ = geteuid() == 0;
};

TEST_F(TemporaryFiles, AreMadeNeitherForAFileNorInAFolderThatMayNotBeWritten)
{
  namespace fs = std::filesystem;
  constexpr fs::perms toRead{0555};
  const fs::path path = folder.Path() / "boat.xml";
  folder.Write("boat.xml", "kept");
  for (const auto& [ofFolder, ofFile] :
       {std::pair(fs::perms::all, toRead), std::pair(toRead, fs::perms::all)}) {
    fs::permissions(folder.Path(), ofFolder);
    fs::permissions(path, ofFile);
    const PlainUser user;
    const OutputFile output(path.string());
    EXPECT_EQ(output.Path(), "");
    EXPECT_TRUE(output.Problem().ends_with("boat.xml: Permission denied")) << output.Problem();
  }
}

TEST_F(TemporaryFiles, HaveTheModeOfAnyNewFileAndChangeThatOfNoOther)
{
  const mode_t before = umask(0027);
  const std::string path = MakeTemporary(folder.Path());
  EXPECT_EQ(umask(before), mode_t{0027});
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0640});
}

TEST_F(TemporaryFiles, AFileThatIsMadeBesideThemIsForAllToReadAndWriteButNotToRun)
{
  const std::string path = (folder.Path() / "log").string();
  const mode_t before = umask(0);
  const Descriptor file(OpenDescriptor(path, Access::MakeOrWrite));
  umask(before);
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0666});
}

TEST_F(TemporaryFiles, AreRemovedEachByItsOwnName)
{
  const std::string first = MakeTemporary(folder.Path());
  const std::string second = MakeTemporary(folder.Path());
  ASSERT_NE(first, second);
  RemoveTemporary(first);
  EXPECT_FALSE(std::filesystem::exists(first));
  EXPECT_TRUE(std::filesystem::exists(second));
  RemoveTemporary(second);
  RemoveTemporary({});
  EXPECT_TRUE(IsEmpty());
  EXPECT_EQ(MakeTemporary(folder.Path() / "none"), "");
}

TEST_F(TemporaryFiles, StandForInputsWhoseNamesAreNotUtf8AndGoWithThem)
{
  namespace fs = std::filesystem;
  const fs::path odd = folder.Path() / "b\xFFt.xml";
  folder.Write("boat.xml", "<vessel/>");
  fs::rename(folder.Path() / "boat.xml", odd);
  fs::path copy;
  {
    const InputFile input(odd.string());
    copy = input.Path();
    EXPECT_TRUE(IsUtf8(input.Path()));
    EXPECT_EQ(input.Name(), odd.string());
    EXPECT_EQ(input.Problem(), "");
    EXPECT_TRUE(input.IsDesign());
  }
  EXPECT_FALSE(fs::exists(copy));
  EXPECT_TRUE(fs::exists(odd));
}

TEST_F(TemporaryFiles, MayBeMoreThanASignalWouldRemove)
{
  std::vector<std::string> all;
  for (int i = 0; i < 50; ++i) all.push_back(MakeTemporary(folder.Path()));
  for (const std::string& path : all) RemoveTemporary(path);
  EXPECT_TRUE(IsEmpty());
}

}  // namespace
}  // namespace hullwright
