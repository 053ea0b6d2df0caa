#include <chrono>
#include <cmath>

#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;

class ImportClock : public DxfFixture {};

std::int64_t Milliseconds()
{
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

TEST_F(ImportClock, RecordsBearTheSecondsWithTheirThousandthsCutOff)
{
  // Many imports, so that a clock in whole seconds or one that rounds can't pass by luck.
  constexpr int imports = 200;
  bool betweenSeconds = false;
  for (int i = 0; i < imports; ++i) {
    log.records.clear();
    const auto before = static_cast<double>(Milliseconds());
    Import("0\nEOF\n");
    const auto after = static_cast<double>(Milliseconds());
    ASSERT_FALSE(log.records.empty());
    for (const KeptTrace::Record& record : log.records) {
      const double seconds = record.elapsedSeconds;
      EXPECT_EQ(seconds * 1000.0, std::round(seconds * 1000.0));
      EXPECT_GE(seconds * 1000.0, before);
      EXPECT_LE(seconds * 1000.0, after);
      betweenSeconds = betweenSeconds || seconds != std::floor(seconds);
    }
  }
  EXPECT_TRUE(betweenSeconds);
}

}  // namespace
}  // namespace hullwright
