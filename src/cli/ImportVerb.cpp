#include <array>

#include "base/Text.h"
#include "cli/CommandLine.h"
#include "cli/ShapesJson.h"
#include "dxf/FileDxf.h"

namespace hullwright {
namespace {

constexpr const char* help =
    "Usage: hullwright-cli import DRAWING.dxf --json\n"
    "Reads an AutoCAD drawing and prints what it gives as one JSON document: the\n"
    "result (0 or -1), the records of the log, the extents and the shapes.\n"
    "\n"
    "  -j, --json  print the document\n";

/// Stands where the import expects the window that it tells its progress.
class SilentWindow : public IMainWindow {
public:
  bool HasWindow() const override { return true; }
  void Notify(int, std::intptr_t) override {}
  void SetModifiedFlag(bool) override {}
};

int PrintJson(const std::string& drawing)
{
  const std::u16string path = WideFromUtf8(drawing);
  SilentWindow window;
  const KeptTrace log;
  CLayer layer;
  CFileDxf reader(&window, log);
  const int result = reader.Import(path, &layer);
  JsonWriter json(stdout);
  WriteImportJson(json, result, log, path, layer);
  return 0;
}

int Run(int argc, char** argv)
{
  static constexpr std::array<option, 2> longOptions = {
      {{"json", no_argument, nullptr, 'j'}, {nullptr, 0, nullptr, 0}}};
  bool asJson = false;
  const Arguments arguments =
      ReadArguments(argc, argv, "j", longOptions, [&](int, const char*) -> std::string {
        asJson = true;
        return {};
      });
  if (arguments.wrong) return exitUsage;
  if (arguments.words.size() != 1) return UsageError("import takes one drawing");
  if (!asJson) return UsageError("import needs --json");
  return PrintJson(arguments.words[0]);
}

}  // namespace

const Verb importVerb = {"import", help, Run};

}  // namespace hullwright
