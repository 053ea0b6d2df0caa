#pragma once

#include <algorithm>

namespace hullwright {

/// Tests whether a point lies in a closed outline whose edges are given one after the other. A
/// point on an edge or a corner is inside.
class RingTest {
public:
  RingTest(double x, double y) : x_(x), y_(y) {}

  /// Takes in the edge from a to b; true when the point lies on it, which settles the question.
  bool AddEdge(double ax, double ay, double bx, double by)
  {
    const double c = (bx - ax) * (y_ - ay) - (x_ - ax) * (by - ay);
    if ((ay >= y_) != (by >= y_)) {
      const bool upward = by - ay >= 0.0;
      if (upward ? c >= 0.0 : 0.0 >= c) ++crossings_;
    }
    onEdge_ = onEdge_ || (c == 0.0 && IsBetween(x_, ax, bx) && IsBetween(y_, ay, by));
    return onEdge_;
  }

  bool Inside() const { return onEdge_ || (crossings_ & 1U) != 0; }

private:
  static bool IsBetween(double value, double a, double b)
  {
    return value >= std::min(a, b) && value <= std::max(a, b);
  }

  double x_;
  double y_;
  unsigned crossings_ = 0;
  bool onEdge_ = false;
};

}  // namespace hullwright
