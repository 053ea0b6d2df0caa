#include <cmath>
#include <utility>

#include "base/Text.h"
#include "dxf/ColourTable.h"
#include "dxf/DxfReaders.h"
#include "dxf/DxfShapes.h"
#include "dxf/TextCodes.h"
#include "model/Angle.h"
#include "model/ShapeText.h"

// Texts and attributes become labels of one style.
namespace hullwright {
namespace {

/// Takes the formatting codes out of a shape's text; codes for colours colour it.
void CleanTextCodes(CShapeText& shape, const DxfLayers& layers)
{
  if (shape.text.empty()) return;
  CleanedText cleaned = CleanText(std::move(shape.text));
  if (cleaned.colourIndex) ResolveColour(shape, layers, {}, *cleaned.colourIndex);
  if (cleaned.colourValue) {
    ResolveColour(shape, layers, {}, NearestColourIndex(*cleaned.colourValue));
  }
  shape.text = std::move(cleaned.text);
}

/// Reads the groups of a text into `entity`, its text and its angle into `label`.
void ReadLabel(DxfLines& lines, DxfEntity& entity, bool hasChunks, CShapeText& label)
{
  constexpr double wholeTurn = 360.0;
  ReadGroups(lines, entity, [&](DxfCode code, std::string_view value) {
    // A line is UTF-8; bytes of an older code page become replacement characters.
    if (code == DxfCode::Text || (hasChunks && code == DxfCode::TextChunk)) {
      label.text += WideFromUtf8(value);
    }
    if (code == DxfCode::Rotation) label.angle = wholeTurn - entity.Number(code);
  });
}

/// Puts a label where its entity has it, as high as that is, and in its direction if the label has
/// no angle of its own.
void PlaceLabel(CShapeText& label, const DxfEntity& entity, const Extrusion& toWorld)
{
  if (label.angle == 0.0) {
    // Not negated as the rotation is, and of a plain text it is the alignment point.
    const double y = entity.Number(DxfCode::SecondY);
    label.angle = std::atan2(y, entity.Number(DxfCode::SecondX)) * degreesPerRadian;
  }
  label.height = entity.Number(DxfCode::TextHeight);
  const DxfPoint place = toWorld(entity.Point(DxfCode::X));
  label.vertices.push_back(std::make_unique<CShapeVertex>(place.x, place.y, place.z));
}

/// Adds the label of an entity that is not left out.
void AddLabel(std::unique_ptr<CShapeText> label, const DxfEntity& entity, DxfContext& context,
              CShapes& target)
{
  PlaceLabel(*label, entity, ExtrusionAlong(entity.Normal(), context));
  Identify(*label, entity);
  ApplyColour(*label, entity, context);
  CleanTextCodes(*label, context.layers);
  AppendShape(std::move(label), context, target);
}

/// Reads an entity and adds its label, unless it is left out or has one of the flags that hide it.
void ReadLabelled(DxfLines& lines, DxfContext& context, CShapes& target, bool hasChunks,
                  std::int32_t hidingFlags)
{
  DxfEntity entity;
  auto label = std::make_unique<CShapeText>();
  ReadLabel(lines, entity, hasChunks, *label);
  if (CountIfLeftOut(entity, context) || entity.HasFlag(hidingFlags)) return;
  AddLabel(std::move(label), entity, context, target);
}

}  // namespace

void ReadText(DxfLines& lines, DxfContext& context, CShapes& target)
{
  ReadLabelled(lines, context, target, false, 0);
}

void ReadMText(DxfLines& lines, DxfContext& context, CShapes& target)
{
  ReadLabelled(lines, context, target, true, 0);
}

void ReadAttribute(DxfLines& lines, DxfContext& context, CShapes& target)
{
  constexpr std::int32_t invisible = 1;
  ReadLabelled(lines, context, target, false, invisible);
}

}  // namespace hullwright
