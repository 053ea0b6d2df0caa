#pragma once

#include <cstdint>

#include "model/Shape.h"
#include "model/ViewSide.h"
#include "model/Walk.h"

namespace hullwright {

/// The shapes of one view group, in insertion order. Whoever creates a group sets its code.
class CShapes {
public:
  CShapes() = default;
  explicit CShapes(ViewSide code) : viewCode(code) {}
  CShapes(const CShapes&) = delete;
  CShapes& operator=(const CShapes&) = delete;
  virtual ~CShapes() = default;

  /// Releases every shape.
  void Clear();

  /// Appends a clone of every shape of `source` up to its first null entry, walking it with its own
  /// cursor. Null does nothing.
  void AppendClones(const CShapes* source);

  /// Takes over every shape of `source`, which is left empty: what `AppendClones` of a source that
  /// goes at once would give, without the copies.
  void TakeShapes(CShapes& source);

  /// Widens a box by every shape up to the first null entry, walking with the group's own cursor.
  void GetExtents(Extents& box) const;

  /// Whether the group answers for a side: it bears the side's code, or the code of all sides.
  bool AnswersFor(ViewSide side) const;

  mutable std::uint32_t cursor = 0;
  ViewSide viewCode = ViewSide::None;
  OwnedArray<CShape> shapes;
};

/// The first group that answers for the side; null if there is none.
CShapes* FindViewGroup(const OwnedArray<CShapes>& shapeGroups, ViewSide viewCode);

/// The first group that answers for the side, made and appended if there is none. Null for code 0.
CShapes* GetShapes(OwnedArray<CShapes>& shapeGroups, ViewSide viewCode);

/// Releases every group.
void ClearGroups(OwnedArray<CShapes>& shapeGroups);

}  // namespace hullwright
