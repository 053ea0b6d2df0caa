#include "dxf/DxfLayers.h"

namespace hullwright {

void DxfLayers::Add(const CFileDxfLayer& layer)
{
  if (!layer.name.empty()) layers_.try_emplace(layer.name, layer);
}

void DxfLayers::AddImplicitLayer(std::string_view name, std::int32_t colour)
{
  if (layerTableSeen_ || layers_.contains(name)) return;
  CFileDxfLayer layer;
  layer.name = name;
  layer.colour = colour;
  layers_.emplace(layer.name, layer);
}

bool DxfLayers::IsLayerHidden(std::string_view name) const
{
  const auto layer = layers_.find(name);
  return layer != layers_.end() && (layer->second.off || layer->second.frozen);
}

std::int32_t DxfLayers::ColourOf(std::string_view name) const
{
  constexpr std::int32_t black = 0;
  const auto layer = layers_.find(name);
  return layer == layers_.end() ? black : layer->second.colour;
}

}  // namespace hullwright
