#include <utility>

#include "dxf/FileDxf.h"

// Layers and blocks: what the entities look up.
namespace hullwright {

void CFileDxf::ProcessLayer()
{
  // The header of the table begins with the same word. Its record has no name, so it vanishes; but
  // it has shown that there is a table.
  layerTableSeen = true;
  DxfEntity groups;
  groups.colour = 0;
  ForEachPair([&](std::int32_t code, std::string_view value) { groups.Take(code, value); },
              shortLine);
  if (groups.name.empty()) return;
  auto layer = std::make_unique<CFileDxfLayer>();
  layer->name = groups.name;
  layer->colour = groups.colour;
  layer->frozen = (groups.flags & 1) != 0;
  layer->off = groups.colour < 0;
  layers.try_emplace(groups.name, std::move(layer));
}

bool CFileDxf::IsLayerHidden(std::string_view name) const
{
  const auto layer = layers.find(name);
  return layer != layers.end() && (layer->second->off || layer->second->frozen);
}

void CFileDxf::AddImplicitLayer(std::string_view name, std::int32_t colour)
{
  if (layerTableSeen || layers.contains(name)) return;
  auto layer = std::make_unique<CFileDxfLayer>();
  layer->name = name;
  layer->colour = colour;
  layers.emplace(name, std::move(layer));
}

void CFileDxf::ProcessBlock()
{
  DxfEntity header;
  header.colour = 0;
  ForEachPair([&](std::int32_t code, std::string_view value) { header.Take(code, value); });
  auto block = std::make_unique<CFileDxfBlock>();
  block->name = header.name;
  block->layerName = header.layerName;
  block->handle = header.handle;
  block->baseX = header.Number(10);
  block->baseY = header.Number(20);
  block->colour = header.colour;

  DxfLine line;
  bool isWhole = false;
  while ((isWhole = GetLine(line, shortLine)) &&
         line.Text().find("ENDBLK") == std::string_view::npos) {
    TakeEntityLine(line, true, *block);
  }
  NoteEnd(isWhole);
  if (header.paperSpace == 1) {
    tally.inPaperSpace += block->shapes.size();
    return;
  }
  blocks.try_emplace(header.name, std::move(block));
}

}  // namespace hullwright
