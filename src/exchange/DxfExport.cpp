#include "exchange/DxfExport.h"

#include <algorithm>
#include <vector>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "dxf/ColourTable.h"
#include "exchange/DxfHeader.h"
#include "exchange/DxfRecords.h"
#include "exchange/DxfText.h"
#include "model/ShapeColours.h"

namespace hullwright {
namespace {

constexpr ColourIndex foreground{7};  // black on paper, white on a dark screen

/// Index of the nearest colour that an entity can have by itself.
ColourIndex IndexOf(std::uint32_t colour)
{
  const ColourIndex index = NearestColourIndex(colour);
  return index == ColourIndex::ByBlock ? foreground : index;
}

/// A width of the drawing whose stroke has this many pixels when it is imported. Thin lines have 0.
double DrawingWidth(double pixels)
{
  constexpr double pixelsPerWidth = 2.0;
  return pixels > 0.0 && pixels != 1.0 ? pixels / pixelsPerWidth : 0.0;
}

/// Whether all vertices lie in the plane of the drawing.
bool IsFlat(const CShape& polyline)
{
  return std::ranges::all_of(polyline.vertices,
                             [](const auto& vertex) { return vertex->z == 0.0; });
}

/// The name of the layer of offsets or of anchors.
std::string LayerOf(const ExportedPlace& place) { return std::string(place.kind) + "s"; }

std::u16string LabelOf(const ExportedPlace& place)
{
  if (!place.number) return place.name;
  const std::u16string number = WideFromAscii(std::to_string(*place.number));
  return place.name.empty() ? number : number + u" " + place.name;
}

/// Writes the entities and, behind them, what stands around them.
class DrawingMaker {
public:
  DrawingMaker(const ExportedDesign& design, const DxfForm& form)
      : design_(design), form_(form), isR12_(form.version == DxfVersion::R12), box_(BoxOf(design))
  {
  }

  DxfDrawing Make()
  {
    for (const ExportedPolyline& polyline : design_.polylines) WritePolyline(polyline);
    for (const ExportedPlace& place : design_.places) WritePlace(place);
    DxfText drawing;
    const DxfText layers = LayerTable();
    WriteDxfHeader(drawing, design_.unit, box_, isR12_ ? 0 : nextHandle_);
    if (!isR12_) {
      drawing.Records(DxfRecords::classesToViewports);
      WriteActiveViewport(drawing, box_);
    }
    drawing.Records(isR12_ ? DxfRecords::linetypesToLayersR12 : DxfRecords::linetypesToLayers);
    drawing.Append(layers);
    drawing.Records(isR12_ ? DxfRecords::stylesToBlocksR12 : DxfRecords::stylesToBlocks);
    drawing.Append(entities_);
    drawing.Records(isR12_ ? "0 ENDSEC|0 EOF" : DxfRecords::objects);
    return {drawing.Take(), shortenedNames_};
  }

private:
  std::string NextHandle() { return FormatHex(nextHandle_++, 1); }

  /// Writes the beginning of an entity and returns its handle.
  std::string Begin(const char* keyword, std::string_view layer, const std::string& owner)
  {
    entities_.Group(0, keyword);
    std::string handle;
    if (!isR12_) {
      handle = NextHandle();
      entities_.Group(5, handle);
      entities_.Group(330, owner);
      Subclass("AcDbEntity");
    }
    entities_.Group(8, layer);
    return handle;
  }

  std::string Begin(const char* keyword, std::string_view layer)
  {
    return Begin(keyword, layer, FormatHex(DxfRecords::modelSpace, 1));
  }

  void Subclass(const char* name)
  {
    if (!isR12_) entities_.Group(100, name);
  }

  void WriteColour(std::uint32_t colour)
  {
    const ColourIndex index = colour == 0 ? foreground : IndexOf(colour);
    entities_.Integer(62, NumberOf(index));
    if (!isR12_ && colour != 0) {
      entities_.Integer(420, ParseInt32(HexColour(colour).substr(1), 16));
    }
  }

  void WritePolyline(const ExportedPolyline& polyline)
  {
    const std::string layer = form_.layering == DxfLayering::Side ? polyline.side : "polylines";
    UseLayer(layer);
    const bool isFlat = IsFlat(*polyline.shape);
    if (isR12_ || !isFlat) {
      WriteVertexByVertex(*polyline.shape, layer, isFlat);
    } else {
      WriteInOneRecord(*polyline.shape, layer);
    }
  }

  /// The vertices that are written of a polyline: one that is closed by its flag ends before it is
  /// back.
  static std::size_t WrittenVertices(const CShape& shape, bool closed)
  {
    return shape.vertices.size() - (closed ? 1 : 0);
  }

  void WriteInOneRecord(const CShape& shape, const std::string& layer)
  {
    const bool closed = IsClosed(shape);
    const std::size_t count = WrittenVertices(shape, closed);
    Begin("LWPOLYLINE", layer);
    WriteColour(LineColourOf(shape));
    Subclass("AcDbPolyline");
    entities_.Integer(90, static_cast<std::int64_t>(count));
    entities_.Integer(70, closed ? 1 : 0);
    entities_.Real(43, DrawingWidth(LineWidthOf(shape)));
    for (std::size_t i = 0; i < count; ++i) {
      entities_.Place(10, shape.vertices[i]->x, shape.vertices[i]->y);
    }
  }

  /// In space no flag closes the polyline: readers, the one of this program among them, take that
  /// of space for all there is.
  void WriteVertexByVertex(const CShape& shape, const std::string& layer, bool isFlat)
  {
    const bool closed = isFlat && IsClosed(shape);
    const std::size_t count = WrittenVertices(shape, closed);
    const double width = DrawingWidth(LineWidthOf(shape));
    const std::string handle = Begin("POLYLINE", layer);
    WriteColour(LineColourOf(shape));
    Subclass(isFlat ? "AcDb2dPolyline" : "AcDb3dPolyline");
    entities_.Integer(66, 1);
    entities_.Place(10, 0.0, 0.0, 0.0);
    entities_.Integer(70, isFlat ? static_cast<int>(closed) : 8);
    if (width != 0.0) {
      entities_.Real(40, width);
      entities_.Real(41, width);
    }
    for (std::size_t i = 0; i < count; ++i) {
      const CShapeVertex& vertex = *shape.vertices[i];
      Begin("VERTEX", layer, handle);
      Subclass("AcDbVertex");
      Subclass(isFlat ? "AcDb2dVertex" : "AcDb3dPolylineVertex");
      entities_.Place(10, vertex.x, vertex.y, vertex.z);
      entities_.Integer(70, isFlat ? 0 : 32);
    }
    Begin("SEQEND", layer, handle);
  }

  void WritePlace(const ExportedPlace& place)
  {
    const std::string layer = LayerOf(place);
    const double z = place.z.value_or(0.0);
    const double height = box_.TextHeight();
    bool shortened = false;
    const std::string label = EscapedText(LabelOf(place), shortened);
    UseLayer(layer);
    shortenedNames_ += shortened ? 1 : 0;
    Begin("POINT", layer);
    Subclass("AcDbPoint");
    entities_.Place(10, place.x, place.y, z);
    Begin("TEXT", layer);
    Subclass("AcDbText");
    entities_.Place(10, place.x + height, place.y + height, z);
    entities_.Real(40, height);
    entities_.Group(1, label);
    Subclass("AcDbText");
  }

  void UseLayer(const std::string& name)
  {
    if (std::ranges::find(layers_, name) == layers_.end()) layers_.push_back(name);
  }

  DxfText LayerTable()
  {
    DxfText table;
    table.Records("0 TABLE|2 LAYER");
    if (!isR12_) table.Records("5 1|330 0|100 AcDbSymbolTable");
    table.Integer(70, static_cast<std::int64_t>(layers_.size()));
    for (const std::string& name : layers_) {
      table.Group(0, "LAYER");
      if (!isR12_) {
        table.Group(5, NextHandle());
        table.Records("330 1|100 AcDbSymbolTableRecord|100 AcDbLayerTableRecord");
      }
      table.Group(2, name);
      table.Records("70 0|62 7");
      table.Records(isR12_ ? "6 CONTINUOUS" : "6 Continuous|370 -3|390 13");
    }
    return table;
  }

  const ExportedDesign& design_;
  const DxfForm& form_;
  bool isR12_;
  DxfBox box_;
  DxfText entities_;
  std::uint32_t nextHandle_ = DxfRecords::firstFreeHandle;
  std::vector<std::string> layers_ = {"0"};
  std::size_t shortenedNames_ = 0;
};

}  // namespace

DxfDrawing MakeDxf(const ExportedDesign& design, const DxfForm& form)
{
  return DrawingMaker(design, form).Make();
}

}  // namespace hullwright
