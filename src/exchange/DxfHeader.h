#pragma once

#include <cstdint>

#include "exchange/DxfText.h"
#include "exchange/ExportedDesign.h"

namespace hullwright {

/// A box in space.
struct DxfBox {
  bool isEmpty = true;
  CShapeVertex low;
  CShapeVertex high;

  void Widen(const CShapeVertex& place);

  /// The longer of its sides in the plane; 1 where there is none. Finite.
  double Size() const;

  /// Height of texts that can be read beside what is in the box.
  double TextHeight() const;
};

/// The box of all vertices, offsets and anchors.
DxfBox BoxOf(const ExportedDesign& design);

/// Writes a remark and the section of header variables. `nextHandle` is above all handles of the
/// drawing; 0 makes the header of R12, which knows fewer variables.
void WriteDxfHeader(DxfText& text, UnitCode unit, const DxfBox& box, std::uint32_t nextHandle);

/// Writes the record of the active viewport (VPORT), which shows the whole box.
void WriteActiveViewport(DxfText& text, const DxfBox& box);

}  // namespace hullwright
