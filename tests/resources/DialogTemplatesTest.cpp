#include "resources/DialogTemplates.h"

#include <gtest/gtest.h>

#include <vector>

namespace hullwright {

// So that a row that differs is shown in words.
static void PrintTo(const DialogRow& row, std::ostream* out)
{
  const auto latin = [](std::u16string_view text) { return std::string(text.begin(), text.end()); };
  *out << static_cast<int>(row.kind) << ' ' << row.id << " '" << latin(row.text) << "' "
       << row.labelId << ' ' << row.unitId << " '" << latin(row.unitText) << "'";
}

static bool operator==(const DialogRow& a, const DialogRow& b)
{
  return a.kind == b.kind && a.id == b.id && a.text == b.text && a.labelId == b.labelId &&
         a.unitId == b.unitId && a.unitText == b.unitText;
}

namespace {

using Kind = DialogRowKind;
using Rows = std::vector<DialogRow>;

Rows RowsOf(int id, std::u16string_view title)
{
  const DialogTemplate* const found = FindDialogTemplate(id);
  if (found == nullptr) return {};
  EXPECT_EQ(found->title, title);
  EXPECT_EQ(found->hasCancel, id != 100);
  return {found->rows.begin(), found->rows.end()};
}

TEST(DialogTemplates, Grid)
{
  EXPECT_EQ(RowsOf(310, u"Grid"),
            (Rows{{Kind::Group, 0, u"Display"},
                  {Kind::Check, 1002, u"Show Grid"},
                  {Kind::Field, 1000, u"X-Spacing:", 1006, 1004, u"meters"},
                  {Kind::Field, 1003, u"Y-Spacing:", 1007, 1005, u"meters"},
                  {Kind::Group, 0, u"Snap"},
                  {Kind::Check, 1001, u"Snap to grid"},
                  {Kind::Field, 1009, u"X-Spacing:", 1008, 1010, u"meters"},
                  {Kind::Field, 1012, u"Y-Spacing:", 1011, 1013, u"meters"}}));
}

TEST(DialogTemplates, Move)
{
  EXPECT_EQ(RowsOf(322, u"Move Design"),
            (Rows{{Kind::Field, 1024, u"X-Direction:", 0, 1004, u"meters"},
                  {Kind::Field, 1025, u"Y-Direction:", 0, 1005, u"meters"}}));
}

TEST(DialogTemplates, Offsets)
{
  EXPECT_EQ(RowsOf(323, u"Modify Offsets"),
            (Rows{{Kind::Group, 0, u"GNSS Antenna Offset"},
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
                   u"Use this dialog to set offset points manually. Please note that the pivot "
                   u"point offset is used for dredging only !"}}));
}

TEST(DialogTemplates, Rotate)
{
  EXPECT_EQ(RowsOf(319, u"Rotate Design"),
            (Rows{{Kind::Group, 0, u"Angle"},
                  {Kind::Radio, 1013, u"Rotate 90 degrees"},
                  {Kind::Radio, 1014, u"Rotate 180 degrees"},
                  {Kind::Radio, 1015, u"Rotate 270 degrees"},
                  {Kind::RadioField, 1016, u"Rotate", 1017, 0, u"degrees"},
                  {Kind::Group, 0, u"Direction"},
                  {Kind::Radio, 1021, u"Rotate Right (Clockwise)"},
                  {Kind::Radio, 1022, u"Rotate Left (Counter Clockwise)"}}));
}

TEST(DialogTemplates, Scale)
{
  EXPECT_EQ(RowsOf(317, u"Scale Design"),
            (Rows{{Kind::Field, 1011, u"Scale Factor:", 0, 0, u"unity"}}));
}

TEST(DialogTemplates, Vertex)
{
  EXPECT_EQ(RowsOf(313, u"Edit Vertex Coordinates"),
            (Rows{{Kind::Field, 1008, u"Coordinate-X:", 0, 1004, u"meters"},
                  {Kind::Field, 1009, u"Coordinate-Y:", 0, 1005, u"meters"},
                  {Kind::Field, 1023, u"Coordinate-Z:", 0, 1010, u"meters"}}));
}

TEST(DialogTemplates, Units)
{
  EXPECT_EQ(RowsOf(314, u"Switch Units"), (Rows{{Kind::List, 1018, u"Length units"}}));
}

TEST(DialogTemplates, About)
{
  EXPECT_EQ(
      RowsOf(100, u"About Sondaris"),
      (Rows{{Kind::Product, 1010},
            {Kind::Note, 0,
             u"Draws the outline of a survey vessel and records where its equipment sits."},
            {Kind::Note, 0,
             u"Free software under the MIT licence. \u00A9 2026 The Hullwright developers."}}));
}

TEST(DialogTemplates, ANumberThatIsNoDialogsHasNone)
{
  EXPECT_EQ(FindDialogTemplate(311), nullptr);
}

TEST(Typing, ChoosesTheRadioButtonThatTheFieldBelongsToAndNoOther)
{
  const DialogTemplate& rotate = *FindDialogTemplate(319);
  EXPECT_EQ(ChosenByTyping(rotate, 1017), 1016);
  EXPECT_EQ(ChosenByTyping(rotate, 1016), 0);
  EXPECT_EQ(ChosenByTyping(rotate, 0), 0);
  for (const int id : {310, 322, 323, 317, 313}) {
    const DialogTemplate& rows = *FindDialogTemplate(id);
    for (const DialogRow& row : rows.rows) EXPECT_EQ(ChosenByTyping(rows, row.id), 0) << row.id;
  }
}

TEST(Typing, MakesAPointOfEachComma)
{
  EXPECT_EQ(AsTyped(u"1,5"), u"1.5");
  EXPECT_EQ(AsTyped(u","), u".");
  EXPECT_EQ(AsTyped(u"-1,25,5 m;"), u"-1.25.5 m;");
  EXPECT_EQ(AsTyped(u"1.5"), u"1.5");
  EXPECT_EQ(AsTyped(u""), u"");
}

}  // namespace
}  // namespace hullwright
