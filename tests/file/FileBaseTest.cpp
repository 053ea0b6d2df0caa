#include "file/FileBase.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

#include "support/TempFolder.h"

namespace hullwright {
namespace {

std::string TextOf(const CFileBase& file)
{
  return {file.buffer.get(), static_cast<std::size_t>(file.size)};
}

class FileBase : public testing::Test {
protected:
  test::TempFolder folder;
  CFileBase file;
};

TEST_F(FileBase, ReadsAWholeFileAndEndsItWithANul)
{
  file.position = 9;
  const std::u16string path = folder.Write("a.txt", "0\nSECTION\n");
  ASSERT_EQ(file.Load(path), 0);
  EXPECT_EQ(file.path, path);
  EXPECT_EQ(TextOf(file), "0\nSECTION\n");
  EXPECT_EQ(file.buffer[10], '\0');
  EXPECT_EQ(file.position, 0);
}

TEST_F(FileBase, FoldsLineEndsAndKeepsAStrayCarriageReturn)
{
  ASSERT_EQ(file.Load(folder.Write("a.txt", "a\r\nb\rc\r\r\nd\r")), 0);
  EXPECT_EQ(TextOf(file), "a\nb\rc\r\nd\r");
}

TEST_F(FileBase, AControlZEndsTheText)
{
  ASSERT_EQ(file.Load(folder.Write("a.txt", std::string("ab\x1A") + "cd")), 0);
  EXPECT_EQ(TextOf(file), "ab");
  EXPECT_EQ(file.buffer[2], '\0');
}

TEST_F(FileBase, AFileThatIsMissingEmptyOrAFolderFails)
{
  EXPECT_EQ(file.Load(folder.File("missing.txt")), -1);
  EXPECT_EQ(file.Load(folder.Write("empty.txt", "")), -1);
  EXPECT_EQ(file.Load(folder.File("")), -1);
}

TEST_F(FileBase, AFileOfTwoGibibytesFails)
{
  const std::u16string path = folder.Write("a.txt", "0\n");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 31U);  // what is added takes no room
  EXPECT_EQ(file.Load(path), -1);
  EXPECT_FALSE(file.buffer);
}

TEST_F(FileBase, AnEarlierBufferStaysWhenAFileWontOpenOrIsEmpty)
{
  ASSERT_EQ(file.Load(folder.Write("a.txt", "abc")), 0);
  for (const auto& path : {folder.File("missing.txt"), folder.Write("empty.txt", "")}) {
    EXPECT_EQ(file.Load(path), -1);
    EXPECT_EQ(TextOf(file), "abc");
  }
}

}  // namespace
}  // namespace hullwright
