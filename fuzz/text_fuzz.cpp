#include <cstddef>
#include <cstdint>
#include <string>

#include "FuzzInput.h"
#include "dxf/TextCodes.h"

// Any 16-bit units are a text: cleaning must end and can only shorten it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  // Mostly ASCII, as codes are; a byte beyond it makes a unit of two bytes.
  std::u16string text;
  for (std::size_t i = 0; i < size; ++i) {
    unsigned unit = data[i];
    if (unit >= 0x80 && i + 1 < size) unit = unit << 8U | data[++i];
    text.push_back(static_cast<char16_t>(unit));
  }
  const bool coded = text.find(u'\\') != std::u16string::npos;
  const hullwright::CleanedText cleaned = hullwright::CleanText(text);
  hullwright::Require(cleaned.text.size() <= text.size());
  hullwright::Require(coded || (!cleaned.colourIndex && !cleaned.colourValue));
  return 0;
}
