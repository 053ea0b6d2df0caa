#include "qt/QtDocumentDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

#include "qt/Busy.h"
#include "qt/DialogButtons.h"
#include "qt/FileDialogLook.h"
#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

QString Tr(const char* text) { return QCoreApplication::translate("DocumentDialogs", text); }

QString FileFilter()
{
  return ToQString(Strings::fileFilter) + QStringLiteral(";;") + Tr("All Files(*)");
}

QString StartFolder(std::u16string_view folder)
{
  return folder.empty() ? QDir::currentPath() : ToQString(folder);
}

/// The file that is chosen in a dialog, which is about to be read or written.
std::optional<std::u16string> Answer(QFileDialog& dialog)
{
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  ShowBusy();
  return ToWide(dialog.selectedFiles().constFirst());
}

}  // namespace

std::optional<std::u16string> QtDocumentDialogs::AskDesignToOpen(std::u16string_view folder)
{
  QFileDialog dialog(window_, Tr("Open Design"), StartFolder(folder), FileFilter());
  dialog.setFileMode(QFileDialog::ExistingFile);
  PrepareFileDialog(dialog);
  return Answer(dialog);
}

std::optional<std::u16string> QtDocumentDialogs::AskDesignToSave(std::u16string_view folder,
                                                                 std::u16string_view name)
{
  QFileDialog dialog(window_, Tr("Save Design As"), StartFolder(folder), FileFilter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ToQString(Strings::fileExtension.substr(1)));
  dialog.selectFile(ToQString(name));
  PrepareFileDialog(dialog);
  return Answer(dialog);
}

LeaveAnswer QtDocumentDialogs::AskToLeave(std::u16string_view name)
{
  QMessageBox question(QMessageBox::Question, QString::fromLatin1(Strings::program),
                       Tr("Save changes to %1?").arg(ToQString(name)),
                       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window_);
  question.setTextFormat(Qt::PlainText);
  question.setDefaultButton(QMessageBox::Yes);
  SetButtonImages(question);
  switch (question.exec()) {
    case QMessageBox::Yes: return LeaveAnswer::Save;
    case QMessageBox::No: return LeaveAnswer::Discard;
    default: return LeaveAnswer::Stay;
  }
}

}  // namespace hullwright
