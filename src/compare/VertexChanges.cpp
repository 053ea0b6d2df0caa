#include "compare/VertexChanges.h"

#include <algorithm>
#include <cstdint>
#include <tuple>

#include "base/Bits.h"

namespace hullwright {
namespace {

using Outline = std::span<const Place>;

/// The lengths of the longest common parts of the ends of two outlines, from each vertex of both.
class CommonParts {
public:
  CommonParts(Outline former, Outline current, const Tolerance& tolerance)
      : columns_(current.size() + 1), lengths_((former.size() + 1) * columns_)
  {
    for (std::size_t i = former.size(); i-- > 0;) {
      for (std::size_t k = current.size(); k-- > 0;) {
        lengths_[i * columns_ + k] = tolerance.Same(former[i], current[k])
                                         ? From(i + 1, k + 1) + 1
                                         : std::max(From(i + 1, k), From(i, k + 1));
      }
    }
  }

  std::uint32_t From(std::size_t i, std::size_t k) const { return lengths_[i * columns_ + k]; }

private:
  std::size_t columns_;
  std::vector<std::uint32_t> lengths_;
};

/// An order of places that has nothing to do with which outline they belong to.
bool ComesBefore(const Place& a, const Place& b)
{
  const auto bits = [](const Place& place) {
    return std::tuple(BitsOf(place.x), BitsOf(place.y), BitsOf(place.z));
  };
  return bits(a) < bits(b);
}

/// Gathers the differences of two outlines.
class VertexComparison {
public:
  VertexComparison(Outline former, Outline current, const Tolerance& tolerance)
      : former_(former), current_(current), tolerance_(tolerance)
  {
  }

  std::vector<VertexDifference> Run()
  {
    std::size_t begin = 0;
    std::size_t formerEnd = former_.size();
    std::size_t currentEnd = current_.size();
    while (begin < std::min(formerEnd, currentEnd) && IsSame(begin, begin)) ++begin;
    while (std::min(formerEnd, currentEnd) > begin && IsSame(formerEnd - 1, currentEnd - 1)) {
      --formerEnd;
      --currentEnd;
    }
    const std::size_t formerCount = formerEnd - begin;
    const std::size_t currentCount = currentEnd - begin;
    if (formerCount != 0 && currentCount > mostAligned / formerCount) {
      AddGap(begin, formerEnd, begin, currentEnd);
    } else {
      Align(begin, formerEnd, currentEnd);
    }
    return std::move(found_);
  }

private:
  bool IsSame(std::size_t i, std::size_t k) const
  {
    return tolerance_.Same(former_[i], current_[k]);
  }

  /// Aligns what stands from `begin` to the ends by the longest common part.
  void Align(std::size_t begin, std::size_t formerEnd, std::size_t currentEnd)
  {
    const Outline formers = former_.subspan(begin, formerEnd - begin);
    const Outline currents = current_.subspan(begin, currentEnd - begin);
    const CommonParts common(formers, currents, tolerance_);
    std::size_t i = 0;
    std::size_t k = 0;
    std::size_t formerGap = 0;
    std::size_t currentGap = 0;
    while (i < formers.size() && k < currents.size()) {
      if (IsSame(begin + i, begin + k)) {
        AddGap(begin + formerGap, begin + i, begin + currentGap, begin + k);
        formerGap = ++i;
        currentGap = ++k;
      } else if (PassesFormer(common, formers, currents, i, k)) {
        ++i;
      } else {
        ++k;
      }
    }
    AddGap(begin + formerGap, formerEnd, begin + currentGap, currentEnd);
  }

  /// Whether the former vertex is the next one to pass over. Where both would do, the longer rest
  /// decides, then the places, so that no outline is preferred.
  static bool PassesFormer(const CommonParts& common, Outline formers, Outline currents,
                           std::size_t i, std::size_t k)
  {
    if (common.From(i + 1, k) != common.From(i, k + 1)) {
      return common.From(i + 1, k) > common.From(i, k + 1);
    }
    const std::size_t formerRest = formers.size() - i;
    const std::size_t currentRest = currents.size() - k;
    if (formerRest != currentRest) return formerRest > currentRest;
    return ComesBefore(formers[i], currents[k]);
  }

  /// Adds what stands between two common vertices: as many as both have were moved.
  void AddGap(std::size_t i, std::size_t formerEnd, std::size_t k, std::size_t currentEnd)
  {
    for (; i < formerEnd && k < currentEnd; ++i, ++k) {
      if (!IsSame(i, k)) found_.push_back({{i + 1, k + 1}, {former_[i], current_[k]}});
    }
    for (; i < formerEnd; ++i) found_.push_back({{i + 1, 0}, {former_[i], {}}});
    for (; k < currentEnd; ++k) found_.push_back({{0, k + 1}, {{}, current_[k]}});
  }

  Outline former_;
  Outline current_;
  const Tolerance& tolerance_;
  std::vector<VertexDifference> found_;
};

}  // namespace

std::vector<VertexDifference> CompareVertices(std::span<const Place> former,
                                              std::span<const Place> current,
                                              const Tolerance& tolerance)
{
  return VertexComparison(former, current, tolerance).Run();
}

bool IsReversed(std::span<const Place> former, std::span<const Place> current,
                const Tolerance& tolerance)
{
  return std::equal(former.begin(), former.end(), current.rbegin(), current.rend(),
                    [&](const Place& p, const Place& q) { return tolerance.Same(p, q); });
}

}  // namespace hullwright
