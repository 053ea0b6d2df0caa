#pragma once

#include <filesystem>

namespace hullwright::bench {

/// Runs a program of benchmarks: `add` registers them for the folder of inputs that the command
/// line names. The exit status of the program: 1 where a benchmark found a wrong result.
int RunBenchmarks(int argc, char** argv, void (*add)(const std::filesystem::path& inputs));

}  // namespace hullwright::bench
