#include "file/AnchorListReader.h"

#include <utility>

#include "file/DesignElements.h"

namespace hullwright {

CAnchorListReader::CAnchorListReader(CAnchors& anchors, IMessageBoxes& messages)
    : CFileSax(messages), anchors_(anchors)
{
}

CAnchorListReader::~CAnchorListReader() = default;

void CAnchorListReader::StartElement(std::string_view name, SaxAttributes)
{
  element_ = name;
  if (name == ElementOf(ElementKind::Anchor).name) current_ = std::make_unique<CAnchor>();
}

void CAnchorListReader::EndElement(std::string_view name)
{
  element_ = name;
  if (name == ElementOf(ElementKind::Anchor).name && current_)
    anchors_.items.push_back(std::move(current_));
}

void CAnchorListReader::Characters(std::string_view text)
{
  const DesignElement* const field = FindAnchorField(element_);
  if (current_ && field != nullptr) ReadMember(*field, *current_, text);
}

}  // namespace hullwright
