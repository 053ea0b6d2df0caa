#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/GridSettings.h"
#include "model/ShapeVertex.h"
#include "render/ViewPort.h"
#include "view/PickedItem.h"

namespace hullwright {

/// What a left press on empty space does.
enum class CursorTool : std::int32_t {
  None = 0,
  ZoomIn = 1,
  ZoomOut = 2,
  Move = 8,
};

/// What the design view asks of the application.
class IViewHost {
public:
  virtual ~IViewHost() = default;

  /// Hands the design's viewport over to the view that has been created; null when it is gone
  /// already.
  virtual std::unique_ptr<CViewPortDesigner> HandOverViewPort() = 0;

  /// The grid as the settings store has it now.
  virtual GridSettings LoadGridSettings() const = 0;

  virtual CursorTool GetCursorTool() const = 0;

  /// Long name of the design's unit; empty when it is not known.
  virtual std::u16string GetUnitName() = 0;

  /// Lets the user edit a vertex, which the dialog writes; false when it was cancelled.
  virtual bool EditVertex(CShapeVertex& vertex) = 0;

  /// Lets the user edit the offsets, beginning with the one of a kind of pick.
  virtual bool EditOffsets(HitKind focus) = 0;

  /// Repaint, then tree, through the main window.
  virtual void NotifyDesignChanged() = 0;

  virtual void SetModifiedFlag(bool modified) = 0;
};

}  // namespace hullwright
