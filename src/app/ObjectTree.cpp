#include "app/ObjectTree.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace hullwright {
namespace {

struct SideNode {
  ViewSide code;
  std::u16string_view label;
};

constexpr std::array<SideNode, 7> sideNodes = {{{ViewSide::Top, u"TOP"},
                                                {ViewSide::Bottom, u"BOTTOM"},
                                                {ViewSide::Right, u"RIGHT"},
                                                {ViewSide::Left, u"LEFT"},
                                                {ViewSide::Front, u"FRONT"},
                                                {ViewSide::Rear, u"REAR"},
                                                {ViewSide::All, u"3D"}}};

std::u16string PointText(const CShapeVertex& v)
{
  return WideFromAscii(FormatSignedFixed(v.x, 3) + "," + FormatSignedFixed(v.y, 3) + "," +
                       FormatSignedFixed(v.z, 3));
}

}  // namespace

void CObjectTree::Rebuild()
{
  ++build_;
  design_.shownInTree.clear();
  // All of it first: where memory ends on the way, nothing is left that may be gone.
  for (auto& side : sides_) side.clear();
  anchors_.clear();
  for (std::size_t side = 0; side < sideCount; ++side) {
    const CShapes* const group = FindViewGroup(design_.shapeGroups, sideNodes[side].code);
    if (group == nullptr) continue;
    ForEachEntry(group->shapes, [&](CShape& shape) {
      if (shape.type != ShapeType::Polyline) return;
      sides_[side].push_back({&shape, shape.vertices.size(), TreeImage::Polyline});
    });
  }
  hasAnchors_ = design_.anchors != nullptr;
  if (!hasAnchors_) return;
  Walk(design_.anchors->cursor, design_.anchors->items,
       [this](CAnchor& anchor) { anchors_.push_back(&anchor); });
}

const CObjectTree::PolylineNode* CObjectTree::Node(const TreeItem& item) const
{
  if (!IsCurrent(item) || item.side >= sideCount) return nullptr;
  if (item.level != TreeLevel::Polyline && item.level != TreeLevel::Point) return nullptr;
  const auto& nodes = sides_[item.side];
  return item.row < nodes.size() ? &nodes[item.row] : nullptr;
}

TreeItem CObjectTree::Anchors() const
{
  return hasAnchors_ ? Item(TreeLevel::Anchors) : TreeItem{};
}

TreeItem CObjectTree::Parent(const TreeItem& item) const
{
  if (!IsCurrent(item)) return {};
  switch (item.level) {
    case TreeLevel::Side: return Root();
    case TreeLevel::Polyline: return Item(TreeLevel::Side, item.side);
    case TreeLevel::Point: return Item(TreeLevel::Polyline, item.side, item.row);
    case TreeLevel::Anchor: return Anchors();
    default: return {};
  }
}

std::size_t CObjectTree::ChildCount(const TreeItem& item) const
{
  if (!IsCurrent(item)) return 0;
  switch (item.level) {
    case TreeLevel::Root: return sideCount;
    case TreeLevel::Side: return sides_[item.side].size();
    case TreeLevel::Polyline: return Node(item) == nullptr ? 0 : Node(item)->points;
    case TreeLevel::Anchors: return anchors_.size();
    default: return 0;
  }
}

TreeItem CObjectTree::Child(const TreeItem& item, std::size_t index) const
{
  if (index >= ChildCount(item)) return {};
  switch (item.level) {
    case TreeLevel::Root: return Item(TreeLevel::Side, index);
    case TreeLevel::Side: return Item(TreeLevel::Polyline, item.side, index);
    case TreeLevel::Polyline: return Item(TreeLevel::Point, item.side, item.row, index);
    default: return Item(TreeLevel::Anchor, 0, index);
  }
}

std::u16string CObjectTree::Text(const TreeItem& item) const
{
  if (!IsCurrent(item)) return {};
  switch (item.level) {
    case TreeLevel::Root: return u"Vessel Design";
    case TreeLevel::Side: return std::u16string(sideNodes[item.side].label);
    case TreeLevel::Polyline: return u"Polyline";
    case TreeLevel::Anchors: return u"Anchors";
    default: break;
  }
  if (const CAnchor* const anchor = Anchor(item)) {
    return u"Anchor #" + WideFromAscii(std::to_string(anchor->id));
  }
  const CShapeVertex* const vertex = Vertex(item);
  if (vertex == nullptr) return {};
  const auto shown = design_.shownInTree.find(vertex);
  return PointText(shown == design_.shownInTree.end() ? *vertex : shown->second);
}

TreeImage CObjectTree::Image(const TreeItem& item) const
{
  if (const PolylineNode* const node = Node(item)) {
    return item.level == TreeLevel::Point ? TreeImage::Point : node->image;
  }
  const CAnchor* const anchor = Anchor(item);
  if (anchor == nullptr) return TreeImage::Node;
  return anchor->marked ? TreeImage::AnchorMarked : TreeImage::Anchor;
}

CShape* CObjectTree::Shape(const TreeItem& item) const
{
  const PolylineNode* const node = Node(item);
  return node != nullptr && item.level == TreeLevel::Polyline ? node->shape : nullptr;
}

CShapeVertex* CObjectTree::Vertex(const TreeItem& item) const
{
  const PolylineNode* const node = Node(item);
  if (node == nullptr || item.level != TreeLevel::Point) return nullptr;
  const auto& vertices = node->shape->vertices;
  return item.point < vertices.size() ? vertices[item.point].get() : nullptr;
}

CAnchor* CObjectTree::Anchor(const TreeItem& item) const
{
  const bool isAnchor = IsCurrent(item) && item.level == TreeLevel::Anchor;
  return isAnchor && item.row < anchors_.size() ? anchors_[item.row] : nullptr;
}

void CObjectTree::SetImage(const TreeItem& polyline, TreeImage image)
{
  if (Shape(polyline) != nullptr) sides_[polyline.side][polyline.row].image = image;
}

}  // namespace hullwright
