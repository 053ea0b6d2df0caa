#include "cli/DesignContent.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/ViewSides.h"

namespace hullwright {

GroupContent ContentOf(const CShapes& group)
{
  GroupContent content;
  ForEachEntry(group.shapes, [&](const CShape& shape) {
    ++content.polylines;
    content.vertices += shape.vertices.size();
    shape.GetExtents(content.box);
  });
  return content;
}

GroupContent ContentOf(const DesignState& design, ViewSide side)
{
  const CShapes* const group = FindViewGroup(design.shapeGroups, side);
  return group == nullptr ? GroupContent() : ContentOf(*group);
}

std::string GroupName(ViewSide viewCode) { return SideName(viewCode, "all", "view "); }

std::string UnitNameOf(CHullwrightApp& app, const std::string& otherwise)
{
  const std::u16string name = app.GetUnitName();
  return name.empty() ? otherwise : Utf8FromWide(name);
}

std::string PlaceText(double x, double y) { return FormatFixed(x, 3) + ", " + FormatFixed(y, 3); }

}  // namespace hullwright
