#include "file/SaxHandlers.h"

namespace hullwright {

void CFileSaxContentHandler::StartElement(std::u16string_view localName,
                                          const AttributeMap& attributes)
{
  if (owner_ != nullptr) owner_->StartElement(localName, attributes);
}

void CFileSaxContentHandler::EndElement(std::u16string_view localName)
{
  if (owner_ != nullptr) owner_->EndElement(localName);
}

void CFileSaxContentHandler::Characters(std::u16string_view chunk)
{
  if (owner_ == nullptr || chunk.empty()) return;
  const bool blank = chunk.find_first_not_of(u' ') == std::u16string_view::npos;
  if (blank || chunk.front() == u'\n' || chunk.front() == u'\r') {
    owner_->PassOver(chunk);
  } else {
    owner_->Characters(chunk);
  }
}

void CFileSaxContentHandler::PassOver(std::u16string_view markup)
{
  if (owner_ != nullptr) owner_->PassOver(markup);
}

void CFileSaxErrorHandler::Error(std::u16string_view message, int line, int column, int code)
{
  last_ = {std::u16string(message), line, column};
  if (owner_ != nullptr) owner_->Error(message, line, column, code);
}

}  // namespace hullwright
