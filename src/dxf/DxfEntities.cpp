#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <utility>

#include "base/Text.h"
#include "dxf/ColourTable.h"
#include "dxf/FileDxf.h"
#include "model/Angle.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"

// Which entities are read, what all of them have in common, and the plain ones.
namespace hullwright {

/// A line that starts a reader.
struct CFileDxf::Keyword {
  std::string_view word;
  bool inBlocks;
  bool skipped;
  void (*read)(CFileDxf& file, CShapes& target);
};

const CFileDxf::Keyword* CFileDxf::FindKeyword(std::string_view line, bool inBlock)
{
  constexpr auto skip = [](CFileDxf& file, CShapes&) { file.SkipEntity(); };
  static constexpr auto keywords = std::to_array<Keyword>({
      {"VERTEX", true, false, [](CFileDxf& file, CShapes&) { file.ReadVertex(); }},
      {"SPLINE", false, true, skip},
      {"LWPOLYLINE", true, false, [](CFileDxf& file, CShapes& to) { file.ReadLwPolyline(to); }},
      {"POLYLINE", true, false, [](CFileDxf& file, CShapes&) { file.ReadPolyline(); }},
      {"MTEXT", true, false, [](CFileDxf& file, CShapes& to) { file.ReadMText(to); }},
      {"ELLIPSE", false, false, [](CFileDxf& file, CShapes& to) { file.ReadEllipse(to); }},
      {"TEXT", true, false, [](CFileDxf& file, CShapes& to) { file.ReadText(to); }},
      {"SOLID", true, false, [](CFileDxf& file, CShapes& to) { file.ReadSolid(to); }},
      {"POINT", true, false, [](CFileDxf& file, CShapes& to) { file.ReadPoint(to); }},
      {"LINE", true, false, [](CFileDxf& file, CShapes& to) { file.ReadLine(to); }},
      {"ARC", true, false, [](CFileDxf& file, CShapes& to) { file.ReadArc(to); }},
      {"CIRCLE", true, false, [](CFileDxf& file, CShapes& to) { file.ReadCircle(to); }},
      {"SEQEND", true, false, [](CFileDxf& file, CShapes& to) { file.ReadSeqEnd(to); }},
      {"HATCH", true, true, skip},
      {"INSERT", true, false, [](CFileDxf& file, CShapes& to) { file.ReadInsert(to); }},
      {"ATTRIB", true, false, [](CFileDxf& file, CShapes& to) { file.ReadAttribute(to); }},
      {"ATTDEF", true, false, [](CFileDxf& file, CShapes& to) { file.ReadAttribute(to); }},
      {"3DFACE", true, false, [](CFileDxf& file, CShapes& to) { file.Read3DFace(to); }},
      {"VIEWPORT", true, true, skip},
      {"LEADER", true, true, skip},
      {"WIPEOUT", false, true, skip},
      {"MULTILEADER", false, true, skip},
      {"DIMENSION", true, true, skip},
      {"ARC_DIMENSION", false, true, skip},
      {"OLE2FRAME", false, true, skip},
      {"IMAGE", false, true, skip},
  });
  const auto* const found = std::ranges::find(keywords, line, &Keyword::word);
  if (found == keywords.end() || (inBlock && !found->inBlocks)) return nullptr;
  return found;
}

bool CFileDxf::IsImported(std::string_view keyword)
{
  const Keyword* const found = FindKeyword(keyword, false);
  return found != nullptr && !found->skipped;
}

void CFileDxf::TakeEntityLine(const DxfLine& line, bool inBlock, CShapes& target)
{
  const bool isKeyword = afterGroupZero_;
  afterGroupZero_ = line.IsGroupZero();
  const Keyword* const keyword = FindKeyword(line.Text(), inBlock);
  const bool isRead = keyword != nullptr && !keyword->skipped;
  try {
    if (isKeyword && !isRead) tally.CountIgnored(line.Trimmed());
    if (keyword != nullptr) keyword->read(*this, target);
  } catch (const std::bad_alloc&) {
    // There is no memory for this entity; the next one may be smaller.
    ++tally.withoutMemory;
  }
}

// ---------------------------------------------------------------------------------------------------
// What every entity goes through

bool CFileDxf::IsLeftOut(const DxfEntity& entity)
{
  if (entity.paperSpace != 1) return IsOnHiddenLayer(entity);
  ++tally.inPaperSpace;
  return true;
}

bool CFileDxf::IsOnHiddenLayer(const DxfEntity& entity)
{
  if (!IsLayerHidden(entity.layerName)) return false;
  ++tally.onHiddenLayers;
  return true;
}

bool CFileDxf::ReadEntity(DxfEntity& entity)
{
  ReadGroups(entity);
  return !IsLeftOut(entity);
}

void CFileDxf::Identify(CShape& shape, const DxfEntity& entity) const
{
  constexpr int hexadecimal = 16;
  shape.tag = ParseInt32(entity.handle, hexadecimal);
  if (!shape.attributes) shape.attributes = std::make_unique<CShapeAttributes>();
  shape.attributes->Append(u"LAYER", WideFromAnsi(entity.layerName));
  shape.attributes->Append(u"HANDLE", WideFromAnsi(entity.handle));
}

void CFileDxf::ResolveColour(CShape& shape, std::string_view layerName, std::int32_t colour) const
{
  if (!shape.style) shape.style = std::make_unique<ShapeStyle>();
  if (colour == colourByLayer) {
    const auto layer = layers.find(layerName);
    colour = layer == layers.end() ? 0 : layer->second->colour;
  }
  shape.style->lineColour = ColourOfIndex(colour);
  shape.style->fillColour = shape.style->lineColour;
}

void CFileDxf::Colour(CShape& shape, const DxfEntity& entity)
{
  ResolveColour(shape, entity.layerName, entity.colour);
  AddImplicitLayer(entity.layerName, entity.colour);
}

void CFileDxf::AddShape(std::unique_ptr<CShape> shape, const DxfEntity& entity, CShapes& target)
{
  Identify(*shape, entity);
  Colour(*shape, entity);
  target.shapes.push_back(std::move(shape));
}

namespace {

/// A mark that the attributes begin with.
void Mark(CShape& shape, std::u16string_view name, std::u16string_view value)
{
  shape.attributes = std::make_unique<CShapeAttributes>();
  shape.attributes->Append(name, value);
}

constexpr std::array<int, 4> cornerGroups = {10, 11, 12, 13};

}  // namespace

// ---------------------------------------------------------------------------------------------------
// The plain entities

void CFileDxf::ReadLine(CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(entity)) return;
  auto line = std::make_unique<CShapePolyline>();
  line->vertices.reserve(2);
  AddWorldVertex(*line, entity.Point(10), entity.Normal());
  AddWorldVertex(*line, entity.Point(11), entity.Normal());
  AddShape(std::move(line), entity, target);
}

void CFileDxf::ReadPoint(CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(entity)) return;
  DxfPoint place = entity.Point(10);
  ApplyExtrusion(place, entity.Normal());
  auto point = std::make_unique<CShapePoint>();
  point->position = CShapeVertex(place.x, place.y, place.z);
  AddShape(std::move(point), entity, target);
}

void CFileDxf::ReadArc(CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(entity)) return;
  auto arc = MakeArc(entity.Point(10), entity.Normal(), entity.Number(40), entity.Number(50),
                     entity.Number(51), false);
  Mark(*arc, u"TYPE", u"ARC");
  AddShape(std::move(arc), entity, target);
}

void CFileDxf::ReadCircle(CShapes& target)
{
  constexpr double wholeTurn = 360.0;
  DxfEntity entity;
  entity.colour = 0;
  if (!ReadEntity(entity)) return;
  DxfPoint centre = entity.Point(10);
  ApplyExtrusion(centre, entity.Normal());
  auto circle = CShapePolyline::CreateArc(centre.x, centre.y, entity.Number(40), 0.0, wholeTurn);
  Mark(*circle, u"TYPE", u"CIRLCE");  // the word for a circle since the first import
  AddShape(std::move(circle), entity, target);
}

void CFileDxf::ReadEllipse(CShapes& target)
{
  constexpr double wholeTurn = 360.0;
  DxfEntity entity;
  entity.colour = 0;
  if (!ReadEntity(entity)) return;
  const double start = entity.Number(41) * degreesPerRadian;
  double end = entity.Number(42) * degreesPerRadian;
  if (start > end) end += wholeTurn;
  DxfPoint axis = entity.Point(11);
  DxfPoint centre = entity.Point(10);
  ApplyExtrusion(axis, entity.Normal());
  ApplyExtrusion(centre, entity.Normal());
  const double major = std::sqrt(axis.x * axis.x + axis.y * axis.y + axis.z * axis.z);
  const double rotation = -std::atan2(axis.y, axis.x) * degreesPerRadian;
  auto ellipse =
      MakeEllipse(centre, entity.Normal(), rotation, major, major * entity.Number(40), start, end);
  Mark(*ellipse, u"TYPE", u"ELLIPSE");
  AddShape(std::move(ellipse), entity, target);
}

void CFileDxf::ReadSolid(CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(entity)) return;
  auto solid = std::make_unique<CShapePolygon>();
  for (const int group : cornerGroups) {
    DxfPoint corner = entity.Point(group);
    ApplyExtrusion(corner, entity.Normal());
    solid->AddVertex(std::make_unique<CShapeVertex>(corner.x, corner.y, corner.z), 0);
  }
  AddShape(std::move(solid), entity, target);
}

void CFileDxf::Read3DFace(CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(entity)) return;
  auto face = std::make_unique<CShapePolyline>();
  for (const int group : cornerGroups) {
    AddWorldVertex(*face, entity.Point(group), entity.Normal());
  }
  AddWorldVertex(*face, entity.Point(cornerGroups.front()), entity.Normal());
  Mark(*face, u"ENTITY", u"3DFACE");
  AddShape(std::move(face), entity, target);
}

}  // namespace hullwright
