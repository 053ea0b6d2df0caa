#include "resources/DialogTemplates.h"

#include <algorithm>
#include <array>

namespace hullwright {
namespace {

using Kind = DialogRowKind;

constexpr auto aboutRows = std::to_array<DialogRow>({
    {Kind::Product, 1010},
    {Kind::Note, 0, u"Draws the outline of a survey vessel and records where its equipment sits."},
    {Kind::Note, 0, u"Free software under the MIT licence. \u00A9 2026 The Hullwright developers."},
});

constexpr auto gridRows = std::to_array<DialogRow>({
    {Kind::Group, 0, u"Display"},
    {Kind::Check, 1002, u"Show Grid"},
    {Kind::Field, 1000, u"X-Spacing:", 1006, 1004, u"meters"},
    {Kind::Field, 1003, u"Y-Spacing:", 1007, 1005, u"meters"},
    {Kind::Group, 0, u"Snap"},
    {Kind::Check, 1001, u"Snap to grid"},
    {Kind::Field, 1009, u"X-Spacing:", 1008, 1010, u"meters"},
    {Kind::Field, 1012, u"Y-Spacing:", 1011, 1013, u"meters"},
});

constexpr auto vertexRows = std::to_array<DialogRow>({
    {Kind::Field, 1008, u"Coordinate-X:", 0, 1004, u"meters"},
    {Kind::Field, 1009, u"Coordinate-Y:", 0, 1005, u"meters"},
    {Kind::Field, 1023, u"Coordinate-Z:", 0, 1010, u"meters"},
});

constexpr auto unitsRows = std::to_array<DialogRow>({{Kind::List, 1018, u"Length units"}});

constexpr auto scaleRows =
    std::to_array<DialogRow>({{Kind::Field, 1011, u"Scale Factor:", 0, 0, u"unity"}});

constexpr auto rotateRows = std::to_array<DialogRow>({
    {Kind::Group, 0, u"Angle"},
    {Kind::Radio, 1013, u"Rotate 90 degrees"},
    {Kind::Radio, 1014, u"Rotate 180 degrees"},
    {Kind::Radio, 1015, u"Rotate 270 degrees"},
    {Kind::RadioField, 1016, u"Rotate", 1017, 0, u"degrees"},
    {Kind::Group, 0, u"Direction"},
    {Kind::Radio, 1021, u"Rotate Right (Clockwise)"},
    {Kind::Radio, 1022, u"Rotate Left (Counter Clockwise)"},
});

constexpr auto moveRows = std::to_array<DialogRow>({
    {Kind::Field, 1024, u"X-Direction:", 0, 1004, u"meters"},
    {Kind::Field, 1025, u"Y-Direction:", 0, 1005, u"meters"},
});

constexpr auto offsetsRows = std::to_array<DialogRow>({
    {Kind::Group, 0, u"GNSS Antenna Offset"},
    {Kind::Field, 1027, u"X:", 0, 1004, u"Static"},
    {Kind::Field, 1028, u"Y:", 0, 1005, u"Static"},
    {Kind::Group, 0, u"Echo Sounder Transducer Offset"},
    {Kind::Field, 1030, u"X:", 0, 1010, u"Static"},
    {Kind::Field, 1031, u"Y:", 0, 1013, u"Static"},
    {Kind::Group, 0, u"Pivot Point Offset (Dredging Only)"},
    {Kind::Field, 1001, u"X:", 0, 1006, u"Static"},
    {Kind::Field, 1002, u"Y:", 0, 1007, u"Static"},
    {Kind::Field, 1003, u"Z:", 0, 1008, u"Static"},
    {Kind::Group, 0, u""},
    {Kind::Note, 0,
     u"Use this dialog to set offset points manually. Please note that the pivot point offset is "
     u"used for dredging only !"},
});

constexpr auto templates = std::to_array<DialogTemplate>({
    {DialogId::About, u"About Sondaris", aboutRows, false},
    {DialogId::Grid, u"Grid", gridRows},
    {DialogId::Vertex, u"Edit Vertex Coordinates", vertexRows},
    {DialogId::Units, u"Switch Units", unitsRows},
    {DialogId::Scale, u"Scale Design", scaleRows},
    {DialogId::Rotate, u"Rotate Design", rotateRows},
    {DialogId::Move, u"Move Design", moveRows},
    {DialogId::Offsets, u"Modify Offsets", offsetsRows},
});

}  // namespace

const DialogTemplate* FindDialogTemplate(int id)
{
  const auto* const found = std::ranges::find(templates, id, &DialogTemplate::id);
  return found == templates.end() ? nullptr : found;
}

int FieldOf(const DialogRow& row)
{
  switch (row.kind) {
    case DialogRowKind::Field: return row.id;
    case DialogRowKind::RadioField: return row.labelId;
    default: return 0;
  }
}

std::u16string AsTyped(std::u16string_view text)
{
  std::u16string taken(text);
  std::ranges::replace(taken, u',', u'.');
  return taken;
}

int ChosenByTyping(const DialogTemplate& rows, int field)
{
  for (const DialogRow& row : rows.rows) {
    if (row.kind == DialogRowKind::RadioField && FieldOf(row) == field) return row.id;
  }
  return 0;
}

}  // namespace hullwright
