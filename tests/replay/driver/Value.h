#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "base/Code.h"
#include "base/Json.h"

namespace hullwright::replay {

/// A piece of what a step reports. Objects have their members in ascending order of name.
class Value {
public:
  using List = std::vector<Value>;
  using Object = std::map<std::string, Value>;

  Value() = default;
  Value(bool value) : data_(value) {}
  Value(int value) : data_(std::int64_t{value}) {}
  template <class Code>
  requires std::is_enum_v<Code> Value(Code code) : Value(NumberOf(code)) {}
  Value(std::int64_t value) : data_(value) {}
  Value(std::uint32_t value) : data_(std::int64_t{value}) {}
  Value(std::size_t value) : data_(static_cast<std::int64_t>(value)) {}
  Value(double value) : data_(value) {}
  Value(float value) : data_(static_cast<double>(value)) {}
  Value(std::u16string value) : data_(std::move(value)) {}
  Value(std::u16string_view value) : data_(std::u16string(value)) {}
  Value(std::string_view ascii) : data_(std::u16string(ascii.begin(), ascii.end())) {}
  Value(const std::string& ascii) : Value(std::string_view(ascii)) {}
  Value(const char* ascii) : Value(std::string_view(ascii)) {}
  Value(List list) : data_(std::move(list)) {}
  Value(Object object) : data_(std::move(object)) {}

  bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }

  /// Writes the value as JSON.
  void Write(JsonWriter& json) const;

  /// Appends the form that the hash is made of.
  void AppendCanonical(std::string& out) const;

  /// Appends that form of some members of an object.
  void AppendParts(std::string& out, std::initializer_list<const char*> names) const;

private:
  std::variant<std::monostate, bool, std::int64_t, double, std::u16string, List, Object> data_;
};

/// A list of values of any kinds.
template <class... Values>
Value Row(Values&&... values)
{
  return Value::List{Value(std::forward<Values>(values))...};
}

/// CRC-32 of bytes, as in PNG and ZIP, in eight lower-case hexadecimal digits.
std::string Crc32(std::string_view bytes);

}  // namespace hullwright::replay
