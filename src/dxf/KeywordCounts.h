#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace hullwright {

/// How often keywords occurred. A file may have any number of different ones, and any bytes in
/// them: behind the first ones the others are counted together, and names are short and printable.
class KeywordCounts {
public:
  static constexpr std::size_t mostKeywords = 40;
  static constexpr std::size_t longestKeyword = 32;

  using Map = std::map<std::string, std::size_t, std::less<>>;

  KeywordCounts() = default;
  explicit KeywordCounts(Map counts, std::size_t others = 0)
      : counts_(std::move(counts)), others_(others)
  {
  }

  /// Counts a keyword, without blanks around it. One without a letter is none. Where memory does
  /// not suffice for its name, it is counted with the others.
  void Count(std::string_view keyword);

  const Map& ByKeyword() const { return counts_; }
  std::size_t Others() const { return others_; }

private:
  Map counts_;
  std::size_t others_ = 0;
};

}  // namespace hullwright
