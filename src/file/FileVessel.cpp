#include "file/FileVessel.h"

#include <array>
#include <utility>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "file/CoordinateLine.h"
#include "file/DesignElements.h"

namespace hullwright {
namespace {

/// Whether a save of the group writes more than its tags.
bool HoldsPolyline(const CShapes& group)
{
  bool holdsOne = false;
  ForEachUpToNull(group.shapes, [&](const CShape& shape) {
    holdsOne = holdsOne || shape.type == ShapeType::Polyline;
  });
  return holdsOne;
}

/// Takes the coordinates of a vertex; one that is missing is 0.
void ReadCoordinates(CShapeVertex& vertex, SaxAttributes attributes)
{
  for (const Coordinate& coordinate : coordinates) vertex.*coordinate.member = 0.0;
  for (const SaxAttribute& attribute : attributes) {
    if (attribute.name.size() != 1) continue;
    for (const Coordinate& coordinate : coordinates) {
      if (coordinate.axis != attribute.name.front()) continue;
      vertex.*coordinate.member = ParseDouble(attribute.value);
    }
  }
}

/// Hands an object over to its owner; it goes where the owner has no memory for it.
template <class Object, class Base>
void HandOver(std::unique_ptr<Object> object, OwnedArray<Base>& owner)
{
  owner.push_back(std::move(object));
}

/// The attribute that holds the value of an element.
template <class Object>
AttributeMap ValueAttribute(const DesignElement& element, const Object& object)
{
  return {{WideFromAscii(element.attribute), MemberText(element, object)}};
}

}  // namespace

CFileVessel::CFileVessel(IMessageBoxes& messages) : CFileSax(messages) {}

CFileVessel::~CFileVessel() = default;

int CFileVessel::Save(std::u16string_view path, const OwnedArray<CShapes>& shapeGroups)
{
  Compose(shapeGroups);
  return LostBlock() ? -1 : Flush(path);
}

void CFileVessel::Compose(const OwnedArray<CShapes>& shapeGroups, EmptyGroups emptyGroups)
{
  constexpr const DesignElement& root = ElementOf(ElementKind::Root);
  ResetOutput();
  // The document is lost with its block. A fresh one would have to be cleared up to the length of
  // the text, again and again, for nothing.
  StopAtLoss();
  WriteDeclaration();
  OpenElement(root.name);
  for (const DesignElement& element : designElements) {
    if (element.parent == root.name) WritePart(element, shapeGroups, emptyGroups);
  }
  CloseElement(root.name);
}

void CFileVessel::WritePart(const DesignElement& element, const OwnedArray<CShapes>& shapeGroups,
                            EmptyGroups emptyGroups)
{
  if (element.kind == ElementKind::Unit && NumberOf(unitCode) != 0) {
    WriteEmptyElement(element.name, ValueAttribute(element, *this));
  } else if (element.kind == ElementKind::Group) {
    ForEachUpToNull(shapeGroups, [&](const CShapes& group) {
      if (emptyGroups == EmptyGroups::Written || HoldsPolyline(group)) WriteGroup(element, group);
    });
  } else if (const auto* const offset = std::get_if<OffsetMember>(&element.member)) {
    if (const CShapeVertex* const place = (this->*offset->inFile).get()) {
      WriteCoordinates(CoordinateLine(element), *place);
    }
  } else if (element.kind == ElementKind::AnchorList && anchors) {
    OpenElement(element.name);
    Walk(anchors->cursor, anchors->items, [this](const CAnchor& anchor) { WriteAnchor(anchor); });
    CloseElement(element.name);
  }
}

void CFileVessel::WriteGroup(const DesignElement& element, const CShapes& group)
{
  OpenElement(element.name, ValueAttribute(element, group));
  Walk(group.cursor, group.shapes, [this](CShape& shape) {
    if (shape.type == ShapeType::Polyline && !LostBlock()) WritePolyline(shape);
    OnPassed(shape);
  });
  CloseElement(element.name);
}

void CFileVessel::WritePolyline(const CShape& polyline)
{
  constexpr const DesignElement& element = ElementOf(ElementKind::Polyline);
  static constexpr CoordinateLine vertexLine(ElementOf(ElementKind::Vertex));
  OpenElement(element.name);
  Walk(polyline.cursor, polyline.vertices,
       [this](const CShapeVertex& vertex) { WriteCoordinates(vertexLine, vertex); });
  CloseElement(element.name);
}

void CFileVessel::WriteCoordinates(const CoordinateLine& line, const CShapeVertex& place)
{
  if (char* const at = BeginEmptyElementLine(CoordinateLine::longest)) {
    EndEmptyElementLine(line.Write(at, place));
    return;
  }
  std::array<char, CoordinateLine::longest> text;
  const std::string_view whole(text.data(), line.Write(text.data(), place));
  WriteEmptyElementLine(whole, whole.size() - line.TagLength());
}

void CFileVessel::WriteAnchor(const CAnchor& anchor)
{
  constexpr const DesignElement& anchorElement = ElementOf(ElementKind::Anchor);
  OpenElement(anchorElement.name);
  for (const DesignElement& element : designElements) {
    if (element.kind == ElementKind::AnchorField && element.use == ElementUse::Saved) {
      WriteTextElement(element.name, MemberText(element, anchor));
    }
  }
  CloseElement(anchorElement.name);
}

const DesignElement* CFileVessel::ElementOfTag(std::string_view name)
{
  // Most tags bear the name of the one before.
  if (name != tagName_) {
    tagName_.clear();  // of a name that there is no memory for, nothing stays
    tagName_ = name;
    tagElement_ = FindElement(name);
  }
  return tagElement_;
}

void CFileVessel::StartElement(std::string_view name, SaxAttributes attributes)
{
  const DesignElement* const element = ElementOfTag(name);
  if (element == nullptr) return;
  switch (element->kind) {
    case ElementKind::Unit:
      ReadMember(*element, *this, AttributeValue(attributes, element->attribute));
      break;
    case ElementKind::Group:
      currentGroup_ = std::make_unique<CShapes>();
      ReadMember(*element, *currentGroup_, AttributeValue(attributes, element->attribute));
      if (currentGroup_->viewCode == ViewSide::None) currentGroup_->viewCode = ViewSide::Top;
      state_ = State::InGroup;
      break;
    case ElementKind::Polyline:
      currentPolyline_ = std::make_unique<CShapePolyline>();
      state_ = State::InPolyline;
      break;
    case ElementKind::Vertex: {
      if (!currentPolyline_) break;
      auto vertex = std::make_unique<CShapeVertex>();
      ReadCoordinates(*vertex, attributes);
      currentPolyline_->vertices.push_back(std::move(vertex));
      break;
    }
    case ElementKind::Offset: {
      CShapeVertex* const offset = (this->*std::get<OffsetMember>(element->member).inFile).get();
      if (offset != nullptr) ReadCoordinates(*offset, attributes);
      break;
    }
    case ElementKind::Anchor:
      currentAnchor_ = std::make_unique<CAnchor>();
      state_ = State::InAnchor;
      break;
    case ElementKind::Root:
    case ElementKind::AnchorList:
    case ElementKind::AnchorField: break;
  }
}

void CFileVessel::Characters(std::string_view text)
{
  if (state_ != State::InAnchor || !anchors || !currentAnchor_) return;
  // Text behind a close tag still counts for the element that ended, and each chunk replaces the
  // one before it.
  const DesignElement* const field = FindAnchorField(tagName_);
  if (field != nullptr && field->use != ElementUse::OnlyInLists) {
    ReadMember(*field, *currentAnchor_, text);
  }
}

void CFileVessel::EndElement(std::string_view name)
{
  const DesignElement* const element = ElementOfTag(name);
  if (element == nullptr) return;
  // The state first: what memory ends for is left out, and the element has ended all the same.
  if (element->kind == ElementKind::Polyline && state_ == State::InPolyline) {
    state_ = State::InGroup;
    if (!currentGroup_ || !currentPolyline_) return;
    currentPolyline_->vertices.shrink_to_fit();  // growing left room for up to twice as many
    HandOver(std::move(currentPolyline_), currentGroup_->shapes);
  } else if (element->kind == ElementKind::Anchor && state_ == State::InAnchor) {
    state_ = State::Between;
    if (anchors && currentAnchor_) HandOver(std::move(currentAnchor_), anchors->items);
  } else if (element->kind == ElementKind::Group && state_ == State::InGroup) {
    state_ = State::Between;
    if (currentGroup_ && groups != nullptr) HandOver(std::move(currentGroup_), *groups);
  }
}

bool CFileVessel::GoOnWithout(std::string_view startedElement) noexcept
{
  tagName_.clear();
  const DesignElement* const element = FindElement(startedElement);
  const ElementKind kind = element == nullptr ? ElementKind::AnchorField : element->kind;
  // Without its unit or an offset a design is not a smaller one but another one.
  if (kind == ElementKind::Unit || kind == ElementKind::Offset) return false;
  ++leftOutParts_;
  if (kind == ElementKind::Group) currentGroup_.reset();
  if (kind == ElementKind::Polyline) currentPolyline_.reset();
  if (kind == ElementKind::Anchor || kind == ElementKind::AnchorField) currentAnchor_.reset();
  return true;
}

}  // namespace hullwright
