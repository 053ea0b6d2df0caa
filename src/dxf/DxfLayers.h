#pragma once

#include <map>
#include <string>
#include <string_view>

#include "dxf/ColourTable.h"
#include "dxf/FileDxfLayer.h"

namespace hullwright {

/// The layers of a drawing by their names, which are compared byte by byte. Until a table of layers
/// comes, the entities make them.
class DxfLayers {
public:
  using Map = std::map<std::string, CFileDxfLayer, std::less<>>;

  /// Notes that the drawing has a table of layers, even one without entries.
  void NoteTable() { layerTableSeen_ = true; }

  /// Adds a layer; the first of a name stays, one without a name is nothing.
  void Add(const CFileDxfLayer& layer);

  /// While no table of layers has come: makes a layer for an entity that names a new one. The
  /// colour stays as it is given, so that one by layer makes a black layer.
  void AddImplicitLayer(std::string_view name, ColourIndex colour);

  /// Whether the layer is known to be off or frozen.
  bool IsLayerHidden(std::string_view name) const;

  /// Index of the colour of a layer; black for one that is not known.
  ColourIndex ColourOf(std::string_view name) const;

  const Map& All() const { return layers_; }

private:
  const CFileDxfLayer* Find(std::string_view name) const;

  Map layers_;
  mutable const CFileDxfLayer* last_ = nullptr;  ///< found last: each entity asks several times
  bool layerTableSeen_ = false;
};

}  // namespace hullwright
