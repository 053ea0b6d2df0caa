#include <expat.h>

#include <cstdio>
#include <memory>
#include <type_traits>

#include "peers/XmlReaders.h"

namespace hullwright::bench {
namespace {

constexpr int blockSize = 1 << 16;

void Start(void* count, const XML_Char*, const XML_Char**) { ++*static_cast<std::size_t*>(count); }
void End(void*, const XML_Char*) {}
void Characters(void*, const XML_Char*, int) {}

struct Closing {
  void operator()(std::FILE* file) const { std::fclose(file); }
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

}  // namespace

std::size_t ReadWithExpat(const std::string& path)
{
  const std::unique_ptr<std::FILE, Closing> file(std::fopen(path.c_str(), "rb"));
  // With namespaces, as the reader of designs needs them.
  const std::unique_ptr<std::remove_pointer_t<XML_Parser>, Closing> parser(
      XML_ParserCreateNS(nullptr, '\n'));
  if (!file || !parser) return 0;
  std::size_t count = 0;
  XML_SetUserData(parser.get(), &count);
  XML_SetElementHandler(parser.get(), Start, End);
  XML_SetCharacterDataHandler(parser.get(), Characters);
  for (bool last = false; !last;) {
    void* const block = XML_GetBuffer(parser.get(), blockSize);
    if (block == nullptr) return 0;
    const std::size_t length = std::fread(block, 1, blockSize, file.get());
    last = length < blockSize;
    if (XML_ParseBuffer(parser.get(), static_cast<int>(length), last) != XML_STATUS_OK) return 0;
  }
  return count;
}

}  // namespace hullwright::bench
