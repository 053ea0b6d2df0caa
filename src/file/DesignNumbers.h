#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "file/DesignElement.h"
#include "model/DesignState.h"

namespace hullwright {

/// A number of a design, with the place where it stands.
struct DesignNumber {
  const DesignElement& element;  ///< a vertex, an offset, or a field of an anchor
  std::string_view name;         ///< of the attribute, or of the field
  double value;

  // Of a vertex; numbers count from 1.
  const CShapes* group = nullptr;
  std::size_t groupNumber = 0;  ///< among the groups of its view code
  std::size_t polylineNumber = 0;
  std::size_t vertexNumber = 0;

  const CAnchor* anchor = nullptr;  ///< of a field
};

/// Calls `visit` with each number that a save of the design writes and that no chart can show:
/// infinities and not-a-number. The objects' own cursors stay where they are.
void ForEachNonFiniteNumber(const DesignState& design,
                            const std::function<void(const DesignNumber&)>& visit);

}  // namespace hullwright
