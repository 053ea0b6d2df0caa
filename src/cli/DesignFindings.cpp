#include "cli/DesignFindings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/Code.h"
#include "base/Text.h"
#include "cli/DesignContent.h"
#include "file/DesignNumbers.h"
#include "model/Units.h"

namespace hullwright {
namespace {

/// How the place of a loss is reported.
enum class Example {
  Element,             ///< <name>
  ElementInParent,     ///< <name> in <anchor>
  ElementAndText,      ///< <id> x7
  Text,                ///< "text"
  TextInElement,       ///< "text" in <name>
  Attribute,           ///< view="03"
  AttributeOfElement,  ///< colour="1" of <vertex>
  Saved,               ///< x of <vertex>="1.2345", saved as 1.234
};

struct LossWords {
  LossKind kind;
  const char* words;
  Example example;
};

/// In the order in which they are reported.
constexpr auto lossWords = std::to_array<LossWords>({
    {LossKind::GroupBehindOneOfAllSides,
     "a group of all sides hides groups behind it; they are never seen", Example::Attribute},
    {LossKind::UnitIsZero, "a unit of code 0 is not saved; it opens as 9001", Example::Element},
    {LossKind::AnchorWithoutNumber, "anchors without a number get the number 0", Example::Element},
    {LossKind::NameThatDoesNotOpen, "characters beyond U+FFFF make the saved design unreadable",
     Example::TextInElement},
    {LossKind::Comment, "comments and processing instructions are lost", Example::Text},
    {LossKind::CoordinateIsNoNumber, "coordinates are missing or are no numbers", Example::Saved},
    {LossKind::Decimals, "decimals past the third are lost", Example::Saved},
    {LossKind::MisplacedElement, "elements stand where they are not expected",
     Example::ElementInParent},
    {LossKind::RepeatedElement, "elements that should come once come again; the last one counts",
     Example::Element},
    {LossKind::RepeatedAnchorField, "fields of an anchor come again; the last one counts",
     Example::Element},
    {LossKind::GroupOfNoSide, "groups have a view code of no side, so they are never seen",
     Example::Attribute},
    {LossKind::GroupWithoutView, "groups without a view code become the top side",
     Example::Attribute},
    {LossKind::NameOfBlanks, "names of blanks alone are lost", Example::Element},
    {LossKind::NameBehindLineBreak, "names that begin with a line break are lost",
     Example::Element},
    {LossKind::AnchorNumberChanges, "numbers of anchors change", Example::ElementAndText},
    {LossKind::GroupsOfOneView,
     "several groups have one view code; only the first is seen and edited", Example::Attribute},
    {LossKind::ReplacedAnchorField, "tabs behind fields of anchors replace what they hold",
     Example::Saved},
    {LossKind::TextBetweenElements, "text between elements is lost", Example::TextInElement},
    {LossKind::TextAfterLineBreak, "text that follows a line break is lost",
     Example::TextInElement},
    {LossKind::AnchorVessel, "the vessel of an anchor is read but not written",
     Example::ElementInParent},
    {LossKind::UnitChanges, "unit codes change", Example::Attribute},
    {LossKind::UnknownAttribute, "unknown attributes are lost", Example::AttributeOfElement},
    {LossKind::UnknownElement, "unknown elements are lost", Example::ElementInParent},
});

static_assert(lossWords.size() == static_cast<std::size_t>(LossKind::NameThatDoesNotOpen) + 1);
static_assert(std::ranges::is_sorted(lossWords, {}, [](const LossWords& row) {
  return std::string_view(row.words);
}));

/// The beginning of a text on one line, in quotation marks.
std::string Quoted(std::string_view text)
{
  constexpr std::size_t longest = 60;
  std::u16string line = WideFromUtf8(text.substr(text.find_first_not_of(" \t\r\n")));
  if (line.size() > longest) line = line.substr(0, longest) + u"\u2026";
  std::ranges::replace_if(
      line, [](char16_t c) { return c < u' '; }, u' ');
  return '"' + Utf8FromWide(line) + '"';
}

std::string ExampleText(Example example, const LossPlace& place)
{
  std::string element = "<" + place.element + ">";
  const std::string& attribute = place.attribute;
  const std::string value = "=\"" + place.text + "\"";
  switch (example) {
    case Example::Element: break;
    case Example::ElementInParent: return element + " in <" + place.parent + ">";
    case Example::ElementAndText: return element + " " + place.text;
    case Example::Text: return Quoted(place.text);
    case Example::TextInElement: return Quoted(place.text) + " in " + element;
    case Example::Attribute: return attribute + value;
    case Example::AttributeOfElement: return attribute + value + " of " + element;
    case Example::Saved:
      return (attribute.empty() ? element : attribute + " of " + element) + value + ", saved as " +
             place.saved;
  }
  return element;
}

/// Where a number stands.
std::string PlaceOf(const DesignNumber& number)
{
  if (number.anchor != nullptr) return "anchor " + std::to_string(number.anchor->id);
  if (number.group == nullptr) return "offset " + std::string(number.element.name);
  std::string place = GroupName(number.group->viewCode);
  if (number.groupNumber != 1) place += " (group " + std::to_string(number.groupNumber) + ")";
  return place + ", polyline " + std::to_string(number.polylineNumber) + ", vertex " +
         std::to_string(number.vertexNumber);
}

}  // namespace

std::vector<std::string> LossFindings(const CSaveLosses& losses)
{
  std::vector<std::string> findings;
  for (const LossWords& row : lossWords) {
    const auto found = losses.Found().find(row.kind);
    if (found == losses.Found().end()) continue;
    const Loss& loss = found->second;
    findings.push_back(row.words + (" (" + std::to_string(loss.count)) +
                       "): " + ExampleText(row.example, loss.first));
  }
  for (const std::string_view name : losses.Missing()) {
    findings.push_back("there is no <" + std::string(name) + ">; a save writes one of its own");
  }
  return findings;
}

std::vector<std::string> NumberFindings(const DesignState& design)
{
  std::vector<std::string> findings;
  ForEachNonFiniteNumber(design, [&findings](const DesignNumber& number) {
    const char* const value = std::isnan(number.value) ? "nan"
                              : number.value < 0.0     ? "-inf"
                                                       : "inf";
    findings.push_back(PlaceOf(number) + ": " + std::string(number.name) + " is not finite (" +
                       value + ")");
  });
  return findings;
}

std::vector<std::string> UnitFindings(CHullwrightApp& app)
{
  const std::int32_t code = NumberOf(app.unitCode);
  // Code 0 is reported as one that a save leaves out.
  if (code == 0 || HasUnitFactor(app.unitCode)) return {};
  std::string text = "the unit code " + std::to_string(code);
  const std::vector<UnitRecord> units = app.ReadUnits();
  const auto unit = std::ranges::find(units, app.unitCode, &UnitRecord::numId);
  // EPSG keeps angles and ratios in ranges of their own.
  const bool isAngle = code / 100 == 91;
  const bool isRatio = code / 100 == 92;
  if (unit != units.end()) {
    text += " (" + Utf8FromWide(unit->strUnit) + ") has no factor";
  } else if (isAngle || isRatio) {
    text += isAngle ? " is an angle, not a length" : " is a ratio, not a length";
  } else {
    text += " is unknown";
  }
  return {text + "; all lengths count as metres"};
}

}  // namespace hullwright
