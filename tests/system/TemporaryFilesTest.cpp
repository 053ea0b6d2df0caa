#include "system/TemporaryFiles.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include "support/TempFolder.h"
#include "system/OutputFile.h"

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

TEST_F(TemporaryFiles, MayBeMoreThanASignalWouldRemove)
{
  std::vector<std::string> all;
  for (int i = 0; i < 50; ++i) all.push_back(MakeTemporary(folder.Path()));
  for (const std::string& path : all) RemoveTemporary(path);
  EXPECT_TRUE(IsEmpty());
}

}  // namespace
}  // namespace hullwright
