#pragma once

#include <algorithm>
#include <iterator>

namespace hullwright {

/// The first entry of a range of which `projection` gives a value; null where there is none.
template <class Range, class Value, class Projection>
constexpr auto* FindOrNull(Range& range, const Value& value, Projection projection)
{
  const auto found = std::ranges::find(range, value, projection);
  return found == std::ranges::end(range) ? nullptr : &*found;
}

/// The first entry of a range for which `matches` is true; null where there is none.
template <class Range, class Matches>
constexpr auto* FindIfOrNull(Range& range, Matches matches)
{
  const auto found = std::ranges::find_if(range, matches);
  return found == std::ranges::end(range) ? nullptr : &*found;
}

}  // namespace hullwright
