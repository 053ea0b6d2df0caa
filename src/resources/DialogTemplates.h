#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "base/FindOrNull.h"
#include "resources/DialogIds.h"

namespace hullwright {

enum class DialogRowKind {
  Group,       ///< begins a box with a title; a box without one has no frame
  Field,       ///< a label, an edit field and a fixed text or unit behind it
  Check,       ///< a check box
  Radio,       ///< a radio button; those of one box exclude each other
  RadioField,  ///< a radio button with an edit field of its own and a text behind it
  List,        ///< a list box
  Note,        ///< a fixed text
  Product      ///< the application's icon with its name and version
};

/// One row of a dialog from top to bottom.
struct DialogRow {
  DialogRowKind kind;
  ControlId id = ControlId::None;  ///< of the field, box or button
  std::u16string_view text = {};   ///< label or title
  /// Of the label; of the edit field that a radio button has of its own.
  ControlId labelId = ControlId::None;
  ControlId unitId = ControlId::None;  ///< of the text behind the field
  std::u16string_view unitText = {};
};

/// A dialog as data. The shell lays it out; OK and Cancel stand below the rows.
struct DialogTemplate {
  DialogId id;
  std::u16string_view title;
  std::span<const DialogRow> rows;
  bool hasCancel = true;
};

/// The template of a number; null for one that there is not.
const DialogTemplate* FindDialogTemplate(DialogId id);

/// The controls of a row; None for what it lacks.
constexpr std::array<ControlId, 3> ControlsOf(const DialogRow& row)
{
  return {row.id, row.labelId, row.unitId};
}

/// The edit field of a row; None where it has none. All of them hold numbers.
constexpr ControlId FieldOf(const DialogRow& row)
{
  switch (row.kind) {
    case DialogRowKind::Field: return row.id;
    case DialogRowKind::RadioField: return row.labelId;
    default: return ControlId::None;
  }
}

/// The check box or radio button of a row; None where it has none.
constexpr ControlId ButtonOf(const DialogRow& row)
{
  switch (row.kind) {
    case DialogRowKind::Check:
    case DialogRowKind::Radio:
    case DialogRowKind::RadioField: return row.id;
    default: return ControlId::None;
  }
}

/// The row of an edit field; null for an id that is no field's.
constexpr const DialogRow* FindField(const DialogTemplate& dialog, ControlId field)
{
  return field == ControlId::None ? nullptr : FindOrNull(dialog.rows, field, FieldOf);
}

/// The row of a check box or radio button; null for an id that is none's.
constexpr const DialogRow* FindButton(const DialogTemplate& dialog, ControlId button)
{
  return button == ControlId::None ? nullptr : FindOrNull(dialog.rows, button, ButtonOf);
}

/// The rows between a button and the next group or the end; none for an id that is no button's.
constexpr std::span<const DialogRow> RowsBehind(const DialogTemplate& dialog, ControlId button)
{
  const DialogRow* const row = FindButton(dialog, button);
  if (row == nullptr) return {};
  const auto rest = dialog.rows.subspan(static_cast<std::size_t>(row - dialog.rows.data()) + 1);
  const auto group = std::ranges::find(rest, DialogRowKind::Group, &DialogRow::kind);
  return {rest.begin(), group};
}

/// Whether each id is one control's alone.
constexpr bool HasUniqueControls(const DialogTemplate& dialog)
{
  const auto isUnique = [&dialog](ControlId id) {
    std::ptrdiff_t uses = 0;
    for (const DialogRow& row : dialog.rows) uses += std::ranges::count(ControlsOf(row), id);
    return id == ControlId::None || uses == 1;
  };
  return std::ranges::all_of(dialog.rows, [isUnique](const DialogRow& row) {
    return std::ranges::all_of(ControlsOf(row), isUnique);
  });
}

// What typing does, for the window and for whatever stands in its place.

/// What an edit field makes of a text that is typed or pasted: a comma, which stands on the number
/// pad of many keyboards, becomes the point that numbers are read with.
std::u16string AsTyped(std::u16string_view text);

/// The radio button that typing into an edit field chooses; None where there is none.
ControlId ChosenByTyping(const DialogTemplate& dialog, ControlId field);

}  // namespace hullwright
