#include "qt/QtDocumentDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

QString FileFilter() { return ToQString(Strings::fileFilter) + QStringLiteral(";;All Files(*)"); }

QString StartFolder(std::u16string_view folder)
{
  return folder.empty() ? QDir::currentPath() : ToQString(folder);
}

}  // namespace

std::optional<std::u16string> QtDocumentDialogs::AskDesignToOpen(std::u16string_view folder)
{
  const QString path = QFileDialog::getOpenFileName(window_, QObject::tr("Open Design"),
                                                    StartFolder(folder), FileFilter());
  if (path.isEmpty()) return std::nullopt;
  return ToWide(path);
}

std::optional<std::u16string> QtDocumentDialogs::AskDesignToSave(std::u16string_view folder,
                                                                 std::u16string_view name)
{
  QFileDialog dialog(window_, QObject::tr("Save Design As"), StartFolder(folder), FileFilter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ToQString(Strings::fileExtension.substr(1)));
  dialog.selectFile(ToQString(name));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return ToWide(dialog.selectedFiles().constFirst());
}

LeaveAnswer QtDocumentDialogs::AskToLeave(std::u16string_view name)
{
  QMessageBox question(QMessageBox::Question, QString::fromLatin1(Strings::program),
                       QObject::tr("Save changes to %1?").arg(ToQString(name)),
                       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window_);
  question.setTextFormat(Qt::PlainText);
  question.setDefaultButton(QMessageBox::Yes);
  switch (question.exec()) {
    case QMessageBox::Yes: return LeaveAnswer::Save;
    case QMessageBox::No: return LeaveAnswer::Discard;
    default: return LeaveAnswer::Stay;
  }
}

}  // namespace hullwright
