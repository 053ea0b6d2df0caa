#include "qt/QtFileDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include "qt/FileDialogLook.h"
#include "qt/QtText.h"

namespace hullwright {
namespace {

constexpr const char* folderKey = "Import/Folder";

/// The texts of a filter of pairs; each bears its pattern in parentheses, as the toolkit wants it.
QStringList NameFilters(std::u16string_view filter)
{
  QStringList names;
  const QStringList parts = ToQString(filter).split(QLatin1Char('|'), Qt::SkipEmptyParts);
  for (qsizetype i = 0; i < parts.size(); i += 2) names.append(parts[i]);
  names.append(QCoreApplication::translate("FileDialogs", "All Files (*)"));
  return names;
}

/// Asks for a drawing. What is typed gets the ending of drawings where it has none, unless a file
/// of the very name is there.
class DrawingDialog : public QFileDialog {
public:
  using QFileDialog::QFileDialog;

  void accept() override
  {
    const auto* const typed = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const bool exists = typed != nullptr && QFileInfo(directory(), typed->text()).isFile();
    setDefaultSuffix(exists ? QString() : ending);
    QFileDialog::accept();
  }

  QString ending;
};

}  // namespace

std::optional<std::u16string> QtFileDialogs::AskOpen(std::u16string_view extension,
                                                     std::u16string_view filter)
{
  QSettings* const store = settings_.File();
  const QString folder =
      store == nullptr ? QString() : store->value(QLatin1String(folderKey)).toString();
  DrawingDialog dialog(parent_, QCoreApplication::translate("FileDialogs", "Import DXF File"),
                       folder.isEmpty() ? QDir::currentPath() : folder);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(filter));
  dialog.ending = ToQString(extension);
  PrepareFileDialog(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QString path = dialog.selectedFiles().constFirst();
  if (store != nullptr) {
    store->setValue(QLatin1String(folderKey), QFileInfo(path).absolutePath());
  }
  return ToWide(path);
}

}  // namespace hullwright
