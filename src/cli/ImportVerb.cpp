#include <algorithm>
#include <array>
#include <cstdio>

#include "app/ImportText.h"
#include "app/NonFiniteNumbers.h"
#include "base/Pages.h"
#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/HeadlessEditor.h"
#include "cli/ShapesJson.h"
#include "cli/TerminalProgress.h"
#include "dxf/FileDxf.h"
#include "headless/KeptTrace.h"
#include "headless/SilentWindow.h"
#include "resources/ViewSides.h"
#include "system/FormerVersions.h"
#include "system/InputFile.h"
#include "system/OutputFile.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli import DRAWING.dxf... [OPTION...] -o OUT.xml\n"
    "       hullwright-cli import DRAWING.dxf... --json\n"
    "Imports AutoCAD drawings into one side of a vessel design and saves it: the\n"
    "outlines, that is, for a design file holds polylines only. '-' stands for standard\n"
    "input and output. What the import ignores or leaves out is reported on standard error.\n"
    "\n"
    "  -i, --into=DESIGN.xml  the design to add to; without it a new one\n"
    "  -s, --side=SIDE        top, bottom, right, left, front or rear (top)\n"
    "  -o, --output=OUT.xml   the design to write\n"
    "  -j, --json             print what each import gives, one JSON document a line:\n"
    "                         result, log, extents and shapes; -o may be left out then\n"
    "\n"
    "Exit status: 0 success, also with a warning that a drawing has nothing that can be\n"
    "drawn, or no polylines; 1, with nothing written, when a file can't be read or is no\n"
    "drawing in text form; 2 wrong usage; 3 when the design was written, but parts of a\n"
    "drawing were left out for want of memory or beyond a limit. With --json alone 0 in\n"
    "the place of 1; the object states the result.\n";

struct Options {
  std::vector<std::string> drawings;
  std::string into;
  std::string output;
  ViewSide side = ViewSide::Top;
  bool json = false;
};

/// Takes the progress where there is no frame.
class ImportWindow : public SilentWindow {
public:
  void ShowProgress(int percent) override { progress_.ShowProgress(percent); }
  void EndProgress() override { progress_.EndProgress(); }

private:
  TerminalProgress progress_;
};

/// Reports what an import passed over, and where it gave nothing. `keepsAll` is false where only
/// polylines are kept.
void ReportTally(const std::string& name, const ImportTally& tally, bool keepsAll)
{
  if (const std::u16string passedOver = DescribePassedOver(tally); !passedOver.empty()) {
    Remark(name, passedOver);
  }
  if (tally.Shapes() == 0) {
    Remark(name, u"warning: " + DescribeShapes(tally));
  } else if (tally.polylines == 0 && !keepsAll) {
    Remark(name,
           u"warning: no polylines, and a design keeps nothing else: " + DescribeShapes(tally));
  }
}

int PrintJson(const Options& options)
{
  const bool reports = options.output.empty();  // else the import into the design does
  int status = 0;
  JsonWriter json(stdout);
  for (const std::string& drawing : options.drawings) {
    const InputFile input(drawing);
    const std::u16string path = WideFromUtf8(input.Path());
    ImportWindow window;
    const KeptTrace log;
    CLayer layer;
    CFileDxf reader(&window, log);
    const int result = reader.Import(path, &layer);
    WriteImportJson(json, result, log, path, layer);
    if (reader.Tally().IsIncomplete()) status = exitIncomplete;
    if (!reports || result != 0) continue;
    if (reader.Tally().IsDrawing()) {
      ReportTally(input.Name(), reader.Tally(), true);
    } else {
      Remark(input.Name(), DescribeImport(reader.Tally()));
    }
  }
  return status;
}

int ImportAll(const Options& options)
{
  MapLargeBlocks();  // the text of a drawing, then that of the design
  TerminalProgress progress;
  HeadlessEditor editor(&progress);
  if (!options.into.empty()) {
    const InputFile design(options.into);
    if (std::string problem = OpenDesign(design, editor); !problem.empty()) return Fail(problem);
  }
  editor.App().activeView = options.side;
  int status = 0;
  for (const std::string& drawing : options.drawings) {
    const InputFile input(drawing);
    if (std::string problem = input.Problem(); !problem.empty()) return Fail(problem);
    if (input.IsDesign()) return Fail(input.Name() + ": a design, not a drawing");
    if (!editor.Import(WideFromUtf8(input.Path()))) {
      return Fail(input.Name() + ": " + Utf8FromWide(editor.Problem()));
    }
    ReportTally(input.Name(), editor.Tally(), false);
    if (editor.Tally().IsIncomplete()) status = exitIncomplete;
  }
  OutputFile output(options.output);
  if (output.Path().empty()) return Fail(output.Problem());
  const std::u16string numbers = Describe(FindNonFiniteNumbers(editor.App()));
  if (!editor.SaveAndLetGo(WideFromUtf8(output.Path()))) {
    return Fail(options.output + ": " + Utf8FromWide(editor.Problem()));
  }
  if (!numbers.empty()) Remark(options.output, u"warning: " + numbers);
  if (options.output != "-") FormerVersions(StateFolder()).Keep(WideFromUtf8(options.output));
  return output.Commit() ? status : Fail(output.Problem());
}

std::string TakeOption(int letter, const std::string& value, Options& options)
{
  if (letter != 'j' && value.empty())
    return std::string("the option -") + static_cast<char>(letter) + " has an empty value";
  switch (letter) {
    case 'i': options.into = value; return {};
    case 'o': options.output = value; return {};
    case 'j': options.json = true; return {};
    default: break;
  }
  const ViewSideEntry* const side = FindViewSideByName(value);
  if (side == nullptr) return UnknownSide(value);
  options.side = side->code;
  return {};
}

int Run(int argc, char** argv)
{
  static constexpr auto longOptions = std::to_array<option>({
      {"into", required_argument, nullptr, 'i'},
      {"side", required_argument, nullptr, 's'},
      {"output", required_argument, nullptr, 'o'},
      {"json", no_argument, nullptr, 'j'},
      {nullptr, 0, nullptr, 0},
  });
  Options options;
  const Arguments arguments =
      ReadArguments(argc, argv, "i:s:o:j", longOptions, [&](int letter, const char* value) {
        return TakeOption(letter, value == nullptr ? "" : value, options);
      });
  if (arguments.wrong) return exitUsage;
  options.drawings = arguments.words;
  if (options.drawings.empty()) return UsageError(argv[0], "import takes a drawing or several");
  if (WouldOverwrite(argv[0], options.drawings, options.output,
                     "the design would overwrite the drawing")) {
    return exitUsage;
  }
  std::vector<std::string> inputs = options.drawings;
  inputs.push_back(options.into);
  if (ReadsInputTwice(argv[0], inputs)) return exitUsage;
  if (options.output.empty() && !options.json) {
    return UsageError(argv[0], "import needs -o OUT.xml, or --json");
  }
  const bool readsInput = std::ranges::find(inputs, "-") != inputs.end();
  if (options.json && !options.output.empty() && (options.output == "-" || readsInput)) {
    return UsageError(argv[0], "--json and -o can't share standard input or output");
  }
  const int printed = options.json ? PrintJson(options) : 0;
  return options.output.empty() ? printed : ImportAll(options);
}

}  // namespace

const Verb importVerb = {"import", help, Run};

}  // namespace hullwright
