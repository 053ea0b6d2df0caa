#include "qt/DroppedFiles.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace hullwright {

QStringList DroppedFiles(const QMimeData& data)
{
  QStringList files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.append(url.toLocalFile());
  }
  return files;
}

QString NotOpened(const QStringList& paths)
{
  QStringList names;
  for (const QString& path : paths) {
    names.append(QLatin1Char('"') + QFileInfo(path).fileName() + QLatin1Char('"'));
  }
  return QCoreApplication::translate("DroppedFiles", "One design is open at a time; not opened: %1")
      .arg(names.join(QStringLiteral(", ")));
}

void AcceptCopy(QDropEvent& event)
{
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace hullwright
