#include <cstdio>
#include <exception>
#include <fstream>
#include <optional>
#include <span>
#include <vector>

#include "base/Json.h"
#include "base/Paths.h"
#include "replay/driver/Names.h"
#include "replay/driver/Player.h"
#include "replay/driver/ScriptFile.h"
#include "support/TempFolder.h"
#include "system/ProgramStart.h"

// hullwright-replay SCRIPT [--work DIR] [--full]: plays a script and prints what each step does;
// --names: prints the names that scripts may have for numbers.
namespace {

using namespace hullwright;
using namespace hullwright::replay;
namespace fs = std::filesystem;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

struct Options {
  std::string script;
  std::string work;
  bool full = false;
  bool names = false;
};

bool ReadOptions(std::span<const std::string> words, Options& options)
{
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--full") {
      options.full = true;
    } else if (word == "--names") {
      options.names = true;
    } else if (word == "--work" && i + 1 < words.size()) {
      options.work = words[++i];
    } else if (options.script.empty() && !word.starts_with('-')) {
      options.script = word;
    } else {
      return false;
    }
  }
  return options.script.empty() == options.names;
}

std::string SqlText(const Json& value)
{
  if (value.is_null()) return "NULL";
  if (value.is_number()) return std::to_string(IntegerOf(value));
  std::string text = "'";
  for (const char c : TextOf(value)) text += c == '\'' ? "''" : std::string(1, c);
  return text + "'";
}

/// The statements that make the unit database of a script.
std::string UnitStatements(const Json& units)
{
  std::string sql = "CREATE TABLE other (id);\n";
  if (units.is_array()) {
    sql += "CREATE TABLE tblUnits (numId, strUnit, strUnitShort, numDimension);\n";
  }
  for (const Json& row : ListOf(units)) {
    std::string values;
    for (const Json& value : ListOf(row)) values += (values.empty() ? "" : ",") + SqlText(value);
    sql += "INSERT INTO tblUnits VALUES (" + values + ");\n";
  }
  return sql;
}

/// Makes the unit database of a script, or copies the program's own.
void MakeUnits(const Json& header, const fs::path& work)
{
  const fs::path database = work / "Sondaris" / "Database" / "geo.db";
  fs::create_directories(database.parent_path());
  if (!header.contains("units")) {
    fs::copy_file(HULLWRIGHT_UNIT_DATABASE, database, fs::copy_options::overwrite_existing);
    return;
  }
  const std::string command = "\"" HULLWRIGHT_SQLITE3 "\" \"" + database.string() + "\"";
  std::FILE* const shell = popen(command.c_str(), "w");
  if (shell == nullptr) return;
  const std::string sql = UnitStatements(header["units"]);
  std::fwrite(sql.data(), 1, sql.size(), shell);
  pclose(shell);
}

void PrepareWork(const Json& header, ReplayEditor& editor)
{
  fs::create_directories(editor.work / "Sondaris" / "Tracing");
  MakeUnits(header, editor.work);
  for (const auto& [key, value] : MembersOf(Member(header, "settings")).items()) {
    editor.settings.values[SettingOf(key)] = static_cast<std::int32_t>(IntegerOf(value));
  }
  for (const auto& [name, content] : MembersOf(Member(header, "files")).items()) {
    const fs::path path = editor.work / hullwright::PathOf(name);
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << BytesOf(content);
  }
}

/// Prints every name that a script may have, with its number.
void PrintNames()
{
  for (const NameTable* const table : AllNames()) {
    for (const CodeName& row : table->rows) {
      std::printf("%s\t%d\t%s\n", table->what, row.number, row.name.c_str());
    }
  }
}

void Play(const std::vector<Json>& lines, const fs::path& work, bool full)
{
  const bool hasHeader = !lines.empty() && !lines.front().contains("do");
  const Json header = hasHeader ? lines.front() : Json::object();
  ReplayEditor editor(work);
  PrepareWork(header, editor);
  editor.Start(header.contains("open") ? std::optional(TextOf(header["open"])) : std::nullopt);
  Player player(editor);
  JsonWriter json(stdout);
  for (std::size_t i = hasHeader ? 1 : 0; i < lines.size(); ++i) {
    player.Play(lines[i], full ? Detail::Full : Detail::Hash).Write(json);
    json.EndLine();
  }
}

int Run(std::span<const std::string> words)
{
  Options options;
  if (!ReadOptions(words, options)) {
    std::fputs("Usage: hullwright-replay SCRIPT [--work DIR] [--full] | --names\n", stderr);
    return exitUsage;
  }
  if (options.names) {
    PrintNames();
    return 0;
  }
  const std::vector<Json> lines = ReadScript(hullwright::PathOf(options.script));
  const test::TempFolder temporary;
  const fs::path work = options.work.empty() ? temporary.Path() : hullwright::PathOf(options.work);
  fs::create_directories(work);
  Play(lines, work, options.full);
  return 0;
}

}  // namespace

int main(int argc, char** argv)
{
  BeginProgram();
  try {
    return Run(CommandWords(argc, argv));
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "hullwright-replay: %s\n", problem.what());
    return exitFailed;
  }
}
