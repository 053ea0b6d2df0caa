#include "qt/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {

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
  box.exec();
}

bool QtMessageBoxes::AskYesNo(std::u16string_view question)
{
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(Strings::program), ToQString(question),
                  QMessageBox::Yes | QMessageBox::No, Parent());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace hullwright
