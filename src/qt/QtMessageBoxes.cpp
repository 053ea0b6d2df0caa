#include "qt/QtMessageBoxes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include "qt/DialogButtons.h"
#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

/// A question that is left by one of its buttons only: neither answer leaves things as they are, so
/// the escape key must not stand for one of them.
class Question : public QMessageBox {
public:
  using QMessageBox::QMessageBox;

protected:
  void keyPressEvent(QKeyEvent* event) override
  {
    if (!event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

}  // namespace

QWidget* QtMessageBoxes::Parent() const
{
  QWidget* const dialog = QApplication::activeModalWidget();
  return dialog != nullptr ? dialog : parent_.data();
}

void QtMessageBoxes::ShowMessage(std::u16string_view text)
{
  QMessageBox box(QMessageBox::Warning, QString::fromLatin1(Strings::program), ToQString(text),
                  QMessageBox::Ok, Parent());
  box.setTextFormat(Qt::PlainText);
  SetButtonImages(box);
  box.exec();
}

bool QtMessageBoxes::AskYesNo(std::u16string_view question)
{
  Question box(QMessageBox::Question, QString::fromLatin1(Strings::program), ToQString(question),
               QMessageBox::Yes | QMessageBox::No, Parent());
  box.setWindowFlag(Qt::WindowCloseButtonHint, false);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  SetButtonImages(box);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace hullwright
