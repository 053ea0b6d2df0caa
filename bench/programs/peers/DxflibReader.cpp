#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <string>
#include <vector>

#include "peers/DrawingReaders.h"

namespace hullwright::bench {
namespace {

/// Stores the entities of the benchmarks' drawings: vertices of outlines, arcs as they stand,
/// texts.
class Stored : public IDrawingRead, public DL_CreationAdapter {
public:
  void addPolyline(const DL_PolylineData&) override { ++outlines_; }
  void addVertex(const DL_VertexData& vertex) override { vertices_.push_back(vertex); }
  void addLine(const DL_LineData& line) override
  {
    ++outlines_;
    vertices_.emplace_back(line.x1, line.y1, line.z1);
    vertices_.emplace_back(line.x2, line.y2, line.z2);
  }
  void addArc(const DL_ArcData& arc) override { arcs_.push_back(arc); }
  void addCircle(const DL_CircleData& circle) override { circles_.push_back(circle); }
  void addText(const DL_TextData& text) override { texts_.push_back(text); }
  void addInsert(const DL_InsertData& insert) override { inserts_.push_back(insert); }

  DrawingCount Count() const override
  {
    return {outlines_ + arcs_.size() + circles_.size() + texts_.size() + inserts_.size(),
            vertices_.size()};
  }

private:
  std::size_t outlines_ = 0;
  std::vector<DL_VertexData> vertices_;
  std::vector<DL_ArcData> arcs_;
  std::vector<DL_CircleData> circles_;
  std::vector<DL_TextData> texts_;
  std::vector<DL_InsertData> inserts_;
};

}  // namespace

std::unique_ptr<IDrawingRead> ReadWithDxflib(const std::string& path)
{
  auto stored = std::make_unique<Stored>();
  DL_Dxf reader;
  if (!reader.in(path, stored.get())) return nullptr;
  return stored;
}

}  // namespace hullwright::bench
