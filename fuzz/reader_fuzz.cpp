#include <cstddef>
#include <cstdint>
#include <cstring>

#include "dxf/FileDxf.h"

// Any bytes are a drawing: reading them must end, in bounded memory, and what they give must be
// shapes that can be worked with.
namespace {

using namespace hullwright;

class Window : public IMainWindow {
public:
  bool HasWindow() const override { return true; }
  void Notify(int, std::intptr_t) override {}
  void SetModifiedFlag(bool) override {}
};

class Log : public ITrace {
public:
  void Trace(double, std::int32_t, std::u16string_view, std::u16string_view) const override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  constexpr std::int64_t smallBudget = 1 << 22;
  Window window;
  const Log log;
  CLayer layer;
  CFileDxf drawing(&window, log);
  drawing.copyBudget = smallBudget;
  drawing.targetLayer = &layer;
  drawing.buffer.reset(new char[size + 1]);
  if (size != 0) std::memcpy(drawing.buffer.get(), data, size);
  drawing.buffer[size] = '\0';
  drawing.size = static_cast<std::int64_t>(size);
  if (drawing.ProcessFile() != 0) __builtin_trap();
  layer.UpdateExtents();

  CShapes copies;
  copies.AppendClones(layer.shapes.get());
  if (copies.shapes.size() != layer.shapes->shapes.size()) __builtin_trap();
  std::vector<CShapeVertex*> vertices;
  for (const auto& shape : copies.shapes) {
    shape->Scale(2.0, -1.0, 0.5);
    shape->Rotate(30.0);
    shape->Translate(1.0, 2.0, 3.0);
    shape->GetVertices(vertices);
  }
  return 0;
}
