#include "dxf/FileDxf.h"

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

}  // namespace

CFileDxf::CFileDxf(IMainWindow* frame, const ITrace& log, const DxfOptions& options)
    : frame_(frame), context_(log, options)
{
}

void CFileDxf::Log(TraceLevel level, std::u16string_view category, std::u16string_view text) const
{
  LogRecord(context_.log, level, category, text);
}

int CFileDxf::Import(std::u16string_view filePath, CLayer* layer)
{
  targetLayer_ = layer;
  if (layer == nullptr) return -1;
  const std::u16string name(filePath);
  if (Load(filePath) != 0) {
    Log(TraceLevel::Failure, generalLog,
        u"[DXF] Failed to open AutoCAD DXF file. Either the file does not exist, or it is empty: "
        u"[" +
            name + u"].");
    return -1;
  }
  Log(TraceLevel::Success, processingLog, u"[DXF] Successfully opened file: [" + name + u"].");
  if (ProcessFile() != 0) return -1;
  context_.tally.CountShapes(*layer->shapes);
  layer->UpdateExtents(context_.tally.extents);
  Log(TraceLevel::Progress, processingLog,
      u"[DXF] Detected drawing extends: [" + BoundsOf(layer->extents) + u"].");
  Log(TraceLevel::Success, generalLog,
      u"Successfully loaded the selected AutoCAD DXF file: [ " + name +
          u"]. Please see the 'Processing' tab for details.");
  return 0;
}

int CFileDxf::ProcessFile()
{
  const std::string_view text(buffer.get(), static_cast<std::size_t>(size));
  context_.tally.isBinary = text.starts_with("AutoCAD Binary DXF");
  if (!targetLayer_->shapes || frame_ == nullptr || !frame_->HasWindow()) return -1;
  Log(TraceLevel::Progress, processingLog, u"[DXF] Processing file...");
  frame_->StartProgress("Loading and processing DXF file, please wait...");
  DxfLines lines(text);
  ProcessSections(lines, context_, *targetLayer_->shapes, *frame_);
  frame_->EndProgress();
  return 0;
}

}  // namespace hullwright
