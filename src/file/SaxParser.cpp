#include "file/SaxParser.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "base/ErrorText.h"
#include "base/OpenFile.h"
#include "base/Text.h"

namespace hullwright {
namespace {

/// Joins a namespace and a local name; no XML text can hold it.
constexpr char nameSeparator = '\x01';

constexpr std::u16string_view outOfMemory = u"out of memory";

/// What stands behind the last separator.
std::string_view LocalName(const XML_Char* name)
{
  const XML_Char* local = name;
  const XML_Char* end = name;
  for (; *end != '\0'; ++end) {
    if (*end == nameSeparator) local = end + 1;
  }
  return {local, end};
}

/// Drives one parse: gathers text to chunks and stops at a document type.
class Driver {
public:
  Driver(XML_Parser parser, CFileSaxContentHandler& content) : parser_(parser), content_(content)
  {
    XML_SetUserData(parser, this);
    XML_SetElementHandler(
        parser,
        [](void* self, const XML_Char* name, const XML_Char** attributes) {
          static_cast<Driver*>(self)->StartElement(name, attributes);
        },
        [](void* self, const XML_Char* name) { static_cast<Driver*>(self)->EndElement(name); });
    XML_SetCharacterDataHandler(parser, [](void* self, const XML_Char* text, int length) {
      static_cast<Driver*>(self)->Text({text, static_cast<std::size_t>(length)});
    });
    XML_SetCommentHandler(parser, [](void* self, const XML_Char* text) {
      static_cast<Driver*>(self)->PassOver({"<!--", text, "-->"});
    });
    XML_SetProcessingInstructionHandler(
        parser, [](void* self, const XML_Char* target, const XML_Char* data) {
          static_cast<Driver*>(self)->PassOver({"<?", target, " ", data, "?>"});
        });
    XML_SetStartDoctypeDeclHandler(
        parser, [](void* self, const XML_Char*, const XML_Char*, const XML_Char*, int) {
          static_cast<Driver*>(self)->Stop("a document type is declared");
        });
    XML_SetUnknownEncodingHandler(parser, &Driver::DescribeEncoding, nullptr);
  }

  /// Why the parse was stopped from here; null when it was not.
  const char* StopReason() const { return stopReason_; }

  /// Whether memory ended in a callback, and the parse with it.
  bool IsOutOfMemory() const { return isOutOfMemory_; }

private:
  void Stop(const char* reason)
  {
    stopReason_ = reason;
    XML_StopParser(parser_, XML_FALSE);
  }

  /// Runs a part of a callback's work. The parser is C and no exception may cross it: where memory
  /// ends, the file is read on without that part, or the parse ends as an error. Whether the part
  /// was done; `started` is the element that starts with it.
  template <class Work>
  bool Run(Work work, std::string_view started = {}) noexcept
  {
    try {
      work();
      return true;
    } catch (const std::bad_alloc&) {
      if (content_.GoOnWithout(started)) return false;
      isOutOfMemory_ = true;
      Stop(nullptr);
      return false;
    }
  }

  void StartElement(const XML_Char* name, const XML_Char** attributes) noexcept
  {
    FlushText();
    const std::string_view local = LocalName(name);
    const auto deliver = [&] {
      attributes_.clear();
      for (; *attributes != nullptr; attributes += 2) {
        attributes_.push_back({LocalName(attributes[0]), attributes[1]});
      }
      content_.StartElement(local, attributes_);
    };
    Run(deliver, local);
  }

  void EndElement(const XML_Char* name) noexcept
  {
    FlushText();
    Run([&] { content_.EndElement(LocalName(name)); });
  }

  void Text(std::string_view text) noexcept
  {
    // The parser hands over each line break on its own. One that stands in the file has at most
    // four bytes there; a longer one is a reference, which belongs to the text around it.
    constexpr int longestLineBreak = 4;
    const bool lineBreak = text.starts_with('\n') || text.starts_with('\r');
    if (lineBreak && XML_GetCurrentByteCount(parser_) <= longestLineBreak) FlushText();
    // Half a text would be another one.
    if (!isChunkLost_) isChunkLost_ = !Run([&] { chunk_ += text; });
  }

  void PassOver(std::initializer_list<std::string_view> parts) noexcept
  {
    FlushText();
    Run([&] {
      std::string markup;
      for (const std::string_view part : parts) markup += part;
      content_.PassOver(markup);
    });
  }

  void FlushText() noexcept
  {
    if (!chunk_.empty() && !isChunkLost_) {
      Run([&] { content_.Characters(chunk_); });
    }
    chunk_.clear();
    isChunkLost_ = false;
  }

  /// The ANSI code page is the one encoding beyond the parser's own that files come in.
  static int DescribeEncoding(void*, const XML_Char* name, XML_Encoding* encoding)
  {
    if (!EqualButForCase(name, "windows-1252")) return XML_STATUS_ERROR;
    for (int byte = 0; byte < 256; ++byte) {
      encoding->map[byte] = WideFromAnsiByte(static_cast<unsigned char>(byte));
    }
    encoding->data = nullptr;
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
  }

  XML_Parser parser_;
  CFileSaxContentHandler& content_;
  std::string chunk_;
  bool isChunkLost_ = false;              ///< memory has ended in the chunk
  std::vector<SaxAttribute> attributes_;  ///< of the element that starts
  const char* stopReason_ = nullptr;
  bool isOutOfMemory_ = false;
};

struct FreeParser {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

/// Feeds the file piece by piece; false at the first error of the disk or of the document.
bool Feed(std::FILE* file, XML_Parser parser)
{
  constexpr XML_Index usualPiece = 0x10000;  // stays in the processor's cache
  constexpr XML_Index largestPiece = 0x4000000;
  XML_Index fed = 0;
  for (bool last = false; !last;) {
    // The parser scans an unfinished token again with each piece. A piece as long as what has come
    // of the token makes one of any length take linear time.
    const XML_Index unfinished = fed - std::max<XML_Index>(XML_GetCurrentByteIndex(parser), 0);
    const auto pieceSize = static_cast<int>(std::clamp(unfinished, usualPiece, largestPiece));
    void* const piece = XML_GetBuffer(parser, pieceSize);
    if (piece == nullptr) return false;
    const std::size_t length = std::fread(piece, 1, static_cast<std::size_t>(pieceSize), file);
    if (std::ferror(file) != 0) return false;
    last = length < static_cast<std::size_t>(pieceSize);
    fed += static_cast<XML_Index>(length);
    if (XML_ParseBuffer(parser, static_cast<int>(length), last ? 1 : 0) != XML_STATUS_OK)
      return false;
  }
  return true;
}

/// Reports why a parse that has just failed did so, with its place where the document is to blame.
/// Reads `errno`, so nothing may come in between.
void ReportFailure(const Driver& driver, std::FILE* file, XML_Parser parser,
                   CFileSaxErrorHandler& errors)
{
  const XML_Error code = XML_GetErrorCode(parser);
  if (std::ferror(file) != 0) {
    errors.Error(WideFromUtf8(ErrorText(errno)), 0, 0, code);
  } else if (code == XML_ERROR_NONE || code == XML_ERROR_NO_MEMORY || driver.IsOutOfMemory()) {
    errors.Error(outOfMemory, 0, 0, XML_ERROR_NO_MEMORY);
  } else {
    const char* const reason =
        driver.StopReason() == nullptr ? XML_ErrorString(code) : driver.StopReason();
    errors.Error(WideFromUtf8(reason), static_cast<int>(XML_GetCurrentLineNumber(parser)),
                 static_cast<int>(XML_GetCurrentColumnNumber(parser)) + 1, code);
  }
}

}  // namespace

bool XmlLibraryFits()
{
  const XML_Expat_Version found = XML_ExpatVersionInfo();
  const std::array<int, 3> running = {found.major, found.minor, found.micro};
  const std::array<int, 3> built = {XML_MAJOR_VERSION, XML_MINOR_VERSION, XML_MICRO_VERSION};
  return running >= built;
}

std::string XmlLibraryVersion()
{
  const XML_Expat_Version found = XML_ExpatVersionInfo();
  return std::to_string(found.major) + '.' + std::to_string(found.minor) + '.' +
         std::to_string(found.micro);
}

bool ParseXmlFile(std::u16string_view path, CFileSaxContentHandler& content,
                  CFileSaxErrorHandler& errors)
{
  const FilePointer file = OpenToRead(path);
  if (!file) return false;
  const std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeParser> parser(
      XML_ParserCreateNS(nullptr, nameSeparator));
  if (!parser) {
    errors.Error(outOfMemory, 0, 0, XML_ERROR_NO_MEMORY);
    return false;
  }
  Driver driver(parser.get(), content);
  if (Feed(file.get(), parser.get())) return true;
  ReportFailure(driver, file.get(), parser.get(), errors);
  return false;
}

}  // namespace hullwright
