#include <benchmark/benchmark.h>
#include <malloc.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "BenchMain.h"
#include "Checks.h"
#include "DesignHash.h"
#include "base/Text.h"
#include "cli/HeadlessEditor.h"
#include "peers/PrintedDesign.h"
#include "peers/XmlReaders.h"

/// Opening a design, against XML parsers alone; saving it, against `fprintf`; and the memory that
/// it takes.
namespace hullwright::bench {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path)
{
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::unique_ptr<HeadlessEditor> OpenedEditor(const fs::path& design)
{
  auto editor = std::make_unique<HeadlessEditor>();
  return editor->Open(WideFromUtf8(design.string())) ? std::move(editor) : nullptr;
}

/// Bytes that the program has from the allocator.
std::size_t BytesInUse()
{
  const struct mallinfo2 usage = mallinfo2();
  return usage.uordblks + usage.hblkhd;
}

/// Opens a design in a new editor. Neither making nor releasing the editor is measured.
void Open(benchmark::State& state, const std::string& name, const fs::path& design)
{
  DesignSum sum;
  for ([[maybe_unused]] auto repetition : state) {
    state.PauseTiming();
    HeadlessEditor editor;
    const std::u16string path = WideFromUtf8(design.string());
    state.ResumeTiming();
    const bool opened = editor.Open(path);
    state.PauseTiming();
    if (!opened) return Fail(state, Utf8FromWide(editor.Problem()));
    sum = SumUp(editor.App());
    if (!SameAsBefore(state, name, sum.hash)) return;
    state.ResumeTiming();
  }
  state.counters["bytes"] = static_cast<double>(fs::file_size(design));
  state.counters["vertices"] = static_cast<double>(sum.vertices);
}

/// What the allocator has given out for an opened design. Counts only in a process that has opened
/// nothing before: the memory of vertices is used again.
void Weigh(benchmark::State& state, const std::string& name, const fs::path& design)
{
  HeadlessEditor editor;
  const std::size_t before = BytesInUse();
  for ([[maybe_unused]] auto once : state) {
    if (!editor.Open(WideFromUtf8(design.string()))) return Fail(state, "it can't be opened");
  }
  const auto memory = static_cast<double>(BytesInUse() - before);
  const DesignSum sum = SumUp(editor.App());
  SameAsBefore(state, name, sum.hash);
  state.counters["bytes_a_vertex"] = memory / static_cast<double>(sum.vertices);
}

/// The same file through a parser, which gives the number of elements.
void Parse(benchmark::State& state, const std::string& name, const fs::path& design,
           std::size_t (*read)(const std::string& path))
{
  std::size_t elements = 0;
  for ([[maybe_unused]] auto repetition : state) {
    elements = read(design.string());
    if (!SameAsBefore(state, name, elements)) return;
  }
  state.counters["elements"] = static_cast<double>(elements);
}

/// Writes a design with `save`. The bytes must be those of the design itself, as the program made
/// it, whoever writes them.
template <class Save>
void WriteDesign(benchmark::State& state, const fs::path& design, const std::string& ending,
                 Save save)
{
  const auto editor = OpenedEditor(design);
  if (!editor) return Fail(state, design.string() + ": it can't be opened");
  const std::string wanted = BytesOf(design);
  const fs::path path = design.string() + ending;
  for ([[maybe_unused]] auto repetition : state) {
    if (!save(*editor, path)) return Fail(state, path.string() + ": it can't be written");
    state.PauseTiming();
    if (BytesOf(path) != wanted) return Fail(state, path.string() + ": other bytes");
    fs::remove(path);
    state.ResumeTiming();
  }
  state.counters["bytes"] = static_cast<double>(wanted.size());
}

void Save(benchmark::State& state, const fs::path& design)
{
  WriteDesign(state, design, ".saved", [](HeadlessEditor& editor, const fs::path& path) {
    return editor.Save(WideFromUtf8(path.string()));
  });
}

void Print(benchmark::State& state, const fs::path& design)
{
  const PrintedDesign printed(BytesOf(design));
  WriteDesign(state, design, ".printed", [&](HeadlessEditor& editor, const fs::path& path) {
    return printed.Write(editor.App(), path);
  });
}

void AddDesigns(const fs::path& inputs)
{
  for (const std::string file : {"design", "design-10th", "design-100th"}) {
    const fs::path design = inputs / (file + ".xml");
    AddBenchmark("open/" + file + "/ours",
                 [=](auto& state, auto& name) { Open(state, name, design); });
    AddBenchmark("save/" + file + "/ours", [=](auto& state, auto&) { Save(state, design); });
  }
  const fs::path design = inputs / "design.xml";
  AddBenchmark("open/design/expat",
               [=](auto& state, auto& name) { Parse(state, name, design, ReadWithExpat); });
#ifdef HULLWRIGHT_BENCH_PUGIXML
  AddBenchmark("open/design/pugixml",
               [=](auto& state, auto& name) { Parse(state, name, design, ReadWithPugixml); });
#endif
  AddBenchmark("save/design/fprintf", [=](auto& state, auto&) { Print(state, design); });
  AddBenchmark("memory/vertex/ours", [=](auto& state, auto& name) {
    Weigh(state, name, design);
  })->Iterations(1);
}

}  // namespace
}  // namespace hullwright::bench

int main(int argc, char** argv)
{
  return hullwright::bench::RunBenchmarks(argc, argv, hullwright::bench::AddDesigns);
}
