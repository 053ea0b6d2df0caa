#include <getopt.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "cli/Picture.h"
#include "resources/ViewSides.h"

namespace {

using namespace hullwright;

constexpr const char* help =
    "Usage: hullwright-cli render DESIGN.xml [OPTION...] -o OUT.png\n"
    "Draws sides of a vessel design as pictures, without a window.\n"
    "\n"
    "  -s, --side=SIDE       top, bottom, right, left, front, rear, or all (top)\n"
    "  -z, --size=WxH        size of a picture in pixels (1600x1000)\n"
    "  -o, --output=OUT.png  the picture to write; with --side=all one file for each\n"
    "                        side, its name set between OUT and .png\n"
    "  -h, --help            show this text\n"
    "      --version         show the version\n"
    "\n"
    "Exit status: 0 success, 1 a picture could not be made, 2 wrong usage.\n";

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

struct Options {
  std::string design;
  std::string side = "top";
  std::string output;
  int width = 1600;
  int height = 1000;
};

int UsageError(const std::string& problem)
{
  std::fprintf(stderr, "hullwright-cli: %s\nTry 'hullwright-cli --help'.\n", problem.c_str());
  return exitUsage;
}

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
    if (!problem.empty()) {
      std::fprintf(stderr, "hullwright-cli: %s\n", problem.c_str());
      return exitFailed;
    }
  }
  return known ? 0 : UsageError("unknown side '" + options.side + "'");
}

}  // namespace

int main(int argc, char** argv)
{
  constexpr int versionOption = 256;
  const std::array<option, 6> longOptions = {{{"side", required_argument, nullptr, 's'},
                                              {"size", required_argument, nullptr, 'z'},
                                              {"output", required_argument, nullptr, 'o'},
                                              {"help", no_argument, nullptr, 'h'},
                                              {"version", no_argument, nullptr, versionOption},
                                              {nullptr, 0, nullptr, 0}}};
  Options options;
  for (int o = 0; (o = getopt_long(argc, argv, "s:z:o:h", longOptions.data(), nullptr)) != -1;) {
    switch (o) {
      case 's': options.side = optarg; break;
      case 'o': options.output = optarg; break;
      case 'z':
        if (!ParseSize(optarg, options))
          return UsageError("not a size: '" + std::string(optarg) + "'");
        break;
      case 'h': std::fputs(help, stdout); return 0;
      case versionOption: std::puts("hullwright-cli " HULLWRIGHT_VERSION); return 0;
      default: std::fputs("Try 'hullwright-cli --help'.\n", stderr); return exitUsage;
    }
  }
  const std::vector<std::string> words(argv + optind, argv + argc);
  if (words.empty()) return UsageError("nothing to do");
  if (words[0] != "render") return UsageError("unknown verb '" + words[0] + "'");
  if (words.size() != 2) return UsageError("render takes one design file");
  if (options.output.empty()) return UsageError("render needs -o OUT.png");
  options.design = words[1];
  return Render(options);
}
