#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/Extents.h"
#include "model/ShapeAttributes.h"
#include "model/ShapeStyle.h"
#include "model/ShapeVertex.h"
#include "model/ShapeVisitor.h"
#include "model/Walk.h"

namespace hullwright {

class CViewPort;

/// Codes of the concrete shapes. Only polylines reach the design file and the object tree.
enum class ShapeType : std::uint16_t {
  None = 0,  ///< of a shape that was reset
  Point = 1,
  Polyline = 2,
  Polygon = 3,
  Text = 8,
  Ring = 9,
};

/// Base of everything that is drawn in a view group. All coordinates are world coordinates in the
/// design's length unit, all angles degrees. A shape owns its vertices, style and attributes and is
/// itself owned by the group that it was handed to. `Draw`, `HitTest` and `IsVisible` need the
/// viewport and are implemented beside it, in the render room.
class CShape {
public:
  CShape();
  CShape(const CShape&) = delete;
  CShape& operator=(const CShape&) = delete;
  virtual ~CShape() = default;

  /// A new deep copy.
  virtual std::unique_ptr<CShape> Clone() const = 0;

  /// Paints the shape on the viewport's canvas; nothing without viewport or canvas.
  virtual void Draw(const CViewPort* viewPort);

  /// Whether the world point lies on the shape, within ten pixels.
  virtual bool HitTest(const CViewPort* viewPort, double x, double y) const;

  /// Widens a box by the shape.
  virtual void GetExtents(Extents& box) const;

  /// Distance of a world point from the shape; 0.0 where a shape does not say.
  virtual double DistanceTo(double x, double y) const;

  /// Takes the vertex out of the shape and releases it, if it is here.
  virtual void RemoveVertex(const CShapeVertex* vertex);

  /// Appends pointers to the shape's vertices.
  virtual void GetVertices(std::vector<CShapeVertex*>& list);

  /// Moves by a displacement in the design's unit.
  virtual void Translate(double dx, double dy, double dz);

  /// Multiplies each coordinate by its factor: scales about the world origin.
  virtual void Scale(double sx, double sy, double sz);

  /// Turns about the world origin; positive is counter-clockwise.
  virtual void Rotate(double angleDegrees);

  /// Whether the shape counts as in view: some kinds ask for a vertex there, the others always do.
  virtual bool IsVisible(const CViewPort& viewPort) const;

  /// Calls the visitor's function for this kind of shape.
  virtual void Accept(IShapeVisitor& visitor) const = 0;

  /// Back to type 0 and tag 0, not selected, without vertices; `editing` stays as it is. The type
  /// of a constructed shape must be set after the last call.
  void Reset();

  /// The common half of every `Clone`: selected, tag, type, and copies of style and attributes
  /// where this shape has them. Returns `target`, also when it is null.
  CShape* CopyBaseTo(CShape* target) const;

  std::unique_ptr<ShapeStyle> style;             ///< may be null
  std::unique_ptr<CShapeAttributes> attributes;  ///< may be null
  std::int32_t tag = 0;                          ///< an importer's handle
  bool selected = false;                         ///< drawn with a yellow highlight
  bool editing = false;  ///< marked in the object tree; one of a group at most
  ShapeType type = ShapeType::None;
  mutable std::uint32_t cursor = 0;
  OwnedArray<CShapeVertex> vertices;  ///< the outline, in drawing order
};

}  // namespace hullwright
