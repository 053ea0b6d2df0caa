#pragma once

#include <cstddef>

#include "model/ShapePolygonRing.h"

namespace hullwright {

/// An area brought in by an import; never saved. The first ring is its outer boundary, the others
/// are holes, and its own vertices stay empty. Whatever happens to it happens to every ring.
class CShapePolygon : public CShape {
public:
  CShapePolygon();

  std::unique_ptr<CShape> Clone() const override;
  void Accept(IShapeVisitor& visitor) const override { visitor.Visit(*this); }
  void Draw(const CViewPort* viewPort) override;

  /// Whether the point is inside an odd number of rings, counted from the first; without
  /// tolerance, so that the viewport plays no part.
  bool HitTest(const CViewPort* viewPort, double x, double y) const override;
  void GetExtents(Extents& box) const override;

  /// The smallest distance from a ring; 1e24 without rings.
  double DistanceTo(double x, double y) const override;

  /// Removes the vertex from every ring and releases it, once.
  void RemoveVertex(const CShapeVertex* vertex) override;
  void GetVertices(std::vector<CShapeVertex*>& list) override;
  void Translate(double dx, double dy, double dz) override;
  void Scale(double sx, double sy, double sz) override;
  void Rotate(double angleDegrees) override;
  bool IsVisible(const CViewPort& viewPort) const override;

  /// Adds a vertex to a ring. An index at or past the number of rings makes one new ring, whatever
  /// the index; a ring whose entry is null takes nothing.
  void AddVertex(std::unique_ptr<CShapeVertex> vertex, std::size_t ringIndex);

  OwnedArray<CShapePolygonRing> rings;
};

}  // namespace hullwright
