#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "app/NonFiniteNumbers.h"
#include "base/Code.h"
#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/DesignContent.h"
#include "cli/HeadlessEditor.h"
#include "cli/Picture.h"
#include "cli/PictureName.h"
#include "cli/TerminalProgress.h"
#include "exchange/CsvExport.h"
#include "exchange/DxfExport.h"
#include "exchange/GeoJsonExport.h"
#include "resources/ViewSides.h"
#include "system/InputFile.h"
#include "system/OutputFile.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli export DESIGN.xml [OPTION...]\n"
    "                      -o OUT.dxf|OUT.geojson|OUT.csv|OUT.svg\n"
    "Writes a vessel design for other programs: as an AutoCAD drawing, as GeoJSON (in\n"
    "vessel coordinates), as a table, or as a picture. Coordinates keep all their digits.\n"
    "'-' stands for standard input and output.\n"
    "\n"
    "  -s, --side=SIDE      top, bottom, right, left, front, rear, or all (all). Offsets\n"
    "                       and anchors lie on the top side. A picture of all sides is a\n"
    "                       sheet\n"
    "  -f, --format=FORMAT  dxf, geojson, csv or svg, in place of the ending of OUT; for\n"
    "                       standard output dxf without it\n"
    "  -d, --dxf-version=R2000|R12\n"
    "                       the version of a drawing (R2000)\n"
    "  -l, --layer-by=side|kind\n"
    "                       polylines of a drawing on a layer for each side, or all on\n"
    "                       one (side); offsets and anchors have layers of their own\n"
    "  -o, --output=OUT     the file to write; its ending sets the format\n"
    "\n"
    "Exit status: 0 success, also with a remark on standard error that a polyline of fewer\n"
    "than two vertices was left out or a name shortened; 1, with nothing written, when a\n"
    "file can't be read or written or is no design, or a number is not finite; 2 wrong\n"
    "usage.\n";

enum class Format { Dxf, GeoJson, Csv, Svg };

struct FormatName {
  Format format;
  std::string_view name;  ///< on the command line, and behind the point of a file's name
};

constexpr auto formats = std::to_array<FormatName>({
    {Format::Dxf, "dxf"},
    {Format::GeoJson, "geojson"},
    {Format::Csv, "csv"},
    {Format::Svg, "svg"},
});

struct Options {
  std::string input;
  std::string output;
  ViewSide side = ViewSide::All;
  std::optional<Format> format;
  DxfForm form;
  bool hasForm = false;  ///< an option was given that only a drawing has
};

std::optional<Format> FormatOf(std::string_view name)
{
  const auto* const row = std::ranges::find(formats, name, &FormatName::name);
  return row == formats.end() ? std::nullopt : std::optional(row->format);
}

/// The format of an ending, in capitals or not; a drawing for standard output.
std::optional<Format> FormatOfFile(const std::string& path)
{
  if (path == "-") return Format::Dxf;
  const std::string ending = PictureEnding(path);
  return ending.empty() ? std::nullopt : FormatOf(std::string_view(ending).substr(1));
}

std::string TakeSide(const std::string& value, Options& options)
{
  const ViewSideEntry* const side = FindViewSideByName(value);
  if (side == nullptr && value != "all") return UnknownSide(value);
  options.side = side == nullptr ? ViewSide::All : side->code;
  return {};
}

std::string TakeFormat(const std::string& value, Options& options)
{
  options.format = FormatOf(value);
  return options.format ? "" : "the format is dxf, geojson, csv or svg, not '" + value + "'";
}

std::string TakeVersion(const std::string& value, Options& options)
{
  options.hasForm = true;
  options.form.version = value == "R12" ? DxfVersion::R12 : DxfVersion::R2000;
  return value == "R12" || value == "R2000"
             ? ""
             : "the version of a drawing is R2000 or R12, not '" + value + "'";
}

std::string TakeLayering(const std::string& value, Options& options)
{
  options.hasForm = true;
  options.form.layering = value == "kind" ? DxfLayering::Kind : DxfLayering::Side;
  return value == "kind" || value == "side" ? ""
                                            : "layers are by side or kind, not '" + value + "'";
}

std::string TakeOption(int letter, const std::string& value, Options& options)
{
  switch (letter) {
    case 's': return TakeSide(value, options);
    case 'f': return TakeFormat(value, options);
    case 'd': return TakeVersion(value, options);
    case 'l': return TakeLayering(value, options);
    default: options.output = value; return {};
  }
}

/// What is wrong with options that are right one by one, and settles the format. Empty for nothing.
std::string Settle(Options& options)
{
  if (options.output.empty()) return "export needs -o OUT";
  if (!options.format) options.format = FormatOfFile(options.output);
  if (!options.format) {
    return options.output + ": export writes .dxf, .geojson, .csv or .svg; --format chooses one";
  }
  if (options.hasForm && *options.format != Format::Dxf) {
    return "--dxf-version and --layer-by are for a drawing";
  }
  return {};
}

/// "1 polyline", "2 polylines".
std::u16string Counted(std::size_t count, const std::string& thing)
{
  return WideFromAscii(std::to_string(count) + " " + thing + (count == 1 ? "" : "s"));
}

/// A drawing, with a remark on the names that it has no room for.
std::string MakeDrawing(const DxfForm& form, const std::string& name, const ExportedDesign& design)
{
  DxfDrawing drawing = MakeDxf(design, form);
  if (drawing.shortenedNames != 0) {
    Remark(name, u"shortened: " + Counted(drawing.shortenedNames, "name"));
  }
  return std::move(drawing.bytes);
}

/// The bytes of the export, with remarks on what is not in them.
std::string MakeBytes(const Options& options, const std::string& name, const ExportedDesign& design)
{
  if (design.leftOut != 0) {
    Remark(name,
           u"left out: " + Counted(design.leftOut, "polyline") + u" of fewer than two vertices");
  }
  switch (*options.format) {
    case Format::Dxf: return MakeDrawing(options.form, name, design);
    case Format::GeoJson: return MakeGeoJson(design);
    case Format::Csv: return MakeCsv(design);
    case Format::Svg: break;  // drawn, not written
  }
  return {};
}

std::string WriteBytes(const Options& options, const std::string& bytes)
{
  ClearTerminalLine();
  OutputFile output(options.output);
  return output.Write(bytes) && output.Commit() ? std::string() : output.Problem();
}

std::string WritePicture(const Options& options, const std::string& design)
{
  PictureRequest request;
  request.input = design;
  request.output = options.output;
  request.ending = ".svg";
  request.sheet = options.side == ViewSide::All;
  request.grid = false;
  std::ranges::copy_if(
      viewSides, std::back_inserter(request.sides),
      [&](const ViewSideEntry& side) { return request.sheet || side.code == options.side; });
  bool isIncomplete = false;  // only a drawing can be
  std::string problem = WritePictures(request, isIncomplete);
  ClearTerminalLine();
  return problem;
}

/// What went wrong; empty for nothing.
std::string Export(const Options& options)
{
  const InputFile input(options.input);
  ShowStep("reading the design");
  HeadlessEditor editor;
  if (std::string problem = OpenDesign(input, editor); !problem.empty()) return problem;
  ShowStep("making the export");
  const std::u16string notFinite = Describe(FindNonFiniteNumbers(editor.App()));
  if (!notFinite.empty()) return input.Name() + ": " + Utf8FromWide(notFinite);
  if (*options.format == Format::Svg) return WritePicture(options, input.Path());
  const std::string code = "EPSG " + std::to_string(NumberOf(editor.App().unitCode));
  const ExportedDesign design =
      GatherExport(editor.App(), options.side, UnitNameOf(editor.App(), code));
  return WriteBytes(options, MakeBytes(options, input.Name(), design));
}

int Run(int argc, char** argv)
{
  static constexpr auto longOptions = std::to_array<option>({
      {"side", required_argument, nullptr, 's'},
      {"format", required_argument, nullptr, 'f'},
      {"dxf-version", required_argument, nullptr, 'd'},
      {"layer-by", required_argument, nullptr, 'l'},
      {"output", required_argument, nullptr, 'o'},
      {nullptr, 0, nullptr, 0},
  });
  Options options;
  const Arguments arguments =
      ReadArguments(argc, argv, "s:f:d:l:o:", longOptions, [&](int letter, const char* value) {
        return TakeOption(letter, value == nullptr ? "" : value, options);
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 1) return UsageError(argv[0], "export takes one design");
  if (WouldOverwrite(argv[0], arguments.words, options.output,
                     "the export would overwrite the design")) {
    return exitUsage;
  }
  options.input = arguments.words[0];
  if (const std::string problem = Settle(options); !problem.empty()) {
    return UsageError(argv[0], problem);
  }
  const std::string problem = Export(options);
  return problem.empty() ? 0 : Fail(problem);
}

}  // namespace

const Verb exportVerb = {"export", help, Run};

}  // namespace hullwright
