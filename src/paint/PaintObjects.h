#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <vector>

#include "paint/PaintSurface.h"
#include "platform/Drawing.h"
#include "render/ClipPolyline.h"

namespace hullwright {

/// A colour of the interface in the toolkit's terms.
inline QColor ToQt(const Colour& colour)
{
  return QColor::fromRgbF(colour.red, colour.green, colour.blue, colour.alpha);
}

class PaintBrush : public IBrush {
public:
  explicit PaintBrush(const Colour& value) : colour(ToQt(value)) {}
  void SetColour(const Colour& value) override { colour = ToQt(value); }
  QColor colour;
};

/// A text as the toolkit lays it out the same when it is measured and when it is drawn, without
/// what is too much for any picture.
QString Drawable(std::u16string_view text);

class PaintTextFormat : public ITextFormat {
public:
  /// `size` is positive, in pixels.
  PaintTextFormat(std::u16string_view family, float size);
  void CentreText() override { centred = true; }
  void DisableWordWrapping() override { wrapped = false; }

  /// Whether a text of this size can be read in any picture.
  bool IsReadable() const;

  QFont font;
  double scale = 1.0;  ///< from the font's whole size to the size asked for
  bool centred = false;
  bool wrapped = true;
};

/// A path as its figures; nothing of the toolkit is made before it is known to be visible.
class PaintPath : public IPathGeometry {
public:
  struct Figure {
    std::vector<PixelPoint> points;
    bool closed = false;
  };

  Created<IPathSink> Open() override;
  std::vector<Figure> figures;
  bool roundJoins = false;
};

class PaintTarget : public IRenderTarget {
public:
  explicit PaintTarget(PaintSurface& surface) : surface_(surface) {}

  void Resize(int width, int height) override;
  void BeginDraw() override;
  void Clear(const Colour& colour) override;
  ResultCode EndDraw() override;
  std::unique_ptr<IBrush> CreateSolidColourBrush(const Colour& colour) override;
  void DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width) override;
  void DrawRectangle(const PixelRect& rect, const IBrush& brush, float width) override;
  void FillRectangle(const PixelRect& rect, const IBrush& brush) override;
  void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                   float width) override;
  void DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width) override;
  void DrawText(std::u16string_view text, const ITextFormat& format, const PixelRect& rect,
                const IBrush& brush) override;
  void SetRotation(float angleDegrees, PixelPoint centre) override;

private:
  QPen PenOf(const IBrush& brush, float width) const;
  void StrokeRuns(std::span<const PixelPoint> points, const QPen& pen, bool roundJoins);
  void FillJoins(const std::vector<ScreenPoint>& points, const QPen& pen);
  ClipRect ClipArea(float strokeWidth) const;
  bool IsVisible(const QRectF& rect, float strokeWidth) const;

  PaintSurface& surface_;
  QPainter painter_;
};

}  // namespace hullwright
