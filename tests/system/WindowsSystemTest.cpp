#include <gmock/gmock.h>

#include <cstdio>
#include <vector>

#include "base/OpenFile.h"
#include "base/Paths.h"
#include "support/System.h"
#include "support/TempFolder.h"
#include "system/BaseFolders.h"
#include "system/Descriptors.h"
#include "system/FormerVersions.h"
#include "system/InputFile.h"
#include "system/OutputFile.h"
#include "system/SharedLibraries.h"
#include "system/TemporaryFiles.h"

// What Windows does otherwise than the other systems.
namespace hullwright {
namespace {

using testing::ElementsAre;

constexpr const char* oddName = "Schiff \xC3\x84rger \xE6\xB8\xAF \xF0\x9F\x9A\xA2.xml";

class WindowsFolders : public testing::Test {
protected:
  WindowsFolders() { test::SetVariable("LOCALAPPDATA", R"(C:\Users\me\AppData\Local)"); }
  ~WindowsFolders() override
  {
    test::SetVariable("LOCALAPPDATA", before_.c_str());
    for (const char* const name : {"XDG_STATE_HOME", "XDG_DATA_DIRS"}) {
      test::SetVariable(name, nullptr);
    }
  }

private:
  std::string before_ = Environment("LOCALAPPDATA", "");
};

TEST_F(WindowsFolders, OfTheUserAreInTheLocalDataUnlessAVariableNamesAnother)
{
  EXPECT_EQ(TextOf(StateFolder()), "C:/Users/me/AppData/Local/hullwright");
  test::SetVariable("XDG_STATE_HOME", "D:\\state");
  EXPECT_EQ(TextOf(StateFolder()), "D:/state/hullwright");
  test::SetVariable("XDG_STATE_HOME", "\\without\\drive");
  EXPECT_EQ(TextOf(StateFolder()), "C:/Users/me/AppData/Local/hullwright");
  test::SetVariable("LOCALAPPDATA", nullptr);
  EXPECT_EQ(StateFolder(), "");
}

TEST_F(WindowsFolders, OfAllUsersStandBetweenSemicolons)
{
  test::SetVariable("XDG_DATA_DIRS", "D:\\a;;relative;E:\\b");
  EXPECT_THAT(SystemDataFolders(), ElementsAre("D:/a", "E:/b"));
}

TEST_F(WindowsFolders, TheProgramKnowsItsFile)
{
  EXPECT_EQ(TextOf(ProgramFile().filename()), "test_system.exe");
}

class WindowsFiles : public testing::Test {
protected:
  std::string Text(const char* name) const { return TextOf(folder.Path() / PathOf(name)); }
  bool IsEmpty() const { return std::filesystem::is_empty(folder.Path()); }

  test::TempFolder folder;
};

TEST_F(WindowsFiles, WithNamesBeyondAnyCodePageAreReadAndReplaced)
{
  folder.Write(oddName, "<vessel/>");
  const InputFile input(Text(oddName));
  EXPECT_EQ(input.Problem(), "");
  EXPECT_TRUE(input.IsDesign());
  OutputFile output(Text(oddName));
  EXPECT_TRUE(output.Write("new\n\x1A\r\n")) << output.Problem();
  EXPECT_TRUE(output.Commit()) << output.Problem();
  EXPECT_EQ(folder.Read(oddName), "new\n\x1A\r\n");
}

TEST_F(WindowsFiles, KeepEveryByteOfLineEnds)
{
  const FilePointer file = OpenToWrite(folder.File("out"));
  ASSERT_TRUE(file);
  std::fputs("a\nb\r\n\x1A", file.get());
  std::fflush(file.get());
  EXPECT_EQ(folder.Read("out"), "a\nb\r\n\x1A");
}

TEST_F(WindowsFiles, MayBeReplacedWhileTheyAreRead)
{
  folder.Write("boat.xml", "old");
  const FilePointer reader = OpenToRead(folder.File("boat.xml"));
  ASSERT_TRUE(reader);
  EXPECT_TRUE(OpenToWrite(folder.File("boat.xml")));
  RemoveTemporary(Text("boat.xml"));
}

TEST_F(WindowsFiles, ThatAreTemporaryGoByTheirOwnNames)
{
  const std::string first = MakeTemporary(folder.Path());
  const std::string second = MakeTemporary(folder.Path());
  ASSERT_NE(first, second);
  RemoveTemporary(first);
  EXPECT_FALSE(std::filesystem::exists(PathOf(first)));
  EXPECT_TRUE(KeepTemporary(second, Text(oddName)));
  EXPECT_EQ(folder.Read(oddName), "");
  EXPECT_EQ(MakeTemporary(folder.Path() / "none"), "");
}

TEST_F(WindowsFiles, ThatAreLockedCanStillBeRead)
{
  folder.Write("log", "1\n");
  const Descriptor first(OpenDescriptor(Text("log"), Access::MakeOrWrite));
  const Descriptor second(OpenDescriptor(Text("log"), Access::MakeOrWrite));
  EXPECT_FALSE(IsLockedElsewhere(first.Number()));
  EXPECT_TRUE(IsLockedElsewhere(second.Number()));
  EXPECT_EQ(folder.Read("log"), "1\n");
}

TEST_F(WindowsFiles, ThatNobodyMayWriteAreReported)
{
  folder.Write("boat.xml", "kept");
  std::filesystem::permissions(folder.Path() / "boat.xml", std::filesystem::perms::owner_read);
  OutputFile output(Text("boat.xml"));
  EXPECT_EQ(output.Problem(), Text("boat.xml") + ": Permission denied");
  EXPECT_EQ(folder.Read("boat.xml"), "kept");
  std::filesystem::permissions(folder.Path() / "boat.xml", std::filesystem::perms::all);
}

TEST(WindowsLibraries, ThatAreMissingAreNone)
{
  SharedLibraries libraries;
  EXPECT_EQ(libraries.Load("no such library.dll"), nullptr);
  void* const system = libraries.Load("kernel32.dll");
  ASSERT_NE(system, nullptr);
  EXPECT_NE(libraries.Resolve(system, "CreateFileW"), nullptr);
  EXPECT_EQ(libraries.Resolve(system, "no such entry"), nullptr);
  libraries.Free(system);
}

}  // namespace
}  // namespace hullwright
