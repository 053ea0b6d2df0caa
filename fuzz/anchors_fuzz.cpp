#include "FileInMemory.h"
#include "file/AnchorListReader.h"
#include "headless/KeptMessages.h"

// Any bytes are a list of anchors: reading them must end, a list that does not read must have a
// reason, nothing may be shown, and what came in must be anchors.
using namespace hullwright;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const FileInMemory file;
  file.Fill(data, size);
  KeptMessages messages;
  CAnchors anchors;
  CAnchorListReader reader(anchors, messages);
  const int result = reader.Read(file.Path());
  if (result != 0 && result != -1) __builtin_trap();
  if ((result == 0) != reader.LastReadError().message.empty()) __builtin_trap();
  if (!messages.shown.empty()) __builtin_trap();
  for (const auto& anchor : anchors.items) {
    if (!anchor) __builtin_trap();
  }
  return 0;
}
