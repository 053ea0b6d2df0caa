#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "model/Shape.h"
#include "model/ShapeVertex.h"

// Reading the lines of a script and their members. What is missing or of another kind counts as
// empty.
namespace hullwright::replay {

using Json = nlohmann::json;

/// A line of a script; a parser's exception for one that is none.
Json ParseLine(std::string_view line);

/// A member of an object, an item of a list; null where there is none.
const Json& Member(const Json& object, const char* name);
const Json& Item(const Json& list, std::size_t index);

/// A list, and an object, to walk through.
const Json& ListOf(const Json& value);
const Json& MembersOf(const Json& value);

/// A whole number; `fallback` where it is none, or does not fit.
std::int64_t IntegerOf(const Json& value, std::int64_t fallback = 0);
int IntOf(const Json& value, int fallback = 0);

/// A code by its number; also one that its type has no name for.
template <class Code>
Code CodeOf(const Json& value)
{
  return static_cast<Code>(IntOf(value));
}

bool BoolOf(const Json& value, bool fallback = false);

/// A text as UTF-8.
std::string TextOf(const Json& value);

/// A text as 16-bit units.
std::u16string WideOf(const Json& value);

/// A text as its bytes, one for each character up to U+00FF.
std::string BytesOf(const Json& value);

/// A number; "inf", "-inf" and "nan" as texts.
double NumberOf(const Json& value);

/// A vertex of three numbers, or of six with its carried fields.
CShapeVertex VertexOf(const Json& value);

/// A shape with all that the script says of it.
std::unique_ptr<CShape> ShapeOf(const Json& object);

}  // namespace hullwright::replay
