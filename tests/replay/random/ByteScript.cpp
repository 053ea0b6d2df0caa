#include "replay/random/ByteScript.h"

#include <fstream>
#include <vector>

#include "base/Code.h"
#include "replay/driver/Names.h"
#include "replay/driver/Player.h"
#include "replay/random/Choices.h"
#include "replay/random/Invariants.h"
#include "replay/random/StepMaker.h"
#include "resources/CommandIds.h"

namespace hullwright::replay {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostSteps = 100;

/// Writes a file of the next bytes into the work folder; the step that reads it. So few bytes can't
/// hold blocks that multiply beyond all memory, which the fuzz target of drawings bounds.
Json StepOfAFile(ByteChoices& choices, const fs::path& work)
{
  constexpr int longestFile = 512;
  static const Json steps[] = {
      Json::object(
          {{"do", "command"}, {"id", NumberOf(CommandId::ImportDxf)}, {"file", "hull.dxf"}}),
      Json::object({{"do", "open"}, {"path", "boat.xml"}}),
      Json::object({{"do", "anchorlist"}, {"path", "list.xml"}})};
  static constexpr const char* names[] = {"hull.dxf", "boat.xml", "list.xml"};
  const int kind = choices.Below(static_cast<int>(std::size(names)));
  std::ofstream(work / names[kind], std::ios::binary)
      << choices.Take(static_cast<std::size_t>(choices.Below(longestFile)));
  return steps[kind];
}

std::string TextOf(std::vector<Json> steps)
{
  std::string text;
  for (Json& step : steps) {
    NamesForNumbers(step);
    text += step.dump() + '\n';
  }
  return text;
}

/// Nothing of the script before is left in the folder.
void Clear(const fs::path& work)
{
  for (const char* const name : {"hull.dxf", "boat.xml", "list.xml", "roundtrip.xml"}) {
    fs::remove(work / name);
  }
  fs::remove_all(work / "Sondaris" / "Tracing");
  fs::create_directories(work / "Sondaris" / "Tracing");
}

}  // namespace

void MakeWorkFolder(const fs::path& work)
{
  fs::create_directories(work / "Sondaris" / "Database");
  fs::create_directories(work / "Sondaris" / "Tracing");
  fs::copy_file(HULLWRIGHT_UNIT_DATABASE, work / "Sondaris" / "Database" / "geo.db");
}

std::string PlayBytes(std::span<const std::uint8_t> bytes, const fs::path& work)
{
  constexpr int stepsToAFile = 12;
  Clear(work);
  ReplayEditor editor(work);
  editor.Start({});
  Player player(editor);
  player.Play(Json::object({{"do", "size"}, {"cx", 800}, {"cy", 600}}), Detail::Events);
  ByteChoices choices(bytes);
  StepMaker maker(choices);
  std::vector<Json> steps;
  while (steps.size() < mostSteps && !choices.IsAtEnd()) {
    const bool readsAFile = choices.Below(stepsToAFile) == 0;
    steps.push_back(readsAFile ? StepOfAFile(choices, work) : maker.Next());
    player.Play(steps.back(), Detail::Events);
  }
  const std::string broken = BrokenRule(editor);
  return broken.empty() ? broken : broken + " behind\n" + TextOf(std::move(steps));
}

}  // namespace hullwright::replay
