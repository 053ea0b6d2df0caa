#pragma once

namespace hullwright {

class CCanvas;
struct Extents;

/// A position in the unit of the design, y up.
struct WorldPoint {
  double x = 0.0;
  double y = 0.0;
};

/// A position in client pixels, y down; fractions of pixels count.
struct ScreenPoint {
  double x;
  double y;
};

/// The mapping between world coordinates (y up, design units) and client pixels (y down). Pure
/// arithmetic on the view rectangle; mappings and zooms are not guarded against an extent of zero.
/// Before the first resize both screen sizes are 0.0 and the mappings are not to be used.
class CViewPort {
public:
  CViewPort();
  CViewPort(const CViewPort&) = delete;
  CViewPort& operator=(const CViewPort&) = delete;
  virtual ~CViewPort() = default;

  /// Turns the picture about its centre: degrees, clockwise on the screen, stored from 0
  /// (inclusive) to 360 (exclusive).
  void SetRotation(double degrees);

  /// Makes the pixel the centre and shrinks the view rectangle to three quarters.
  void ZoomIn(double sx, double sy);

  /// Makes the pixel the centre and widens the view rectangle to four thirds.
  void ZoomOut(double sx, double sy);

  /// Makes the pixel the centre.
  void CenterOn(double sx, double sy);

  /// Derives the height of the view rectangle from its width and the client's shape.
  void KeepAspect();

  /// Whether the world point falls inside the client area, edges included.
  bool Contains(double wx, double wy) const;

  /// Where a world point lies on the screen, with the rotation of the view.
  ScreenPoint WorldToScreen(double wx, double wy) const;

  /// The forward mapping without the rotation.
  ScreenPoint WorldToScreenFlat(double wx, double wy) const;

  /// The world point at a pixel, with the rotation of the view.
  WorldPoint ScreenToWorld(double sx, double sy) const;

  /// View rectangle around a box with a margin of one sixth of it on each side. The width rules: a
  /// box that is tall for the client's shape is cropped.
  void FitExtents(const Extents& box);

  /// View rectangle around the box of one shape.
  void ZoomToExtents(const Extents& box);

  /// `FitExtents`, but a box that leaves no usable view around it (a point, a vertical line, bounds
  /// that are not finite) is brought to the centre at the scale of before. One without a finite
  /// centre changes nothing.
  void FitOrCentre(const Extents& box);

  /// `ZoomToExtents`, with the same way out.
  void ZoomOrCentre(const Extents& box);

  /// Whether zooming leads on from here: edges and extents are finite, and neither extent is zero.
  bool IsUsable() const;

  /// Gives a view that is no longer usable the window that it began with; true if it did.
  bool Recover();

  CCanvas* canvas = nullptr;  ///< what the shapes draw on; set by the design view
  bool flag = false;          ///< carried
  double left = -initialReach;
  double bottom = -initialReach;
  double right = initialReach;
  double top = initialReach;
  double width = 2.0 * initialReach;   ///< |right - left|
  double height = 2.0 * initialReach;  ///< |top - bottom|
  double screenWidth = 0.0;            ///< client size in pixels
  double screenHeight = 0.0;

  /// Degrees, clockwise on the screen; set by `SetRotation` with the four below.
  double rotation = 0.0;
  double cosRotation = 1.0;
  double sinRotation = 0.0;
  double cosInverse = 1.0;
  double sinInverse = 0.0;

private:
  static constexpr double initialReach = 100.0;

  double CentreX() const { return (left + right) * 0.5; }
  double CentreY() const { return (bottom + top) * 0.5; }
  void MeasureEdges();

  /// Makes the pixel the centre and moves each edge outwards by a share of the extent.
  void ZoomAbout(double sx, double sy, double share);
  void WidenBySixth();
  void MoveCentreTo(const WorldPoint& centre);

  using Frame = void (CViewPort::*)(const Extents& box);
  void FrameOrCentre(Frame frame, const Extents& box);
};

/// The viewport of the design view.
class CViewPortDesigner : public CViewPort {};

}  // namespace hullwright
