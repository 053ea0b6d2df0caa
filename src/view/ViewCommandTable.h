#pragma once

#include <array>

#include "resources/CommandHandler.h"
#include "view/HullwrightView.h"

namespace hullwright {

/// The commands that the design view carries out, a row each.
struct ViewCommandTable {
  using View = CHullwrightView;

  /// Those of the menu bar and the toolbars.
  static constexpr auto rows = std::to_array<CommandHandler<View>>({
      {CommandId::ShowAll, [](View& view) { view.ShowAllShapes(); }},
      {CommandId::DrawPolyline, [](View& view) { view.BeginPolyline(); },
       [](const View& view) { return Checked(view.drawing); }},
  });

  /// Those of the context menu.
  static constexpr auto menuRows = std::to_array<CommandHandler<View>>({
      {CommandId::MenuZoomIn, [](View& view) { view.ZoomByMenu(&CViewPort::ZoomIn); }},
      {CommandId::MenuZoomOut, [](View& view) { view.ZoomByMenu(&CViewPort::ZoomOut); }},
      {CommandId::MenuCenter, [](View& view) { view.ZoomByMenu(&CViewPort::CenterOn); }},
      {CommandId::EditVertex, [](View& view) { view.EditItem(); }},
      {CommandId::AddVertex, [](View& view) { view.AddVertex(); }},
      {CommandId::RemoveVertex, [](View& view) { view.RemoveHit(); }},
      {CommandId::AddAnchor, [](View& view) { view.AddAnchor(); }},
      {CommandId::RemoveAnchor, [](View& view) { view.RemoveHit(); }},
  });
};

}  // namespace hullwright
