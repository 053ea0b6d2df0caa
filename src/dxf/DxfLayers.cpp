#include "dxf/DxfLayers.h"

namespace hullwright {

/// Null for a layer that is not known.
const CFileDxfLayer* DxfLayers::Find(std::string_view name) const
{
  if (last_ != nullptr && last_->name == name) return last_;
  const auto layer = layers_.find(name);
  last_ = layer == layers_.end() ? nullptr : &layer->second;
  return last_;
}

void DxfLayers::Add(const CFileDxfLayer& layer)
{
  if (!layer.name.empty()) layers_.try_emplace(layer.name, layer);
}

void DxfLayers::AddImplicitLayer(std::string_view name, ColourIndex colour)
{
  if (layerTableSeen_ || Find(name) != nullptr) return;
  CFileDxfLayer layer;
  layer.name = name;
  layer.colour = colour;
  layers_.emplace(layer.name, layer);
}

bool DxfLayers::IsLayerHidden(std::string_view name) const
{
  const CFileDxfLayer* const layer = Find(name);
  return layer != nullptr && (layer->off || layer->frozen);
}

ColourIndex DxfLayers::ColourOf(std::string_view name) const
{
  constexpr ColourIndex black{0};
  const CFileDxfLayer* const layer = Find(name);
  return layer == nullptr ? black : layer->colour;
}

}  // namespace hullwright
