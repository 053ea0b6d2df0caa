#include "dxf/ImportTally.h"

#include <algorithm>

namespace hullwright {
namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

}  // namespace

void ImportTally::CountIgnored(std::string_view keyword)
{
  if (std::ranges::none_of(keyword, IsLetter)) return;
  std::string name(keyword.substr(0, longestKeyword));
  // It is shown to people, whatever bytes the file has there.
  std::ranges::replace_if(
      name, [](char c) { return c < ' ' || c > '~'; }, '?');
  const auto known = ignored.find(name);
  if (known != ignored.end()) {
    ++known->second;
  } else if (ignored.size() < mostKeywords) {
    ignored.emplace(std::move(name), 1);
  } else {
    ++ignoredOthers;
  }
}

void ImportTally::CountShapes(const CShapes& group)
{
  ForEachEntry(group.shapes, [this](const CShape& shape) {
    switch (shape.type) {
      case ShapeType::Polyline: ++polylines; break;
      case ShapeType::Point: ++points; break;
      case ShapeType::Polygon: ++areas; break;
      case ShapeType::Text: ++texts; break;
      default: break;
    }
  });
}

}  // namespace hullwright
