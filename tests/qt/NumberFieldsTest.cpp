#include <gtest/gtest.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>

#include "base/Code.h"
#include "resources/RotateDialog.h"
#include "resources/ScaleDialog.h"
#include "support/TemplateDialogFixture.h"

namespace hullwright {
namespace {

class NumberFields : public test::TemplateDialogFixture {
protected:
  QLineEdit& OnlyField()
  {
    Open(DialogId::Scale);
    return *dialog->findChild<QLineEdit*>();
  }

  static void Type(QLineEdit& field, const char* text)
  {
    QTest::keyClicks(&field, QLatin1String(text));
  }

  static void PasteByKey(QLineEdit& field, const char* text)
  {
    QApplication::clipboard()->setText(QLatin1String(text));
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(NumberFields, ATypedCommaIsAPointInEveryField)
{
  int fields = 0;
  for (const DialogId id : {DialogId::Grid, DialogId::Move, DialogId::Offsets, DialogId::Rotate,
                            DialogId::Scale, DialogId::Vertex}) {
    Open(id);
    for (const DialogRow& row : FindDialogTemplate(id)->rows) {
      const ControlId field = FieldOf(row);
      if (field == ControlId::None) continue;
      ++fields;
      dialog->SetText(field, u"9.999");
      dialog->FocusField(field);
      Type(*Focused(), "-1,5");
      EXPECT_EQ(dialog->GetText(field), u"-1.5") << NumberOf(field);
    }
    EXPECT_TRUE(dialog->isVisible());
  }
  EXPECT_EQ(fields, 18);
}

TEST_F(NumberFields, APastedCommaIsAPointHoweverItIsPasted)
{
  QLineEdit& field = OnlyField();
  field.selectAll();
  PasteByKey(field, "1,5");
  EXPECT_EQ(field.text(), QStringLiteral("1.5"));
  field.selectAll();
  QApplication::clipboard()->setText(QStringLiteral("-2,25"));
  field.paste();
  EXPECT_EQ(field.text(), QStringLiteral("-2.25"));
  field.selectAll();
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("3,75"));
  QApplication::sendEvent(&field, &composed);
  EXPECT_EQ(field.text(), QStringLiteral("3.75"));
}

TEST_F(NumberFields, ATextThatTheProgramSetsStaysAsItIs)
{
  QLineEdit& field = OnlyField();
  dialog->SetText(ScaleControls::factor, u"1,5");
  EXPECT_EQ(field.text(), QStringLiteral("1,5"));
  EXPECT_EQ(dialog->GetText(ScaleControls::factor), u"1,5");
  QTest::keyClick(&field, Qt::Key_End);
  QTest::keyClick(&field, Qt::Key_Left);
  EXPECT_EQ(dialog->GetText(ScaleControls::factor), u"1,5");
}

TEST_F(NumberFields, OtherTextIsTakenAsItIsTyped)
{
  QLineEdit& field = OnlyField();
  Type(field, "1.5e3 m; ab");
  EXPECT_EQ(field.text(), QStringLiteral("1.5e3 m; ab"));
}

TEST_F(NumberFields, TheCaretStaysBehindWhatWasTypedOrPasted)
{
  QLineEdit& field = OnlyField();
  dialog->SetText(ScaleControls::factor, u"1234");
  field.setCursorPosition(2);
  Type(field, ",");
  EXPECT_EQ(field.text(), QStringLiteral("12.34"));
  EXPECT_EQ(field.cursorPosition(), 3);
  EXPECT_FALSE(field.hasSelectedText());
  Type(field, "9");
  EXPECT_EQ(field.text(), QStringLiteral("12.934"));
  field.setCursorPosition(1);
  PasteByKey(field, "5,6");
  EXPECT_EQ(field.text(), QStringLiteral("15.62.934"));
  EXPECT_EQ(field.cursorPosition(), 4);
  field.setSelection(1, 3);
  Type(field, ",");
  EXPECT_EQ(field.text(), QStringLiteral("1.2.934"));
  EXPECT_EQ(field.cursorPosition(), 2);
}

TEST_F(NumberFields, AnAngleThatIsTypedOrPastedIsChosenAndOneThatTheProgramSetsIsNot)
{
  for (const bool pasted : {false, true}) {
    Open(DialogId::Rotate);
    dialog->SetChecked(RotateControls::by90, true);
    dialog->SetText(RotateControls::angle, u"0.0");
    EXPECT_TRUE(dialog->IsChecked(RotateControls::by90));
    QLineEdit& field = *dialog->findChild<QLineEdit*>();
    field.selectAll();
    if (pasted) {
      PasteByKey(field, "22,5");
    } else {
      Type(field, "22,5");
    }
    EXPECT_TRUE(dialog->IsChecked(RotateControls::byAngle));
    EXPECT_FALSE(dialog->IsChecked(RotateControls::by90));
    EXPECT_EQ(dialog->GetText(RotateControls::angle), u"22.5");
  }
}

}  // namespace
}  // namespace hullwright
