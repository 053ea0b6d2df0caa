#include "cli/DesignCheck.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

/// An element of a design file: what it stands in and which attributes it has.
struct KnownElement {
  std::string_view name;
  std::string_view parent;
  std::string_view attributes;  ///< one letter, or the one name
  bool once;                    ///< only the last one counts
};

constexpr auto knownElements = std::to_array<KnownElement>({
    {"vessel", "", "", true},
    {"units", "vessel", "id", true},
    {"shapes", "vessel", "view", false},
    {"polyline", "shapes", "", false},
    {"vertex", "polyline", "x y z", false},
    {"gps", "vessel", "x y z", true},
    {"txd", "vessel", "x y z", true},
    {"piv", "vessel", "x y z", true},
    {"anchors", "vessel", "", false},
    {"anchor", "anchors", "", false},
    {"id", "anchor", "", false},
    {"name", "anchor", "", false},
    {"attachmentX", "anchor", "", false},
    {"attachmentY", "anchor", "", false},
    {"vessel", "anchor", "", false},
});

const KnownElement* FindElement(std::string_view name, std::string_view parent)
{
  const auto* const found = std::ranges::find_if(knownElements, [&](const KnownElement& element) {
    return element.name == name && element.parent == parent;
  });
  return found == knownElements.end() ? nullptr : found;
}

bool IsKnownName(std::string_view name)
{
  return std::ranges::find(knownElements, name, &KnownElement::name) != knownElements.end();
}

/// Whether a text is a number from its first character to its last.
bool IsNumber(std::u16string_view text)
{
  std::string number = Utf8FromWide(text);
  number.erase(0, number.find_first_not_of(" \t\r\n"));
  if (number.starts_with('+')) number.erase(0, 1);
  double value = 0.0;
  const char* const end = number.data() + number.size();
  return std::from_chars(number.data(), end, value).ptr == end && !number.empty();
}

bool HasWord(std::string_view words, std::string_view word)
{
  const std::string padded = " " + std::string(words) + " ";
  return padded.find(" " + std::string(word) + " ") != std::string::npos;
}

/// Whether a unit is half of a character beyond U+FFFF; a save writes two references for it, and no
/// reader takes them.
bool IsSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

/// The beginning of a text on one line, in quotation marks.
std::string Quoted(std::u16string_view text)
{
  constexpr std::size_t longest = 60;
  std::u16string line(text.substr(text.find_first_not_of(u" \t\r\n")));
  if (line.size() > longest) line = line.substr(0, longest) + u"\u2026";
  std::ranges::replace_if(
      line, [](char16_t c) { return c < u' '; }, u' ');
  return '"' + Utf8FromWide(line) + '"';
}

}  // namespace

void CDesignCheck::Add(const std::string& kind, const std::string& example)
{
  Finding& finding = findings_[kind];
  if (finding.count++ == 0) finding.first = example;
}

void CDesignCheck::StartElement(std::u16string_view name, const AttributeMap& attributes)
{
  const std::string element = Utf8FromWide(name);
  const std::string parent = path_.empty() ? std::string() : path_.back();
  path_.push_back(element);
  const KnownElement* const known = FindElement(element, parent);
  if (known == nullptr) {
    Add(IsKnownName(element) ? "elements stand where they are not expected"
                             : "unknown elements are lost",
        "<" + element + "> in <" + parent + ">");
    return;
  }
  if (element == "anchor") anchorFields_.clear();
  if (parent == "anchor" && !anchorFields_.insert(element).second) {
    Add("fields of an anchor come again; the last one counts", "<" + element + ">");
  }
  if (known->once && ++singles_[element] == 2) {
    Add("elements that should come once come again; the last one counts", "<" + element + ">");
  }
  if (element == "vessel" && parent == "anchor") {
    Add("the vessel of an anchor is read but not written", "<vessel> in <anchor>");
  }
  CheckAttributes(name, attributes);
}

void CDesignCheck::EndElement(std::u16string_view name)
{
  if (name == u"anchor" && !anchorFields_.contains("id")) {
    Add("anchors without a number get the number 0", "<anchor>");
  }
  if (!path_.empty()) path_.pop_back();
}

void CDesignCheck::CheckAttributes(std::u16string_view name, const AttributeMap& attributes)
{
  const std::string element = Utf8FromWide(name);
  const std::string parent = path_.size() < 2 ? std::string() : path_[path_.size() - 2];
  const KnownElement& known = *FindElement(element, parent);
  for (const auto& [attribute, value] : attributes) {
    const std::string key = Utf8FromWide(attribute);
    if (!HasWord(known.attributes, key)) {
      std::string example = key;
      example.append("=\"")
          .append(Utf8FromWide(value))
          .append("\" of <")
          .append(element)
          .append(">");
      Add("unknown attributes are lost", example);
    }
  }
  if (HasWord(known.attributes, "x")) {
    for (const std::u16string_view axis : {u"x", u"y", u"z"}) {
      CheckCoordinate(Utf8FromWide(axis) + " of <" + element + ">",
                      AttributeValue(attributes, axis));
    }
  }
  if (element == "shapes") CheckView(AttributeValue(attributes, u"view"));
  if (element == "units") {
    const std::u16string& id = AttributeValue(attributes, u"id");
    if (WideFromAscii(std::to_string(ParseInt32(id, 10))) != id) {
      Add("unit codes change", "id=\"" + Utf8FromWide(id) + "\"");
    }
    if (ParseInt32(id, 10) == 0) Add("a unit of code 0 is not saved; it opens as 9001", "<units>");
  }
}

void CDesignCheck::CheckView(std::u16string_view text)
{
  const std::int32_t code = ParseInt32(text, 16);
  const std::string example = "view=\"" + Utf8FromWide(text) + "\"";
  if (code == 0) {
    Add("groups without a view code become the top side", example);
  } else if (FindViewSide(code) == nullptr && code != ViewSide::All) {
    Add("groups have a view code of no side, so they are never seen", example);
  }
  if (++groups_[code == 0 ? ViewSide::Top : code] == 2) {
    Add("several groups have one view code; only the first is seen and edited", example);
  }
}

void CDesignCheck::CheckCoordinate(const std::string& what, std::u16string_view text)
{
  std::string saved;
  const double value = ParseDouble(text);
  AppendFixed3(saved, value);
  const std::string example = what + "=\"" + Utf8FromWide(text) + "\", saved as " + saved;
  if (!IsNumber(text)) {
    Add("coordinates are missing or are no numbers", example);
  } else if (ParseDouble(saved) != value && !std::isnan(value)) {
    Add("decimals past the third are lost", example);
  }
}

void CDesignCheck::Characters(std::u16string_view text)
{
  if (path_.empty()) return;
  const std::string parent = path_.size() < 2 ? std::string() : path_[path_.size() - 2];
  if (parent == "anchor") {
    CheckAnchorField(path_.back(), text);
  } else if (text.find_first_not_of(u" \t\r\n") != std::u16string_view::npos) {
    Add("text between elements is lost", Quoted(text) + " in <" + path_.back() + ">");
  }
}

void CDesignCheck::PassOver(std::u16string_view markup)
{
  if (markup.starts_with(u"<!--") || markup.starts_with(u"<?")) {
    Add("comments and processing instructions are lost", Quoted(markup));
  } else if (markup.find_first_not_of(u" \t\r\n") != std::u16string_view::npos) {
    Add("text that follows a line break is lost", Quoted(markup) + " in <" + path_.back() + ">");
  } else if (path_.back() == "name" && markup.front() == u' ') {
    Add("names of blanks alone are lost", "<name>");
  }
}

void CDesignCheck::CheckAnchorField(const std::string& element, std::u16string_view text)
{
  if (element == "attachmentX" || element == "attachmentY") {
    CheckCoordinate("<" + element + ">", text);
  }
  if (element == "id" && WideFromAscii(std::to_string(ParseUInt32(text, 10))) != text) {
    Add("numbers of anchors change", "<id> " + Utf8FromWide(text));
  }
  if (element == "name" && std::ranges::any_of(text, IsSurrogate)) {
    Add("characters beyond U+FFFF make the saved design unreadable", Quoted(text) + " in <name>");
  }
}

void CDesignCheck::Error(std::u16string_view message, int line, int column, int)
{
  problem_ = line == 0 ? std::string() : std::to_string(line) + ":" + std::to_string(column) + ": ";
  problem_ += Utf8FromWide(message);
}

std::vector<std::string> CDesignCheck::Findings() const
{
  std::vector<std::string> lines;
  for (const auto& [kind, finding] : findings_) {
    lines.push_back(kind + " (" + std::to_string(finding.count) + "): " + finding.first);
  }
  for (const char* const name : {"vessel", "units", "gps", "txd", "piv"}) {
    if (!singles_.contains(name)) {
      lines.push_back(std::string("there is no <") + name + ">; a save writes one of its own");
    }
  }
  return lines;
}

}  // namespace hullwright
