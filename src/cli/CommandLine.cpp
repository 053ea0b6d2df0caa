#include "cli/CommandLine.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "base/Paths.h"
#include "base/Text.h"
#include "cli/TerminalProgress.h"

namespace hullwright {
namespace {

void PointToHelp(const char* verb)
{
  const std::string words = verb == nullptr ? std::string() : std::string(verb) + " ";
  std::fprintf(stderr, "Try 'hullwright-cli %s--help'.\n", words.c_str());
}

}  // namespace

int Fail(const std::string& problem)
{
  ClearTerminalLine();
  std::fprintf(stderr, "hullwright-cli: %s\n", problem.c_str());
  return exitFailed;
}

void Remark(const std::string& file, std::u16string_view text)
{
  ClearTerminalLine();
  std::fprintf(stderr, "hullwright-cli: %s: %s\n", file.c_str(), Utf8FromWide(text).c_str());
}

int UsageError(const char* verb, const std::string& problem)
{
  std::fprintf(stderr, "hullwright-cli: %s\n", problem.c_str());
  PointToHelp(verb);
  return exitUsage;
}

std::string UnknownSide(const std::string& name) { return "unknown side '" + name + "'"; }

bool ReadsInputTwice(const char* verb, const std::vector<std::string>& inputs)
{
  if (std::ranges::count(inputs, "-") < 2) return false;
  UsageError(verb, "standard input can be read only once");
  return true;
}

bool WouldOverwrite(const char* verb, const std::vector<std::string>& inputs,
                    const std::string& output, const char* words)
{
  const bool isInput = std::ranges::any_of(inputs, [&output](const std::string& input) {
    std::error_code ignored;
    return std::filesystem::equivalent(PathOf(input), PathOf(output), ignored);
  });
  if (isInput) UsageError(verb, words);
  return isInput;
}

Arguments ReadArguments(int argc, char** argv, const char* letters, std::span<const option> options,
                        const std::function<std::string(int letter, const char* value)>& take)
{
  Arguments arguments;
  int letter = 0;
  while ((letter = getopt_long(argc, argv, letters, options.data(), nullptr)) != -1) {
    if (letter == '?') {
      PointToHelp(argv[0]);
      arguments.wrong = true;
      return arguments;
    }
    if (const std::string problem = take(letter, optarg); !problem.empty()) {
      UsageError(argv[0], problem);
      arguments.wrong = true;
      return arguments;
    }
  }
  arguments.words.assign(argv + optind, argv + argc);
  return arguments;
}

}  // namespace hullwright
