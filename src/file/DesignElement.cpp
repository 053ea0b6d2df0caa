#include "file/DesignElement.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace hullwright {
namespace {

void ReadValue(std::u16string& value, ValueFormat, std::string_view text)
{
  value = WideFromUtf8(text);
}

template <class Value>
void ReadValue(Value& value, ValueFormat format, std::string_view text)
{
  switch (format) {
    case ValueFormat::Decimal: value = static_cast<Value>(ParseInt32(text, 10)); break;
    case ValueFormat::Unsigned: value = static_cast<Value>(ParseUInt32(text, 10)); break;
    case ValueFormat::Hexadecimal: value = static_cast<Value>(ParseInt32(text, 16)); break;
    case ValueFormat::ThreeDecimals: value = static_cast<Value>(ParseDouble(text)); break;
    case ValueFormat::Flag: value = static_cast<Value>(ParseInt32(text, 10) != 0); break;
    case ValueFormat::None:
    case ValueFormat::Text: break;
  }
}

// A text ends at a NUL, which no XML text can hold.
std::u16string ValueText(const std::u16string& value, ValueFormat)
{
  return value.substr(0, value.find(u'\0'));
}

template <class Value>
std::u16string ValueText(Value value, ValueFormat format)
{
  switch (format) {
    case ValueFormat::Decimal:
    case ValueFormat::Unsigned:
    case ValueFormat::Flag: return WideFromAscii(std::to_string(static_cast<std::int64_t>(value)));
    case ValueFormat::Hexadecimal:
      return WideFromAscii(FormatHex(static_cast<std::uint32_t>(value), 2));
    case ValueFormat::ThreeDecimals:
      return WideFromAscii(FormatFixed(static_cast<double>(value), 3));
    case ValueFormat::None:
    case ValueFormat::Text: break;
  }
  return {};
}

/// Calls `visit` with the member of `object` that an element fills, if the member is of its class.
template <class Object, class Visit>
void VisitMember(const DesignElement& element, Object& object, Visit visit)
{
  std::visit(
      [&](auto member) {
        if constexpr (requires { object.*member; }) visit(object.*member);
      },
      element.member);
}

}  // namespace

template <class Object>
void ReadMember(const DesignElement& element, Object& object, std::string_view text)
{
  VisitMember(element, object, [&](auto& value) { ReadValue(value, element.format, text); });
}

template <class Object>
std::u16string MemberText(const DesignElement& element, const Object& object)
{
  std::u16string text;
  VisitMember(element, object, [&](const auto& value) { text = ValueText(value, element.format); });
  return text;
}

template void ReadMember(const DesignElement&, CFileVessel&, std::string_view);
template void ReadMember(const DesignElement&, CShapes&, std::string_view);
template void ReadMember(const DesignElement&, CAnchor&, std::string_view);
template std::u16string MemberText(const DesignElement&, const CFileVessel&);
template std::u16string MemberText(const DesignElement&, const CShapes&);
template std::u16string MemberText(const DesignElement&, const CAnchor&);

}  // namespace hullwright
