#include "file/AnchorListReader.h"

#include <utility>

#include "base/Numbers.h"

namespace hullwright {

CAnchorListReader::CAnchorListReader(CAnchors& anchors, IMessageBoxes& messages)
    : CFileSax(messages), anchors_(anchors)
{
}

CAnchorListReader::~CAnchorListReader() = default;

void CAnchorListReader::StartElement(std::u16string_view name, const AttributeMap&)
{
  element_ = name;
  if (name == u"anchor") current_ = std::make_unique<CAnchor>();
}

void CAnchorListReader::EndElement(std::u16string_view name)
{
  element_ = name;
  if (name == u"anchor" && current_) anchors_.items.push_back(std::move(current_));
}

void CAnchorListReader::Characters(std::u16string_view text)
{
  if (!current_) return;
  CAnchor& anchor = *current_;
  if (element_ == u"id") anchor.id = ParseUInt32(text, 10);
  if (element_ == u"visible") anchor.visible = ParseInt32(text, 10) != 0;
  if (element_ == u"state") anchor.state = static_cast<std::int32_t>(ParseUInt32(text, 10));
  if (element_ == u"vessel") anchor.vessel = static_cast<std::uint16_t>(ParseUInt32(text, 10));
  if (element_ == u"attachmentX") anchor.attachmentX = ParseDouble(text);
  if (element_ == u"attachmentY") anchor.attachmentY = ParseDouble(text);
  if (element_ == u"easting") anchor.easting = ParseDouble(text);
  if (element_ == u"northing") anchor.northing = ParseDouble(text);
  if (element_ == u"name") anchor.name = text;
}

}  // namespace hullwright
