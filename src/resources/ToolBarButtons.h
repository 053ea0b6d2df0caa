#pragma once

#include <array>

#include "resources/CommandIds.h"

namespace hullwright {

/// The main toolbar, with no command for a separator.
inline constexpr auto mainToolBar = std::to_array<CommandId>({
    CommandId::FileNew,
    CommandId::FileOpen,
    CommandId::FileSave,
    CommandId::None,
    CommandId::ImportDxf,
    CommandId::None,
    CommandId::SelectView,
    CommandId::None,
    CommandId::CursorZoomIn,
    CommandId::CursorZoomOut,
    CommandId::ShowAll,
    CommandId::None,
    CommandId::CursorMove,
    CommandId::None,
    CommandId::EditUndo,
    CommandId::EditRedo,
    CommandId::None,
    CommandId::Scale,
    CommandId::None,
    CommandId::Move,
    CommandId::None,
    CommandId::MirrorVertically,
    CommandId::MirrorHorizontally,
    CommandId::None,
    CommandId::RotateLeft,
    CommandId::RotateRight,
    CommandId::None,
    CommandId::Offsets,
    CommandId::None,
    CommandId::ToggleGrid,
    CommandId::ToggleSnap,
    CommandId::None,
    CommandId::DrawPolyline,
});

/// The small toolbar, which stands in for the main one when the pane style asks for it.
inline constexpr auto smallToolBar = std::to_array<CommandId>({
    CommandId::FileNew,
    CommandId::FileOpen,
    CommandId::FileSave,
    CommandId::None,
    CommandId::EditCut,
    CommandId::EditCopy,
    CommandId::EditPaste,
    CommandId::None,
    CommandId::FilePrint,
    CommandId::About,
});

}  // namespace hullwright
