#include "model/Shapes.h"

#include <algorithm>

#include "model/ViewSide.h"

namespace hullwright {

void CShapes::Clear() { shapes.clear(); }

void CShapes::AppendClones(const CShapes* source)
{
  if (source == nullptr) return;
  const std::size_t count = source->shapes.size();  // the source may be this group
  std::size_t taken = 0;
  for (const CShape* shape = WalkFirst(source->cursor, source->shapes);
       shape != nullptr && taken < count;
       shape = WalkNext(source->cursor, source->shapes), ++taken) {
    shapes.push_back(shape->Clone());
  }
}

bool CShapes::AnswersFor(std::int32_t side) const
{
  return viewCode == side || viewCode == ViewSide::All;
}

CShapes* FindViewGroup(const OwnedArray<CShapes>& shapeGroups, std::int32_t viewCode)
{
  const auto found = std::ranges::find_if(
      shapeGroups, [viewCode](const auto& group) { return group && group->AnswersFor(viewCode); });
  return found == shapeGroups.end() ? nullptr : found->get();
}

CShapes* GetShapes(OwnedArray<CShapes>& shapeGroups, std::int32_t viewCode)
{
  if (viewCode == 0) return nullptr;
  if (CShapes* group = FindViewGroup(shapeGroups, viewCode)) return group;
  return shapeGroups.emplace_back(std::make_unique<CShapes>(viewCode)).get();
}

void ClearGroups(OwnedArray<CShapes>& shapeGroups) { shapeGroups.clear(); }

}  // namespace hullwright
