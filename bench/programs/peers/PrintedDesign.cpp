#include "peers/PrintedDesign.h"

#include <cstdio>
#include <memory>

namespace hullwright::bench {
namespace {

struct Closing {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

void Print(std::FILE* file, const CShape& polyline)
{
  std::fputs("  <polyline>\n", file);
  ForEachEntry(polyline.vertices, [&](const CShapeVertex& vertex) {
    std::fprintf(file, "   <vertex x=\"%.3lf\" y=\"%.3lf\" z=\"%.3lf\" />\n", vertex.x, vertex.y,
                 vertex.z);
  });
  std::fputs("  </polyline>\n", file);
}

}  // namespace

PrintedDesign::PrintedDesign(const std::string& saved)
    : head_(saved.substr(0, saved.find("  <polyline>"))),
      tail_(saved.substr(saved.find(" </shapes>")))
{
}

bool PrintedDesign::Write(const DesignState& design, const std::filesystem::path& path) const
{
  std::unique_ptr<std::FILE, Closing> file(std::fopen(path.c_str(), "wb"));
  if (!file) return false;
  std::fputs(head_.c_str(), file.get());
  ForEachEntry(design.shapeGroups, [&](const CShapes& group) {
    ForEachEntry(group.shapes, [&](const CShape& shape) { Print(file.get(), shape); });
  });
  std::fputs(tail_.c_str(), file.get());
  return std::fclose(file.release()) == 0;
}

}  // namespace hullwright::bench
