#include <algorithm>

#include "FileInMemory.h"
#include "FuzzInput.h"
#include "base/Code.h"
#include "file/FileVessel.h"
#include "headless/KeptMessages.h"
#include "model/Shapes.h"

// Any bytes are a design: opening them must end, and one that opens is saved as a document that
// opens again, with the same numbers, so that its next save has the same bytes.
using namespace hullwright;

namespace {

/// A design as a save and an open move it.
struct Design {
  KeptMessages messages;
  CFileVessel file{messages};
  OwnedArray<CShapes> groups;

  Design() { file.groups = &groups; }
  bool Open(const FileInMemory& from) { return file.Read(from.Path()) == 0; }
  std::string Save(const FileInMemory& to)
  {
    Require(file.Save(to.Path(), groups) == 0);
    return to.Content();
  }
};

/// Whether a name comes back from a file: one of blanks, one that begins with a line break, and one
/// with half a character, which no document may hold, don't.
bool ComesBack(const std::u16string& name)
{
  if (name.empty()) return true;
  const bool isLine = name.front() == u'\n' || name.front() == u'\r';
  const bool isBlank = name.find_first_not_of(u' ') == std::u16string::npos;
  const bool isWide =
      std::ranges::any_of(name, [](char16_t unit) { return unit >= 0xD800 && unit < 0xE000; });
  return !isLine && !isBlank && !isWide && name.find(u'\xFFFE') == std::u16string::npos &&
         name.find(u'\xFFFF') == std::u16string::npos;
}

/// Nor does the unit 0, which is not written, and a group's code below 1.
bool ComesBack(const Design& design)
{
  return NumberOf(design.file.unitCode) != 0 &&
         std::ranges::all_of(design.groups,
                             [](const auto& group) { return NumberOf(group->viewCode) > 0; }) &&
         std::ranges::all_of(design.file.anchors->items,
                             [](const auto& anchor) { return ComesBack(anchor->name); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const FileInMemory input;
  static const FileInMemory saved;
  static const FileInMemory savedAgain;
  input.Fill(data, size);
  Design design;
  if (!design.Open(input)) return 0;
  const std::string text = design.Save(saved);
  Require(text.ends_with("</vessel>\n") && text.find('\0') == std::string::npos);
  if (!ComesBack(design)) return 0;
  Design again;
  Require(again.Open(saved));
  Require(again.Save(savedAgain) == text);
  return 0;
}
