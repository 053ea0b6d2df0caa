#include "file/SaveLosses.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "file/DesignElements.h"

namespace hullwright {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

bool IsWhite(std::string_view text)
{
  return text.find_first_not_of(whiteSpace) == std::string_view::npos;
}

/// Whether a text is a number from its first character to its last.
bool IsNumber(std::string_view text)
{
  if (IsWhite(text)) return false;
  std::string_view number = text.substr(text.find_first_not_of(whiteSpace));
  if (number.front() == '+') number.remove_prefix(1);
  double value = 0.0;
  const char* const end = number.data() + number.size();
  return std::from_chars(number.data(), end, value).ptr == end && !number.empty();
}

bool HasAttribute(const DesignElement& element, std::string_view attribute)
{
  if (!HasCoordinates(element)) return element.attribute == attribute;
  return std::ranges::find(coordinates, attribute, &Coordinate::Name) != coordinates.end();
}

/// Whether a byte begins a character beyond U+FFFF; a save writes two references for it, and no
/// reader takes them.
bool BeginsLongCharacter(char byte) { return static_cast<unsigned char>(byte) >= 0xF0; }

bool IsSide(ViewSide viewCode)
{
  return std::ranges::find(eachViewSide, viewCode) != eachViewSide.end();
}

constexpr std::string_view anchorName = ElementOf(ElementKind::Anchor).name;
constexpr const DesignElement& numberField = FieldOf(&CAnchor::id);
constexpr const DesignElement& nameField = FieldOf(&CAnchor::name);

/// The place of an attribute's value.
LossPlace AttributePlace(const DesignElement& element, std::string_view attribute,
                         std::string_view text)
{
  return {.element = std::string(element.name),
          .attribute = std::string(attribute),
          .text = std::string(text)};
}

}  // namespace

void CSaveLosses::Add(LossKind kind, const LossPlace& place)
{
  Loss& loss = found_[kind];
  if (loss.count++ == 0) loss.first = place;
}

std::string_view CSaveLosses::Parent() const
{
  return path_.size() < 2 ? std::string_view() : path_[path_.size() - 2];
}

void CSaveLosses::StartElement(std::string_view name, SaxAttributes attributes)
{
  CFileVessel::StartElement(name, attributes);
  path_.emplace_back(name);
  const DesignElement* const element = FindElement(name, Parent());
  const auto place = [this] {
    return LossPlace{.element = path_.back(), .parent = std::string(Parent())};
  };
  if (element == nullptr) {
    Add(FindElement(name) != nullptr ? LossKind::MisplacedElement : LossKind::UnknownElement,
        place());
    return;
  }
  nameBehindLineBreak_ = false;
  if (element->kind == ElementKind::Anchor) anchorFields_.clear();
  if (element->kind == ElementKind::AnchorField && !anchorFields_.insert(path_.back()).second) {
    Add(LossKind::RepeatedAnchorField, place());
  }
  if (IsSingle(*element) && ++singles_[path_.back()] == 2) Add(LossKind::RepeatedElement, place());
  if (element->use == ElementUse::OnlyRead) Add(LossKind::AnchorVessel, place());
  CheckAttributes(*element, attributes);
}

void CSaveLosses::CheckAttributes(const DesignElement& element, SaxAttributes attributes)
{
  // By their names, whatever order they come in; the last one of a name stands.
  std::map<std::u16string, LossPlace> unknown;
  for (const auto& [attribute, value] : attributes) {
    if (HasAttribute(element, attribute)) continue;
    unknown[WideFromUtf8(attribute)] = AttributePlace(element, attribute, value);
  }
  for (const auto& [name, place] : unknown) Add(LossKind::UnknownAttribute, place);
  if (HasCoordinates(element)) {
    for (const Coordinate& coordinate : coordinates) {
      CheckCoordinate(element, coordinate.Name(), AttributeValue(attributes, coordinate.Name()));
    }
  }
  if (element.kind == ElementKind::Group) {
    CheckView(element, AttributeValue(attributes, element.attribute));
  }
  if (element.kind == ElementKind::Unit) {
    CheckUnit(element, AttributeValue(attributes, element.attribute));
  }
}

void CSaveLosses::CheckUnit(const DesignElement& element, std::string_view text)
{
  const LossPlace place = AttributePlace(element, element.attribute, text);
  if (Utf8FromWide(MemberText(element, static_cast<const CFileVessel&>(*this))) != text) {
    Add(LossKind::UnitChanges, place);
  }
  if (NumberOf(unitCode) == 0) Add(LossKind::UnitIsZero, place);
}

void CSaveLosses::CheckView(const DesignElement& element, std::string_view text)
{
  CShapes group;
  ReadMember(element, group, text);
  const LossPlace place = AttributePlace(element, element.attribute, text);
  if (group.viewCode == ViewSide::None) {
    Add(LossKind::GroupWithoutView, place);
    group.viewCode = ViewSide::Top;
  } else if (!IsSide(group.viewCode) && group.viewCode != ViewSide::All) {
    Add(LossKind::GroupOfNoSide, place);
  }
  const int number = ++groups_[group.viewCode];
  if (number == 2) Add(LossKind::GroupsOfOneView, place);
  if (number == 1 && IsSide(group.viewCode) && groups_.contains(ViewSide::All)) {
    Add(LossKind::GroupBehindOneOfAllSides, place);
  }
}

void CSaveLosses::CheckCoordinate(const DesignElement& element, std::string_view attribute,
                                  std::string_view text)
{
  const double value = ParseDouble(text);
  std::array<char, longestFixed3> room;
  const std::string_view saved(room.data(), WriteFixed3(room.data(), value));
  if (saved == text) return;
  const bool number = IsNumber(text);
  if (number && (ParseDouble(saved) == value || std::isnan(value))) return;
  LossPlace place = AttributePlace(element, attribute, text);
  place.saved = saved;
  Add(number ? LossKind::Decimals : LossKind::CoordinateIsNoNumber, place);
}

void CSaveLosses::EndElement(std::string_view name)
{
  if (name == anchorName && !anchorFields_.contains(std::string(numberField.name))) {
    Add(LossKind::AnchorWithoutNumber, {.element = std::string(name)});
  }
  // A piece that came behind the line break, or before it, is kept.
  if (nameBehindLineBreak_ && CurrentAnchor() != nullptr && CurrentAnchor()->name.empty()) {
    Add(LossKind::NameBehindLineBreak, {.element = std::string(name)});
  }
  nameBehindLineBreak_ = false;
  if (!path_.empty()) path_.pop_back();
  CFileVessel::EndElement(name);
}

void CSaveLosses::Characters(std::string_view text)
{
  if (path_.empty()) return;
  if (Parent() == anchorName) {
    CFileVessel::Characters(text);
    const DesignElement* const field = FindElement(path_.back(), anchorName);
    if (field != nullptr) CheckAnchorField(*field, text);
  } else if (IsWhite(text)) {
    ReadBehindField(text);
  } else {
    CFileVessel::Characters(text);
    Add(LossKind::TextBetweenElements, {.element = path_.back(), .text = std::string(text)});
  }
}

void CSaveLosses::ReadBehindField(std::string_view text)
{
  const DesignElement* const field = FindAnchorField(LastElement());
  if (CurrentAnchor() == nullptr || field == nullptr || field->use != ElementUse::Saved) return;
  const std::u16string before = MemberText(*field, *CurrentAnchor());
  CFileVessel::Characters(text);
  const std::u16string after = MemberText(*field, *CurrentAnchor());
  if (after == before) return;
  Add(LossKind::ReplacedAnchorField,
      {.element = std::string(field->name), .text = Utf8FromWide(before), .saved = Escape(after)});
}

void CSaveLosses::CheckAnchorField(const DesignElement& field, std::string_view text)
{
  if (field.format == ValueFormat::ThreeDecimals) CheckCoordinate(field, {}, text);
  const LossPlace place = {.element = std::string(field.name), .text = std::string(text)};
  if (field.format == ValueFormat::Unsigned && field.use == ElementUse::Saved) {
    CAnchor anchor;
    ReadMember(field, anchor, text);
    if (Utf8FromWide(MemberText(field, anchor)) != text) Add(LossKind::AnchorNumberChanges, place);
  }
  if (field.format == ValueFormat::Text && std::ranges::any_of(text, BeginsLongCharacter)) {
    Add(LossKind::NameThatDoesNotOpen, place);
  }
}

void CSaveLosses::PassOver(std::string_view markup)
{
  if (markup.starts_with("<!--") || markup.starts_with("<?")) {
    Add(LossKind::Comment, {.text = std::string(markup)});
    return;
  }
  const bool isName = path_.back() == nameField.name;
  const bool isBlank = markup.front() == ' ';
  if (isName && !isBlank) nameBehindLineBreak_ = true;
  if (!IsWhite(markup)) {
    Add(LossKind::TextAfterLineBreak, {.element = path_.back(), .text = std::string(markup)});
  } else if (isName && isBlank) {
    Add(LossKind::NameOfBlanks, {.element = path_.back()});
  }
}

std::vector<std::string_view> CSaveLosses::Missing() const
{
  std::vector<std::string_view> names;
  for (const DesignElement& element : designElements) {
    if (IsSingle(element) && !singles_.contains(std::string(element.name))) {
      names.push_back(element.name);
    }
  }
  return names;
}

}  // namespace hullwright
