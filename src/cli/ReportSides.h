#pragma once

#include "cli/ReportPages.h"
#include "cli/SidePictures.h"
#include "resources/ViewSides.h"

namespace hullwright {

/// Draws the sides of a design to scale.
class ReportSides {
public:
  ReportSides();

  HeadlessEditor& Editor() { return pictures_.Editor(); }

  /// Adds a side with its name, its scale, a bar of a round length, and what stands on it; a line
  /// where nothing can be drawn. `unit` is what lengths are named by.
  void Add(ReportPages& pages, const ViewSideEntry& side, const QString& unit);

private:
  SidePictures pictures_;
};

}  // namespace hullwright
