#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "base/Numbers.h"
#include "replay/driver/Names.h"
#include "replay/driver/Player.h"
#include "replay/random/ByteScript.h"
#include "replay/random/Invariants.h"
#include "replay/random/StepMaker.h"
#include "support/TempFolder.h"

// Random scripts on the whole editor: whatever the user does, in whatever order, certain things
// hold after each step.
namespace hullwright::replay {
namespace {

constexpr int stepsOfScript = 200;

/// Number of scripts, the most where the sanitizers look on; HULLWRIGHT_SCRIPTS sets another one.
int Scripts()
{
#ifdef HULLWRIGHT_SANITIZE
  constexpr int usual = 1000;
#else
  constexpr int usual = 100;
#endif
  const char* const asked = std::getenv("HULLWRIGHT_SCRIPTS");
  return asked == nullptr ? usual : ParseInt32(std::string_view(asked), 10);
}

void PlayScript(unsigned seed)
{
  const test::TempFolder work;
  MakeWorkFolder(work.Path());
  ReplayEditor editor(work.Path());
  editor.Start({});
  Player player(editor);
  RandomChoices choices(seed);
  StepMaker maker(choices);
  player.Play(Json::object({{"do", "size"}, {"cx", 800}, {"cy", 600}}), Detail::Events);
  for (int step = 0; step < stepsOfScript; ++step) {
    const Json made = maker.Next();
    Json reported = made;
    NamesForNumbers(reported);
    SCOPED_TRACE("script " + std::to_string(seed) + ", step " + std::to_string(step) + ": " +
                 reported.dump());
    player.Play(made, Detail::Events);
    EXPECT_EQ(BrokenRule(editor), "");
    if (testing::Test::HasFailure()) return;
  }
}

/// Plays every other script from the given one on: halves that run side by side.
void PlayEveryOtherScript(int first)
{
  for (int seed = first; seed <= Scripts() && !testing::Test::HasFailure(); seed += 2) {
    PlayScript(static_cast<unsigned>(seed));
  }
}

TEST(RandomScripts, OfOddSeedsKeepTheDesignWhole) { PlayEveryOtherScript(1); }

TEST(RandomScripts, OfEvenSeedsKeepTheDesignWhole) { PlayEveryOtherScript(2); }

TEST(ByteScripts, OfTheFuzzTargetsSeedsKeepTheDesignWhole)
{
  const test::TempFolder work;
  MakeWorkFolder(work.Path());
  int seeds = 0;
  for (const auto& seed : std::filesystem::directory_iterator(HULLWRIGHT_REPLAY_SEEDS)) {
    std::ifstream file(seed.path(), std::ios::binary);
    const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(PlayBytes(bytes, work.Path()), "") << seed.path();
    ++seeds;
  }
  EXPECT_GE(seeds, 3);
}

TEST(ByteScripts, OfAnyBytesKeepTheDesignWhole)
{
  const test::TempFolder work;
  MakeWorkFolder(work.Path());
  for (unsigned seed = 1; seed <= 50; ++seed) {
    RandomChoices choices(seed);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(choices.Below(1500)));
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(choices.Below(256));
    EXPECT_EQ(PlayBytes(bytes, work.Path()), "") << seed;
  }
}

}  // namespace
}  // namespace hullwright::replay
