#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "base/Code.h"
#include "base/Text.h"
#include "dxf/FileDxf.h"
#include "headless/KeptTrace.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

namespace hullwright::test {

using Pairs = std::initializer_list<std::pair<int, std::string>>;

/// The lines of group codes and values.
inline std::string Lines(Pairs pairs)
{
  std::string text;
  for (const auto& [code, value] : pairs) text += std::to_string(code) + "\n" + value + "\n";
  return text;
}

/// One record of a drawing.
inline std::string Entity(const std::string& keyword, Pairs groups = {})
{
  return Lines({{0, keyword}}) + Lines(groups);
}

/// A section around its records, each of which begins with a group 0.
inline std::string Section(const std::string& name, const std::string& records)
{
  return Lines({{0, "SECTION"}, {2, name}}) + records + Lines({{0, "ENDSEC"}});
}

inline std::string Entities(const std::string& records) { return Section("ENTITIES", records); }

/// One layer of the table.
inline std::string LayerRecord(const std::string& name, int colour, int flags)
{
  return Entity("LAYER", {{2, name}, {70, std::to_string(flags)}, {62, std::to_string(colour)}});
}

inline std::string LayerTable(const std::string& records)
{
  return Section("TABLES", Entity("TABLE", {{2, "LAYER"}, {70, "3"}}) + records + Entity("ENDTAB"));
}

inline std::string Block(const std::string& name, const std::string& records)
{
  return Entity("BLOCK", {{8, "0"}, {2, name}}) + records + Entity("ENDBLK", {{8, "0"}});
}

inline std::string Blocks(const std::string& blocks) { return Section("BLOCKS", blocks); }

inline constexpr const char* endOfFile = "0\nEOF\n";

/// Imports drawings that a test writes, and looks at what they give.
class DxfFixture : public testing::Test {
protected:
  int Import(const std::string& text, const DxfOptions& options = {})
  {
    layer = std::make_unique<CLayer>();
    file = std::make_unique<CFileDxf>(&window, log, options);
    return file->Import(folder.Write("drawing.dxf", text), layer.get());
  }

  /// Imports the records as the only section.
  void ImportEntities(const std::string& records) { ASSERT_EQ(Import(Entities(records)), 0); }

  /// The log as "level category: text".
  std::vector<std::string> Records() const
  {
    std::vector<std::string> list;
    for (const KeptTrace::Record& record : log.records) {
      list.push_back(std::to_string(NumberOf(record.level)) + " " + Utf8FromWide(record.category) +
                     ": " + Utf8FromWide(record.text));
    }
    return list;
  }

  /// Whether the progress has ended as often as it has started.
  bool ProgressHasEnded() const
  {
    return std::ranges::count(window.list, "end") == std::ranges::count(window.list, "start");
  }

  const ImportTally& Tally() const { return file->Tally(); }
  const DxfLayers::Map& Layers() const { return file->Drawing().layers.All(); }

  const CFileDxfBlock& BlockOf(const std::string& name) const
  {
    return *file->Drawing().blocks.at(name);
  }

  std::size_t ShapeCount() const { return layer->shapes->shapes.size(); }

  template <class Shape = CShapePolyline>
  const Shape& At(std::size_t index) const
  {
    return dynamic_cast<const Shape&>(*layer->shapes->shapes.at(index));
  }

  /// The vertices of a shape as (x, y, z).
  std::vector<std::vector<double>> VerticesOf(std::size_t index) const
  {
    std::vector<std::vector<double>> list;
    for (const auto& v : layer->shapes->shapes.at(index)->vertices)
      list.push_back({v->x, v->y, v->z});
    return list;
  }

  /// The attributes of a shape as "name=value".
  std::vector<std::string> AttributesOf(std::size_t index) const
  {
    std::vector<std::string> list;
    for (const auto& pair : layer->shapes->shapes.at(index)->attributes->items) {
      list.push_back(Utf8FromWide(pair->name) + "=" + Utf8FromWide(pair->value));
    }
    return list;
  }

  std::uint32_t ColourOf(std::size_t index) const
  {
    return layer->shapes->shapes.at(index)->style->lineColour;
  }

  TempFolder folder;
  RecordedNotifications window;
  KeptTrace log;
  std::unique_ptr<CLayer> layer;
  std::unique_ptr<CFileDxf> file;
};

}  // namespace hullwright::test
