#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace hullwright::bench {

/// Runs a program of benchmarks: `add` registers them for the folder of inputs that the command
/// line names. The exit status of the program: 1 where a benchmark found a wrong result.
int RunBenchmarks(int argc, char** argv, void (*add)(const std::filesystem::path& inputs));

/// Adds a benchmark under a name: `work` gets its state and the name. What counts is CPU time of
/// the whole process, in milliseconds.
template <class Work>
benchmark::internal::Benchmark* AddBenchmark(const std::string& name, Work work)
{
  return benchmark::RegisterBenchmark(name.c_str(),
                                      [=](benchmark::State& state) { work(state, name); })
      ->MeasureProcessCPUTime()
      ->Unit(benchmark::kMillisecond);
}

}  // namespace hullwright::bench
