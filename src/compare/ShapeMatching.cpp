#include "compare/ShapeMatching.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <compare>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

#include "base/Bits.h"
#include "base/Code.h"
#include "compare/NearPairs.h"
#include "compare/OutlineDistance.h"

namespace hullwright {
namespace {

using Shapes = std::vector<ShapeRecord>;

/// What two shapes must have in common to be compared at all.
std::uint64_t KeyOfKind(const ShapeRecord& shape)
{
  const auto side = static_cast<std::uint32_t>(NumberOf(shape.side));
  return Mixed(side, NumberOf(shape.type));
}

/// The same for those of one form and number of vertices; others may have the same key.
std::uint64_t KeyOfForm(const ShapeRecord& shape)
{
  std::uint64_t key = Mixed(KeyOfKind(shape), shape.vertices.size());
  for (const char16_t unit : shape.form.text) key = Mixed(key, unit);
  return key;
}

bool IsOfOneForm(const ShapeRecord& a, const ShapeRecord& b)
{
  return a.side == b.side && a.type == b.type && a.vertices.size() == b.vertices.size() &&
         a.form == b.form;
}

/// Orders shapes by all that they are, so that equal ones come together.
std::strong_ordering ContentOrder(const ShapeRecord& a, const ShapeRecord& b, bool byStyle)
{
  const auto head = [byStyle](const ShapeRecord& s) {
    const LineStyle style = byStyle ? s.style : LineStyle();
    return std::tuple(NumberOf(s.side), NumberOf(s.type), s.vertices.size(), style.colour,
                      std::bit_cast<std::uint32_t>(style.width), BitsOf(s.form.angle),
                      BitsOf(s.form.height));
  };
  if (const auto order = head(a) <=> head(b); std::is_neq(order)) return order;
  if (const auto order = a.form.text <=> b.form.text; std::is_neq(order)) return order;
  if (const auto order = a.form.ringEnds <=> b.form.ringEnds; std::is_neq(order)) return order;
  return std::lexicographical_compare_three_way(
      a.vertices.begin(), a.vertices.end(), b.vertices.begin(), b.vertices.end(),
      [](const Place& p, const Place& q) {
        return std::tuple(BitsOf(p.x), BitsOf(p.y), BitsOf(p.z)) <=>
               std::tuple(BitsOf(q.x), BitsOf(q.y), BitsOf(q.z));
      });
}

/// The first vertex.
GridItem BeginOf(const ShapeRecord& shape)
{
  const Place begin = shape.vertices.empty() ? Place() : shape.vertices[0];
  return {KeyOfForm(shape), begin.x, begin.y};
}

/// The mean place of the vertices as seen from the first one.
GridItem MiddleOf(const ShapeRecord& shape)
{
  GridItem item = {KeyOfForm(shape)};
  const auto count = static_cast<double>(std::max<std::size_t>(shape.vertices.size(), 1));
  for (const Place& vertex : shape.vertices) {
    const Place way = Way(shape.vertices[0], vertex);
    item.x += way.x / count;
    item.y += way.y / count;
  }
  return item;
}

/// A pair that a rule would allow.
struct Candidate {
  std::size_t former = 0;
  std::size_t current = 0;
  std::size_t score = 0;  ///< the larger the better
  double length = 0.0;    ///< the shorter the better
};

/// What is still without a partner, in order.
struct Leftover {
  std::vector<std::size_t> former;
  std::vector<std::size_t> current;
};

std::vector<std::size_t> IndicesOf(const Shapes& shapes)
{
  std::vector<std::size_t> indices(shapes.size());
  std::iota(indices.begin(), indices.end(), std::size_t{0});
  return indices;
}

/// Vertices of several shapes, as items of a grid.
struct VertexList {
  VertexList(const Shapes& shapes, const std::vector<std::size_t>& chosen)
  {
    for (const std::size_t owner : chosen) {
      for (const Place& place : shapes[owner].vertices) {
        items.push_back({KeyOfKind(shapes[owner]), place.x, place.y});
        places.push_back(place);
        owners.push_back(owner);
      }
    }
  }

  std::vector<GridItem> items;
  std::vector<Place> places;
  std::vector<std::size_t> owners;  ///< the shape of each
};

/// For pairs of shapes the number of vertices of the one that the other has as well.
using CommonCounts = std::map<std::pair<std::size_t, std::size_t>, std::size_t>;

/// Counts how many vertices of the first list's shapes stand in shapes of the second one.
CommonCounts CountCommon(const VertexList& vertices, const VertexList& others,
                         const Tolerance& tolerance, double cellSize)
{
  CommonCounts counts;
  std::vector<std::size_t> met;  // shapes that have the vertex
  std::size_t vertex = 0;
  const auto count = [&] {
    std::ranges::sort(met);
    met.erase(std::unique(met.begin(), met.end()), met.end());
    for (const std::size_t owner : met) ++counts[{vertices.owners[vertex], owner}];
    met.clear();
  };
  ForEachNearPair(vertices.items, others.items, cellSize, [&](std::size_t i, std::size_t k) {
    if (!tolerance.Same(vertices.places[i], others.places[k])) return;
    if (i != vertex) count();
    vertex = i;
    met.push_back(others.owners[k]);
  });
  if (!met.empty()) count();
  return counts;
}

/// Finds the pairs rule by rule.
class Matcher {
public:
  Matcher(const Shapes& former, const Shapes& current, const Tolerance& tolerance)
      : former_(former),
        current_(current),
        tolerance_(tolerance),
        // Twice the tolerance leaves room for the last bits of differences.
        cellSize_(std::max(2.0 * tolerance.Largest(), 1e-6)),
        left_{IndicesOf(former), IndicesOf(current)}
  {
  }

  std::vector<ShapeMatch> Run()
  {
    TakeIdentical(true);
    TakeIdentical(false);
    TakeBest(WithinTolerance(), MatchRule::Equal);
    TakeBest(MovedAlike(), MatchRule::Moved);
    TakeBest(WithCommonVertices(HasMostInCommon), MatchRule::Changed);
    TakeBest(MeasuredAnew(), MatchRule::Changed);
    TakeBest(WithCommonVertices(HasManyInCommon), MatchRule::Changed);
    return std::move(matches_);
  }

private:
  /// Pairs what has the same content, the first with the first.
  void TakeIdentical(bool byStyle)
  {
    const auto sorted = [byStyle](const Shapes& shapes, std::vector<std::size_t> left) {
      std::ranges::stable_sort(left, [&](std::size_t a, std::size_t b) {
        return std::is_lt(ContentOrder(shapes[a], shapes[b], byStyle));
      });
      return left;
    };
    const std::vector<std::size_t> formers = sorted(former_, left_.former);
    const std::vector<std::size_t> currents = sorted(current_, left_.current);
    for (std::size_t i = 0, k = 0; i < formers.size() && k < currents.size();) {
      const auto order = ContentOrder(former_[formers[i]], current_[currents[k]], byStyle);
      if (std::is_eq(order)) matches_.push_back({formers[i], currents[k], MatchRule::Equal});
      if (std::is_lteq(order)) ++i;
      if (std::is_gteq(order)) ++k;
    }
    DropMatched();
  }

  /// The shapes of a list that begin at a finite place, by that place: what was moved as a whole
  /// keeps this order, and so comes together where many are alike.
  static std::vector<std::size_t> ByPlace(const Shapes& shapes, std::vector<std::size_t> left)
  {
    const auto begin = [&shapes](std::size_t index) {
      const GridItem item = BeginOf(shapes[index]);
      return std::tuple(item.x, item.y);
    };
    std::erase_if(left, [&](std::size_t index) {
      const auto [x, y] = begin(index);
      return !std::isfinite(x) || !std::isfinite(y);
    });
    std::ranges::stable_sort(left, {}, begin);
    return left;
  }

  /// The pairs of one form whose items lie near each other and for which `fits` is true.
  template <class Fits>
  std::vector<Candidate> PairsOfForm(GridItem (*itemOf)(const ShapeRecord&), Fits fits) const
  {
    const auto items = [itemOf](const Shapes& shapes, const std::vector<std::size_t>& indices) {
      std::vector<GridItem> list;
      list.reserve(indices.size());
      for (const std::size_t index : indices) list.push_back(itemOf(shapes[index]));
      return list;
    };
    const std::vector<std::size_t> formers = ByPlace(former_, left_.former);
    const std::vector<std::size_t> currents = ByPlace(current_, left_.current);
    std::vector<Candidate> candidates;
    ForEachNearPair(items(former_, formers), items(current_, currents), cellSize_,
                    [&](std::size_t i, std::size_t k) {
                      const ShapeRecord& former = former_[formers[i]];
                      const ShapeRecord& current = current_[currents[k]];
                      if (!IsOfOneForm(former, current) || !fits(former, current)) return;
                      candidates.push_back({formers[i], currents[k]});
                    });
    return candidates;
  }

  std::vector<Candidate> WithinTolerance() const
  {
    return PairsOfForm(BeginOf, [this](const ShapeRecord& former, const ShapeRecord& current) {
      return std::ranges::equal(
          former.vertices, current.vertices,
          [this](const Place& p, const Place& q) { return tolerance_.Same(p, q); });
    });
  }

  std::vector<Candidate> MovedAlike() const
  {
    auto candidates = PairsOfForm(MiddleOf, [this](const ShapeRecord& f, const ShapeRecord& c) {
      return !f.vertices.empty() &&
             std::ranges::equal(f.vertices, c.vertices, [&](const Place& p, const Place& q) {
               return tolerance_.SameWay(p, q, f.vertices[0], c.vertices[0]);
             });
    });
    // A part of the vessel that was moved as a whole is known by the way that its shapes have gone.
    std::map<std::tuple<ViewSide, double, double, double>, std::size_t> ways;
    const auto roundedWay = [this](const Candidate& pair) {
      const ShapeRecord& shape = former_[pair.former];
      const Place way = Way(shape.vertices[0], current_[pair.current].vertices[0]);
      return std::tuple(shape.side, std::round(way.x / cellSize_) + 0.0,
                        std::round(way.y / cellSize_) + 0.0, std::round(way.z / cellSize_) + 0.0);
    };
    for (const Candidate& pair : candidates) ++ways[roundedWay(pair)];
    for (Candidate& pair : candidates) {
      pair.score = ways[roundedWay(pair)];
      pair.length =
          LengthOf(Way(former_[pair.former].vertices[0], current_[pair.current].vertices[0]));
    }
    return candidates;
  }

  static bool HasMostInCommon(std::size_t common, std::size_t, std::size_t longer)
  {
    return 2 * common > longer;
  }

  static bool HasManyInCommon(std::size_t common, std::size_t shorter, std::size_t longer)
  {
    return 2 * common >= shorter && 4 * common >= longer;
  }

  /// `suffices` gets the number of common vertices, then those of the shorter and the longer shape.
  std::vector<Candidate> WithCommonVertices(bool (*suffices)(std::size_t, std::size_t,
                                                             std::size_t)) const
  {
    const VertexList formers(former_, left_.former);
    const VertexList currents(current_, left_.current);
    const CommonCounts counts = CountCommon(formers, currents, tolerance_, cellSize_);
    const CommonCounts countsBack = CountCommon(currents, formers, tolerance_, cellSize_);
    std::vector<Candidate> candidates;
    for (const auto& [pair, count] : counts) {
      const auto back = countsBack.find({pair.second, pair.first});
      if (back == countsBack.end()) continue;
      const std::size_t common = std::min(count, back->second);
      const auto [shorter, longer] =
          std::minmax({former_[pair.first].vertices.size(), current_[pair.second].vertices.size()});
      if (suffices(common, shorter, longer)) {
        candidates.push_back({pair.first, pair.second, common});
      }
    }
    return candidates;
  }

  std::vector<Candidate> MeasuredAnew() const
  {
    const auto itemsOf = [](const Shapes& shapes, const std::vector<std::size_t>& left) {
      SizedItems items;
      for (const std::size_t index : ByPlace(shapes, left)) {
        items.Add(shapes[index], index, KeyOfForm(shapes[index]));
      }
      return items;
    };
    const SizedItems formers = itemsOf(former_, left_.former);
    const SizedItems currents = itemsOf(current_, left_.current);
    std::vector<Candidate> candidates;
    constexpr double cell = 1.0;
    ForEachNearPair(formers.Items(), currents.Items(), cell, [&](std::size_t i, std::size_t k) {
      const ShapeRecord& former = former_[formers.Owner(i)];
      const ShapeRecord& current = current_[currents.Owner(k)];
      const auto most = SizedItems::MostBetween(formers, i, currents, k);
      if (!most || !IsOfOneForm(former, current)) return;
      const auto distance = OutlineDistance(former, current, *most);
      if (distance) candidates.push_back({formers.Owner(i), currents.Owner(k), 0, *distance});
    });
    return candidates;
  }

  /// The rule's last word is the sum of the numbers, which no two pairs with a shape in common
  /// share.
  bool IsBetter(const Candidate& a, const Candidate& b) const
  {
    const auto rank = [this](const Candidate& pair) {
      return std::tuple(pair.length, former_[pair.former].number + current_[pair.current].number);
    };
    return a.score != b.score ? a.score > b.score : rank(a) < rank(b);
  }

  void TakeBest(std::vector<Candidate> candidates, MatchRule rule)
  {
    std::ranges::stable_sort(
        candidates, [this](const Candidate& a, const Candidate& b) { return IsBetter(a, b); });
    std::vector<bool> formerTaken(former_.size());
    std::vector<bool> currentTaken(current_.size());
    for (const Candidate& pair : candidates) {
      if (formerTaken[pair.former] || currentTaken[pair.current]) continue;
      formerTaken[pair.former] = true;
      currentTaken[pair.current] = true;
      matches_.push_back({pair.former, pair.current, rule});
    }
    DropMatched();
  }

  void DropMatched()
  {
    std::vector<bool> formerTaken(former_.size());
    std::vector<bool> currentTaken(current_.size());
    for (const ShapeMatch& match : matches_) {
      formerTaken[match.former] = true;
      currentTaken[match.current] = true;
    }
    std::erase_if(left_.former, [&](std::size_t index) { return formerTaken[index]; });
    std::erase_if(left_.current, [&](std::size_t index) { return currentTaken[index]; });
  }

  const Shapes& former_;
  const Shapes& current_;
  const Tolerance& tolerance_;
  double cellSize_;
  Leftover left_;
  std::vector<ShapeMatch> matches_;
};

}  // namespace

std::vector<ShapeMatch> MatchShapes(const std::vector<ShapeRecord>& former,
                                    const std::vector<ShapeRecord>& current,
                                    const Tolerance& tolerance)
{
  return Matcher(former, current, tolerance).Run();
}

}  // namespace hullwright
