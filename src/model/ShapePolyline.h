#pragma once

#include "base/ClassSlabs.h"
#include "model/OutlineShape.h"

namespace hullwright {

/// An open line through its vertices: the shape that a surveyor draws and the only one that is
/// saved.
class CShapePolyline final : public COutlineShape {
public:
  CShapePolyline();

  static void* operator new(std::size_t) { return TakePlace<CShapePolyline>(); }
  static void operator delete(void* place) { GiveBackPlace<CShapePolyline>(place); }

  /// A new polyline filled by `AddArc`.
  static std::unique_ptr<CShapePolyline> CreateArc(double cx, double cy, double radius,
                                                   double startDegrees, double sweepDegrees);

  /// The vertices of the copy have x, y and z only; their carried fields are 0.
  std::unique_ptr<CShape> Clone() const override;
  void Draw(const CViewPort* viewPort) override;
  bool HitTest(const CViewPort* viewPort, double x, double y) const override;
  void RemoveVertex(const CShapeVertex* vertex) override;
  bool IsVisible(const CViewPort& viewPort) const override;

  void AddVertex(double x, double y, double z)
  {
    vertices.push_back(std::make_unique<CShapeVertex>(x, y, z));
  }

  /// Appends copies of all vertices of `source` up to its first null entry, all six fields, walking
  /// it with its own cursor. Null does nothing.
  void AppendVertices(const CShapePolyline* source);

  /// Appends 61 vertices, whatever the radius and sweep. Zero degrees lies at cx - radius, and a
  /// positive sweep runs clockwise.
  void AddArc(double cx, double cy, double radius, double startDegrees, double sweepDegrees);
};

}  // namespace hullwright
