#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <optional>

#include "cli/CommandLine.h"
#include "cli/ComparedFile.h"
#include "cli/DesignContent.h"
#include "cli/DiffJson.h"
#include "cli/DiffPicture.h"
#include "cli/PictureName.h"
#include "compare/CompareDesigns.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli diff FORMER NEW [OPTION...]\n"
    "Reports what differs between two designs, between two drawings, or between a drawing and\n"
    "a design: the unit, offsets and anchors with their old and new numbers, and on each side\n"
    "the polylines that were moved, changed, added or removed. '-' stands for standard input.\n"
    "Where the units of designs differ, the former numbers are converted. The unit of a drawing\n"
    "is what $INSUNITS states: another one is a difference, but numbers are compared as they\n"
    "stand. A drawing without it has no unit. Beside a design only the polylines of a drawing\n"
    "count, without colours. They lie on the sides that their layers name, as an export has\n"
    "them; a drawing with other layers is one side.\n"
    "\n"
    "  -t, --tolerance=LENGTH  the largest difference of a coordinate that doesn't count, in\n"
    "                          the unit of NEW (0.001)\n"
    "  -s, --side=SIDE         compare only top, bottom, right, left, front or rear; offsets\n"
    "                          and anchors belong to the top. A drawing without layers of\n"
    "                          sides is this side of a design (top)\n"
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
  FormerAndCurrent<std::string> input;
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

/// What two files are compared by, and how the sides are called.
struct Comparison {
  CompareOptions options;
  std::vector<ViewSideEntry> sides;  ///< to draw
  std::string (*nameOfSide)(ViewSide) = GroupName;
};

/// What stands for the side of a drawing that tells none.
std::string NoSideName(ViewSide) { return "drawing"; }

/// Settles how two files are compared, and puts drawings on the sides that they tell.
Comparison Prepare(const Options& options, ComparedFile& former, ComparedFile& current)
{
  const bool haveSides = former.HasSides() && current.HasSides();
  const bool areDesigns = former.IsDesign() && current.IsDesign();
  const bool areDrawings = !former.IsDesign() && !current.IsDesign();
  if (haveSides) {
    former.TakeSides();
    current.TakeSides();
  }
  Comparison comparison;
  CompareOptions& compared = comparison.options;
  compared.tolerance = options.tolerance;
  compared.symbols = areDesigns && (!options.side || options.side->code == ViewSide::Top);
  compared.shapes.onlyLines = !areDesigns && !areDrawings;
  if (options.side || !haveSides) {
    compared.shapes.side = options.side ? options.side->code : ViewSide::Top;
  }
  std::ranges::copy_if(viewSides, std::back_inserter(comparison.sides), [&](const auto& side) {
    return !compared.shapes.side || side.code == *compared.shapes.side;
  });
  if (areDrawings && !haveSides) {
    comparison.nameOfSide = NoSideName;
    comparison.sides[0].name = "drawing";
  }
  return comparison;
}

Differences FindDifferences(ComparedFile& former, ComparedFile& current,
                            const CompareOptions& options)
{
  former.AdaptUnitTo(current);
  current.AdaptUnitTo(former);
  Differences differences = CompareDesigns(former.Design(), current.Design(), options);
  if (former.IsDesign() && current.IsDesign()) return differences;
  const bool sameNumbers = differences.None();
  differences.unit = ComparedFile::UnitsApart(former, current);
  if (differences.unit) differences.unit->sameNumbers = sameNumbers;
  return differences;
}

void Report(const Options& options, const Differences& differences, const DiffSubject& subject,
            const DifferenceNames& names)
{
  if (options.json) {
    JsonWriter json(stdout);
    WriteDiffJson(json, differences, subject);
  } else if (differences.None()) {
    std::printf("%s -> %s: no difference above %s\n", subject.name.former.c_str(),
                subject.name.current.c_str(), FormatWithin(options.tolerance, 0.0).c_str());
  } else {
    const std::string text = DescribeDifferences(differences, names, options.tolerance);
    std::printf("%s -> %s\n%s", subject.name.former.c_str(), subject.name.current.c_str(),
                text.c_str());
  }
}

int Compare(const Options& options)
{
  const ViewSide side = options.side ? options.side->code : ViewSide::Top;
  ShowStep("reading the former file");
  ComparedFile former(options.input.former);
  if (const std::string problem = former.Open(side); !problem.empty()) return Trouble(problem);
  ShowStep("reading the new file");
  ComparedFile current(options.input.current);
  if (const std::string problem = current.Open(side); !problem.empty()) return Trouble(problem);
  former.ReportPassedOver();
  current.ReportPassedOver();
  ShowStep("comparing");
  const Comparison comparison = Prepare(options, former, current);
  const Differences differences = FindDifferences(former, current, comparison.options);
  if (!options.output.empty()) {
    ShowStep("drawing what differs");
    const std::string problem =
        WriteDiffPicture({former.Design(), current.Design(), differences, comparison.sides,
                          comparison.options.symbols, options.output});
    if (!problem.empty()) return Trouble(problem);
  }
  ClearTerminalLine();
  if (options.output != "-") {
    Report(options, differences,
           {{former.Name(), current.Name()},
            {former.UnitName(), current.UnitName()},
            options.tolerance,
            comparison.nameOfSide},
           {{former.UnitWithCode(), current.UnitWithCode()}, comparison.nameOfSide});
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
  const ViewSideEntry* const side = FindViewSideByName(value);
  if (side == nullptr) return UnknownSide(value);
  options.side = *side;
  return {};
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
  if (WouldOverwrite(argv[0], arguments.words, options.output,
                     "the picture would overwrite what is compared")) {
    return exitUsage;
  }
  options.input = {arguments.words[0], arguments.words[1]};
  if (!options.output.empty() && !IsPictureName(options.output)) {
    return UsageError(argv[0], "diff draws a .png, .svg or .pdf");
  }
  if (options.json && options.output == "-") {
    return UsageError(argv[0], "--json and -o can't share standard output");
  }
  return Compare(options);
}

}  // namespace

const Verb diffVerb = {"diff", help, Run, exitTrouble};

}  // namespace hullwright
