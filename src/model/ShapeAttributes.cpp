#include "model/ShapeAttributes.h"

namespace hullwright {

CShapeAttributes& CShapeAttributes::AppendFrom(const CShapeAttributes& source)
{
  // Only what stands in the source now is appended, also when it is this very list.
  const std::size_t count = source.items.size();
  std::size_t taken = 0;
  for (const ShapeAttribute* pair = WalkFirst(source.cursor, source.items);
       pair != nullptr && taken < count; pair = WalkNext(source.cursor, source.items), ++taken) {
    items.push_back(std::make_unique<ShapeAttribute>(*pair));
  }
  return *this;
}

}  // namespace hullwright
