#include "headless/KeptPointer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(KeptPointer, HasTheEntriesOfTheLastMenuAlone)
{
  const std::array<PopupEntry, 2> first = {{{CommandId::AddVertex, u"Add"}, {}}};
  const std::array<PopupEntry, 1> last = {{{CommandId::EditVertex, u"Edit"}}};
  KeptPointer pointer;
  pointer.Show(first, {1, 2});
  pointer.Show(last, {3, 4});
  EXPECT_THAT(pointer.offered, ElementsAre(Pair(CommandId::EditVertex, u"Edit")));
  EXPECT_TRUE(pointer.place == (ClientPoint{3, 4}));
}

}  // namespace
}  // namespace hullwright
