#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "file/HullwrightDoc.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtSettingsStore.h"

namespace hullwright {

/// What people expect around the document: the question before a modified design is left, names for
/// opening and saving, the list of recent files.
class DocumentController {
public:
  DocumentController(QWidget* window, CHullwrightDoc& document, QtSettingsStore& settings,
                     QtMessageBoxes& messages, int mostRecentFiles);

  void New();

  /// Asks for a file when `path` is empty. False when nothing was opened.
  bool Open(QString path = {});

  /// False when the design is not saved, because the user gave up or the target can't be written.
  bool Save();
  bool SaveAs();

  /// Asks what to do with a modified design; false when the user wants to go on with it.
  bool MayLeave();

  /// The document's name for title and questions.
  QString Name() const;

  /// Recent files, the newest first.
  QStringList RecentFiles() const;

  std::function<void()> onChange;  ///< name, list of recent files or modified flag may have changed

private:
  bool SaveTo(const QString& path);
  void Remember(const QString& path);
  void Forget(const QString& path);
  void StoreRecent(const QStringList& files);
  void SetPath(const QString& path);
  QString Folder() const;

  QWidget* window_;
  CHullwrightDoc& document_;
  QtSettingsStore& settings_;
  QtMessageBoxes& messages_;
  int mostRecentFiles_;
  QString path_;  ///< absolute; empty for an untitled design
};

}  // namespace hullwright
