#include "replay/driver/ScriptFile.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "base/Paths.h"
#include "base/Text.h"
#include "replay/driver/Names.h"

namespace hullwright::replay {
namespace {

namespace fs = std::filesystem;

/// The content of a file that stands beside the script, a character for each byte.
Json TextOfFile(const fs::path& path)
{
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(hullwright::TextOf(path) + " can't be read");
  std::u16string text;
  for (std::istreambuf_iterator<char> byte(file), end; byte != end; ++byte) {
    text.push_back(static_cast<unsigned char>(*byte));
  }
  return Utf8FromWide(text);
}

/// Puts texts where a step, or a file of the header, names the file that holds them.
void ReadTexts(Json& step, const fs::path& folder)
{
  if (const Json& name = Member(step, "textFile"); name.is_string()) {
    step["text"] = TextOfFile(folder / PathOf(TextOf(name)));
    step.erase("textFile");
  }
  if (!Member(step, "files").is_object()) return;
  for (Json& content : step["files"]) {
    const Json& name = Member(content, "textFile");
    if (name.is_string()) content = TextOfFile(folder / PathOf(TextOf(name)));
  }
}

Json ReadStep(const std::string& line, const fs::path& folder)
{
  Json step = ParseLine(line);
  if (!step.is_object()) throw std::runtime_error("no object");
  ReadTexts(step, folder);
  NumbersForNames(step);
  return step;
}

std::string_view Trimmed(std::string_view line)
{
  constexpr std::string_view blanks = " \t\r";
  const std::size_t first = line.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

}  // namespace

std::vector<Json> ReadScript(const fs::path& path)
{
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(hullwright::TextOf(path) + ": can't be read");
  const auto fail = [&path](int line, const std::string& problem) {
    throw std::runtime_error(hullwright::TextOf(path) + ":" + std::to_string(line) + ": " +
                             problem);
  };
  std::vector<Json> steps;
  std::string step;
  int begin = 0;  // the line that the step at hand began with; 0 between steps
  int number = 0;
  for (std::string text; std::getline(file, text);) {
    ++number;
    std::string_view line = Trimmed(text);
    if (begin == 0 && (line.empty() || line.starts_with('#'))) continue;
    if (begin == 0) begin = number;
    const bool goesOn = line.ends_with('\\');
    if (goesOn) line.remove_suffix(1);
    step += line;
    if (goesOn) continue;
    try {
      steps.push_back(ReadStep(step, path.parent_path()));
    } catch (const std::exception& problem) {
      fail(begin, problem.what());
    }
    step.clear();
    begin = 0;
  }
  if (begin != 0) fail(begin, "goes on beyond the last line");
  return steps;
}

}  // namespace hullwright::replay
