#include "resources/DialogTemplates.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/Code.h"

namespace hullwright {

// So that a row that differs is shown in words.
static void PrintTo(const DialogRow& row, std::ostream* out)
{
  const auto latin = [](std::u16string_view text) { return std::string(text.begin(), text.end()); };
  *out << static_cast<int>(row.kind) << ' ' << NumberOf(row.id) << " '" << latin(row.text) << "' "
       << NumberOf(row.labelId) << ' ' << NumberOf(row.unitId) << " '" << latin(row.unitText)
       << "'";
}

static bool operator==(const DialogRow& a, const DialogRow& b)
{
  return a.kind == b.kind && a.id == b.id && a.text == b.text && a.labelId == b.labelId &&
         a.unitId == b.unitId && a.unitText == b.unitText;
}

namespace {

using Kind = DialogRowKind;
using Id = ControlId;
using Rows = std::vector<DialogRow>;

Rows RowsOf(int id, std::u16string_view title)
{
  const DialogTemplate* const found = FindDialogTemplate(DialogId{id});
  if (found == nullptr) return {};
  EXPECT_EQ(found->title, title);
  EXPECT_EQ(found->hasCancel, id != 100);
  return {found->rows.begin(), found->rows.end()};
}

TEST(DialogTemplates, TheGridDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(310, u"Grid"),
            (Rows{{Kind::Group, Id::None, u"Display"},
                  {Kind::Check, Id{1002}, u"Show Grid"},
                  {Kind::Field, Id{1000}, u"X-Spacing:", Id{1006}, Id{1004}, u"meters"},
                  {Kind::Field, Id{1003}, u"Y-Spacing:", Id{1007}, Id{1005}, u"meters"},
                  {Kind::Group, Id::None, u"Snap"},
                  {Kind::Check, Id{1001}, u"Snap to grid"},
                  {Kind::Field, Id{1009}, u"X-Spacing:", Id{1008}, Id{1010}, u"meters"},
                  {Kind::Field, Id{1012}, u"Y-Spacing:", Id{1011}, Id{1013}, u"meters"}}));
}

TEST(DialogTemplates, TheMoveDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(322, u"Move Design"),
            (Rows{{Kind::Field, Id{1024}, u"X-Direction:", Id::None, Id{1004}, u"meters"},
                  {Kind::Field, Id{1025}, u"Y-Direction:", Id::None, Id{1005}, u"meters"}}));
}

TEST(DialogTemplates, TheOffsetsDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(323, u"Modify Offsets"),
            (Rows{{Kind::Group, Id::None, u"GNSS Antenna Offset"},
                  {Kind::Field, Id{1027}, u"X:", Id::None, Id{1004}, u"Static"},
                  {Kind::Field, Id{1028}, u"Y:", Id::None, Id{1005}, u"Static"},
                  {Kind::Group, Id::None, u"Echo Sounder Transducer Offset"},
                  {Kind::Field, Id{1030}, u"X:", Id::None, Id{1010}, u"Static"},
                  {Kind::Field, Id{1031}, u"Y:", Id::None, Id{1013}, u"Static"},
                  {Kind::Group, Id::None, u"Pivot Point Offset (Dredging Only)"},
                  {Kind::Field, Id{1001}, u"X:", Id::None, Id{1006}, u"Static"},
                  {Kind::Field, Id{1002}, u"Y:", Id::None, Id{1007}, u"Static"},
                  {Kind::Field, Id{1003}, u"Z:", Id::None, Id{1008}, u"Static"},
                  {Kind::Group, Id::None, u""},
                  {Kind::Note, Id::None,
                   u"Use this dialog to set offset points manually. Please note that the pivot "
                   u"point offset is used for dredging only !"}}));
}

TEST(DialogTemplates, TheRotateDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(319, u"Rotate Design"),
            (Rows{{Kind::Group, Id::None, u"Angle"},
                  {Kind::Radio, Id{1013}, u"Rotate 90 degrees"},
                  {Kind::Radio, Id{1014}, u"Rotate 180 degrees"},
                  {Kind::Radio, Id{1015}, u"Rotate 270 degrees"},
                  {Kind::RadioField, Id{1016}, u"Rotate", Id{1017}, Id::None, u"degrees"},
                  {Kind::Group, Id::None, u"Direction"},
                  {Kind::Radio, Id{1021}, u"Rotate Right (Clockwise)"},
                  {Kind::Radio, Id{1022}, u"Rotate Left (Counter Clockwise)"}}));
}

TEST(DialogTemplates, TheScaleDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(317, u"Scale Design"),
            (Rows{{Kind::Field, Id{1011}, u"Scale Factor:", Id::None, Id::None, u"unity"}}));
}

TEST(DialogTemplates, TheVertexDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(313, u"Edit Vertex Coordinates"),
            (Rows{{Kind::Field, Id{1008}, u"Coordinate-X:", Id::None, Id{1004}, u"meters"},
                  {Kind::Field, Id{1009}, u"Coordinate-Y:", Id::None, Id{1005}, u"meters"},
                  {Kind::Field, Id{1023}, u"Coordinate-Z:", Id::None, Id{1010}, u"meters"}}));
}

TEST(DialogTemplates, TheUnitsDialogHasItsRowsAndControls)
{
  EXPECT_EQ(RowsOf(314, u"Switch Units"), (Rows{{Kind::List, Id{1018}, u"Length units"}}));
}

TEST(DialogTemplates, TheAboutDialogHasItsRowsAndControls)
{
  EXPECT_EQ(
      RowsOf(100, u"About Sondaris"),
      (Rows{{Kind::Product, Id{1010}},
            {Kind::Note, Id::None,
             u"Draws the outline of a survey vessel and records where its equipment sits."},
            {Kind::Note, Id::None,
             u"Free software under the MIT licence. \u00A9 2026 The Hullwright developers."}}));
}

TEST(DialogTemplates, ANumberThatIsNoDialogsHasNone)
{
  EXPECT_EQ(FindDialogTemplate(DialogId{311}), nullptr);
}

TEST(Typing, ChoosesTheRadioButtonThatTheFieldBelongsToAndNoOther)
{
  const DialogTemplate& rotate = *FindDialogTemplate(DialogId{319});
  EXPECT_EQ(ChosenByTyping(rotate, Id{1017}), Id{1016});
  EXPECT_EQ(ChosenByTyping(rotate, Id{1016}), Id::None);
  EXPECT_EQ(ChosenByTyping(rotate, Id::None), Id::None);
  for (const int id : {310, 322, 323, 317, 313}) {
    const DialogTemplate& rows = *FindDialogTemplate(DialogId{id});
    for (const DialogRow& row : rows.rows) {
      EXPECT_EQ(ChosenByTyping(rows, row.id), Id::None) << NumberOf(row.id);
    }
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
