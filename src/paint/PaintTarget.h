#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <vector>

#include "paint/PaintSurface.h"
#include "paint/PaintText.h"
#include "paint/Stroker.h"
#include "platform/Drawing.h"
#include "render/ClipPolyline.h"

namespace hullwright {

/// The drawing target for windows and pictures: paints antialiased on a surface. Lines go straight
/// into a picture in memory; all else, and everything on any other device, is clipped to the client
/// area and left to the toolkit's painter.
class PaintTarget : public IDrawingTarget {
public:
  /// The surface must outlive the target.
  explicit PaintTarget(PaintSurface& surface) : surface_(surface) {}

  StepResult Prepare(TargetStep step, Resolution resolution) override;
  void Resize(int width, int height) override;
  std::optional<PixelRect> SeenArea(float strokeWidth) const override;
  void BeginFrame(const Colour& background) override;
  FrameResult EndFrame() override;
  void DrawLine(PixelPoint from, PixelPoint to, const Stroke& stroke) override;
  void DrawRectangle(const PixelRect& rect, const Stroke& stroke) override;
  void FillRectangle(const PixelRect& rect, const Colour& colour) override;
  void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const Stroke& stroke) override;
  void DrawFigures(const Figures& figures, const Stroke& stroke) override;
  std::optional<PixelSize> MeasureText(std::u16string_view text, const TextStyle& style,
                                       PixelSize limits) override;
  void DrawText(const TextBlock& block) override;

private:
  void StrokeInMemory(const Figures& figures, const Stroke& stroke);
  QPen PenOf(const Stroke& stroke) const;
  void PaintRuns(std::span<const PixelPoint> points, const QPen& pen, bool roundJoins);
  void PaintFigure(std::span<const PixelPoint> points, const QPen& pen, FigureKind kind);
  void FillJoins(const std::vector<ScreenPoint>& points, const QPen& pen);
  void PaintText(const TextBlock& block);
  void SetTurn(const Turn& turn);
  ClipRect ClipArea(float strokeWidth) const;
  bool IsVisible(const QRectF& rect, float strokeWidth) const;

  PaintSurface& surface_;
  QPainter painter_;
  PaintFonts fonts_;
  Stroker stroker_;                 ///< of lines, where the device is a picture in memory
  std::vector<PixelPoint> figure_;  ///< the points of one figure, kept for the memory
};

}  // namespace hullwright
