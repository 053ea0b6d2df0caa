#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Numbers.h"

namespace hullwright {

/// A position or direction of a drawing.
struct DxfPoint {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

inline constexpr std::int32_t colourByLayer = 256;

/// What the groups of one entity say, by their codes. A group that comes again replaces its value;
/// groups that no entity has a use for are not kept.
class DxfEntity {
public:
  DxfEntity() { SetDefault(230, 1.0); }

  /// Takes a group in.
  void Take(std::int32_t code, std::string_view value)
  {
    switch (code) {
      case 2: name = value; return;
      case 5: handle = value; return;
      case 8: layerName = value; return;
      case 62: colour = ParseInt32(value, 10); return;
      case 67: paperSpace = ParseInt32(value, 10); return;
      case 70: flags = ParseInt32(value, 10); return;
      default: break;
    }
    if ((code >= 10 && code < 60) || (code >= 210 && code < 240)) {
      numbers_[static_cast<std::size_t>(code)] = ParseDouble(value);
    }
  }

  /// Value of a group from 10 to 59 or 210 to 239; 0.0 if the entity has none.
  double Number(int code) const { return numbers_[static_cast<std::size_t>(code)]; }

  /// Gives a group a default other than 0.0.
  void SetDefault(int code, double value) { numbers_[static_cast<std::size_t>(code)] = value; }

  /// Three groups whose codes are ten apart.
  DxfPoint Point(int code) const { return {Number(code), Number(code + 10), Number(code + 20)}; }

  /// The extrusion direction, by default straight up.
  DxfPoint Normal() const { return Point(210); }

  std::string name;                     ///< group 2
  std::string handle;                   ///< group 5
  std::string layerName;                ///< group 8
  std::int32_t colour = colourByLayer;  ///< group 62
  std::int32_t paperSpace = 0;          ///< group 67
  std::int32_t flags = 0;               ///< group 70

private:
  std::array<double, 240> numbers_{};
};

}  // namespace hullwright
