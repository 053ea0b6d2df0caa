#include <algorithm>
#include <array>
#include <cstdio>

#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/DesignCheck.h"
#include "cli/Files.h"
#include "cli/HeadlessEditor.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli check DESIGN.xml...\n"
    "Reads designs as the program does and tells what opening and saving them would lose\n"
    "or change. '-' stands for standard input.\n"
    "\n"
    "Exit status: 0 when nothing is lost, 1 when something is, 2 when a file can't be\n"
    "read or is no design, and for wrong usage.\n";

constexpr int exitUnreadable = 2;

int Check(const std::string& word)
{
  const InputFile input(word);
  const std::string problem = input.Problem();
  KeptMessages messages;
  CDesignCheck check(messages);
  if (!problem.empty()) {
    Fail(problem);
    return exitUnreadable;
  }
  if (!input.IsDesign()) {
    Fail(input.Name() + ": " + notADesign);
    return exitUnreadable;
  }
  const std::u16string path = WideFromUtf8(input.Path());
  if (check.Read(path) != 0) {
    Fail(input.Name() + ":" + check.Problem());
    return exitUnreadable;
  }
  const std::vector<std::string> findings = check.Findings();
  for (const std::string& finding : findings) {
    std::printf("%s: %s\n", input.Name().c_str(), finding.c_str());
  }
  return findings.empty() ? 0 : exitFailed;
}

int Run(int argc, char** argv)
{
  static constexpr std::array<option, 1> longOptions = {{{nullptr, 0, nullptr, 0}}};
  const Arguments arguments =
      ReadArguments(argc, argv, "", longOptions, [](int, const char*) { return std::string(); });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.empty()) return UsageError(argv[0], "check takes a design or several");
  if (ReadsInputTwice(argv[0], arguments.words)) return exitUsage;
  int status = 0;
  for (const std::string& word : arguments.words) status = std::max(status, Check(word));
  return status;
}

}  // namespace

const Verb checkVerb = {"check", help, Run};

}  // namespace hullwright
