#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/Walk.h"

namespace hullwright {

/// A numbered attachment point on the vessel's outline.
struct CAnchor {
  std::unique_ptr<CAnchor> Clone() const { return std::make_unique<CAnchor>(*this); }

  std::uint32_t id = 0;
  std::u16string name;
  bool visible = true;       ///< drawn only when set
  bool marked = false;       ///< shown with another icon in the object tree
  std::uint16_t vessel = 0;  ///< number of the vessel; read, never shown
  double attachmentX = 0.0;  ///< world units
  double attachmentY = 0.0;  ///< world units
  double easting = 0.0;      ///< carried
  double northing = 0.0;     ///< carried
  std::int32_t state = 0;    ///< carried
};

/// The design's anchors, in list order.
class CAnchors {
public:
  /// Releases every anchor.
  void Clear();

  /// A new anchor with the lowest positive id that no anchor of the list has. It is not added.
  std::unique_ptr<CAnchor> NewAnchor() const;

  /// Appends a clone of each anchor of `source`, walking it with its own cursor.
  void AppendClones(const CAnchors& source);

  OwnedArray<CAnchor> items;
  bool enabled = true;  ///< carried
  mutable std::uint32_t cursor = 0;
};

}  // namespace hullwright
