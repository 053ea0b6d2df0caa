#pragma once

namespace hullwright {

class COutlineShape;
class CShapePoint;
class CShapePolygon;
class CShapeText;

/// Takes a shape as what it is.
class IShapeVisitor {
public:
  virtual ~IShapeVisitor() = default;
  virtual void Visit(const CShapePoint& point) = 0;
  virtual void Visit(const COutlineShape& outline) = 0;  ///< a polyline or a ring
  virtual void Visit(const CShapePolygon& polygon) = 0;
  virtual void Visit(const CShapeText& label) = 0;
};

}  // namespace hullwright
