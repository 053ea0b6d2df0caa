#pragma once

#include "model/Shape.h"

namespace hullwright {

/// A shape whose geometry is its vertices, which move, scale and turn one by one.
class COutlineShape : public CShape {
public:
  void Accept(IShapeVisitor& visitor) const override { visitor.Visit(*this); }
  void GetExtents(Extents& box) const override;
  void GetVertices(std::vector<CShapeVertex*>& list) override;
  void Translate(double dx, double dy, double dz) override;
  void Scale(double sx, double sy, double sz) override;

  /// An angle of exactly 0.0 leaves every coordinate bit for bit.
  void Rotate(double angleDegrees) override;

protected:
  /// Appends copies of all vertices of `source`, all six fields.
  void CopyVertices(const COutlineShape& source);
};

}  // namespace hullwright
