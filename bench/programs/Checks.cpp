#include "Checks.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <map>

namespace hullwright::bench {
namespace {

bool foundWrongResults = false;

}  // namespace

void Hash::Add(std::u16string_view text)
{
  Add(static_cast<std::uint64_t>(text.size()));
  for (const char16_t unit : text) Add(static_cast<std::uint64_t>(unit));
}

void Hash::Add(std::string_view bytes)
{
  Add(static_cast<std::uint64_t>(bytes.size()));
  for (std::size_t at = 0; at < bytes.size(); at += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    const std::string_view piece = bytes.substr(at, sizeof word);
    std::memcpy(&word, piece.data(), piece.size());
    Add(word);
  }
}

bool SameAsBefore(benchmark::State& state, const std::string& name, std::uint64_t result)
{
  static std::map<std::string, std::uint64_t> firstResults;
  const std::uint64_t first = firstResults.try_emplace(name, result).first->second;
  if (result == 0 || result != first) {
    Fail(state, "the result is not that of the first run");
    return false;
  }
  std::array<char, 24> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(result));
  state.SetLabel(text.data());
  return true;
}

void Fail(benchmark::State& state, const std::string& problem)
{
  foundWrongResults = true;
  state.SkipWithError(problem.c_str());
}

bool FoundWrongResults() { return foundWrongResults; }

}  // namespace hullwright::bench
