#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "base/Numbers.h"
#include "cli/CommandLine.h"
#include "cli/Picture.h"
#include "cli/PictureName.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli render DESIGN.xml|DRAWING.dxf [OPTION...] -o OUT.png|OUT.svg|OUT.pdf\n"
    "Draws sides of a vessel design, or of a drawing, as pictures. '-' stands for\n"
    "standard input and, as a PNG, for standard output. A file that begins as XML does is\n"
    "a design, any other a drawing, whatever its name.\n"
    "\n"
    "  -s, --side=SIDE     top, bottom, right, left, front, rear, or all (top)\n"
    "  -z, --size=WxH      size of a side's picture in pixels (1600x1000), each from 1 to\n"
    "                      20000; a sheet may have up to 32767 each way\n"
    "  -f, --fit           show everything of the side (the default)\n"
    "  -v, --view=L,B,R,T  show at least this stretch of the world instead\n"
    "  -g, --grid=on|off   draw the grid or not (on)\n"
    "  -y, --symbols=on|off\n"
    "                      draw the offsets and anchors of a design or not (on); a drawing\n"
    "                      has none\n"
    "  -c, --sheet         all sides on one sheet, with their names and scale bars, the\n"
    "                      file's name, the unit, and a table of offsets and anchors\n"
    "  -o, --output=OUT    the file to write; its ending sets the format. With\n"
    "                      --side=all one file a side, its name set before the ending\n"
    "\n"
    "Exit status: 0 success, also with a warning that a drawing has nothing that can be\n"
    "drawn; 1 when a file can't be read or written or is neither a design nor a drawing\n"
    "in text form; 2 wrong usage; 3 when the pictures were written, but parts of a drawing\n"
    "were left out for want of memory or beyond a limit.\n";

/// The longest side of a picture.
constexpr int largest = 20000;

/// Reads a length of 1 pixel or more, the whole text; 0 for anything else and for one that is too
/// long.
int ParseLength(std::string_view text)
{
  const bool digits = text.find_first_not_of("0123456789") == std::string_view::npos;
  const int length = digits ? ParseInt32(text, 10) : 0;
  return length <= largest ? length : 0;
}

/// Reads "1600x1000"; false for anything else and for sizes that no picture has.
bool ParseSize(std::string_view text, PictureRequest& request)
{
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return false;
  request.width = ParseLength(text.substr(0, cross));
  request.height = ParseLength(text.substr(cross + 1));
  return request.width > 0 && request.height > 0;
}

/// Reads "-10,-5,10,5": left, bottom, right, top; false for anything else and an empty stretch.
bool ParseStretch(std::string_view text, PictureRequest& request)
{
  std::array<double, 4> bounds{};
  for (std::size_t i = 0; i < bounds.size(); ++i) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const std::string_view number = text.substr(0, comma);
    const bool last = i + 1 == bounds.size();
    if (number.empty() || number.find_first_not_of("+-.0123456789eE") != std::string_view::npos ||
        last != (comma == text.size())) {
      return false;
    }
    bounds.at(i) = ParseDouble(number);
    if (!last) text.remove_prefix(comma + 1);
  }
  request.stretch = {bounds[0], bounds[1], bounds[2], bounds[3]};
  return bounds[0] < bounds[2] && bounds[1] < bounds[3];
}

/// The side of a name, or all of them; nothing for another word.
std::vector<ViewSideEntry> SidesOf(std::string_view name)
{
  std::vector<ViewSideEntry> sides;
  std::ranges::copy_if(viewSides, std::back_inserter(sides), [name](const ViewSideEntry& side) {
    return name == "all" || name == side.name;
  });
  return sides;
}

/// Empty for "on" and "off".
std::string SwitchProblem(const std::string& what, const std::string& value)
{
  return value == "on" || value == "off" ? "" : what + " on or off, not '" + value + "'";
}

std::string TakeOption(int letter, const std::string& value, PictureRequest& request)
{
  switch (letter) {
    case 's':
      request.sides = SidesOf(value);
      request.oneEach = value == "all";
      return request.sides.empty() ? UnknownSide(value) : "";
    case 'z':
      return ParseSize(value, request) ? ""
                                       : "not a size of two lengths from 1 to " +
                                             std::to_string(largest) + " pixels: '" + value + "'";
    case 'v': return ParseStretch(value, request) ? "" : "not a stretch: '" + value + "'";
    case 'g': request.grid = value == "on"; return SwitchProblem("the grid is", value);
    case 'y': request.symbols = value == "on"; return SwitchProblem("symbols are", value);
    case 'f': request.stretch.reset(); return {};
    case 'c': request.sheet = true; return {};
    default: request.output = value; return {};
  }
}

int Run(int argc, char** argv)
{
  static constexpr auto longOptions = std::to_array<option>({
      {"side", required_argument, nullptr, 's'},
      {"size", required_argument, nullptr, 'z'},
      {"fit", no_argument, nullptr, 'f'},
      {"view", required_argument, nullptr, 'v'},
      {"grid", required_argument, nullptr, 'g'},
      {"symbols", required_argument, nullptr, 'y'},
      {"sheet", no_argument, nullptr, 'c'},
      {"output", required_argument, nullptr, 'o'},
      {nullptr, 0, nullptr, 0},
  });
  PictureRequest request;
  request.sides = SidesOf("top");
  const Arguments arguments =
      ReadArguments(argc, argv, "s:z:fv:g:y:co:", longOptions, [&](int letter, const char* value) {
        return TakeOption(letter, value == nullptr ? "" : value, request);
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 1) return UsageError(argv[0], "render takes one design or drawing");
  const bool writesOutput = request.sheet || !request.oneEach;  // else one beside it for each side
  if (writesOutput && WouldOverwrite(argv[0], arguments.words, request.output,
                                     "the picture would overwrite what is drawn")) {
    return exitUsage;
  }
  if (!IsPictureName(request.output))
    return UsageError(argv[0], "render needs -o with a .png, .svg or .pdf");
  if (request.sheet) {
    request.sides = SidesOf("all");
  } else if (request.oneEach && request.output == "-") {
    return UsageError(argv[0], "standard output takes one picture only");
  }
  request.input = arguments.words[0];
  bool isIncomplete = false;
  const std::string problem = WritePictures(request, isIncomplete);
  if (!problem.empty()) return Fail(problem);
  return isIncomplete ? exitIncomplete : 0;
}

}  // namespace

const Verb renderVerb = {"render", help, Run};

}  // namespace hullwright
