#include "dxf/DxfSections.h"

#include <new>

#include "dxf/DxfKeywords.h"
#include "dxf/DxfTables.h"
#include "dxf/ImportLog.h"

namespace hullwright {
namespace {

void LogStart(const DxfContext& context, std::u16string_view section)
{
  LogRecord(context.log, TraceLevel::Progress, processingLog,
            {u"[DXF] Processing '", section, u"' section..."});
}

/// Reports that a section is through, and a number with the text around it.
void LogEnd(const DxfContext& context, std::u16string_view section, std::u16string_view before,
            std::size_t number, std::u16string_view behind)
{
  LogRecord(context.log, TraceLevel::Success, processingLog,
            {u"[DXF] '", section, u"' section processed, ", before, number, behind});
}

/// Reads the records of a section whose lines begin with a keyword. Any line that begins with it
/// starts a record, and may end the section as well.
void ProcessRecords(DxfLines& lines, DxfContext& context, std::string_view keyword,
                    void (*process)(DxfLines& lines, DxfContext& context))
{
  std::string_view line;
  while (lines.GetLine(line, DxfLines::shortLine)) {
    if (line.starts_with(keyword)) process(lines, context);
    if (Contains(line, "ENDSEC")) return;
  }
}

void ProcessEntities(DxfLines& lines, DxfContext& context, CShapes& target, IMainWindow& frame)
{
  LogStart(context, u"ENTITIES");
  while (ReadNextEntity(lines, context, DxfPlace::Section, target)) {
    context.tally.CountShapes(target);  // while its vertices are still in the processor's cache
    lines.ReportProgress(frame);
  }
  LogEnd(context, u"ENTITIES", u"added ", target.shapes.size(), u" map features to map layer.");
}

void ProcessTables(DxfLines& lines, DxfContext& context)
{
  LogStart(context, u"TABLES");
  ProcessRecords(lines, context, "LAYER", ProcessLayer);
  LogEnd(context, u"TABLES", u"found ", context.layers.All().size(), u" DXF layers.");
}

void ProcessBlocks(DxfLines& lines, DxfContext& context)
{
  LogStart(context, u"BLOCKS");
  ProcessRecords(lines, context, "BLOCK", ProcessBlock);
  LogEnd(context, u"BLOCKS", u"cached ", context.blocks.size(), u" blocks.");
}

/// Reads the section behind a line that begins one. False when its name can't be read, or when the
/// window has gone that entities are read for.
bool ProcessSection(DxfLines& lines, DxfContext& context, CShapes& target, IMainWindow& frame)
{
  std::string_view name;
  for (int line = 0; line < 2; ++line) {  // the code first, whatever it is
    if (!lines.GetLine(name, DxfLines::longLine)) return false;
  }
  if (Contains(name, "ENTITIES")) {
    if (!frame.HasWindow()) return false;
    ProcessEntities(lines, context, target, frame);
  } else if (Contains(name, "TABLES")) {
    ProcessTables(lines, context);
  } else if (Contains(name, "BLOCKS")) {
    ProcessBlocks(lines, context);
  } else {
    lines.SkipPast("ENDSEC");
  }
  return true;
}

void WalkSections(DxfLines& lines, DxfContext& context, CShapes& target, IMainWindow& frame)
{
  std::string_view line;
  while (lines.GetLine(line, DxfLines::longLine) && line != "EOF") {
    if (Trimmed(line) == "SECTION") context.tally.hasSections = true;
    if (Contains(line, "SECTION") && !ProcessSection(lines, context, target, frame)) return;
    lines.ReportProgress(frame);
  }
}

}  // namespace

void ProcessSections(DxfLines& lines, DxfContext& context, CShapes& target, IMainWindow& frame)
{
  try {
    WalkSections(lines, context, target, frame);
  } catch (const std::bad_alloc&) {
    // There is no memory for a layer or a block. Without it the entities behind would come out in
    // other colours, or hidden ones would come out at all.
    ++context.tally.withoutMemory;
  }
}

}  // namespace hullwright
