#pragma once

#include "app/HullwrightApp.h"
#include "app/ObjectTree.h"
#include "platform/TreeControl.h"
#include "resources/Menus.h"

namespace hullwright {

/// The object pane: shows the design by side, marks a polyline for editing at a click, and offers
/// commands by context menus. Its commands for shapes act on the side in view, whichever side's
/// node was clicked.
class CObjectView {
public:
  CObjectView(CHullwrightApp& app, ITreeControl& control) : app_(app), control_(control), tree_(app)
  {
  }

  /// Throws the whole tree away and builds it again; side nodes are collapsed afterwards.
  void BuildTree();

  /// A click on an item, or on none.
  void OnClick(const TreeItem& item);

  /// A right click: selects the item and offers its menu.
  void OnContextMenu(const TreeItem& item);

  /// A command of the pane's context menu; any other id does nothing.
  void OnCommand(CommandId id);

  CObjectTree& Tree() { return tree_; }

  TreeItem selectedItem;  ///< kept by the control
  TreeItem sideItem;  ///< side node under which the last click fell; a rebuild does not clear it

private:
  struct CommandTable;

  TreeMenuKind MenuOf(const TreeItem& item) const;
  void MarkForEditing(const TreeItem& polyline);
  void ShowMarks();

  void AddPolyline();
  void RemoveAllPolylines();
  void AddAnchor();
  void AddPoint();
  void RemovePolyline();
  void ZoomPolyline();
  void EditPoint();
  void RemovePoint();
  CShapes* Group();

  CHullwrightApp& app_;
  ITreeControl& control_;
  CObjectTree tree_;
};

}  // namespace hullwright
