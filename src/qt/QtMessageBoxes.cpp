#include "qt/QtMessageBoxes.h"

#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {

void QtMessageBoxes::ShowMessage(std::u16string_view text)
{
  QMessageBox::warning(parent_, QString::fromLatin1(Strings::program), ToQString(text));
}

}  // namespace hullwright
