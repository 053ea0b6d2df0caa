#include "qt/QtMessageBoxes.h"

#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {

void QtMessageBoxes::ShowMessage(std::u16string_view text)
{
  QMessageBox box(QMessageBox::Warning, QString::fromLatin1(Strings::program), ToQString(text),
                  QMessageBox::Ok, parent_);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtMessageBoxes::AskYesNo(std::u16string_view question)
{
  QMessageBox box(QMessageBox::Question, QString::fromLatin1(Strings::program), ToQString(question),
                  QMessageBox::Yes | QMessageBox::No, parent_);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace hullwright
