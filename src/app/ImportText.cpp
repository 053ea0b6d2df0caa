#include "app/ImportText.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "base/ErrorText.h"
#include "base/Text.h"
#include "dxf/VertexLimit.h"

namespace hullwright {
namespace {

/// A number and what it is a number of.
struct Counted {
  std::size_t count;
  std::string_view one;
  std::string_view several;
};

using List = std::vector<std::string>;

std::string Join(const List& parts, std::string_view between)
{
  std::string text;
  for (const std::string& part : parts) {
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

/// Those of which there are any.
std::string ListOf(std::initializer_list<Counted> all)
{
  List parts;
  for (const auto& [count, one, several] : all) {
    if (count == 0) continue;
    parts.push_back(std::to_string(count).append(" ").append(count == 1 ? one : several));
  }
  return Join(parts, ", ");
}

/// The keywords with their counts, the largest first.
std::string IgnoredOf(const ImportTally& tally)
{
  const KeywordCounts::Map& counts = tally.ignored.ByKeyword();
  std::vector<std::pair<std::string, std::size_t>> kinds(counts.begin(), counts.end());
  std::ranges::stable_sort(kinds, std::ranges::greater(),
                           &std::pair<std::string, std::size_t>::second);
  List parts;
  for (const auto& [keyword, count] : kinds)
    parts.push_back(std::to_string(count).append(" ").append(keyword));
  const std::size_t others = tally.ignored.Others();
  if (others != 0) parts.push_back(std::to_string(others) + " others");
  return Join(parts, ", ");
}

}  // namespace

std::u16string DescribeUnreadable(const ImportTally& tally)
{
  if (tally.readError == 0) return u"the drawing can't be read, or it is empty";
  return u"the drawing can't be read: " + WideFromUtf8(ErrorText(tally.readError));
}

std::u16string DescribeShapes(const ImportTally& tally)
{
  const std::string shapes = ListOf({{tally.polylines, "polyline", "polylines"},
                                     {tally.points, "point", "points"},
                                     {tally.areas, "area", "areas"},
                                     {tally.texts, "text", "texts"}});
  return shapes.empty() ? u"nothing that can be drawn" : WideFromAscii(shapes);
}

std::u16string DescribePassedOver(const ImportTally& tally)
{
  static_assert(VertexLimit::usual == 25'000'000);  // as the text states
  List parts;
  if (std::string ignored = IgnoredOf(tally); !ignored.empty()) {
    parts.push_back("ignored: " + ignored);
  }
  const std::string dropped =
      ListOf({{tally.onHiddenLayers, "on a hidden layer", "on hidden layers"},
              {tally.inPaperSpace, "in paper space", "in paper space"},
              {tally.unknownBlocks, "insert of an unknown block", "inserts of unknown blocks"},
              {tally.cutInserts, "insert for want of memory", "inserts for want of memory"},
              {tally.withoutMemory, "part for want of memory", "parts for want of memory"},
              {tally.beyondLimit, "record beyond the limit of 25 million vertices",
               "records beyond the limit of 25 million vertices"},
              {tally.cutParts, "part behind a line that is too long",
               "parts behind lines that are too long"}});
  if (!dropped.empty()) parts.push_back("left out: " + dropped);
  return WideFromAscii(Join(parts, "; "));
}

std::u16string DescribeImport(const ImportTally& tally)
{
  if (tally.isBinary) return u"a binary drawing; only drawings in text form can be imported";
  if (!tally.IsDrawing()) return u"not a drawing: it has no SECTION";
  std::u16string text = DescribeShapes(tally);
  const std::u16string passedOver = DescribePassedOver(tally);
  return passedOver.empty() ? text : text.append(u"; ").append(passedOver);
}

}  // namespace hullwright
