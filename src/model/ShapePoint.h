#pragma once

#include "model/Shape.h"

namespace hullwright {

/// A single point, brought in by an import; never saved.
class CShapePoint : public CShape {
public:
  CShapePoint();

  std::unique_ptr<CShape> Clone() const override;
  void Accept(IShapeVisitor& visitor) const override { visitor.Visit(*this); }
  void Draw(const CViewPort* viewPort) override;
  bool HitTest(const CViewPort* viewPort, double x, double y) const override;

  /// Widens by the position with a margin of one world unit on each side, at any zoom.
  void GetExtents(Extents& box) const override;
  void GetVertices(std::vector<CShapeVertex*>& list) override;
  void Translate(double dx, double dy, double dz) override;
  void Scale(double sx, double sy, double sz) override;
  void Rotate(double angleDegrees) override;
  bool IsVisible(const CViewPort& viewPort) const override;

  CShapeVertex position;
};

}  // namespace hullwright
