#include "base/Pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace hullwright {
namespace {

class Pages : public testing::Test {
protected:
  static constexpr std::ptrdiff_t mostOfAPage = 1 << 16;
  std::vector<char> text = std::vector<char>(1 << 20, 'x');
};

TEST_F(Pages, WhatLiesBesideTheStretchStays)
{
  constexpr std::ptrdiff_t margin = 100'001;
  GiveBackPages({text.data() + margin, text.size() - 2 * margin});
  EXPECT_EQ(std::count(text.begin(), text.begin() + margin, 'x'), margin);
  EXPECT_EQ(std::count(text.end() - margin, text.end(), 'x'), margin);
}

TEST_F(Pages, AStretchWithoutAWholePageStays)
{
  for (std::size_t at = 0; at < 9000; at += 50) GiveBackPages({text.data() + at, 50});
  GiveBackPages({text.data(), 0});
  GiveBackPages({});
  EXPECT_EQ(std::count(text.begin(), text.end(), 'x'), std::ssize(text));
}

TEST_F(Pages, OfAStretchAreEmptyAndServeAgain)
{
  GiveBackPages(text);
  EXPECT_LT(std::count(text.begin(), text.end(), 'x'), 2 * mostOfAPage);
  std::ranges::fill(text, 'y');
  EXPECT_EQ(std::count(text.begin(), text.end(), 'y'), std::ssize(text));
}

}  // namespace
}  // namespace hullwright
