#pragma once

#include <QStringList>

class QDropEvent;
class QMimeData;

namespace hullwright {

/// The files on this machine among what is dropped.
QStringList DroppedFiles(const QMimeData& data);

/// Takes a drop as a copy, whatever was proposed, so that the source does not remove the file.
void AcceptCopy(QDropEvent& event);

/// Names files that were not opened because another one was.
QString NotOpened(const QStringList& paths);

}  // namespace hullwright
