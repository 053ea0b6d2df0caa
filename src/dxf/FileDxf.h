#pragma once

#include <string_view>
#include <utility>

#include "dxf/DxfContext.h"
#include "dxf/ImportTally.h"
#include "file/FileBase.h"
#include "model/Layer.h"
#include "platform/MainWindowPort.h"
#include "platform/Trace.h"

namespace hullwright {

/// Reader of AutoCAD drawings in their ASCII form: one pass over the text in memory. Layers, blocks
/// and entities become shapes of a layer; what it does not understand it walks past. Numbers are
/// parsed leniently, and below the file level nothing is reported but counted in the tally. An
/// object lives for one import; what has been read of the text is given back on the way, so that
/// afterwards `buffer` holds the last part of it alone.
class CFileDxf : public CFileBase {
public:
  /// `frame` is notified of the progress and may be null, for which an import fails.
  CFileDxf(IMainWindow* frame, const ITrace& log, const DxfOptions& options = {});

  /// Reads a drawing into a layer. 0 on success; -1, with a record in the log, for a file that is
  /// empty or can't be read to its end. A file that is no drawing gives no shapes and counts as
  /// read.
  int Import(std::u16string_view filePath, CLayer* layer);

  /// What was read of the drawing.
  const DxfContext& Drawing() const { return context_; }

  /// What came in and what did not; complete when the import is through.
  const ImportTally& Tally() const { return context_.tally; }
  ImportTally TakeTally() { return std::move(context_.tally); }

private:
  /// Walks the sections of the loaded text. -1 without a group to read into and without a window.
  int ProcessFile();

  /// Loads the drawing to its end. -1, with a record in the log, where that fails.
  int LoadWhole(std::u16string_view filePath);

  /// Adds a record for what the memory or the limit did not allow for.
  void LogLosses() const;

  IMainWindow* frame_;
  CLayer* targetLayer_ = nullptr;
  DxfContext context_;
};

}  // namespace hullwright
