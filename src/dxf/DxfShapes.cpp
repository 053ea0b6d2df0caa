#include "dxf/DxfShapes.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "dxf/ColourTable.h"

namespace hullwright {

bool CountIfLeftOut(const DxfEntity& entity, DxfContext& context)
{
  if (!entity.IsInPaperSpace()) return CountIfHidden(entity, context);
  ++context.tally.inPaperSpace;
  return true;
}

bool CountIfHidden(const DxfEntity& entity, DxfContext& context)
{
  if (!context.layers.IsLayerHidden(entity.LayerName())) return false;
  ++context.tally.onHiddenLayers;
  return true;
}

bool ReadEntity(DxfLines& lines, DxfContext& context, DxfEntity& entity)
{
  ReadGroups(lines, entity);
  return !CountIfLeftOut(entity, context);
}

Extrusion ExtrusionAlong(const DxfPoint& normal, const DxfContext& context)
{
  return context.ignoreExtrusion ? Extrusion() : Extrusion(normal);
}

void Mark(CShape& shape, std::u16string_view name, std::u16string value)
{
  constexpr std::size_t most = 3;  // of a shape that is not inserted
  if (!shape.attributes) {
    shape.attributes = std::make_unique<CShapeAttributes>();
    shape.attributes->items.reserve(most);
  }
  shape.attributes->Append(name, std::move(value));
}

void Identify(CShape& shape, const DxfEntity& entity)
{
  Identify(shape, TagOf(entity), WideFromAnsi(entity.LayerName()), WideFromAnsi(entity.Handle()));
}

void Identify(CShape& shape, std::int32_t tag, std::u16string layerName, std::u16string handle)
{
  shape.tag = tag;
  Mark(shape, u"LAYER", std::move(layerName));
  Mark(shape, u"HANDLE", std::move(handle));
}

std::int32_t TagOf(const DxfEntity& entity)
{
  constexpr int hexadecimal = 16;
  return ParseInt32(entity.Handle(), hexadecimal);
}

void ResolveColour(CShape& shape, const DxfLayers& layers, std::string_view layerName,
                   ColourIndex colour)
{
  if (!shape.style) shape.style = std::make_unique<ShapeStyle>();
  const ColourIndex index = colour == ColourIndex::ByLayer ? layers.ColourOf(layerName) : colour;
  shape.style->lineColour = ColourOfIndex(index);
  shape.style->fillColour = shape.style->lineColour;
}

void ApplyColour(CShape& shape, const DxfEntity& entity, DxfContext& context)
{
  ResolveColour(shape, context.layers, entity.LayerName(), entity.Colour());
  context.layers.AddImplicitLayer(entity.LayerName(), entity.Colour());
}

void AddShape(std::unique_ptr<CShape> shape, const DxfEntity& entity, DxfContext& context,
              CShapes& target)
{
  Identify(*shape, entity);
  ApplyColour(*shape, entity, context);
  AppendShape(std::move(shape), context, target);
}

void AppendShape(std::unique_ptr<CShape> shape, DxfContext& context, CShapes& target)
{
  context.limit.Count(*shape);
  target.shapes.push_back(std::move(shape));
}

}  // namespace hullwright
