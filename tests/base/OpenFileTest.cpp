#include "base/OpenFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include "support/TempFolder.h"

namespace hullwright {
namespace {

void ExpectToWaitForNobodyAndToEndWithTheProgram(std::FILE* file)
{
  ASSERT_NE(file, nullptr);
  const int descriptor = fileno(file);
  EXPECT_NE(fcntl(descriptor, F_GETFL) & O_NONBLOCK, 0);
  EXPECT_NE(fcntl(descriptor, F_GETFD) & FD_CLOEXEC, 0);
}

TEST(OpenFile, WaitsForNoOtherProgramAndIsNotHandedToOne)
{
  const test::TempFolder folder;
  ExpectToWaitForNobodyAndToEndWithTheProgram(OpenToRead(folder.Write("a.xml", "a")).get());
  ExpectToWaitForNobodyAndToEndWithTheProgram(OpenToWrite(folder.File("b.xml")).get());
}

}  // namespace
}  // namespace hullwright
