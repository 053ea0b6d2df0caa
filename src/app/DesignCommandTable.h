#pragma once

#include <array>

#include "app/HullwrightApp.h"
#include "resources/CommandHandler.h"

namespace hullwright {

/// The commands that the application object carries out, a row each.
struct DesignCommandTable {
  using App = CHullwrightApp;

  template <ViewSide side>
  static void Show(App& app)
  {
    app.SetViewSide(side);
  }
  template <CursorTool tool>
  static void Take(App& app)
  {
    app.cursorTool = tool;
  }
  template <CursorTool tool>
  static CommandState IsTaken(const App& app)
  {
    return Checked(app.cursorTool == tool);
  }
  static CommandState ShowsGrid(const App& app)
  {
    return Checked(app.LoadGridSettings().show != 0);
  }
  static CommandState Snaps(const App& app) { return Checked(app.LoadGridSettings().snap != 0); }

  static constexpr auto rows = std::to_array<CommandHandler<App>>({
      {CommandId::ImportDxf, [](App& app) { app.ImportDxf(); }},
      {CommandId::MirrorVertically, [](App& app) { app.MirrorVertically(); }},
      {CommandId::MirrorHorizontally, [](App& app) { app.MirrorHorizontally(); }},
      {CommandId::Scale, [](App& app) { app.ScaleDesign(); }},
      {CommandId::Move, [](App& app) { app.MoveDesign(); }},
      {CommandId::RotateRight, [](App& app) { app.RotateRight(); }},
      {CommandId::RotateLeft, [](App& app) { app.RotateLeft(); }},
      {CommandId::Offsets, [](App& app) { app.ModifyOffsets(); }},
      {CommandId::Grid, [](App& app) { app.EditGrid(); }},
      {CommandId::Units, [](App& app) { app.SwitchUnits(); }},
      {CommandId::About, [](App& app) { app.ShowAbout(); }},
      {CommandId::ToggleGrid, [](App& app) { app.ToggleGrid(); }, ShowsGrid},
      {CommandId::ToggleSnap, [](App& app) { app.ToggleSnap(); }, Snaps},
      {CommandId::CursorZoomIn, Take<CursorTool::ZoomIn>, IsTaken<CursorTool::ZoomIn>},
      {CommandId::CursorZoomOut, Take<CursorTool::ZoomOut>, IsTaken<CursorTool::ZoomOut>},
      {CommandId::CursorMove, Take<CursorTool::Move>, IsTaken<CursorTool::Move>},
      {CommandId::ViewTop, Show<ViewSide::Top>},
      {CommandId::ViewBottom, Show<ViewSide::Bottom>},
      {CommandId::ViewRight, Show<ViewSide::Right>},
      {CommandId::ViewLeft, Show<ViewSide::Left>},
      {CommandId::ViewFront, Show<ViewSide::Front>},
      {CommandId::ViewRear, Show<ViewSide::Rear>},
  });
};

}  // namespace hullwright
