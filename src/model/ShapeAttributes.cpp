#include "model/ShapeAttributes.h"

namespace hullwright {

CShapeAttributes& CShapeAttributes::AppendFrom(const CShapeAttributes& source)
{
  WalkPresent(source.cursor, source.items, [this](const ShapeAttribute& pair) {
    items.push_back(std::make_unique<ShapeAttribute>(pair));
  });
  return *this;
}

void CShapeAttributes::Append(std::u16string_view name, std::u16string_view value)
{
  items.push_back(std::make_unique<ShapeAttribute>(
      ShapeAttribute{std::u16string(name), std::u16string(value)}));
}

}  // namespace hullwright
