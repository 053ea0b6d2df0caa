#include "model/Shapes.h"

#include <algorithm>
#include <iterator>

#include "model/ViewSide.h"

namespace hullwright {

void CShapes::Clear() { shapes.clear(); }

void CShapes::AppendClones(const CShapes* source)
{
  if (source == nullptr) return;
  WalkPresent(source->cursor, source->shapes,
              [this](const CShape& shape) { shapes.push_back(shape.Clone()); });
}

void CShapes::TakeShapes(CShapes& source)
{
  shapes.reserve(shapes.size() + source.shapes.size());  // none is taken where memory ends
  std::ranges::move(source.shapes, std::back_inserter(shapes));
  source.shapes.clear();
}

void CShapes::GetExtents(Extents& box) const
{
  Walk(cursor, shapes, [&box](const CShape& shape) { shape.GetExtents(box); });
}

bool CShapes::AnswersFor(ViewSide side) const
{
  return viewCode == side || viewCode == ViewSide::All;
}

CShapes* FindViewGroup(const OwnedArray<CShapes>& shapeGroups, ViewSide viewCode)
{
  return FindEntry(shapeGroups,
                   [viewCode](const CShapes& group) { return group.AnswersFor(viewCode); });
}

CShapes* GetShapes(OwnedArray<CShapes>& shapeGroups, ViewSide viewCode)
{
  if (viewCode == ViewSide::None) return nullptr;
  if (CShapes* group = FindViewGroup(shapeGroups, viewCode)) return group;
  return shapeGroups.emplace_back(std::make_unique<CShapes>(viewCode)).get();
}

void ClearGroups(OwnedArray<CShapes>& shapeGroups) { shapeGroups.clear(); }

}  // namespace hullwright
