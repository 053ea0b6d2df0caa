#include "base/AlignedBlock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

#include "support/System.h"

namespace hullwright {
namespace {

constexpr std::size_t alignment = std::size_t{1} << 15U;
constexpr std::size_t size = alignment - 64;

TEST(AlignedBlock, StandsAtAMultipleOfItsAlignment)
{
  std::vector<void*> blocks;
  for (int i = 0; i < 20; ++i) {
    blocks.push_back(TakeAligned(size, alignment));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(blocks.back()) % alignment, 0U);
    std::memset(blocks.back(), i, size);
  }
  char content = 0;
  for (void* const block : blocks) {
    EXPECT_EQ(static_cast<char*>(block)[size - 1], content++);
    GiveBackAligned(block);
  }
}

TEST(AlignedBlock, HasNoMoreThanTheBytesAskedFor)
{
  void* const block = TakeAligned(size, alignment);
  EXPECT_GE(test::BytesOf(block), size);
  EXPECT_LT(test::BytesOf(block), size + 32);
  GiveBackAligned(block);
}

#ifndef HULLWRIGHT_SINGLE_ALLOCATIONS  // what watches them ends the program instead
TEST(AlignedBlock, ThatDoesNotFitIntoTheMemoryThrows)
{
  constexpr std::size_t most = std::numeric_limits<std::size_t>::max() / 2;
  EXPECT_THROW(TakeAligned(most, alignment), std::bad_alloc);
}
#endif

}  // namespace
}  // namespace hullwright
