#include <ogrsf_frmts.h>

#include <utility>
#include <vector>

#include "peers/DrawingReaders.h"

namespace hullwright::bench {
namespace {

std::size_t CountVertices(const OGRGeometry* geometry)
{
  if (geometry == nullptr) return 0;
  const OGRwkbGeometryType type = wkbFlatten(geometry->getGeometryType());
  if (type == wkbPoint) return 1;
  if (OGR_GT_IsSubClassOf(type, wkbCurve)) {
    return static_cast<std::size_t>(geometry->toCurve()->getNumPoints());
  }
  std::size_t count = 0;
  if (OGR_GT_IsSubClassOf(type, wkbCurvePolygon)) {
    for (const auto* ring : *geometry->toCurvePolygon()) count += CountVertices(ring);
  } else if (OGR_GT_IsSubClassOf(type, wkbGeometryCollection)) {
    for (const auto* part : *geometry->toGeometryCollection()) count += CountVertices(part);
  }
  return count;
}

class Features : public IDrawingRead {
public:
  explicit Features(GDALDatasetUniquePtr drawing) : drawing_(std::move(drawing))
  {
    for (auto& feature : *drawing_->GetLayer(0)) features_.push_back(std::move(feature));
  }

  DrawingCount Count() const override
  {
    DrawingCount count;
    for (const OGRFeatureUniquePtr& feature : features_) {
      ++count.entities;
      count.vertices += CountVertices(feature->GetGeometryRef());
    }
    return count;
  }

private:
  GDALDatasetUniquePtr drawing_;
  std::vector<OGRFeatureUniquePtr> features_;
};

}  // namespace

std::unique_ptr<IDrawingRead> ReadWithGdal(const std::string& path)
{
  static const bool registered = [] {
    GDALAllRegister();
    CPLSetErrorHandler(CPLQuietErrorHandler);
    return true;
  }();
  const char* const drivers[] = {"DXF", nullptr};
  GDALDatasetUniquePtr drawing(
      registered ? GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers)
                 : nullptr);
  return drawing ? std::make_unique<Features>(std::move(drawing)) : nullptr;
}

}  // namespace hullwright::bench
