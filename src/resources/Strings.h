#pragma once

#include <string_view>

/// The program's own texts that stand in no table.
namespace hullwright::Strings {

inline constexpr const char* maker = "Quillmere";
inline constexpr const char* program = "Hullwright";
inline constexpr std::u16string_view description =
    u"Draws the outline of a survey vessel and records where its equipment sits.";

inline constexpr std::u16string_view librariesFailed =
    u"OLE initialization failed.  Make sure that the OLE libraries are the correct version.";
inline constexpr std::u16string_view standardToolBar = u"Standard";
inline constexpr std::u16string_view customize = u"Customize...";
inline constexpr std::u16string_view objectView = u"Object View";
inline constexpr std::u16string_view ready = u"Ready";
inline constexpr std::u16string_view paneEmpty = u"N/A";
inline constexpr std::u16string_view untitled = u"Untitled";

/// Shown when the units dialog is to be left without a choice.
inline constexpr std::u16string_view selectUnit = u"Please select an unit from the list first !";
inline constexpr std::u16string_view deleteAllShapes =
    u"Are you sure you want to delete all shapes ?";
inline constexpr std::u16string_view deleteShape =
    u"Are you sure you want to delete the selected shape ?";
inline constexpr std::u16string_view deletePoint =
    u"Are you sure you want to delete the selected point from the polyline ?";
inline constexpr std::u16string_view convertUnits =
    u"The unit setting has changed. Do you want to convert all coordinates to the new units ?";

// The import of drawings.
inline constexpr std::u16string_view drawingExtension = u"dxf";
inline constexpr std::u16string_view drawingFilter = u"AutoCad DXF Files (*.dxf)|*.dxf||";

// The document template.
inline constexpr std::u16string_view fileFilter = u"Hullwright Files(*.xml)";
inline constexpr std::u16string_view fileExtension = u".xml";

}  // namespace hullwright::Strings
