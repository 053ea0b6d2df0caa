#include "file/FileVessel.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"

namespace hullwright {
namespace {

/// "%.3lf", the form of every coordinate, as wide text.
std::u16string Coordinate(double value)
{
  std::string text;
  AppendFixed3(text, value);
  return WideFromAscii(text);
}

/// Whether a save of the group writes more than its tags.
bool HoldsPolyline(const CShapes& group)
{
  for (const auto& shape : group.shapes) {
    if (!shape) break;
    if (shape->type == ShapeType::Polyline) return true;
  }
  return false;
}

void ReadCoordinates(CShapeVertex& vertex, const AttributeMap& attributes)
{
  vertex.x = ParseDouble(AttributeValue(attributes, u"x"));
  vertex.y = ParseDouble(AttributeValue(attributes, u"y"));
  vertex.z = ParseDouble(AttributeValue(attributes, u"z"));
}

}  // namespace

CFileVessel::CFileVessel(IMessageBoxes& messages) : CFileSax(messages) {}

CFileVessel::~CFileVessel() = default;

int CFileVessel::Save(std::u16string_view path, const OwnedArray<CShapes>& shapeGroups)
{
  Compose(shapeGroups);
  return Flush(path);
}

void CFileVessel::Compose(const OwnedArray<CShapes>& shapeGroups, EmptyGroups emptyGroups)
{
  ResetOutput();
  WriteDeclaration();
  OpenElement(u"vessel");
  if (unitCode != 0) {
    WriteEmptyElement(u"units", {{u"id", WideFromAscii(std::to_string(unitCode))}});
  }
  for (const auto& group : shapeGroups) {
    if (!group) break;
    if (emptyGroups == EmptyGroups::LeftOut && !HoldsPolyline(*group)) continue;
    WriteGroup(*group);
  }
  if (gps) WriteCoordinates("gps", *gps);
  if (txd) WriteCoordinates("txd", *txd);
  if (piv) WriteCoordinates("piv", *piv);
  if (anchors) WriteAnchors();
  CloseElement(u"vessel");
}

void CFileVessel::WriteGroup(const CShapes& group)
{
  const std::string view = FormatHex(static_cast<std::uint32_t>(group.viewCode), 2);
  OpenElement(u"shapes", {{u"view", WideFromAscii(view)}});
  Walk(group.cursor, group.shapes, [this](const CShape& shape) {
    if (shape.type == ShapeType::Polyline) WritePolyline(shape);
  });
  CloseElement(u"shapes");
}

void CFileVessel::WritePolyline(const CShape& polyline)
{
  OpenElement(u"polyline");
  Walk(polyline.cursor, polyline.vertices,
       [this](const CShapeVertex& vertex) { WriteCoordinates("vertex", vertex); });
  CloseElement(u"polyline");
}

void CFileVessel::WriteCoordinates(std::string_view elementName, const CShapeVertex& vertex)
{
  std::string attributes = "x=\"";
  AppendFixed3(attributes, vertex.x);
  attributes += "\" y=\"";
  AppendFixed3(attributes, vertex.y);
  attributes += "\" z=\"";
  AppendFixed3(attributes, vertex.z);
  attributes += "\" ";
  WriteEmptyElementText(elementName, attributes);
}

void CFileVessel::WriteAnchors()
{
  OpenElement(u"anchors");
  Walk(anchors->cursor, anchors->items, [this](const CAnchor& anchor) {
    OpenElement(u"anchor");
    WriteTextElement(u"id", WideFromAscii(std::to_string(anchor.id)));
    // A name ends at a NUL, which no XML text can hold.
    WriteTextElement(u"name", std::u16string_view(anchor.name.c_str()));
    WriteTextElement(u"attachmentX", Coordinate(anchor.attachmentX));
    WriteTextElement(u"attachmentY", Coordinate(anchor.attachmentY));
    CloseElement(u"anchor");
  });
  CloseElement(u"anchors");
}

void CFileVessel::StartElement(std::u16string_view name, const AttributeMap& attributes)
{
  element_ = name;
  if (name == u"shapes") {
    currentGroup_ = std::make_unique<CShapes>(ParseInt32(AttributeValue(attributes, u"view"), 16));
    if (currentGroup_->viewCode == 0) currentGroup_->viewCode = ViewSide::Top;
    state_ = State::InGroup;
  } else if (name == u"anchor") {
    currentAnchor_ = std::make_unique<CAnchor>();
    state_ = State::InAnchor;
  } else if (name == u"polyline") {
    currentPolyline_ = std::make_unique<CShapePolyline>();
    state_ = State::InPolyline;
  } else if (name == u"vertex") {
    if (!currentPolyline_) return;
    auto vertex = std::make_unique<CShapeVertex>();
    ReadCoordinates(*vertex, attributes);
    currentPolyline_->vertices.push_back(std::move(vertex));
  } else if (name == u"units") {
    unitCode = ParseInt32(AttributeValue(attributes, u"id"), 10);
  } else if (name == u"gps" && gps) {
    ReadCoordinates(*gps, attributes);
  } else if (name == u"txd" && txd) {
    ReadCoordinates(*txd, attributes);
  } else if (name == u"piv" && piv) {
    ReadCoordinates(*piv, attributes);
  }
}

void CFileVessel::Characters(std::u16string_view text)
{
  if (state_ == State::InAnchor && anchors && currentAnchor_) ReadAnchorField(text);
}

void CFileVessel::ReadAnchorField(std::u16string_view text)
{
  CAnchor& anchor = *currentAnchor_;
  // Text behind a close tag still counts for the element that ended, and each chunk replaces the
  // one before it.
  if (element_ == u"id") anchor.id = ParseUInt32(text, 10);
  if (element_ == u"vessel") anchor.vessel = static_cast<std::uint16_t>(ParseUInt32(text, 10));
  if (element_ == u"attachmentX") anchor.attachmentX = ParseDouble(text);
  if (element_ == u"attachmentY") anchor.attachmentY = ParseDouble(text);
  if (element_ == u"name") anchor.name = text;
}

void CFileVessel::EndElement(std::u16string_view name)
{
  element_ = name;
  if (name == u"polyline" && state_ == State::InPolyline) {
    if (currentGroup_ && currentPolyline_) {
      currentGroup_->shapes.push_back(std::move(currentPolyline_));
    }
    state_ = State::InGroup;
  } else if (name == u"anchor" && state_ == State::InAnchor) {
    if (anchors && currentAnchor_) anchors->items.push_back(std::move(currentAnchor_));
    state_ = State::Between;
  } else if (name == u"shapes" && state_ == State::InGroup) {
    if (currentGroup_ && groups != nullptr) groups->push_back(std::move(currentGroup_));
    state_ = State::Between;
  }
}

}  // namespace hullwright
