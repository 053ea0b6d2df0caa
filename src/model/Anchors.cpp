#include "model/Anchors.h"

#include <algorithm>
#include <vector>

namespace hullwright {

void CAnchors::Clear() { items.clear(); }

std::unique_ptr<CAnchor> CAnchors::NewAnchor() const
{
  std::vector<std::uint32_t> used;
  used.reserve(items.size());
  ForEachEntry(items, [&](const CAnchor& anchor) { used.push_back(anchor.id); });
  std::ranges::sort(used);
  auto anchor = std::make_unique<CAnchor>();
  anchor->id = 1;
  for (const std::uint32_t id : used) {
    if (id == anchor->id) ++anchor->id;
  }
  return anchor;
}

void CAnchors::AppendClones(const CAnchors& source)
{
  if (&source == this) return;
  Walk(source.cursor, source.items,
       [this](const CAnchor& anchor) { items.push_back(anchor.Clone()); });
}

}  // namespace hullwright
