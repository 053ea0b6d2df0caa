#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "BenchMain.h"
#include "Checks.h"
#include "DesignHash.h"
#include "base/Text.h"
#include "cli/HeadlessEditor.h"
#include "peers/DrawingReaders.h"

/// Imports of drawings, against GDAL and dxflib reading the same files. An import ends with shapes
/// in the design; the readers' features stay in memory as well.
namespace hullwright::bench {
namespace {

namespace fs = std::filesystem;
using Drawings = std::vector<std::string>;
using Reader = std::unique_ptr<IDrawingRead>(const std::string& path);

double BytesOf(const Drawings& drawings)
{
  double bytes = 0.0;
  for (const std::string& drawing : drawings) bytes += static_cast<double>(fs::file_size(drawing));
  return bytes;
}

/// Each drawing into a new design. Neither making nor releasing the design is measured.
void Import(benchmark::State& state, const std::string& name, const Drawings& drawings)
{
  DesignSum sum;
  for ([[maybe_unused]] auto repetition : state) {
    state.PauseTiming();
    Hash all;
    sum = {};
    for (const std::string& drawing : drawings) {
      const std::u16string path = WideFromUtf8(drawing);
      HeadlessEditor editor;
      state.ResumeTiming();
      const bool imported = editor.Import(path);
      state.PauseTiming();
      if (!imported) return Fail(state, drawing + ": " + Utf8FromWide(editor.Problem()));
      const DesignSum one = SumUp(editor.App());
      all.Add(one.hash);
      sum.shapes += one.shapes;
      sum.vertices += one.vertices;
    }
    if (!SameAsBefore(state, name, all.Sum())) return;
    state.ResumeTiming();
  }
  state.counters["bytes"] = BytesOf(drawings);
  state.counters["shapes"] = static_cast<double>(sum.shapes);
  state.counters["vertices"] = static_cast<double>(sum.vertices);
}

/// The same drawings through another reader. Neither counting nor releasing is measured.
void ReadAll(benchmark::State& state, const std::string& name, const Drawings& drawings,
             Reader* read)
{
  DrawingCount sum;
  for ([[maybe_unused]] auto repetition : state) {
    state.PauseTiming();
    sum = {};
    for (const std::string& drawing : drawings) {
      state.ResumeTiming();
      const std::unique_ptr<IDrawingRead> drawingRead = read(drawing);
      state.PauseTiming();
      if (!drawingRead) return Fail(state, drawing + ": it can't be read");
      const DrawingCount one = drawingRead->Count();
      sum.entities += one.entities;
      sum.vertices += one.vertices;
    }
    if (!SameAsBefore(state, name, sum.entities + sum.vertices)) return;
    state.ResumeTiming();
  }
  state.counters["shapes"] = static_cast<double>(sum.entities);
  state.counters["vertices"] = static_cast<double>(sum.vertices);
}

void AddOurs(const std::string& work, const Drawings& drawings)
{
  AddBenchmark("import/" + work + "/ours",
               [=](auto& state, auto& name) { Import(state, name, drawings); });
}

void AddPeer(const std::string& work, const std::string& peer, const Drawings& drawings,
             Reader* read)
{
  AddBenchmark("import/" + work + "/" + peer,
               [=](auto& state, auto& name) { ReadAll(state, name, drawings, read); });
}

void AddGdal([[maybe_unused]] const std::string& work, [[maybe_unused]] const Drawings& drawings)
{
#ifdef HULLWRIGHT_BENCH_GDAL
  AddPeer(work, "gdal", drawings, ReadWithGdal);
#endif
}

void AddDxflib([[maybe_unused]] const std::string& work, [[maybe_unused]] const Drawings& drawings)
{
#ifdef HULLWRIGHT_BENCH_DXFLIB
  AddPeer(work, "dxflib", drawings, ReadWithDxflib);
#endif
}

/// The drawings of the folder `largest`, which the script fills with the largest of a folder that
/// its user names.
Drawings LargestDrawings(const fs::path& inputs)
{
  Drawings drawings;
  if (!fs::is_directory(inputs / "largest")) return drawings;
  for (const fs::directory_entry& entry : fs::directory_iterator(inputs / "largest")) {
    drawings.push_back(entry.path().string());
  }
  std::ranges::sort(drawings);
  return drawings;
}

void AddImports(const fs::path& inputs)
{
  for (const std::string work : {"mix", "bulges", "arcs", "mtext"}) {
    const Drawings drawing{(inputs / (work + ".dxf")).string()};
    AddOurs(work, drawing);
    AddGdal(work, drawing);
  }
  AddDxflib("mix", {(inputs / "mix.dxf").string()});
  for (const std::string work : {"mix-10th", "mix-100th"}) {
    AddOurs(work, {(inputs / (work + ".dxf")).string()});
  }
  if (const Drawings largest = LargestDrawings(inputs); !largest.empty()) {
    AddOurs("largest", largest);
    AddGdal("largest", largest);
  }
}

}  // namespace
}  // namespace hullwright::bench

int main(int argc, char** argv)
{
  return hullwright::bench::RunBenchmarks(argc, argv, hullwright::bench::AddImports);
}
