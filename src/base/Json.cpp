#include "base/Json.h"

#include <cmath>

#include "base/Numbers.h"
#include "base/RealText.h"
#include "base/Text.h"

namespace hullwright {

void JsonWriter::Flush()
{
  if (text_ != nullptr) {
    *text_ += out_;
  } else {
    std::fwrite(out_.data(), 1, out_.size(), stream_);
  }
  out_.clear();
}

void JsonWriter::Separate()
{
  constexpr std::size_t enough = 1U << 16U;
  if (!first_) out_.push_back(',');
  first_ = false;
  if (out_.size() > enough) Flush();
}

void JsonWriter::Open(char bracket)
{
  Separate();
  out_.push_back(bracket);
  first_ = true;
}

void JsonWriter::Close(char bracket)
{
  out_.push_back(bracket);
  first_ = false;
}

void JsonWriter::Raw(std::string_view text)
{
  Separate();
  out_ += text;
}

JsonWriter& JsonWriter::WideKey(std::u16string_view name)
{
  Text(name);
  out_.push_back(':');
  first_ = true;
  return *this;
}

void JsonWriter::Integer(std::int64_t value) { Raw(std::to_string(value)); }

void JsonWriter::Double(double value)
{
  if (std::isnan(value)) return Ascii("nan");
  if (std::isinf(value)) return Ascii(value > 0.0 ? "inf" : "-inf");
  Raw(RealText(value));
}

void JsonWriter::Doubles(std::initializer_list<double> values)
{
  BeginArray();
  for (const double value : values) Double(value);
  EndArray();
}

void JsonWriter::Escape(char16_t unit) { out_ += "\\u" + FormatHex(unit, 4); }

void JsonWriter::Text(std::u16string_view text)
{
  Separate();
  out_.push_back('"');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsPairAt(text, i)) {
      out_ += Utf8FromWide(text.substr(i++, 2));
    } else if (unit < 0x20 || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      Escape(unit);
    } else {
      if (unit == u'"' || unit == u'\\') out_.push_back('\\');
      out_ += Utf8FromWide(text.substr(i, 1));
    }
  }
  out_.push_back('"');
}

void JsonWriter::Ascii(std::string_view text) { Text(WideFromAscii(text)); }

void JsonWriter::EndLine()
{
  out_.push_back('\n');
  Flush();
  first_ = true;
}

}  // namespace hullwright
