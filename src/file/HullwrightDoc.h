#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "file/FileSax.h"
#include "model/DesignState.h"
#include "platform/MainWindowPort.h"
#include "platform/MessageBoxes.h"

namespace hullwright {

class CFileVessel;

/// Moves the design between the design state and files. Of the design it owns nothing; it keeps the
/// modified flag and what came of the last open and the last save.
class CHullwrightDoc {
public:
  CHullwrightDoc(DesignState& design, IMainWindow& mainWindow, IMessageBoxes& messages);

  /// A new, empty document. Offsets, unit and side in view keep what the last design left.
  bool OnNewDocument();

  /// Replaces the design by that of a file; true only on full success. A file that can't be opened
  /// is reported in a message and changes nothing. One that is not well-formed fails silently:
  /// the groups that ended before the error are in the design, which otherwise is empty, and
  /// offsets and unit stay as they were. Parts that memory ends for are left out; where there is
  /// none to read on, the open fails and the design is what it was.
  bool OnOpenDocument(std::u16string_view path);

  /// Writes the design to a file. Always true, and the design then counts as saved, also when the
  /// writing failed, unless there was no memory to begin with it; `CFileSax::Flush` states what is
  /// reported to the user.
  bool OnSaveDocument(std::u16string_view path);

  /// Whether the last save reached the disk whole. A design for whose text memory ended is not
  /// written at all.
  bool SavedWhole() const { return saveProblem_.empty(); }

  /// Why the last save failed; empty when it did not.
  const std::u16string& SaveProblem() const { return saveProblem_; }

  /// Why the last open failed, with line and column in a file that is not well-formed; empty when
  /// it did not.
  const std::u16string& OpenProblem() const { return openProblem_; }

  /// The same of a file that was opened and could not be read as a design; without a message
  /// otherwise.
  const ReadError& OpenError() const { return openError_; }

  /// Parts of the file that the last open left out, because memory had ended.
  std::size_t LeftOutParts() const { return leftOutParts_; }

  /// Stands for the bytes that a save would write now, but for groups without polylines, which come
  /// to be when a side is merely looked at: equal texts have equal fingerprints. Nothing where
  /// there is no memory to compose them.
  std::optional<std::size_t> Fingerprint() const;

  /// Called when the design has been emptied for good, by new or by open: what is there then is no
  /// longer what the file of before holds, also if the open has failed.
  std::function<void()> onEmptied;

  /// Called when a save has failed, before it is reported to the user: the target may be torn.
  std::function<void()> onSaveFailed;

  /// Makes each save the last one of its design, whose shapes are emptied as the text
  /// grows: large ones and their text would else stand in memory together.
  void LetGoAtSave() { letsGoAtSave_ = true; }

  void SetModifiedFlag(bool modified) { modified_ = modified; }
  bool IsModified() const { return modified_; }

private:
  /// What came of reading a file into the design.
  enum class Reading { Whole, Broken, OutOfMemory };

  void DeleteContents();
  Reading ReadInto(std::u16string_view path);
  void TakeOver(CFileVessel& file);
  void FillFile(CFileVessel& file) const;

  /// Saves the design; why that failed, empty when it did not.
  std::u16string Write(CFileVessel& file, std::u16string_view path) const;

  DesignState& design_;
  IMainWindow& mainWindow_;
  IMessageBoxes& messages_;
  bool modified_ = false;
  bool letsGoAtSave_ = false;
  std::u16string saveProblem_;
  std::u16string openProblem_;
  ReadError openError_;
  std::size_t leftOutParts_ = 0;
};

}  // namespace hullwright
