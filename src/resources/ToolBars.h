#pragma once

#include <array>

#include "resources/CommandIds.h"

namespace hullwright {

/// Marks a separator in a row of buttons.
inline constexpr int toolBarSeparator = 0;

/// The main toolbar.
inline constexpr auto mainToolBar = std::to_array<int>({
    Command::FileNew,
    Command::FileOpen,
    Command::FileSave,
    toolBarSeparator,
    Command::ImportDxf,
    toolBarSeparator,
    Command::SelectView,
    toolBarSeparator,
    Command::CursorZoomIn,
    Command::CursorZoomOut,
    Command::ShowAll,
    toolBarSeparator,
    Command::CursorMove,
    toolBarSeparator,
    Command::EditUndo,
    Command::EditRedo,
    toolBarSeparator,
    Command::Scale,
    toolBarSeparator,
    Command::Move,
    toolBarSeparator,
    Command::MirrorVertically,
    Command::MirrorHorizontally,
    toolBarSeparator,
    Command::RotateLeft,
    Command::RotateRight,
    toolBarSeparator,
    Command::Offsets,
    toolBarSeparator,
    Command::ToggleGrid,
    Command::ToggleSnap,
    toolBarSeparator,
    Command::DrawPolyline,
});

/// The small toolbar, which stands in for the main one when the pane style asks for it.
inline constexpr auto smallToolBar = std::to_array<int>({
    Command::FileNew,
    Command::FileOpen,
    Command::FileSave,
    toolBarSeparator,
    Command::EditCut,
    Command::EditCopy,
    Command::EditPaste,
    toolBarSeparator,
    Command::FilePrint,
    Command::About,
});

}  // namespace hullwright
