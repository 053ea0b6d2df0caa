#include <cstddef>
#include <cstdint>

#include "FuzzInput.h"
#include "dxf/DxfSections.h"
#include "headless/KeptTrace.h"
#include "headless/SilentWindow.h"
#include "model/Layer.h"

// Any bytes are a drawing: reading them must end, in bounded memory, and what they give must be
// shapes that can be worked with.
using namespace hullwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  SilentWindow window;
  const KeptTrace log;
  DxfLines lines({reinterpret_cast<const char*>(data), size});
  DxfContext context(log, {.copyBudget = 1 << 22});
  CLayer layer;
  ProcessSections(lines, context, *layer.shapes, window);
  context.tally.CountShapes(*layer.shapes);
  layer.UpdateExtents();

  CShapes copies;
  copies.AppendClones(layer.shapes.get());
  Require(copies.shapes.size() == layer.shapes->shapes.size());
  Require(context.tally.Shapes() == copies.shapes.size());
  std::vector<CShapeVertex*> vertices;
  for (const auto& shape : copies.shapes) {
    shape->Scale(2.0, -1.0, 0.5);
    shape->Rotate(30.0);
    shape->Translate(1.0, 2.0, 3.0);
    shape->GetVertices(vertices);
  }
  return 0;
}
