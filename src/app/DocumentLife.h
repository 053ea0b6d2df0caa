#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "file/HullwrightDoc.h"
#include "platform/DocumentDialogs.h"
#include "platform/FormerVersionsPort.h"
#include "platform/Framework.h"
#include "platform/RecentFiles.h"

namespace hullwright {

/// What the life of a document asks of the platform.
struct DocumentPorts {
  IDocumentDialogs& dialogs;
  IRecentFiles& recentFiles;
  IFormerVersions& formerVersions;
  IFrameWidgets& widgets;  ///< shows what came of opening and saving

  /// Whether a polyline is being drawn that no save would write; empty where nobody draws.
  std::function<bool()> hasUnfinishedPolyline = {};
};

/// The life of a document at the desk: the question before changes are left, names for opening and
/// saving, former versions of what is saved over, and the list of recent files. Every save reaches
/// the document, and what it leaves of the modified flag stands. So that nothing is lost where the
/// flag is not set, the question also comes when a save would write something else now than right
/// after the last new, open or whole save, after a save that failed, and while a polyline is drawn.
class DocumentLife {
public:
  /// `design` is the state that `document` moves. No file is remembered until `KeepRecentFiles`
  /// states how many.
  DocumentLife(CHullwrightDoc& document, const DesignState& design, const DocumentPorts& ports);

  /// Sets the length of the list of recent files.
  void KeepRecentFiles(std::size_t most) { mostRecentFiles_ = most; }

  void New();

  /// Asks for a file when `path` is empty. False when nothing was opened.
  bool Open(std::u16string path = {});

  /// False when the design did not reach the disk, because the user gave up or the writing failed.
  bool Save();
  bool SaveAs();

  /// Asks what to do with changes; false when the user stays, or when the save did not succeed.
  bool MayLeave();

  /// The document's name for title and questions.
  std::u16string Name() const;

  /// Recent files, the newest first.
  std::vector<std::u16string> RecentFiles() const;

  std::function<void()> onChange;  ///< name, list of recent files or modified flag may have changed

private:
  bool SaveTo(const std::u16string& path);
  void NoteLeftOut(const std::u16string& path) const;
  void NoteSaved(const std::u16string& path) const;
  void NoteNotSaved(const std::u16string& path, const std::u16string& formerVersion) const;
  bool HasChanges() const;
  bool HasUnfinishedPolyline() const;
  void Settle() { settled_ = document_.Fingerprint(); }
  void Remember(const std::u16string& path);
  void Forget(const std::u16string& path);
  void SetPath(const std::u16string& path);
  std::u16string Folder() const;

  CHullwrightDoc& document_;
  const DesignState& design_;
  DocumentPorts ports_;
  std::size_t mostRecentFiles_ = 0;
  std::u16string path_;                    ///< absolute; empty for an untitled design
  Restored restored_ = Restored::Nothing;  ///< what the last failed save left of its file
  bool emptied_ = false;                   ///< the design was emptied since an open began
  /// Fingerprint after the last new, open or whole save; nothing when a save has failed since.
  std::optional<std::size_t> settled_;
};

}  // namespace hullwright
