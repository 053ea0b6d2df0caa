#pragma once

namespace hullwright {

/// A place of the design, or a way from one place to another, in the design's length unit.
struct Place {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  bool operator==(const Place&) const = default;
};

/// The way from one place to another.
constexpr Place Way(const Place& from, const Place& to)
{
  return {to.x - from.x, to.y - from.y, to.z - from.z};
}

/// How long a way is, in all three directions.
double LengthOf(const Place& way);

/// Decides which numbers count as the same. It is symmetric, and what is not a number is the same
/// as what is not a number.
class Tolerance {
public:
  /// The largest difference that doesn't count, not negative, in the design's length unit. At 0
  /// only equal numbers are the same; otherwise the last bits of what was written in decimals don't
  /// count either, so that 1.235 and 1.234 are the same to 0.001.
  explicit Tolerance(double largest) : largest_(largest) {}

  double Largest() const { return largest_; }
  bool Same(double a, double b) const;
  bool Same(const Place& a, const Place& b) const;

  /// Whether two ways are the same. Each is given by its ends, by whose size its last bits are
  /// judged at any tolerance.
  bool SameWay(const Place& from, const Place& to, const Place& otherFrom,
               const Place& otherTo) const;

private:
  double largest_;
};

}  // namespace hullwright
