#pragma once

#include "model/Shape.h"

namespace hullwright::test {

/// A shape with nothing of its own: it does what the base of all shapes does, and has no copy.
class PlainShape : public CShape {
public:
  std::unique_ptr<CShape> Clone() const override { return CShape::Clone(); }
  void Accept(IShapeVisitor&) const override {}
};

}  // namespace hullwright::test
