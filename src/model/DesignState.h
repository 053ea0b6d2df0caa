#pragma once

#include <map>
#include <memory>

#include "model/Anchors.h"
#include "model/ShapeVertex.h"
#include "model/Shapes.h"
#include "model/ViewSide.h"
#include "model/Walk.h"

namespace hullwright {

class CViewPortDesigner;

/// The design and what is in view of it: the state that files, scene, view and commands share. The
/// application object derives from it and lives for the run; new and open replace parts of it.
/// Members of its parts that are marked as carried are kept with their object and used by nothing.
struct DesignState {
  OwnedArray<CShapes> shapeGroups;  ///< in creation order, which is also the file's order

  /// World-to-screen mapping, borrowed: made by the application and handed over to the design view.
  CViewPortDesigner* viewPort = nullptr;

  std::unique_ptr<CAnchors> anchors = std::make_unique<CAnchors>();

  // Places of equipment, in the design's unit: GNSS antenna, echo sounder's transducer, and the
  // pivot point, for dredging. The program starts with these values; a new design keeps those that
  // it finds.
  std::unique_ptr<CShapeVertex> offsetGps = std::make_unique<CShapeVertex>(10.0, 0.0, 0.0);
  std::unique_ptr<CShapeVertex> offsetTransducer = std::make_unique<CShapeVertex>(-10.0, 0.0, 0.0);
  std::unique_ptr<CShapeVertex> offsetPivot = std::make_unique<CShapeVertex>(0.0, 10.0, 0.0);

  UnitCode unitCode = UnitCode::Metre;  ///< of all lengths of the design
  ViewSide activeView = ViewSide::Top;  ///< the side shown and edited

  /// Vertices that have changed since the object tree was built, as they were then: the tree goes
  /// on showing them so. Empty after each rebuild.
  std::map<const CShapeVertex*, CShapeVertex> shownInTree;
};

/// Gives the design's view, where zooming no longer leads on from it, the window that it began
/// with. Implemented where the viewport is.
void RecoverView(const DesignState& design);

}  // namespace hullwright
