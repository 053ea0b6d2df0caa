#include <cmath>
#include <utility>

#include "base/Text.h"
#include "dxf/ColourTable.h"
#include "dxf/FileDxf.h"
#include "dxf/TextCodes.h"
#include "model/Angle.h"
#include "model/ShapeText.h"

// Texts and attributes become labels of one style.
namespace hullwright {

void CFileDxf::ReadText(CShapes& target) { ReadAnyText(target, false, false); }

void CFileDxf::ReadMText(CShapes& target) { ReadAnyText(target, true, false); }

void CFileDxf::ReadAttribute(CShapes& target) { ReadAnyText(target, false, true); }

void CFileDxf::ReadAnyText(CShapes& target, bool hasChunks, bool hasFlags)
{
  constexpr double wholeTurn = 360.0;
  constexpr std::int32_t invisible = 1;
  DxfEntity entity;
  auto label = std::make_unique<CShapeText>();
  ReadGroups(entity, [&](std::int32_t code, std::string_view value) {
    // A line is UTF-8; bytes of an older code page become replacement characters.
    if (code == 1 || (hasChunks && code == 3)) label->text += WideFromUtf8(value);
    if (code == 50) label->angle = wholeTurn - entity.Number(code);
  });
  if (IsLeftOut(entity) || (hasFlags && (entity.flags & invisible) != 0)) return;
  if (label->angle == 0.0) {
    // The other direction, and for a plain text its alignment point: that is how labels stand.
    label->angle = std::atan2(entity.Number(21), entity.Number(11)) * degreesPerRadian;
  }
  label->height = entity.Number(40);
  DxfPoint place = entity.Point(10);
  ApplyExtrusion(place, entity.Normal());
  label->vertices.push_back(std::make_unique<CShapeVertex>(place.x, place.y, place.z));
  Identify(*label, entity);
  Colour(*label, entity);
  CleanTextCodes(*label);
  target.shapes.push_back(std::move(label));
}

void CFileDxf::CleanTextCodes(CShapeText& shape) const
{
  if (shape.text.empty()) return;
  CleanedText cleaned = CleanText(std::move(shape.text));
  if (cleaned.colourIndex) ResolveColour(shape, {}, *cleaned.colourIndex);
  if (cleaned.colourValue) {
    const auto value = static_cast<std::uint32_t>(*cleaned.colourValue);
    ResolveColour(shape, {}, NearestColourIndex(value));
  }
  shape.text = std::move(cleaned.text);
}

}  // namespace hullwright
