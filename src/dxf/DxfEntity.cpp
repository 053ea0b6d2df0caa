#include "dxf/DxfEntity.h"

namespace hullwright {
namespace {

/// The code of a coordinate of the point whose x has the code `x`.
constexpr DxfCode Coordinate(DxfCode x, int axis)
{
  constexpr int fromAxisToAxis = 10;
  return static_cast<DxfCode>(static_cast<int>(x) + axis * fromAxisToAxis);
}

}  // namespace

DxfEntity::DxfEntity(ColourIndex colour) : colour_(colour) { SetDefault(DxfCode::NormalZ, 1.0); }

void DxfEntity::TakeOther(DxfCode code, std::string_view value)
{
  switch (code) {
    case DxfCode::Name: name_ = value; return;
    case DxfCode::Handle: handle_ = value; return;
    case DxfCode::LayerName: layerName_ = value; return;
    case DxfCode::Colour: colour_ = ColourIndex{ParseInt32(value, 10)}; return;
    case DxfCode::PaperSpace: paperSpace_ = ParseInt32(value, 10); return;
    case DxfCode::Flags: flags_ = ParseInt32(value, 10); return;
    default: return;
  }
}

DxfPoint DxfEntity::Point(DxfCode x) const
{
  return {Number(x), Number(Coordinate(x, 1)), Number(Coordinate(x, 2))};
}

void ReadPairs(DxfLines& lines, DxfEntity& entity, std::size_t valueLimit)
{
  lines.WalkPairs([&](DxfCode code, std::string_view value) { entity.Take(code, value); },
                  valueLimit);
}

}  // namespace hullwright
