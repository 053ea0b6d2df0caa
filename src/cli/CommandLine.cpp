#include "cli/CommandLine.h"

#include <algorithm>
#include <cstdio>

namespace hullwright {

int Fail(const std::string& problem)
{
  std::fprintf(stderr, "hullwright-cli: %s\n", problem.c_str());
  return exitFailed;
}

int UsageError(const std::string& problem)
{
  std::fprintf(stderr, "hullwright-cli: %s\nTry 'hullwright-cli --help'.\n", problem.c_str());
  return exitUsage;
}

bool ReadsInputTwice(const std::vector<std::string>& inputs)
{
  if (std::ranges::count(inputs, "-") < 2) return false;
  UsageError("standard input can be read only once");
  return true;
}

Arguments ReadArguments(int argc, char** argv, const char* letters, std::span<const option> options,
                        const std::function<std::string(int letter, const char* value)>& take)
{
  Arguments arguments;
  int letter = 0;
  while ((letter = getopt_long(argc, argv, letters, options.data(), nullptr)) != -1) {
    if (letter == '?') {
      std::fputs("Try 'hullwright-cli --help'.\n", stderr);
      arguments.wrong = true;
      return arguments;
    }
    if (const std::string problem = take(letter, optarg); !problem.empty()) {
      UsageError(problem);
      arguments.wrong = true;
      return arguments;
    }
  }
  arguments.words.assign(argv + optind, argv + argc);
  return arguments;
}

}  // namespace hullwright
