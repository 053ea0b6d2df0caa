#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "cli/CommandLine.h"
#include "system/TemporaryFiles.h"

namespace {

using namespace hullwright;

constexpr const char* help =
    "Usage: hullwright-cli VERB [ARGUMENT...]\n"
    "Works on vessel designs and drawings without a window.\n"
    "\n"
    "  check    report what saving a design would lose, and wrong numbers and units\n"
    "  import   import drawings into a design\n"
    "  info     report what designs and drawings hold\n"
    "  render   draw sides of a design or drawing as pictures\n"
    "\n"
    "  -h, --help     show this text; behind a verb, that verb's\n"
    "      --version  show the version\n"
    "\n"
    "Exit status: 0 success, 1 failure, 2 wrong usage, 3 a drawing came in only in part;\n"
    "check has a status of its own.\n";

const std::array<const Verb*, 4> verbs = {&checkVerb, &importVerb, &infoVerb, &renderVerb};

/// The status of a run whose output must have reached its reader.
int WithOutput(int status)
{
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
  return Fail("standard output: it can't be written");
}

bool IsHelp(std::string_view argument) { return argument == "-h" || argument == "--help"; }

int RunVerb(int argc, char** argv)
{
  if (argc < 2) return UsageError(nullptr, "nothing to do");
  const std::string_view word = argv[1];
  if (IsHelp(word)) {
    std::fputs(help, stdout);
    return 0;
  }
  if (word == "--version") {
    std::puts("hullwright-cli " HULLWRIGHT_VERSION);
    return 0;
  }
  const auto* const verb =
      std::ranges::find_if(verbs, [&](const Verb* known) { return known->name == word; });
  if (verb == verbs.end()) return UsageError(nullptr, "unknown verb '" + std::string(word) + "'");
  if (std::any_of(argv + 2, argv + argc, IsHelp)) {
    std::fputs((*verb)->help, stdout);
    return 0;
  }
  return (*verb)->run(argc - 1, argv + 1);
}

}  // namespace

int main(int argc, char** argv)
{
  // A file that grows too large is an error to be reported, not the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  RemoveTemporaryFilesAtSignals();
  try {
    return WithOutput(RunVerb(argc, argv));
  } catch (const std::exception& problem) {
    return Fail(problem.what());
  }
}
