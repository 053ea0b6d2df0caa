#pragma once

#include "cli/HeadlessEditor.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"

namespace hullwright {

/// An editor whose sides are painted on devices of the caller's, such as pages.
class SidePictures {
public:
  /// For pictures of a size in pixels.
  SidePictures(int width, int height) : surface_(width, height), editor_(target_) {}

  /// False where there is no memory for a picture of the size.
  bool HasRoom() { return !surface_.Picture().isNull(); }

  HeadlessEditor& Editor() { return editor_; }

  /// Paints the side in view.
  void PaintOn(QPaintDevice& device)
  {
    surface_.SetDevice(&device);
    editor_.Draw();
    surface_.SetDevice(nullptr);
  }

private:
  PaintSurface surface_;
  PaintTarget target_{surface_};
  HeadlessEditor editor_;
};

}  // namespace hullwright
