#pragma once

#include <span>
#include <string_view>

namespace hullwright {

/// An attribute as the parser hands it over, in UTF-8; good until the callback returns.
struct SaxAttribute {
  std::string_view name;  ///< without its prefix
  std::string_view value;
};

/// The attributes of an element, in the order of the file. Of several with one name the last one
/// stands.
using SaxAttributes = std::span<const SaxAttribute>;

/// Value of an attribute; empty where it is missing.
std::string_view AttributeValue(SaxAttributes attributes, std::string_view name);

}  // namespace hullwright
