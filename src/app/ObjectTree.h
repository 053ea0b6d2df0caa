#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/DesignState.h"

namespace hullwright {

/// Levels of the object tree.
enum class TreeLevel { None, Root, Side, Polyline, Point, Anchors, Anchor };

/// A place in the object tree, by its numbers from the top. A place of before a rebuild is no place
/// any more.
struct TreeItem {
  TreeLevel level = TreeLevel::None;
  std::size_t side = 0;
  std::size_t row = 0;    ///< of a polyline in its side, or of an anchor
  std::size_t point = 0;  ///< of a point in its polyline
  std::uint32_t build = 0;

  explicit operator bool() const { return level != TreeLevel::None; }
  friend bool operator==(const TreeItem&, const TreeItem&) = default;
};

/// Images of the tree's strip. Marking a polyline adds up, so that any number may stand here.
enum class TreeImage : int {
  Node = 0,
  PolylineUnmarked = 2,
  Point = 3,
  Anchor = 4,
  Polyline = 5,
  PolylineMarked = 7,
  AnchorMarked = 9,
};

/// The design as a tree: sides with their polylines and points, and the anchors. It refers to the
/// design, so that a rebuild costs a polyline, never a point; texts are made when they are shown.
/// Whoever frees or adds shapes must rebuild the tree before it is looked at again; whoever changes
/// a vertex without a rebuild notes in `DesignState::shownInTree` where it was.
class CObjectTree {
public:
  explicit CObjectTree(DesignState& design) : design_(design) {}

  void Rebuild();

  TreeItem Root() const { return Item(TreeLevel::Root); }
  TreeItem Anchors() const;  ///< none without an anchor list
  TreeItem Parent(const TreeItem& item) const;
  std::size_t ChildCount(const TreeItem& item) const;
  TreeItem Child(const TreeItem& item, std::size_t index) const;

  std::u16string Text(const TreeItem& item) const;

  TreeImage Image(const TreeItem& item) const;

  // What an item stands for; null for an item of another level, or of before a rebuild.
  CShape* Shape(const TreeItem& item) const;
  CShapeVertex* Vertex(const TreeItem& item) const;
  CAnchor* Anchor(const TreeItem& item) const;

  /// Gives a polyline's node an image; the next rebuild takes it away.
  void SetImage(const TreeItem& polyline, TreeImage image);

  bool IsCurrent(const TreeItem& item) const { return item && item.build == build_; }

private:
  struct PolylineNode {
    CShape* shape;
    std::size_t points;
    TreeImage image;
  };

  static constexpr std::size_t sideCount = 7;

  /// The node of a polyline, or of the polyline of a point; null for any other item.
  const PolylineNode* Node(const TreeItem& item) const;

  TreeItem Item(TreeLevel level, std::size_t side = 0, std::size_t row = 0,
                std::size_t point = 0) const
  {
    return {level, side, row, point, build_};
  }

  DesignState& design_;
  std::uint32_t build_ = 0;
  std::array<std::vector<PolylineNode>, sideCount> sides_;
  std::vector<CAnchor*> anchors_;
  bool hasAnchors_ = false;
};

}  // namespace hullwright
