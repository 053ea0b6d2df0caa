#include "file/SaxHandlers.h"

namespace hullwright {

void CFileSaxContentHandler::StartElement(std::string_view localName, SaxAttributes attributes)
{
  if (owner_ != nullptr) owner_->StartElement(localName, attributes);
}

void CFileSaxContentHandler::EndElement(std::string_view localName)
{
  if (owner_ != nullptr) owner_->EndElement(localName);
}

void CFileSaxContentHandler::Characters(std::string_view chunk)
{
  if (owner_ == nullptr || chunk.empty()) return;
  // The line break first: most chunks are the line break and the blanks before a tag.
  const bool lineBreak = chunk.front() == '\n' || chunk.front() == '\r';
  if (lineBreak || chunk.find_first_not_of(' ') == std::string_view::npos) {
    owner_->PassOver(chunk);
  } else {
    owner_->Characters(chunk);
  }
}

bool CFileSaxContentHandler::GoOnWithout(std::string_view startedElement) noexcept
{
  return owner_ == nullptr || owner_->GoOnWithout(startedElement);
}

void CFileSaxContentHandler::PassOver(std::string_view markup)
{
  if (owner_ != nullptr) owner_->PassOver(markup);
}

void CFileSaxErrorHandler::Error(std::u16string_view message, int line, int column, int code)
{
  constexpr int noMemory = 1;  // as the parser counts its errors
  last_ = {std::u16string(message), line, column, code == noMemory};
  if (owner_ != nullptr) owner_->Error(message, line, column, code);
}

}  // namespace hullwright
