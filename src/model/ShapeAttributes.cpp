#include "model/ShapeAttributes.h"

#include <utility>

namespace hullwright {

CShapeAttributes& CShapeAttributes::AppendFrom(const CShapeAttributes& source)
{
  WalkPresent(source.cursor, source.items, [this](const ShapeAttribute& pair) {
    items.push_back(std::make_unique<ShapeAttribute>(pair));
  });
  return *this;
}

void CShapeAttributes::Append(std::u16string_view name, std::u16string value)
{
  ShapeAttribute item{std::u16string(name), std::move(value)};
  items.push_back(std::make_unique<ShapeAttribute>(std::move(item)));
}

}  // namespace hullwright
