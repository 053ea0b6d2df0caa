#include "BenchMain.h"

#include <cstdio>

#include "Checks.h"

namespace hullwright::bench {

int RunBenchmarks(int argc, char** argv, void (*add)(const std::filesystem::path& inputs))
{
  benchmark::Initialize(&argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "Usage: %s FOLDER-OF-INPUTS [--benchmark_OPTION=...]\n", argv[0]);
    return 2;
  }
  add(argv[1]);
  if (benchmark::RunSpecifiedBenchmarks() == 0) return 1;
  benchmark::Shutdown();
  return FoundWrongResults() ? 1 : 0;
}

}  // namespace hullwright::bench
