#pragma once

#include <span>
#include <string>
#include <string_view>

namespace hullwright {

namespace DialogId {
inline constexpr int About = 100;
inline constexpr int Grid = 310;
inline constexpr int Vertex = 313;
inline constexpr int Units = 314;
inline constexpr int Scale = 317;
inline constexpr int Rotate = 319;
inline constexpr int Move = 322;
inline constexpr int Offsets = 323;
}  // namespace DialogId

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

/// One row of a dialog from top to bottom. Ids of 0 are never asked for.
struct DialogRow {
  DialogRowKind kind;
  int id = 0;                     ///< of the field, box or button
  std::u16string_view text = {};  ///< label or title
  int labelId = 0;  ///< of the label; of the edit field that a radio button has of its own
  int unitId = 0;   ///< of the text behind the field
  std::u16string_view unitText = {};
};

/// A dialog as data. The shell lays it out; OK and Cancel stand below the rows.
struct DialogTemplate {
  int id;
  std::u16string_view title;
  std::span<const DialogRow> rows;
  bool hasCancel = true;
};

/// The template of a number; null for one that there is not.
const DialogTemplate* FindDialogTemplate(int id);

/// The edit field of a row; 0 where it has none. All of them hold numbers.
int FieldOf(const DialogRow& row);

// What typing does, for the window and for whatever stands in its place.

/// What an edit field makes of a text that is typed or pasted: a comma, which stands on the number
/// pad of many keyboards, becomes the point that numbers are read with.
std::u16string AsTyped(std::u16string_view text);

/// The radio button that typing into an edit field chooses; 0 for none.
int ChosenByTyping(const DialogTemplate& rows, int field);

}  // namespace hullwright
