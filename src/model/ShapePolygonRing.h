#pragma once

#include "model/OutlineShape.h"

namespace hullwright {

/// One outline of a polygon, closed from its last vertex to its first. It draws nothing by itself
/// and is hit by nothing.
class CShapePolygonRing : public COutlineShape {
public:
  CShapePolygonRing();

  /// A new deep copy; its vertices have all six fields.
  std::unique_ptr<CShapePolygonRing> CopyRing() const;

  std::unique_ptr<CShape> Clone() const override { return CopyRing(); }

  /// 0.0 inside and for a ring without vertices, else the distance to the nearest edge that has
  /// one; 1e24 where none has.
  double DistanceTo(double x, double y) const override;

  /// Removes every entry of the vertex and releases it, also when it is not here: the caller has
  /// handed it over.
  void RemoveVertex(const CShapeVertex* vertex) override;

  /// True with a vertex in view, or with a corner of the view in the ring.
  bool IsVisible(const CViewPort& viewPort) const override;

  /// Whether the point lies in the ring or on its edge; a ring of fewer than three vertices
  /// contains nothing.
  bool ContainsPoint(double x, double y) const;

  /// Removes every entry of the vertex without releasing it.
  void TakeOut(const CShapeVertex* vertex);
};

}  // namespace hullwright
