#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "app/ImportText.h"
#include "base/Text.h"
#include "base/VisibleText.h"
#include "cli/CommandLine.h"
#include "cli/DesignFindings.h"
#include "cli/DesignInfo.h"
#include "cli/DiffJson.h"
#include "cli/DiffPicture.h"
#include "cli/PictureName.h"
#include "cli/TerminalProgress.h"
#include "compare/CompareDesigns.h"
#include "resources/ViewSides.h"
#include "system/InputFile.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli diff FORMER NEW [OPTION...]\n"
    "Reports what differs between two designs, between two drawings, or between a drawing and\n"
    "a design: the unit, offsets and anchors with their old and new numbers, and on each side\n"
    "the polylines that were moved, changed, added or removed. '-' stands for standard input.\n"
    "Where the units differ, the former numbers are converted. A drawing has no unit, and\n"
    "beside a design only its polylines count, as one side, without colours.\n"
    "\n"
    "  -t, --tolerance=LENGTH  the largest difference of a coordinate that doesn't count, in\n"
    "                          the unit of NEW (0.001)\n"
    "  -s, --side=SIDE         compare only top, bottom, right, left, front or rear; offsets\n"
    "                          and anchors belong to the top. A drawing beside a design is\n"
    "                          this side of it (top)\n"
    "  -j, --json              as JSON, one document\n"
    "  -o, --output=OUT        draw the sides that differ as well, to a .png, .svg or .pdf: the\n"
    "                          former in grey, the new in black and blue, changed points\n"
    "                          ringed. '-' puts a PNG in the place of the report\n"
    "\n"
    "Exit status: 0 no difference, 1 a difference, 2 when a file can't be read or written, and\n"
    "for wrong usage.\n";

constexpr int exitDifferent = 1;
constexpr int exitTrouble = 2;

struct Options {
  BeforeAndAfter<std::string> input;
  std::string output;
  double tolerance = 0.001;
  std::optional<ViewSideEntry> side;
  bool json = false;
};

int Trouble(const std::string& problem)
{
  Fail(problem);
  return exitTrouble;
}

/// A design, or a drawing on one side of a new design.
class ComparedFile {
public:
  explicit ComparedFile(const std::string& name) : input_(name) {}

  /// Empty on success, else what is wrong with the file.
  std::string Open(ViewSide side)
  {
    if (std::string problem = input_.Problem(); !problem.empty()) return problem;
    isDesign_ = input_.IsDesign();
    const std::u16string path = WideFromUtf8(input_.Path());
    editor_.App().activeView = side;
    if (isDesign_ ? editor_.Open(path) : editor_.Import(path)) return {};
    return input_.Name() + ": " + Utf8FromWide(editor_.Problem());
  }

  bool IsDesign() const { return isDesign_; }

  /// What the report calls the file, on one line whatever its name.
  std::string Name() const { return VisibleText(WideFromUtf8(input_.Name())); }
  CHullwrightApp& Design() { return editor_.App(); }
  std::string UnitName() { return UnitOf(editor_); }

  /// Reports what the import of a drawing passed over.
  void ReportPassedOver() const
  {
    const std::u16string passedOver = DescribePassedOver(editor_.Tally());
    if (!isDesign_ && !passedOver.empty()) Remark(input_.Name(), passedOver);
  }

private:
  InputFile input_;
  TerminalProgress progress_;
  HeadlessEditor editor_{&progress_};
  bool isDesign_ = false;
};

/// Lets a drawing beside a design be in the design's unit, since it has none itself.
void AdaptUnits(ComparedFile& former, ComparedFile& current)
{
  if (!former.IsDesign()) former.Design().unitCode = current.Design().unitCode;
  if (!current.IsDesign()) current.Design().unitCode = former.Design().unitCode;
}

CompareOptions OptionsFor(const Options& options, bool areDesigns, bool areOfOneKind)
{
  CompareOptions compared;
  compared.tolerance = options.tolerance;
  compared.symbols = areDesigns && (!options.side || options.side->code == ViewSide::Top);
  compared.shapes.onlySaved = !areOfOneKind;
  if (options.side) compared.shapes.side = options.side->code;
  if (!areOfOneKind && !options.side) compared.shapes.side = ViewSide::Top;
  return compared;
}

void Report(const Options& options, const Differences& differences, const DiffSubject& subject)
{
  if (options.json) {
    JsonWriter json(stdout);
    WriteDiffJson(json, differences, subject);
  } else if (differences.None()) {
    std::printf("%s -> %s: no difference above %s\n", subject.name.former.c_str(),
                subject.name.current.c_str(), FormatWithin(options.tolerance, 0.0).c_str());
  } else {
    const std::string text =
        DescribeDifferences(differences, {subject.unit, GroupName}, options.tolerance);
    std::printf("%s -> %s\n%s", subject.name.former.c_str(), subject.name.current.c_str(),
                text.c_str());
  }
}

int Compare(const Options& options)
{
  const ViewSide side = options.side ? options.side->code : ViewSide::Top;
  ComparedFile former(options.input.former);
  if (const std::string problem = former.Open(side); !problem.empty()) return Trouble(problem);
  ComparedFile current(options.input.current);
  if (const std::string problem = current.Open(side); !problem.empty()) return Trouble(problem);
  former.ReportPassedOver();
  current.ReportPassedOver();
  AdaptUnits(former, current);
  const bool areDesigns = former.IsDesign() && current.IsDesign();
  const CompareOptions compared =
      OptionsFor(options, areDesigns, former.IsDesign() == current.IsDesign());
  const Differences differences = CompareDesigns(former.Design(), current.Design(), compared);
  if (!options.output.empty()) {
    std::vector<ViewSideEntry> sides(viewSides.begin(), viewSides.end());
    if (compared.shapes.side) {
      std::erase_if(sides, [&](const auto& s) { return s.code != *compared.shapes.side; });
    }
    const std::string problem =
        WriteDiffPicture({former.Design(), current.Design(), differences, std::move(sides),
                          compared.symbols, options.output});
    if (!problem.empty()) return Trouble(problem);
  }
  if (options.output != "-") {
    Report(options, differences,
           {{former.Name(), current.Name()},
            {former.UnitName(), current.UnitName()},
            options.tolerance});
  }
  return differences.None() ? 0 : exitDifferent;
}

/// Reads a length that is not negative, the whole text; nothing for anything else.
std::optional<double> ParseTolerance(std::string_view text)
{
  double value = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isNumber = error == std::errc() && end == text.data() + text.size();
  if (!isNumber || !std::isfinite(value) || std::signbit(value)) return std::nullopt;
  return value;
}

std::string TakeOption(int letter, const std::string& value, Options& options)
{
  switch (letter) {
    case 'j': options.json = true; return {};
    case 'o': options.output = value; return value.empty() ? "-o needs a name" : "";
    case 't':
      if (const auto tolerance = ParseTolerance(value)) {
        options.tolerance = *tolerance;
        return {};
      }
      return "not a length: '" + value + "'";
    default: break;
  }
  const auto* const side = std::ranges::find(viewSides, value, &ViewSideEntry::name);
  if (side == viewSides.end()) return UnknownSide(value);
  options.side = *side;
  return {};
}

/// Whether the picture would replace what is compared.
bool WouldOverwrite(const Options& options)
{
  return std::ranges::any_of(std::array{options.input.former, options.input.current},
                             [&](const std::string& input) {
                               std::error_code ignored;
                               return std::filesystem::equivalent(input, options.output, ignored);
                             });
}

int Run(int argc, char** argv)
{
  static constexpr auto longOptions = std::to_array<option>({
      {"tolerance", required_argument, nullptr, 't'},
      {"side", required_argument, nullptr, 's'},
      {"json", no_argument, nullptr, 'j'},
      {"output", required_argument, nullptr, 'o'},
      {nullptr, 0, nullptr, 0},
  });
  Options options;
  const Arguments arguments =
      ReadArguments(argc, argv, "t:s:jo:", longOptions, [&](int letter, const char* value) {
        return TakeOption(letter, value == nullptr ? "" : value, options);
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 2) {
    return UsageError(argv[0], "diff takes two designs or drawings");
  }
  if (ReadsInputTwice(argv[0], arguments.words)) return exitUsage;
  options.input = {arguments.words[0], arguments.words[1]};
  if (!options.output.empty() && !IsPictureName(options.output)) {
    return UsageError(argv[0], "diff draws a .png, .svg or .pdf");
  }
  if (options.json && options.output == "-") {
    return UsageError(argv[0], "--json and -o can't share standard output");
  }
  if (WouldOverwrite(options)) {
    return UsageError(argv[0], "the picture would overwrite what is compared");
  }
  return Compare(options);
}

}  // namespace

const Verb diffVerb = {"diff", help, Run, exitTrouble};

}  // namespace hullwright
