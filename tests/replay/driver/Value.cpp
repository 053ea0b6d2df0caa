#include "replay/driver/Value.h"

#include <bit>
#include <cmath>

#include "base/Text.h"

namespace hullwright::replay {
namespace {

void AppendHex(std::string& out, std::uint64_t value, int digits)
{
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    out.push_back("0123456789abcdef"[(value >> shift) & 0xFU]);
  }
}

void AppendText(std::string& out, std::u16string_view text)
{
  out.push_back('s');
  for (const char16_t unit : text) AppendHex(out, unit, 4);
  out.push_back(';');
}

template <class... Visitors>
struct Overloaded : Visitors... {
  using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

}  // namespace

void Value::Write(JsonWriter& json) const
{
  std::visit(Overloaded{
                 [&](std::monostate) { json.Null(); },
                 [&](bool value) { json.Boolean(value); },
                 [&](std::int64_t value) { json.Integer(value); },
                 [&](double value) { json.Double(value); },
                 [&](const std::u16string& value) { json.Text(value); },
                 [&](const List& list) {
                   json.BeginArray();
                   for (const Value& value : list) value.Write(json);
                   json.EndArray();
                 },
                 [&](const Object& object) {
                   json.BeginObject();
                   for (const auto& [name, value] : object) {
                     json.Key(name);
                     value.Write(json);
                   }
                   json.EndObject();
                 },
             },
             data_);
}

void Value::AppendCanonical(std::string& out) const
{
  constexpr std::uint64_t anyNan = 0x7FF8000000000000U;
  std::visit(Overloaded{
                 [&](std::monostate) { out.push_back('n'); },
                 [&](bool value) { out.push_back(value ? 't' : 'f'); },
                 [&](std::int64_t value) { out += "i" + std::to_string(value) + ";"; },
                 [&](double value) {
                   out.push_back('d');
                   AppendHex(out, std::isnan(value) ? anyNan : std::bit_cast<std::uint64_t>(value),
                             16);
                 },
                 [&](const std::u16string& value) { AppendText(out, value); },
                 [&](const List& list) {
                   out.push_back('[');
                   for (const Value& value : list) value.AppendCanonical(out);
                   out.push_back(']');
                 },
                 [&](const Object& object) {
                   out.push_back('{');
                   for (const auto& [name, value] : object) {
                     AppendText(out, WideFromUtf8(name));
                     value.AppendCanonical(out);
                   }
                   out.push_back('}');
                 },
             },
             data_);
}

void Value::AppendParts(std::string& out, std::initializer_list<const char*> names) const
{
  const auto& object = std::get<Object>(data_);
  for (const char* const name : names) object.at(name).AppendCanonical(out);
}

std::string Crc32(std::string_view bytes)
{
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
  }
  std::string text;
  AppendHex(text, ~crc, 8);
  return text;
}

}  // namespace hullwright::replay
