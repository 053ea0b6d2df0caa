#include "qt/DocumentController.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

constexpr const char* recentKey = "RecentFiles/Files";

QString FileFilter() { return ToQString(Strings::fileFilter) + QStringLiteral(";;All Files(*)"); }

/// Whether a file can be written, or made, as far as that can be told without touching it.
bool IsWritable(const QString& path)
{
  const QFileInfo file(path);
  if (file.exists()) return file.isWritable() && !file.isDir();
  return QFileInfo(file.absolutePath()).isDir() && QFileInfo(file.absolutePath()).isWritable();
}

QString DefaultSuffix() { return ToQString(Strings::fileExtension).mid(1); }

}  // namespace

DocumentController::DocumentController(QWidget* window, CHullwrightDoc& document,
                                       QtSettingsStore& settings, QtMessageBoxes& messages,
                                       int mostRecentFiles)
    : window_(window),
      document_(document),
      settings_(settings),
      messages_(messages),
      mostRecentFiles_(mostRecentFiles)
{
  // What a failed open leaves must not be saved over the file that was open before.
  document_.onEmptied = [this] { SetPath({}); };
}

void DocumentController::New()
{
  if (!MayLeave()) return;
  document_.OnNewDocument();
}

bool DocumentController::Open(QString path)
{
  if (path.isEmpty()) {
    path =
        QFileDialog::getOpenFileName(window_, QObject::tr("Open Design"), Folder(), FileFilter());
    if (path.isEmpty()) return false;
  }
  path = QFileInfo(path).absoluteFilePath();
  if (!MayLeave()) return false;
  if (document_.OnOpenDocument(ToWide(path))) {
    Remember(path);
    SetPath(path);
    return true;
  }
  Forget(path);
  return false;
}

bool DocumentController::Save()
{
  if (path_.isEmpty()) return SaveAs();
  if (IsWritable(path_)) return SaveTo(path_);
  // Nothing is lost: the design stays modified, and another place can be found for it.
  messages_.ShowMessage(Strings::writeFailed);
  return SaveAs();
}

bool DocumentController::SaveAs()
{
  for (;;) {
    QFileDialog dialog(window_, QObject::tr("Save Design As"), Folder(), FileFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(DefaultSuffix());
    dialog.selectFile(path_.isEmpty() ? Name() + ToQString(Strings::fileExtension)
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
  if (!document_.SavedWhole()) {
    document_.SetModifiedFlag(true);
    return false;
  }
  Remember(path);
  SetPath(path);
  return true;
}

bool DocumentController::MayLeave()
{
  if (!document_.IsModified()) return true;
  QMessageBox question(QMessageBox::Question, QString::fromLatin1(Strings::program),
                       QObject::tr("Save changes to %1?").arg(Name()),
                       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, window_);
  question.setTextFormat(Qt::PlainText);
  question.setDefaultButton(QMessageBox::Yes);
  const int answer = question.exec();
  if (answer == QMessageBox::Yes) return Save();
  return answer == QMessageBox::No;
}

QString DocumentController::Name() const
{
  return path_.isEmpty() ? ToQString(Strings::untitled) : QFileInfo(path_).fileName();
}

QString DocumentController::Folder() const
{
  if (!path_.isEmpty()) return QFileInfo(path_).absolutePath();
  const QStringList recent = RecentFiles();
  return recent.isEmpty() ? QDir::currentPath() : QFileInfo(recent.constFirst()).absolutePath();
}

void DocumentController::SetPath(const QString& path)
{
  path_ = path;
  if (onChange) onChange();
}

QStringList DocumentController::RecentFiles() const
{
  return settings_.File() == nullptr ? QStringList()
                                     : settings_.File()
                                           ->value(QLatin1String(recentKey))
                                           .toStringList()
                                           .mid(0, mostRecentFiles_);
}

void DocumentController::Remember(const QString& path)
{
  QStringList files = RecentFiles();
  files.removeAll(path);
  files.prepend(path);
  StoreRecent(files.mid(0, mostRecentFiles_));
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
