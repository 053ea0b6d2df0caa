#include "file/SaxAttributes.h"

#include <algorithm>

namespace hullwright {

std::string_view AttributeValue(SaxAttributes attributes, std::string_view name)
{
  const auto found =
      std::find_if(attributes.rbegin(), attributes.rend(),
                   [name](const SaxAttribute& attribute) { return attribute.name == name; });
  return found == attributes.rend() ? std::string_view() : found->value;
}

}  // namespace hullwright
