#pragma once

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Text.h"

namespace hullwright {

/// Writes one JSON document to a stream, piece by piece, so that a document of any size takes
/// little memory, or to the end of a text. Commas and colons come by themselves.
class JsonWriter {
public:
  explicit JsonWriter(std::FILE* stream) : stream_(stream) {}
  explicit JsonWriter(std::string& text) : text_(&text) {}
  JsonWriter(const JsonWriter&) = delete;
  JsonWriter& operator=(const JsonWriter&) = delete;
  ~JsonWriter() { Flush(); }

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }

  /// Name of the member whose value comes next: `json.Key("id").Integer(7)`.
  JsonWriter& Key(std::string_view name) { return WideKey(WideFromUtf8(name)); }
  JsonWriter& WideKey(std::u16string_view name);

  void Null() { Raw("null"); }
  void Boolean(bool value) { Raw(value ? "true" : "false"); }
  void Integer(std::int64_t value);

  /// The shortest number that reads back to the same double; "nan", "inf" and "-inf" as texts.
  void Double(double value);

  /// A list of doubles.
  void Doubles(std::initializer_list<double> values);

  /// A text of 16-bit units. Pairs of surrogates become one character, lone ones their escape.
  void Text(std::u16string_view text);

  /// A text that is ASCII.
  void Ascii(std::string_view text);

  /// Writes out what has gathered, with a line end.
  void EndLine();

private:
  void Open(char bracket);
  void Close(char bracket);
  void Separate();
  void Raw(std::string_view text);
  void Escape(char16_t unit);
  void Flush();

  std::FILE* stream_ = nullptr;
  std::string* text_ = nullptr;  ///< in place of the stream
  std::string out_;
  bool first_ = true;  ///< nothing stands before the next value that a comma must part it from
};

}  // namespace hullwright
