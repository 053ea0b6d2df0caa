#include <array>
#include <cmath>
#include <utility>

#include "dxf/DxfCurves.h"
#include "dxf/DxfReaders.h"
#include "dxf/DxfShapes.h"
#include "model/Angle.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"

// Entities of a single record that become lines, points and areas.
namespace hullwright {
namespace {

constexpr double wholeTurn = 360.0;
constexpr std::array corners = {DxfCode::X, DxfCode::SecondX, DxfCode::ThirdX, DxfCode::FourthX};

}  // namespace

void ReadLine(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(lines, context, entity)) return;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  auto line = std::make_unique<CShapePolyline>();
  line->vertices.reserve(2);
  AddWorldVertex(*line, entity.Point(DxfCode::X), toWorld);
  AddWorldVertex(*line, entity.Point(DxfCode::SecondX), toWorld);
  AddShape(std::move(line), entity, context, target);
}

void ReadPoint(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(lines, context, entity)) return;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  const DxfPoint place = toWorld(entity.Point(DxfCode::X));
  auto point = std::make_unique<CShapePoint>();
  point->position = CShapeVertex(place.x, place.y, place.z);
  AddShape(std::move(point), entity, context, target);
}

void ReadArc(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(lines, context, entity)) return;
  auto arc = MakeArc(entity.Point(DxfCode::X), ExtrusionAlong(entity.Normal(), context),
                     entity.Number(DxfCode::Radius), entity.Number(DxfCode::StartAngle),
                     entity.Number(DxfCode::EndAngle), false);
  Mark(*arc, u"TYPE", u"ARC");
  AddShape(std::move(arc), entity, context, target);
}

void ReadCircle(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity(ColourIndex::ByBlock);
  if (!ReadEntity(lines, context, entity)) return;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  const DxfPoint centre = toWorld(entity.Point(DxfCode::X));
  auto circle =
      CShapePolyline::CreateArc(centre.x, centre.y, entity.Number(DxfCode::Radius), 0.0, wholeTurn);
  Mark(*circle, u"TYPE", u"CIRLCE");  // spelled as docs/DXF.md states it
  AddShape(std::move(circle), entity, context, target);
}

void ReadEllipse(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity(ColourIndex::ByBlock);
  if (!ReadEntity(lines, context, entity)) return;
  const double start = entity.Number(DxfCode::StartParameter) * degreesPerRadian;
  double end = entity.Number(DxfCode::EndParameter) * degreesPerRadian;
  if (start > end) end += wholeTurn;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  const DxfPoint axis = toWorld(entity.Point(DxfCode::SecondX));
  const DxfPoint centre = toWorld(entity.Point(DxfCode::X));
  const double major = std::sqrt(axis.x * axis.x + axis.y * axis.y + axis.z * axis.z);
  const double minor = major * entity.Number(DxfCode::AxisRatio);
  const double rotation = -std::atan2(axis.y, axis.x) * degreesPerRadian;
  auto ellipse = MakeEllipse(centre, toWorld, rotation, major, minor, start, end);
  Mark(*ellipse, u"TYPE", u"ELLIPSE");
  AddShape(std::move(ellipse), entity, context, target);
}

void ReadSolid(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(lines, context, entity)) return;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  auto solid = std::make_unique<CShapePolygon>();
  for (const DxfCode x : corners) {
    const DxfPoint corner = toWorld(entity.Point(x));
    solid->AddVertex(std::make_unique<CShapeVertex>(corner.x, corner.y, corner.z), 0);
  }
  AddShape(std::move(solid), entity, context, target);
}

void Read3DFace(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity entity;
  if (!ReadEntity(lines, context, entity)) return;
  const Extrusion toWorld = ExtrusionAlong(entity.Normal(), context);
  auto face = std::make_unique<CShapePolyline>();
  for (const DxfCode x : corners) AddWorldVertex(*face, entity.Point(x), toWorld);
  AddWorldVertex(*face, entity.Point(corners.front()), toWorld);
  Mark(*face, u"ENTITY", u"3DFACE");
  AddShape(std::move(face), entity, context, target);
}

}  // namespace hullwright
