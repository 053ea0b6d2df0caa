#pragma once

#include <benchmark/benchmark.h>

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace hullwright::bench {

/// Gathers values in one number that changes with each bit of them and with their order.
class Hash {
public:
  void Add(std::uint64_t value)
  {
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
    sum_ = std::rotl(sum_ ^ value, 29) * odd;
  }
  void Add(double value) { Add(std::bit_cast<std::uint64_t>(value)); }
  void Add(std::u16string_view text);
  void Add(std::string_view bytes);
  std::uint64_t Sum() const { return sum_ ^ (sum_ >> 32U); }

private:
  std::uint64_t sum_ = 0xCBF29CE484222325U;
};

/// Compares what a repetition gave with what the first run of the process gave under the same name,
/// and shows it as the benchmark's label. A difference, and a result of 0, ends the benchmark with
/// an error: false then.
bool SameAsBefore(benchmark::State& state, const std::string& name, std::uint64_t result);

/// Ends a benchmark with an error: it has not done its work.
void Fail(benchmark::State& state, const std::string& problem);

/// Whether any benchmark of this process ended with an error.
bool FoundWrongResults();

}  // namespace hullwright::bench
