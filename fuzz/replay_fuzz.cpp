#include <cstdint>
#include <cstdio>

#include "replay/random/ByteScript.h"
#include "support/TempFolder.h"

// Any bytes are a script of clicks, commands, answers to dialogs and files: the editor plays it and
// the design stays whole.
using namespace hullwright;

namespace {

/// The folder in which the scripts are played.
class Workplace {
public:
  Workplace() { replay::MakeWorkFolder(folder_.Path()); }
  const std::filesystem::path& Path() const { return folder_.Path(); }

private:
  test::TempFolder folder_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const Workplace work;
  const std::string broken = replay::PlayBytes({data, size}, work.Path());
  if (broken.empty()) return 0;
  std::fprintf(stderr, "%s", broken.c_str());
  __builtin_trap();
}
