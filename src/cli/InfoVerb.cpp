#include <array>

#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/DesignInfo.h"
#include "cli/DrawingInfo.h"
#include "system/InputFile.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli info DESIGN.xml|DRAWING.dxf... [--json]\n"
    "Reports what designs hold: the unit, the offsets, the anchors, and of each side the\n"
    "polylines, their vertices and extents; of drawings the layers, the blocks, the\n"
    "entities, and what of them the import ignores. '-' stands for standard input. A\n"
    "file that begins as XML does is a design, any other a drawing, whatever its name.\n"
    "\n"
    "  -j, --json  as JSON, one document a line\n"
    "\n"
    "Exit status: 0 success, 1 when a file is neither a design nor a drawing or can't be\n"
    "read, 2 wrong usage, 3 when parts of a drawing were left out for want of memory or\n"
    "beyond a limit.\n";

int InfoOfDrawing(const InputFile& input, bool asJson)
{
  DrawingSummary summary;
  const std::u16string problem = SummariseDrawing(WideFromUtf8(input.Path()), summary);
  if (!problem.empty()) return Fail(input.Name() + ": " + Utf8FromWide(problem));
  if (asJson) {
    JsonWriter json(stdout);
    WriteDrawingJson(json, summary, input.Name());
  } else {
    PrintDrawing(summary, input.Name());
  }
  if (summary.passedOver.empty()) return 0;
  Remark(input.Name(), summary.passedOver);
  return exitIncomplete;
}

int InfoOfDesign(const InputFile& input, bool asJson)
{
  HeadlessEditor editor;
  if (std::string problem = OpenDesign(input, editor); !problem.empty()) return Fail(problem);
  if (!asJson) {
    PrintDesign(editor, input.Name());
    return 0;
  }
  JsonWriter json(stdout);
  WriteDesignJson(json, editor, input.Name());
  return 0;
}

int Run(int argc, char** argv)
{
  static constexpr std::array<option, 2> longOptions = {
      {{"json", no_argument, nullptr, 'j'}, {nullptr, 0, nullptr, 0}}};
  bool asJson = false;
  const Arguments arguments =
      ReadArguments(argc, argv, "j", longOptions, [&](int, const char*) -> std::string {
        asJson = true;
        return {};
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.empty())
    return UsageError(argv[0], "info takes a design or a drawing, or several");
  if (ReadsInputTwice(argv[0], arguments.words)) return exitUsage;
  int status = 0;
  for (const std::string& word : arguments.words) {
    const InputFile input(word);
    const std::string problem = input.Problem();
    int failed = 0;
    if (!problem.empty()) {
      failed = Fail(problem);
    } else {
      failed = input.IsDesign() ? InfoOfDesign(input, asJson) : InfoOfDrawing(input, asJson);
    }
    if (status != exitFailed && failed != 0) status = failed;
  }
  return status;
}

}  // namespace

const Verb infoVerb = {"info", help, Run};

}  // namespace hullwright
