#pragma once

#include <cstddef>
#include <memory>
#include <string>

/// Other readers of drawings, which the import is compared with.
namespace hullwright::bench {

struct DrawingCount {
  std::size_t entities = 0;
  std::size_t vertices = 0;
};

/// What a reader made of a drawing, all of it in memory, as the import leaves it.
class IDrawingRead {
public:
  virtual ~IDrawingRead() = default;

  /// How much there is, which shows that the reader did its work.
  virtual DrawingCount Count() const = 0;
};

/// Every feature of GDAL's layer of entities, with its geometry and fields; null for no drawing.
std::unique_ptr<IDrawingRead> ReadWithGdal(const std::string& path);

/// What dxflib's callbacks are called with; null for no drawing.
std::unique_ptr<IDrawingRead> ReadWithDxflib(const std::string& path);

}  // namespace hullwright::bench
