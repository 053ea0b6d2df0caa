#include "dxf/DxfTables.h"

#include <memory>
#include <string>
#include <utility>

#include "base/Code.h"
#include "dxf/DxfEntity.h"
#include "dxf/DxfKeywords.h"

namespace hullwright {

void ProcessLayer(DxfLines& lines, DxfContext& context)
{
  // The header of the table begins with the same word. Its record has no name, so it vanishes; but
  // it has shown that there is a table.
  constexpr std::int32_t frozen = 1;
  context.layers.NoteTable();
  DxfEntity record(ColourIndex{});
  ReadPairs(lines, record, DxfLines::shortLine);
  CFileDxfLayer layer;
  layer.name = record.Name();
  layer.colour = record.Colour();
  layer.frozen = record.HasFlag(frozen);
  layer.off = NumberOf(record.Colour()) < 0;
  context.layers.Add(layer);
}

void ProcessBlock(DxfLines& lines, DxfContext& context)
{
  DxfEntity header(ColourIndex{});
  ReadPairs(lines, header);
  auto block = std::make_unique<CFileDxfBlock>();
  block->name = header.Name();
  block->layerName = header.LayerName();
  block->handle = header.Handle();
  block->baseX = header.Number(DxfCode::X);
  block->baseY = header.Number(DxfCode::Y);
  block->colour = header.Colour();
  while (ReadNextEntity(lines, context, DxfPlace::Block, *block)) {
  }
  if (header.IsInPaperSpace()) {
    context.tally.inPaperSpace += block->ShapesWhenInserted();
    return;
  }
  context.blocks.try_emplace(std::string(header.Name()), std::move(block));
}

}  // namespace hullwright
