#pragma once

#include <memory>
#include <vector>

#include "dxf/DxfPoint.h"
#include "dxf/Extrusion.h"
#include "dxf/FileDxfVertex.h"
#include "model/ShapePolyline.h"

/// Curves as polylines with fixed numbers of vertices, which go through `toWorld`.
namespace hullwright {

/// Adds a point as a vertex.
void AddWorldVertex(CShapePolyline& line, const DxfPoint& point, const Extrusion& toWorld);

/// An arc of about 182 vertices, whatever its size. The last two nearly or exactly coincide.
std::unique_ptr<CShapePolyline> MakeArc(const DxfPoint& centre, const Extrusion& toWorld,
                                        double radius, double startDegrees, double endDegrees,
                                        bool clockwise);

/// An ellipse of 61 vertices. Only a whole one along the axes comes out as drawn.
std::unique_ptr<CShapePolyline> MakeEllipse(const DxfPoint& centre, const Extrusion& toWorld,
                                            double rotationDegrees, double majorLength,
                                            double minorLength, double start, double end);

/// A polyline of the vertices with their bulges as arcs; null for an empty list. Empties the list,
/// also when memory ends here.
std::unique_ptr<CShapePolyline> FlattenVertices(std::vector<CFileDxfVertex>& vertices,
                                                const Extrusion& toWorld);

/// Appends the flattened vertices to a shape, and empties the list.
void AppendFlattened(CShapePolyline& shape, std::vector<CFileDxfVertex>& vertices,
                     const Extrusion& toWorld);

}  // namespace hullwright
