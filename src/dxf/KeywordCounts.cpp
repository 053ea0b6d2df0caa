#include "dxf/KeywordCounts.h"

#include <algorithm>
#include <new>

namespace hullwright {
namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// What is shown of a keyword.
std::string NameOf(std::string_view keyword)
{
  std::string name(keyword.substr(0, KeywordCounts::longestKeyword));
  std::ranges::replace_if(
      name, [](char c) { return c < ' ' || c > '~'; }, '?');
  return name;
}

}  // namespace

void KeywordCounts::Count(std::string_view keyword)
{
  if (std::ranges::none_of(keyword, IsLetter)) return;
  if (const auto known = counts_.find(keyword); known != counts_.end()) {
    ++known->second;
    return;
  }
  try {
    std::string name = NameOf(keyword);
    if (counts_.contains(name) || counts_.size() < mostKeywords) {
      ++counts_[std::move(name)];
      return;
    }
  } catch (const std::bad_alloc&) {
    // The name is what needs memory, not the number.
  }
  ++others_;
}

}  // namespace hullwright
