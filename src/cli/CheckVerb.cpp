#include <algorithm>
#include <array>
#include <cstdio>

#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/DesignFindings.h"
#include "cli/HeadlessEditor.h"
#include "file/SaveLosses.h"
#include "system/InputFile.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli check DESIGN.xml...\n"
    "Reads designs as the program does and reports what opening and saving them would lose\n"
    "or change, every number that is not finite with its place, and a unit code that has\n"
    "no factor, so that its lengths count as metres. '-' stands for standard input.\n"
    "\n"
    "Exit status: 0 when there is nothing to report, 1 when there is something, 2 when a\n"
    "file can't be read or is no design, and for wrong usage.\n";

constexpr int exitUnreadable = 2;

/// Finds what a save loses. Empty on success, else where the design can't be read.
std::string ReadLosses(const InputFile& input, CSaveLosses& losses)
{
  if (losses.Read(WideFromUtf8(input.Path())) == 0) return {};
  const ReadError& error = losses.LastReadError();
  const char* const colon = error.line == 0 ? ": " : ":";  // a place follows the name at once
  return input.Name() + colon + Utf8FromWide(DescribeBriefly(error));
}

int Check(const std::string& word)
{
  const InputFile input(word);
  KeptMessages messages;
  CSaveLosses losses(messages);
  HeadlessEditor editor;
  std::string problem = ProblemOfDesign(input);
  if (problem.empty()) problem = ReadLosses(input, losses);
  if (problem.empty()) problem = OpenDesign(input, editor);
  if (!problem.empty()) {
    Fail(problem);
    return exitUnreadable;
  }
  int status = 0;
  for (const auto& findings :
       {LossFindings(losses), UnitFindings(editor.App()), NumberFindings(editor.App())}) {
    for (const std::string& finding : findings) {
      std::printf("%s: %s\n", input.Name().c_str(), finding.c_str());
      status = exitFailed;
    }
  }
  return status;
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

const Verb checkVerb = {"check", help, Run, exitUnreadable};

}  // namespace hullwright
