#pragma once

#include <array>
#include <string>

#include "model/OutlineShape.h"

namespace hullwright {

/// A label brought in by an import; never saved. Its first vertex is its lower left corner.
class CShapeText : public COutlineShape {
public:
  /// A corner of the text on the screen, in pixels.
  struct Corner {
    float x = 0.0F;
    float y = 0.0F;
  };

  CShapeText();

  /// Everything but the box on the screen.
  std::unique_ptr<CShape> Clone() const override;
  void Accept(IShapeVisitor& visitor) const override { visitor.Visit(*this); }
  void Draw(const CViewPort* viewPort) override;

  /// Whether the point lies in the box of the last repaint. A turned view is not taken into
  /// account.
  bool HitTest(const CViewPort* viewPort, double x, double y) const override;

  /// Widens by the first vertex with a margin of one world unit on each side, however long the
  /// text.
  void GetExtents(Extents& box) const override;

  std::u16string text;                ///< drawing it trims it of white space, in place
  std::array<Corner, 4> screenBox{};  ///< outline of the text at the last repaint

  /// Degrees, clockwise on the screen. Turning the shape leaves it alone; drawing may change its
  /// last bits.
  double angle = 0.0;
  double height = 0.0;  ///< in world units; scaling leaves it alone
};

}  // namespace hullwright
