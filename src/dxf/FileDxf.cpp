#include "dxf/FileDxf.h"

#include <new>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "dxf/DxfLines.h"
#include "dxf/DxfSections.h"
#include "dxf/ImportLog.h"

namespace hullwright {
namespace {

std::u16string BoundsOf(const Extents& box)
{
  std::string text;
  for (const double bound : {box.minX, box.minY, box.maxX, box.maxY}) {
    if (!text.empty()) text.push_back(',');
    AppendFixed3(text, bound);
  }
  return WideFromAscii(text);
}

void LogExtents(const ITrace& log, const Extents& box)
{
  try {
    LogRecord(log, TraceLevel::Progress, processingLog,
              {u"[DXF] Detected drawing extends: [", BoundsOf(box), u"]."});
  } catch (const std::bad_alloc&) {
    // The log goes without, as it does for any other record.
  }
}

}  // namespace

CFileDxf::CFileDxf(IMainWindow* frame, const ITrace& log, const DxfOptions& options)
    : frame_(frame), context_(log, options)
{
}

int CFileDxf::LoadWhole(std::u16string_view filePath)
{
  if (Load(filePath) != 0) {
    LogRecord(context_.log, TraceLevel::Failure, generalLog,
              {u"[DXF] Failed to open AutoCAD DXF file. Either the file does not exist, or it is "
               u"empty: [",
               filePath, u"]."});
    return -1;
  }
  context_.tally.readError = LoadError();
  if (LoadError() == 0) return 0;
  // Half a drawing would look like a whole one.
  LogRecord(context_.log, TraceLevel::Failure, generalLog,
            {u"[DXF] The AutoCAD DXF file could not be read to its end: [", filePath, u"]."});
  return -1;
}

int CFileDxf::Import(std::u16string_view filePath, CLayer* layer)
{
  targetLayer_ = layer;
  if (layer == nullptr) return -1;
  if (LoadWhole(filePath) != 0) return -1;
  LogRecord(context_.log, TraceLevel::Success, processingLog,
            {u"[DXF] Successfully opened file: [", filePath, u"]."});
  if (ProcessFile() != 0) return -1;
  context_.tally.CountShapes(*layer->shapes);
  layer->UpdateExtents(context_.tally.extents);
  LogExtents(context_.log, layer->extents);
  LogRecord(context_.log, TraceLevel::Success, generalLog,
            {u"Successfully loaded the selected AutoCAD DXF file: [ ", filePath,
             u"]. Please see the 'Processing' tab for details."});
  LogLosses();
  return 0;
}

void CFileDxf::LogLosses() const
{
  const ImportTally& tally = context_.tally;
  if (tally.withoutMemory != 0) {
    LogRecord(
        context_.log, TraceLevel::Failure, generalLog,
        {u"[DXF] Left out for want of memory: ", tally.withoutMemory, u" parts of the drawing."});
  }
  if (tally.beyondLimit != 0) {
    LogRecord(context_.log, TraceLevel::Failure, generalLog,
              {u"[DXF] Left out: ", tally.beyondLimit, u" records. A drawing may become ",
               context_.limit.Most(), u" vertices at most."});
  }
}

int CFileDxf::ProcessFile()
{
  const std::string_view text(buffer.get(), static_cast<std::size_t>(size));
  context_.tally.isBinary = text.starts_with("AutoCAD Binary DXF");
  if (!targetLayer_->shapes || frame_ == nullptr || !frame_->HasWindow()) return -1;
  LogRecord(context_.log, TraceLevel::Progress, processingLog, {u"[DXF] Processing file..."});
  frame_->StartProgress("Loading and processing DXF file, please wait...");
  // Text and shapes would else stand in memory together.
  DxfLines lines(text, [this](std::size_t read) { LetGoBefore(read); });
  ProcessSections(lines, context_, *targetLayer_->shapes, *frame_);
  frame_->EndProgress();
  return 0;
}

}  // namespace hullwright
