#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "dxf/Extrusion.h"
#include "dxf/FileDxfVertex.h"
#include "model/ShapePolyline.h"

namespace hullwright {

/// The polyline whose records are being read: its header, its vertices, and its end come one by one
/// and may lie in different blocks and sections. Vertices gather whether or not a header came.
class OpenPolyline {
public:
  /// Forgets a polyline that has no end, for the next header. Its vertices stay for the next one.
  void Begin() { pendingPolyline_.reset(); }

  /// Flags of the headers; one without flags has those of the one before.
  void SetFlags(std::int32_t flags) { polylineFlags_ = flags; }
  void SetCurveType(std::int32_t type) { polylineCurveType_ = type; }
  void SetExtrusion(const Extrusion& toWorld) { polylineExtrusion_ = toWorld; }

  /// Takes the shape that waits for its end.
  void Wait(std::unique_ptr<CShapePolyline> shape) { pendingPolyline_ = std::move(shape); }

  void AddVertex(const CFileDxfVertex& vertex) { polylineVertices_.push_back(vertex); }
  std::size_t VertexCount() const { return polylineVertices_.size(); }

  /// Gives the waiting shape its vertices and hands it over; null if there is none. `leftOut` is
  /// set for one that has more than `mostVertices`, which is left out. Afterwards, also when memory
  /// ends here, no shape waits and there are no vertices, so that no other polyline gets them.
  std::unique_ptr<CShapePolyline> End(std::size_t mostVertices, bool& leftOut);

  std::int32_t CurveType() const { return polylineCurveType_; }

private:
  std::int32_t polylineFlags_ = 0;      ///< of the last header that had some
  std::int32_t polylineCurveType_ = 0;  ///< likewise
  std::vector<CFileDxfVertex> polylineVertices_;
  Extrusion polylineExtrusion_;
  std::unique_ptr<CShapePolyline> pendingPolyline_;
};

}  // namespace hullwright
