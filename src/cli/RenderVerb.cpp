#include <array>
#include <filesystem>
#include <string_view>

#include "base/Numbers.h"
#include "cli/CommandLine.h"
#include "cli/Picture.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli render DESIGN.xml [OPTION...] -o OUT.png\n"
    "Draws sides of a vessel design as pictures.\n"
    "\n"
    "  -s, --side=SIDE       top, bottom, right, left, front, rear, or all (top)\n"
    "  -z, --size=WxH        size of a picture in pixels (1600x1000)\n"
    "  -o, --output=OUT.png  the picture to write; with --side=all one file for each\n"
    "                        side, its name set between OUT and .png\n";

struct Options {
  std::string design;
  std::string side = "top";
  std::string output;
  int width = 1600;
  int height = 1000;
};

/// Reads a size from 1 to 20000, the whole text; 0 for anything else.
int ParseLength(std::string_view text)
{
  constexpr int largest = 20000;
  const bool digits = text.find_first_not_of("0123456789") == std::string_view::npos;
  const int length = digits ? ParseInt32(text, 10) : 0;
  return length <= largest ? length : 0;
}

/// Reads "1600x1000"; false for anything else and for sizes that no picture has.
bool ParseSize(std::string_view text, Options& options)
{
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return false;
  options.width = ParseLength(text.substr(0, cross));
  options.height = ParseLength(text.substr(cross + 1));
  return options.width > 0 && options.height > 0;
}

std::string OutputFor(const Options& options, const ViewSideEntry& side)
{
  if (options.side != "all") return options.output;
  const std::filesystem::path path(options.output);
  std::string name = path.stem().string();
  name.append("-").append(side.name).append(path.extension().string());
  return (path.parent_path() / name).string();
}

int Render(const Options& options)
{
  bool known = false;
  for (const ViewSideEntry& side : viewSides) {
    if (options.side != "all" && options.side != side.name) continue;
    known = true;
    const std::string problem = WritePicture(
        {options.design, side.code, options.width, options.height, OutputFor(options, side)});
    if (!problem.empty()) return Fail(problem);
  }
  return known ? 0 : UsageError("unknown side '" + options.side + "'");
}

int Run(int argc, char** argv)
{
  static constexpr std::array<option, 4> longOptions = {
      {{"side", required_argument, nullptr, 's'},
       {"size", required_argument, nullptr, 'z'},
       {"output", required_argument, nullptr, 'o'},
       {nullptr, 0, nullptr, 0}}};
  Options options;
  const Arguments arguments = ReadArguments(
      argc, argv, "s:z:o:", longOptions, [&](int letter, const char* value) -> std::string {
        if (letter == 's') options.side = value;
        if (letter == 'o') options.output = value;
        const bool sized = letter != 'z' || ParseSize(value, options);
        return sized ? "" : "not a size: '" + std::string(value) + "'";
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 1) return UsageError("render takes one design file");
  if (options.output.empty()) return UsageError("render needs -o OUT.png");
  options.design = arguments.words[0];
  return Render(options);
}

}  // namespace

const Verb renderVerb = {"render", help, Run};

}  // namespace hullwright
