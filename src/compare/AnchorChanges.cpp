#include "compare/AnchorChanges.h"

#include <deque>
#include <map>
#include <tuple>

#include "base/Bits.h"
#include "compare/DesignRecords.h"

namespace hullwright {
namespace {

using Records = std::vector<AnchorRecord>;

/// What makes an anchor the one that it is.
struct AnchorKey {
  std::uint32_t id = 0;
  std::u16string name;
  std::uint64_t x = 0;
  std::uint64_t y = 0;

  bool operator<(const AnchorKey& other) const
  {
    return std::tie(id, name, x, y) < std::tie(other.id, other.name, other.x, other.y);
  }
};

AnchorKey ByAll(const AnchorRecord& anchor)
{
  return {anchor.id, anchor.name, BitsOf(anchor.place.x), BitsOf(anchor.place.y)};
}

AnchorKey ByNumberAndName(const AnchorRecord& anchor) { return {anchor.id, anchor.name}; }
AnchorKey ByName(const AnchorRecord& anchor) { return {0, anchor.name}; }
AnchorKey ByNumber(const AnchorRecord& anchor) { return {anchor.id, {}}; }

struct KeyRule {
  AnchorKey (*keyOf)(const AnchorRecord&);
  bool needsName;
};

constexpr KeyRule keyRules[] = {
    {ByAll, false}, {ByNumberAndName, false}, {ByName, true}, {ByNumber, false}};

Records RecordsOf(const CAnchors& anchors, UnitCode from, UnitCode to)
{
  Records records;
  ForEachEntry(anchors.items, [&](const CAnchor& anchor) {
    const CShapeVertex place(anchor.attachmentX, anchor.attachmentY, 0.0);
    records.push_back({anchor.id, anchor.name, PlaceOf(place, from, to)});
  });
  return records;
}

/// For each current anchor the former one that it was; null for none. What was found is taken out
/// of `left`.
void Match(const KeyRule& rule, std::vector<const AnchorRecord*>& left, const Records& current,
           std::vector<const AnchorRecord*>& partners)
{
  const auto takesPart = [&rule](const AnchorRecord& anchor) {
    return !rule.needsName || !anchor.name.empty();
  };
  std::map<AnchorKey, std::deque<const AnchorRecord**>> places;
  for (const AnchorRecord*& former : left) {
    if (former != nullptr && takesPart(*former)) places[rule.keyOf(*former)].push_back(&former);
  }
  for (std::size_t i = 0; i < current.size(); ++i) {
    if (partners[i] != nullptr || !takesPart(current[i])) continue;
    const auto found = places.find(rule.keyOf(current[i]));
    if (found == places.end() || found->second.empty()) continue;
    partners[i] = *found->second.front();
    *found->second.front() = nullptr;
    found->second.pop_front();
  }
}

}  // namespace

std::vector<AnchorDifference> CompareAnchors(const CAnchors& former, UnitCode formerUnit,
                                             const CAnchors& current, UnitCode unit,
                                             const Tolerance& tolerance)
{
  const Records formers = RecordsOf(former, formerUnit, unit);
  const Records currents = RecordsOf(current, unit, unit);
  std::vector<const AnchorRecord*> left;
  for (const AnchorRecord& anchor : formers) left.push_back(&anchor);
  std::vector<const AnchorRecord*> partners(currents.size());
  for (const KeyRule& rule : keyRules) Match(rule, left, currents, partners);
  std::vector<AnchorDifference> differences;
  for (std::size_t i = 0; i < currents.size(); ++i) {
    const AnchorRecord& anchor = currents[i];
    if (partners[i] == nullptr) {
      differences.push_back({{std::nullopt, anchor}});
      continue;
    }
    const AnchorRecord& formerAnchor = *partners[i];
    const bool moved = !tolerance.Same(formerAnchor.place, anchor.place);
    if (moved || formerAnchor.id != anchor.id || formerAnchor.name != anchor.name) {
      differences.push_back({{formerAnchor, anchor}, moved});
    }
  }
  for (const AnchorRecord* const removed : left) {
    if (removed != nullptr) differences.push_back({{*removed, std::nullopt}});
  }
  return differences;
}

}  // namespace hullwright
