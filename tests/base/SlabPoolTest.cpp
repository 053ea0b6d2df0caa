#include "base/SlabPool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>

namespace hullwright {
namespace {

constexpr std::size_t size = 48;

TEST(SlabPool, GivesPlacesThatDoNotOverlap)
{
  SlabPool<size> pool;
  std::set<char*> places;
  for (int i = 0; i < 5000; ++i) places.insert(static_cast<char*>(pool.Take()));
  ASSERT_EQ(places.size(), 5000U);
  const char* last = nullptr;
  for (char* const place : places) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(place) % alignof(std::max_align_t), 0U);
    if (last != nullptr) {
      EXPECT_GE(place - last, static_cast<std::ptrdiff_t>(size));
    }
    last = place;
  }
  for (char* const place : places) pool.GiveBack(place);
}

TEST(SlabPool, UsesAPlaceAgain)
{
  SlabPool<size> pool;
  void* const first = pool.Take();
  void* const second = pool.Take();
  pool.GiveBack(second);
  EXPECT_EQ(pool.Take(), second);
  pool.GiveBack(first);
  pool.GiveBack(second);
}

TEST(SlabPool, GivesOutPlacesInOrder)
{
  SlabPool<size> pool;
  char* const first = static_cast<char*>(pool.Take());
  char* const second = static_cast<char*>(pool.Take());
  EXPECT_EQ(second - first, static_cast<std::ptrdiff_t>(size));
  pool.GiveBack(first);
  pool.GiveBack(second);
}

TEST(SlabPool, NothingIsGivenBackForNull)
{
  SlabPool<size> pool;
  void* const place = pool.Take();
  pool.GiveBack(nullptr);
  EXPECT_NE(pool.Take(), place);
}

}  // namespace
}  // namespace hullwright
