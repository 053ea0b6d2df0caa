#include "FileInMemory.h"
#include "FuzzInput.h"
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
  Require(result == 0 || result == -1);
  Require((result == 0) == reader.LastReadError().message.empty());
  Require(messages.shown.empty());
  for (const auto& anchor : anchors.items) Require(anchor != nullptr);
  return 0;
}
