#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "base/Code.h"
#include "qt/Icons.h"
#include "qt/QtText.h"
#include "support/TemplateDialogFixture.h"

namespace hullwright {
namespace {

class DialogLabels : public test::TemplateDialogFixture {
protected:
  /// All texts that the dialog shows, from top to bottom and from left to right.
  QStringList Texts()
  {
    std::map<std::pair<int, int>, QString> places;
    for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
      const QPoint place = widget->mapTo(dialog.get(), QPoint(0, widget->height() / 2));
      const auto put = [&](const QString& text, int y) {
        if (!text.isEmpty() && widget->isVisible()) places[{y, place.x()}] = text;
      };
      if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
        put(box->title(), box->mapTo(dialog.get(), QPoint()).y());
      } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        put(label->text(), place.y());
      } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        if (qobject_cast<const QPushButton*>(widget) == nullptr) put(button->text(), place.y());
      } else if (const auto* field = qobject_cast<const QLineEdit*>(widget)) {
        put(field->text(), place.y());
      }
    }
    QStringList texts;
    for (const auto& [place, text] : places) texts.append(text);
    return texts;
  }

  /// What the dialog shows with its fields' numbers for texts, a line a text.
  std::string Shown(DialogId id)
  {
    Open(id);
    for (const DialogRow& row : FindDialogTemplate(id)->rows) {
      const std::string number = std::to_string(NumberOf(FieldOf(row)));
      dialog->SetText(FieldOf(row), ToQString(number).toStdU16String());
    }
    return Texts().join(QLatin1Char('\n')).toStdString();
  }

  static QImage Picture(const QIcon& icon) { return icon.pixmap(16).toImage(); }

  QPushButton* Button(QDialogButtonBox::StandardButton which)
  {
    return dialog->findChild<QDialogButtonBox*>()->button(which);
  }
};

TEST_F(DialogLabels, GridStandsInTwoBoxesEachFieldBetweenItsLabelAndItsUnit)
{
  EXPECT_EQ(Shown(DialogId::Grid),
            "Display\nShow Grid\nX-Spacing:\n1000\nmeters\nY-Spacing:\n1003\nmeters\n"
            "Snap\nSnap to grid\nX-Spacing:\n1009\nmeters\nY-Spacing:\n1012\nmeters");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Grid"));
}

TEST_F(DialogLabels, MoveHasTwoDirections)
{
  EXPECT_EQ(Shown(DialogId::Move), "X-Direction:\n1024\nmeters\nY-Direction:\n1025\nmeters");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Move Design"));
}

TEST_F(DialogLabels, OffsetsStandInThreeBoxesWithANoteAtTheFoot)
{
  EXPECT_EQ(Shown(DialogId::Offsets),
            "GNSS Antenna Offset\nX:\n1027\nStatic\nY:\n1028\nStatic\n"
            "Echo Sounder Transducer Offset\nX:\n1030\nStatic\nY:\n1031\nStatic\n"
            "Pivot Point Offset (Dredging Only)\nX:\n1001\nStatic\nY:\n1002\nStatic\nZ:\n1003\n"
            "Static\nUse this dialog to set offset points manually. Please note that the pivot "
            "point offset is used for dredging only !");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Modify Offsets"));
}

TEST_F(DialogLabels, RotateStandsInTwoBoxesOfRadioButtons)
{
  EXPECT_EQ(Shown(DialogId::Rotate),
            "Angle\nRotate 90 degrees\nRotate 180 degrees\nRotate 270 degrees\nRotate\n1017\n"
            "degrees\nDirection\nRotate Right (Clockwise)\nRotate Left (Counter Clockwise)");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Rotate Design"));
  EXPECT_EQ(dialog->findChildren<QRadioButton*>().size(), 6);
}

TEST_F(DialogLabels, ScaleHasAFactorOfUnity)
{
  EXPECT_EQ(Shown(DialogId::Scale), "Scale Factor:\n1011\nunity");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Scale Design"));
}

TEST_F(DialogLabels, VertexHasThreeCoordinates)
{
  EXPECT_EQ(
      Shown(DialogId::Vertex),
      "Coordinate-X:\n1008\nmeters\nCoordinate-Y:\n1009\nmeters\nCoordinate-Z:\n1023\nmeters");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Edit Vertex Coordinates"));
}

TEST_F(DialogLabels, UnitsHasItsListAlone)
{
  EXPECT_EQ(Shown(DialogId::Units), "");
  EXPECT_EQ(dialog->findChildren<QListWidget*>().size(), 1);
  EXPECT_EQ(dialog->findChild<QListWidget*>()->accessibleName(), QStringLiteral("Length units"));
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Switch Units"));
}

TEST_F(DialogLabels, AboutHasIconProductAndTwoLines)
{
  const QString product = QStringLiteral("<b>Hullwright</b> " HULLWRIGHT_VERSION "\n");
  EXPECT_EQ(Shown(DialogId::About),
            product.toStdString() +
                "Draws the outline of a survey vessel and records where its equipment sits.\n"
                "Free software under the MIT licence. \u00A9 2026 The Hullwright developers.");
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("About Sondaris"));
  QList<QImage> pictures;
  for (const QLabel* label : dialog->findChildren<QLabel*>()) {
    if (!label->pixmap().isNull()) pictures.append(label->pixmap().toImage());
  }
  EXPECT_EQ(pictures, QList<QImage>{ApplicationIcon().pixmap(64).toImage()});
}

TEST_F(DialogLabels, NotesAreShownWhole)
{
  for (const DialogId id : {DialogId::Offsets, DialogId::About}) {
    Open(id);
    int notes = 0;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (!label->wordWrap()) continue;
      ++notes;
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
    EXPECT_GT(notes, 0) << NumberOf(id);
  }
}

TEST_F(DialogLabels, OkAndCancelBearTheirImages)
{
  const QImage ok = Picture(ThemedIcon("dialog-ok", QApplication::palette()));
  const QImage cancel = Picture(ThemedIcon("dialog-cancel", QApplication::palette()));
  ASSERT_NE(ok, cancel);
  for (const DialogId id : {DialogId::Grid, DialogId::Move, DialogId::Offsets, DialogId::Rotate,
                            DialogId::Scale, DialogId::Vertex, DialogId::Units}) {
    Open(id);
    EXPECT_EQ(Picture(Button(QDialogButtonBox::Ok)->icon()), ok) << NumberOf(id);
    EXPECT_EQ(Picture(Button(QDialogButtonBox::Cancel)->icon()), cancel) << NumberOf(id);
  }
  Open(DialogId::About);
  EXPECT_EQ(Picture(Button(QDialogButtonBox::Ok)->icon()), ok);
  EXPECT_EQ(Button(QDialogButtonBox::Cancel), nullptr);
}

}  // namespace
}  // namespace hullwright
