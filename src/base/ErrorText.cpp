#include "base/ErrorText.h"

#include <cstring>

namespace hullwright {

std::string ErrorText(int error)
{
  const char* const text = strerrordesc_np(error);
  return text == nullptr ? "Error " + std::to_string(error) : std::string(text);
}

}  // namespace hullwright
