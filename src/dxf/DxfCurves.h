#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "dxf/DxfPoint.h"
#include "dxf/Extrusion.h"
#include "dxf/FileDxfVertex.h"
#include "model/ShapePolyline.h"

/// Curves as polylines with fixed numbers of vertices, which go through `toWorld`.
namespace hullwright {

/// Adds a point as a vertex.
inline void AddWorldVertex(CShapePolyline& line, const DxfPoint& point, const Extrusion& toWorld)
{
  const DxfPoint p = toWorld(point);
  line.AddVertex(p.x, p.y, p.z);
}

/// Appends an arc of about 182 vertices, whatever its size. The last two nearly or exactly
/// coincide, but where a clockwise arc goes one step past its end before it comes back to it.
void AppendArc(CShapePolyline& line, const DxfPoint& centre, const Extrusion& toWorld,
               double radius, double startDegrees, double endDegrees, bool clockwise);

/// Such an arc by itself.
std::unique_ptr<CShapePolyline> MakeArc(const DxfPoint& centre, const Extrusion& toWorld,
                                        double radius, double startDegrees, double endDegrees,
                                        bool clockwise);

/// An ellipse of 61 vertices. Rotation and parameters are in degrees; the vertices are found by the
/// start in degrees and steps in radians, so that only a whole one along the axes comes out as
/// drawn.
std::unique_ptr<CShapePolyline> MakeEllipse(const DxfPoint& centre, const Extrusion& toWorld,
                                            double rotationDegrees, double majorLength,
                                            double minorLength, double startDegrees,
                                            double endDegrees);

/// Whether vertices with their bulges become no more vertices than `most`.
bool FlattensWithin(std::size_t most, const std::vector<CFileDxfVertex>& vertices);

/// Appends vertices with their bulges as arcs to a shape.
void AppendFlattened(CShapePolyline& shape, const std::vector<CFileDxfVertex>& vertices,
                     const Extrusion& toWorld);

}  // namespace hullwright
