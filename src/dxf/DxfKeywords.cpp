#include "dxf/DxfKeywords.h"

#include <array>
#include <new>

#include "base/FindOrNull.h"
#include "dxf/DxfReaders.h"

namespace hullwright {
namespace {

/// Takes a record of a keyword in; null passes it over.
using Reader = void (*)(DxfLines& lines, DxfContext& context, CShapes& target);

struct Keyword {
  std::string_view word;
  bool inBlocks;
  Reader read;
};

constexpr Reader skipped = nullptr;

/// Null for a line that starts no reader: its record is walked line by line.
const Keyword* FindKeyword(std::string_view line, DxfPlace place)
{
  static constexpr auto keywords = std::to_array<Keyword>({
      {"VERTEX", true, ReadVertex},
      {"SPLINE", false, skipped},
      {"LWPOLYLINE", true, ReadLwPolyline},
      {"POLYLINE", true, ReadPolyline},
      {"MTEXT", true, ReadMText},
      {"ELLIPSE", false, ReadEllipse},
      {"TEXT", true, ReadText},
      {"SOLID", true, ReadSolid},
      {"POINT", true, ReadPoint},
      {"LINE", true, ReadLine},
      {"ARC", true, ReadArc},
      {"CIRCLE", true, ReadCircle},
      {"SEQEND", true, ReadSeqEnd},
      {"HATCH", true, skipped},
      {"INSERT", true, ReadInsert},
      {"ATTRIB", true, ReadAttribute},
      {"ATTDEF", true, ReadAttribute},
      {"3DFACE", true, Read3DFace},
      {"VIEWPORT", true, skipped},
      {"LEADER", true, skipped},
      {"WIPEOUT", false, skipped},
      {"MULTILEADER", false, skipped},
      {"DIMENSION", true, skipped},
      {"ARC_DIMENSION", false, skipped},
      {"OLE2FRAME", false, skipped},
      {"IMAGE", false, skipped},
  });
  const Keyword* const found = FindOrNull(keywords, line, &Keyword::word);
  if (found == nullptr) return nullptr;
  return place == DxfPlace::Block && !found->inBlocks ? nullptr : found;
}

bool IsRead(const Keyword* keyword) { return keyword != nullptr && keyword->read != skipped; }

/// Takes the record of a line of the walk, if it starts a reader.
void TakeLine(const Keyword* keyword, DxfLines& lines, DxfContext& context, CShapes& target)
{
  if (IsRead(keyword) && context.limit.IsReached()) {
    ++context.tally.beyondLimit;
    lines.SkipEntity();
  } else if (IsRead(keyword)) {
    keyword->read(lines, context, target);
  } else if (keyword != nullptr) {
    lines.SkipEntity();
  }
}

/// Counts a record by its keyword.
void CountKeyword(std::string_view line, const Keyword* keyword, DxfPlace place, ImportTally& tally)
{
  if (place == DxfPlace::Section) tally.entities.Count(Trimmed(line));
  if (!IsRead(keyword)) tally.ignored.Count(Trimmed(line));
}

}  // namespace

bool ReadNextEntity(DxfLines& lines, DxfContext& context, DxfPlace place, CShapes& target)
{
  // A record without a reader is walked line by line, codes and values alike, and a value that
  // reads like a keyword starts a reader there; only a line behind a code 0 is counted as one.
  const bool isKeyword = lines.IsAtKeyword();
  std::string_view line;
  if (!lines.GetLine(line, DxfLines::shortLine)) {
    if (!lines.IsAtEnd()) ++context.tally.cutParts;
    return false;
  }
  if (Contains(line, place == DxfPlace::Section ? "ENDSEC" : "ENDBLK")) return false;
  const Keyword* const keyword = FindKeyword(line, place);
  if (isKeyword) CountKeyword(line, keyword, place, context.tally);
  try {
    TakeLine(keyword, lines, context, target);
  } catch (const std::bad_alloc&) {
    // There is no memory for this entity; the next one may be smaller.
    ++context.tally.withoutMemory;
  }
  return true;
}

bool IsImported(std::string_view keyword)
{
  return IsRead(FindKeyword(keyword, DxfPlace::Section));
}

}  // namespace hullwright
