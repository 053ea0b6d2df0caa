#include "file/FileSax.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

#include "base/Numbers.h"
#include "base/OpenFile.h"
#include "base/Text.h"
#include "file/SaxHandlers.h"
#include "file/SaxParser.h"

namespace hullwright {
namespace {

// Room that each primitive asks for beside the text it can count.
constexpr std::size_t openMargin = 0x200;
constexpr std::size_t elementMargin = 0x100;

/// One attribute as it stands in a tag; the blank stays behind every value.
std::string AttributeText(std::u16string_view name, std::u16string_view value)
{
  return Utf8FromWide(name) + "=\"" + Escape(value) + "\" ";
}

}  // namespace

CFileSax::~CFileSax() = default;

void CFileSax::StartElement(std::string_view, SaxAttributes) {}

void CFileSax::EndElement(std::string_view) {}

void CFileSax::Characters(std::string_view) {}

void CFileSax::PassOver(std::string_view) {}

void CFileSax::Error(std::u16string_view, int, int, int) {}

bool CFileSax::GoOnWithout(std::string_view) noexcept { return false; }

int CFileSax::Read(std::u16string_view path)
{
  readError_ = {};
  CFileSaxContentHandler content(this);
  CFileSaxErrorHandler errors(this);
  const bool whole = ParseXmlFile(path, content, errors);
  readError_ = errors.Last();
  return whole ? 0 : -1;
}

std::u16string Describe(const ReadError& error)
{
  if (error.line == 0) return error.message;
  return WideFromAscii("line " + std::to_string(error.line) + ", column " +
                       std::to_string(error.column) + ": ") +
         error.message;
}

std::u16string DescribeBriefly(const ReadError& error)
{
  if (error.line == 0) return error.message;
  return WideFromAscii(std::to_string(error.line) + ":" + std::to_string(error.column) + ": ") +
         error.message;
}

void CFileSax::ResetOutput()
{
  indent = 0;
  outLength = 0;
  outCapacity = 0;
  outBuffer_.reset();
  blockSize_ = 0;
  lostBlock_ = false;
  stopsAtLoss_ = false;
}

void CFileSax::WriteDeclaration()
{
  if (!MakeRoom(openMargin)) return;
  Append("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n");
}

void CFileSax::OpenElement(std::string_view name)
{
  if (!MakeRoom(openMargin)) return;
  if (WriteLine(0, {"<", name, ">\n"})) ++indent;
}

void CFileSax::OpenElement(std::string_view name, const AttributeMap& attributes)
{
  // Each pair goes to the front, so that the names stand in descending order here.
  std::string text;
  for (const auto& [key, value] : attributes) text.insert(0, AttributeText(key, value));
  if (!MakeRoom(elementMargin + text.size())) return;
  if (WriteLine(0, {"<", name, " ", text, ">\n"})) ++indent;
}

void CFileSax::CloseElement(std::string_view name)
{
  if (!MakeRoom(elementMargin)) return;
  --indent;
  if (!WriteLine(0, {"</", name, ">\n"})) ++indent;
}

void CFileSax::WriteTextElement(std::string_view name, std::u16string_view value)
{
  const std::string text = Escape(value);
  WriteLine(elementMargin + text.size(), {"<", name, ">", text, "</", name, ">\n"});
}

void CFileSax::WriteEmptyElement(std::string_view name, const AttributeMap& attributes,
                                 std::u16string_view body)
{
  std::string text;
  for (const auto& [key, value] : attributes) text += AttributeText(key, value);
  if (body.empty()) {
    WriteLine(elementMargin + text.size(), {"<", name, " ", text, "/>\n"});
    return;
  }
  const std::string content = Escape(body);
  WriteLine(elementMargin + text.size() + content.size(),
            {"<", name, " ", text, ">", content, "</", name, ">\n"});
}

char* CFileSax::BeginEmptyElementLine(std::size_t longest)
{
  const auto blanks = static_cast<std::size_t>(std::max(indent, 0));
  if (!outBuffer_ || outLength + elementMargin + blanks + longest >= outCapacity) return nullptr;
  // Few blanks take less time if they are not counted; what is written next covers the rest.
  constexpr std::string_view usual = "                ";
  static_assert(usual.size() < elementMargin);
  char* const line = outBuffer_.get() + outLength;
  std::memcpy(line, usual.data(), usual.size());
  if (blanks > usual.size()) std::fill_n(line + usual.size(), blanks - usual.size(), ' ');
  return line + blanks;
}

void CFileSax::WriteEmptyElementLine(std::string_view line, std::size_t attributeLength)
{
  WriteLine(elementMargin + attributeLength, {line});
}

bool CFileSax::WriteLine(std::size_t margin, std::initializer_list<std::string_view> parts)
{
  if (margin != 0 && !MakeRoom(margin)) return false;
  const auto blanks = static_cast<std::size_t>(std::max(indent, 0));
  std::size_t length = blanks;
  for (const std::string_view part : parts) length += part.size();
  // The margin covers what the format writes; deep nesting or a long name may need more.
  if (outLength + length > outCapacity && !GrowCapacity(length)) return false;
  std::memset(outBuffer_.get() + outLength, ' ', blanks);
  outLength += static_cast<std::uint32_t>(blanks);
  for (const std::string_view part : parts) Append(part);
  return true;
}

bool CFileSax::MakeRoom(std::size_t margin)
{
  return outBuffer_ && outLength + margin < outCapacity ? true : GrowCapacity(margin);
}

bool CFileSax::GrowCapacity(std::size_t margin)
{
  constexpr std::size_t step = 0x8000;
  constexpr std::size_t largestSum = 0xFFFF7FFF;
  if (lostBlock_ && stopsAtLoss_) return false;
  if (outBuffer_) OnFullBlock();
  const std::size_t wanted = outLength + margin;
  const std::size_t request =
      wanted > largestSum ? std::numeric_limits<std::size_t>::max() : wanted + step;
  if (request > blockSize_ && !GrowBlock(request)) return false;
  outCapacity = static_cast<std::uint32_t>(request);
  return true;
}

bool CFileSax::GrowBlock(std::size_t size)
{
  const bool fresh = !outBuffer_;
  // The capacity grows by steps; the block by half, so that moving it costs no more than filling
  // it.
  const std::size_t grown = std::max(size, blockSize_ + blockSize_ / 2);
  // A failed resize loses the block; the next one starts anew at the same length.
  outBuffer_.reset(static_cast<char*>(Reallocate(outBuffer_.release(), grown)));
  blockSize_ = outBuffer_ ? grown : 0;
  if (!outBuffer_) {
    lostBlock_ = true;
    return false;
  }
  if (fresh) std::memset(outBuffer_.get(), 0, outLength);
  return true;
}

void* CFileSax::Reallocate(void* block, std::size_t size)
{
  if (size == std::numeric_limits<std::size_t>::max()) {
    std::free(block);
    return nullptr;
  }
  void* const resized = std::realloc(block, size);
  if (resized == nullptr) std::free(block);
  return resized;
}

void CFileSax::Append(std::string_view text)
{
  std::memcpy(outBuffer_.get() + outLength, text.data(), text.size());
  outLength += static_cast<std::uint32_t>(text.size());
}

int CFileSax::Flush(std::u16string_view path)
{
  writeError_ = 0;
  if (path.empty() || !outBuffer_ || outLength == 0 || outCapacity == 0) return -1;
  FilePointer file = OpenToWrite(path);
  if (!file) {
    writeError_ = errno;
    return -1;
  }
  errno = 0;
  const bool written = std::fwrite(outBuffer_.get(), outLength, 1, file.get()) == 1;
  // What is still in the stream's buffer reaches the disk only here.
  const bool closed = std::fclose(file.release()) == 0;
  if (written && closed) return 0;
  writeError_ = errno;
  messages_.ShowMessage(u"Error writing config file!!!");
  return -1;
}

std::string_view CFileSax::Output() const
{
  return outBuffer_ ? std::string_view(outBuffer_.get(), outLength) : std::string_view();
}

std::string Escape(std::u16string_view text)
{
  std::string out;
  out.reserve(text.size());
  for (const char16_t unit : text) {
    switch (unit) {
      case u'"': out += "&quot;"; break;
      case u'&': out += "&amp;"; break;
      case u'\'': out += "&apos;"; break;
      case u'<': out += "&lt;"; break;
      case u'>': out += "&gt;"; break;
      default:
        if (unit >= 0x20 && unit <= 0x7F) {
          out.push_back(static_cast<char>(unit));
        } else {
          out.append("&#x").append(FormatHex(unit, 1)).push_back(';');
        }
    }
  }
  return out;
}

}  // namespace hullwright
