#include "Scene.h"

#include <memory>
#include <random>
#include <utility>

#include "model/ShapePolyline.h"

namespace hullwright::bench {
namespace {

constexpr int verticesOfPolyline = 20;
constexpr double step = 16.0;

/// Random numbers that are the same with every standard library, as its distributions are not.
class Numbers {
public:
  /// From -1 (inclusive) to 1 (exclusive).
  double Next()
  {
    constexpr double half = 9007199254740992.0 / 2.0;
    return static_cast<double>(engine_() >> 11U) / half - 1.0;
  }

private:
  std::mt19937_64 engine_{20};
};

}  // namespace

std::size_t PolylinesOfWindow(const std::filesystem::path& inputs)
{
  return std::filesystem::exists(inputs / "tiny") ? 100 : 5000;
}

Extents StretchOf(const Scene& scene, double part)
{
  const double x = scene.width * part * 0.5;
  const double y = scene.height * part * 0.5;
  return {-x, -y, x, y};
}

void Fill(CShapes& group, const Scene& scene)
{
  Numbers numbers;
  for (std::size_t i = 0; i < scene.polylines; ++i) {
    auto polyline = std::make_unique<CShapePolyline>();
    polyline->style = std::make_unique<ShapeStyle>();
    polyline->style->lineWidth = scene.lineWidth;
    double x = numbers.Next() * scene.width * 0.5;
    double y = numbers.Next() * scene.height * 0.5;
    for (int vertex = 0; vertex < verticesOfPolyline; ++vertex) {
      polyline->AddVertex(x, y, 0.0);
      x += numbers.Next() * step;
      y += numbers.Next() * step;
    }
    group.shapes.push_back(std::move(polyline));
  }
}

}  // namespace hullwright::bench
