#include "base/SlabPool.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "support/System.h"

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

TEST(SlabPool, SurvivesTakingAndGivingBackInAnyOrder)
{
  SlabPool<size> pool;
  std::vector<std::uint64_t*> held;
  std::mt19937 random(7);
  for (std::uint64_t round = 0; round < 200000; ++round) {
    // Grows to many slabs, then shrinks to none, twice.
    const bool grow = round / 50000 % 2 == 0;
    if (held.empty() || (random() % 4 != 0) == grow) {
      held.push_back(static_cast<std::uint64_t*>(pool.Take()));
      *held.back() = reinterpret_cast<std::uintptr_t>(held.back());
    } else {
      std::swap(held[random() % held.size()], held.back());
      ASSERT_EQ(*held.back(), reinterpret_cast<std::uintptr_t>(held.back()));
      pool.GiveBack(held.back());
      held.pop_back();
    }
  }
  for (std::uint64_t* const place : held) pool.GiveBack(place);
}

// What watches single allocations keeps what was given back, and sees by itself what was not.
#ifndef HULLWRIGHT_SINGLE_ALLOCATIONS
TEST(SlabPool, ASlabThatNobodyUsesGoes)
{
  constexpr std::size_t large = 8192;  // a slab has room for three
  constexpr long mostKilobytes = 50 << 10;
  SlabPool<large> pool;
  const long before = test::MostMemory();
  for (int round = 0; round < 30'000; ++round) {
    std::array<void*, 3> places{};
    for (void*& place : places) place = pool.Take();
    for (void* const place : places) pool.GiveBack(place);
  }
  EXPECT_LT(test::MostMemory() - before, mostKilobytes);
}
#endif

TEST(SlabPool, NothingIsGivenBackForNull)
{
  SlabPool<size> pool;
  void* const place = pool.Take();
  pool.GiveBack(nullptr);
  EXPECT_NE(pool.Take(), place);
}

}  // namespace
}  // namespace hullwright
