#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CommandLine.h"
#include "system/ProgramStart.h"
#include "system/TemporaryFiles.h"

namespace {

using namespace hullwright;

constexpr const char* help =
    "Usage: hullwright-cli VERB [ARGUMENT...]\n"
    "Works on vessel designs and drawings without a window.\n"
    "\n"
    "  check    report what saving a design would lose, and wrong numbers and units\n"
    "  diff     report what differs between two designs or drawings\n"
    "  export   write a design as a drawing, GeoJSON, a table or a picture\n"
    "  import   import drawings into a design\n"
    "  info     report what designs and drawings hold\n"
    "  render   draw sides of a design or drawing as pictures\n"
    "  report   make a document of a design: offsets, anchors, and the sides to scale\n"
    "\n"
    "  -h, --help     show this text; behind a verb, that verb's\n"
    "      --version  show the version\n"
    "\n"
    "Exit status: 0 success, 1 failure, 2 wrong usage, 3 a drawing came in only in part;\n"
    "check and diff have statuses of their own.\n";

const std::array<const Verb*, 7> verbs = {&checkVerb, &diffVerb,   &exportVerb, &importVerb,
                                          &infoVerb,  &renderVerb, &reportVerb};

/// Whether what was printed has reached its reader.
bool OutputIsWhole() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

bool IsHelp(std::string_view argument) { return argument == "-h" || argument == "--help"; }

/// Does what the arguments ask for; `trouble` becomes the verb's own status for a failure.
int RunVerb(int argc, char** argv, int& trouble)
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
  trouble = (*verb)->trouble;
  return (*verb)->run(argc - 1, argv + 1);
}

}  // namespace

int main(int argc, char** argv)
{
  BeginProgram();
  RemoveTemporaryFilesAtSignals();
  int trouble = exitFailed;
  try {
    std::vector<std::string> words = CommandWords(argc, argv);
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const int status = RunVerb(static_cast<int>(words.size()), arguments.data(), trouble);
    if (OutputIsWhole()) return status;
    Fail("standard output: it can't be written");
  } catch (const std::exception& problem) {
    Fail(problem.what());
  }
  return trouble;
}
