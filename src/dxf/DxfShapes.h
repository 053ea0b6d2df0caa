#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "dxf/DxfContext.h"
#include "dxf/DxfEntity.h"
#include "dxf/DxfLines.h"
#include "dxf/Extrusion.h"
#include "model/Shapes.h"

/// What all readers of entities do between the groups and the shape.
namespace hullwright {

/// Counts an entity that is in paper space or on a hidden layer; true for such a one, which is left
/// out.
bool CountIfLeftOut(const DxfEntity& entity, DxfContext& context);

/// Counts an entity that is on a hidden layer; true for such a one. Polylines ask this alone: they
/// come in from paper space, too.
bool CountIfHidden(const DxfEntity& entity, DxfContext& context);

/// Reads the groups of an entity; false for one that is left out.
bool ReadEntity(DxfLines& lines, DxfContext& context, DxfEntity& entity);

/// Takes points of an entity with this normal to world coordinates; the options may have normals
/// ignored.
Extrusion ExtrusionAlong(const DxfPoint& normal, const DxfContext& context);

/// Appends an attribute.
void Mark(CShape& shape, std::u16string_view name, std::u16string value);

/// Gives a shape the layer and the handle of its entity, as attributes, and the handle as its tag.
void Identify(CShape& shape, const DxfEntity& entity);
void Identify(CShape& shape, std::int32_t tag, std::u16string layerName, std::u16string handle);

/// The handle of an entity as a number.
std::int32_t TagOf(const DxfEntity& entity);

/// Gives a shape the colour of an index; that by layer stands for the colour of the layer.
void ResolveColour(CShape& shape, const DxfLayers& layers, std::string_view layerName,
                   ColourIndex colour);

/// Gives a shape the colour of its entity, and the entity a layer.
void ApplyColour(CShape& shape, const DxfEntity& entity, DxfContext& context);

/// Appends a finished shape to `target`.
void AppendShape(std::unique_ptr<CShape> shape, DxfContext& context, CShapes& target);

/// Identifies and colours a shape and appends it to `target`.
void AddShape(std::unique_ptr<CShape> shape, const DxfEntity& entity, DxfContext& context,
              CShapes& target);

}  // namespace hullwright
