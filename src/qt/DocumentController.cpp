#include "qt/DocumentController.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

constexpr int mostRecentFiles = 4;
constexpr const char* recentKey = "RecentFiles/Files";

QString FileFilter()
{
  return QStringLiteral("Hullwright Files (*.xml);;All Files (*)");
}

/// Whether a file can be written, found out without changing it and without leaving a new one.
bool IsWritable(const QString& path)
{
  const bool existed = QFileInfo::exists(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadWrite)) return QFileInfo(path).isWritable() && !QFileInfo(path).isDir();
  file.close();
  if (!existed) file.remove();
  return true;
}

}  // namespace

DocumentController::DocumentController(QWidget* window, CHullwrightDoc& document,
                                       QtSettingsStore& settings, QtMessageBoxes& messages)
    : window_(window), document_(document), settings_(settings), messages_(messages)
{
}

void DocumentController::New()
{
  if (!MayLeave()) return;
  document_.OnNewDocument();
  SetPath({});
}

bool DocumentController::Open(QString path)
{
  if (path.isEmpty()) {
    path = QFileDialog::getOpenFileName(window_, QObject::tr("Open Design"), Folder(), FileFilter());
    if (path.isEmpty()) return false;
  }
  path = QFileInfo(path).absoluteFilePath();
  if (!MayLeave()) return false;
  const bool readable = QFileInfo(path).isFile() && QFileInfo(path).isReadable();
  if (document_.OnOpenDocument(ToWide(path))) {
    Remember(path);
    SetPath(path);
    return true;
  }
  Forget(path);
  // A file that was opened and is no design has emptied the document; what it left must not be saved
  // over the file that stood there before.
  if (readable) SetPath({});
  return false;
}

bool DocumentController::Save()
{
  if (path_.isEmpty()) return SaveAs();
  if (IsWritable(path_)) return SaveTo(path_);
  messages_.ShowMessage(Strings::writeFailed);
  return SaveAs();
}

bool DocumentController::SaveAs()
{
  for (;;) {
    QFileDialog dialog(window_, QObject::tr("Save Design As"), Folder(), FileFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("xml"));
    dialog.selectFile(path_.isEmpty() ? Name() + QStringLiteral(".xml")
                                      : QFileInfo(path_).fileName());
    if (dialog.exec() != QDialog::Accepted) return false;
    const QString path = dialog.selectedFiles().constFirst();
    if (IsWritable(path)) return SaveTo(path);
    messages_.ShowMessage(Strings::writeFailed);
  }
}

bool DocumentController::SaveTo(const QString& path)
{
  document_.OnSaveDocument(ToWide(path));
  Remember(path);
  SetPath(path);
  return true;
}

bool DocumentController::MayLeave()
{
  if (!document_.IsModified()) return true;
  const auto answer = QMessageBox::question(
      window_, QString::fromLatin1(Strings::program), QObject::tr("Save changes to %1?").arg(Name()),
      QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
  if (answer == QMessageBox::Yes) return Save();
  return answer == QMessageBox::No;
}

QString DocumentController::Name() const
{
  return path_.isEmpty() ? ToQString(Strings::untitled) : QFileInfo(path_).fileName();
}

QString DocumentController::Folder() const
{
  return path_.isEmpty() ? QDir::currentPath() : QFileInfo(path_).absolutePath();
}

void DocumentController::SetPath(const QString& path)
{
  path_ = path;
  if (onChange) onChange();
}

QStringList DocumentController::RecentFiles() const
{
  return settings_.File() == nullptr
             ? QStringList()
             : settings_.File()->value(QLatin1String(recentKey)).toStringList().mid(0, mostRecentFiles);
}

void DocumentController::Remember(const QString& path)
{
  QStringList files = RecentFiles();
  files.removeAll(path);
  files.prepend(path);
  StoreRecent(files.mid(0, mostRecentFiles));
}

void DocumentController::Forget(const QString& path)
{
  QStringList files = RecentFiles();
  if (files.removeAll(path) == 0) return;
  StoreRecent(files);
  if (onChange) onChange();
}

void DocumentController::StoreRecent(const QStringList& files)
{
  if (settings_.File() != nullptr) settings_.File()->setValue(QLatin1String(recentKey), files);
}

}  // namespace hullwright
