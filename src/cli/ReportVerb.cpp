#include <array>

#include "cli/CommandLine.h"
#include "cli/PictureName.h"
#include "cli/Report.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli report DESIGN.xml -o REPORT.pdf\n"
    "Makes a document of a design for the vessel's file, pages of A4: name, unit, date and\n"
    "SHA-256 of the file, tables of the offsets and anchors, and the six sides, each to scale\n"
    "with a scale bar. Its text can be searched. '-' stands for standard input and output.\n"
    "\n"
    "  -o, --output=REPORT.pdf  the document to write\n"
    "\n"
    "Where SOURCE_DATE_EPOCH is set, its time stands in the place of the clock's, so that the\n"
    "same design gives the same document.\n"
    "\n"
    "Exit status: 0 success, 1 when a file can't be read or written or is no design, 2 wrong\n"
    "usage.\n";

int Run(int argc, char** argv)
{
  static constexpr std::array<option, 2> longOptions = {
      {{"output", required_argument, nullptr, 'o'}, {nullptr, 0, nullptr, 0}}};
  std::string output;
  const Arguments arguments =
      ReadArguments(argc, argv, "o:", longOptions, [&](int, const char* value) -> std::string {
        output = value;
        return {};
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 1) return UsageError(argv[0], "report takes one design");
  if (WouldOverwrite(argv[0], arguments.words, output, "the report would overwrite the design")) {
    return exitUsage;
  }
  if (output != "-" && PictureEnding(output) != ".pdf") {
    return UsageError(argv[0], "report needs -o with a .pdf");
  }
  const std::string problem = WriteReport(arguments.words[0], output);
  return problem.empty() ? 0 : Fail(problem);
}

}  // namespace

const Verb reportVerb = {"report", help, Run};

}  // namespace hullwright
