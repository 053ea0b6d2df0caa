#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "dxf/ColourTable.h"
#include "dxf/DxfPoint.h"
#include "model/Shapes.h"

namespace hullwright {

class CFileDxfBlock;

/// How the shapes of a block come to be where they are inserted: scaled, then turned, then moved.
struct DxfInsertion {
  const CFileDxfBlock* block = nullptr;
  DxfPoint scale;
  double rotation = 0.0;  ///< degrees
  DxfPoint place;
  std::int32_t tag = 0;  ///< the handle as a number
  std::u16string layerName;
  std::u16string handle;
};

/// A block of a drawing with its shapes, ready to be inserted. Its header is kept as it stands in
/// the drawing; the insertion uses none of it, not even the base point. Blocks that it inserts stay
/// what they are until it is inserted into the drawing itself: a block that nobody inserts costs no
/// copies.
class CFileDxfBlock : public CShapes {
public:
  /// An insertion among the shapes.
  struct Inner {
    std::size_t before;  ///< the shape that it stands in front of
    DxfInsertion insertion;
  };

  /// Adds an insertion behind what is here. One of a block without shapes is nothing.
  void Insert(DxfInsertion insertion);

  /// The number of shapes that an insertion of this block makes, those of inserted blocks among
  /// them; the largest signed number where there are more.
  std::size_t ShapesWhenInserted() const;

  std::string name;
  std::string layerName;
  std::string handle;
  double baseX = 0.0;
  double baseY = 0.0;
  ColourIndex colour{};
  std::vector<Inner> inserted;  ///< in the order of their places

private:
  std::size_t insertedShapes_ = 0;
};

}  // namespace hullwright
