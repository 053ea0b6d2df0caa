#include "dxf/FileDxf.h"

#include <algorithm>
#include <chrono>
#include <new>

#include "base/Text.h"

// The spine of the reader: the file, its lines, its sections, progress and log.
namespace hullwright {
namespace {

constexpr std::u16string_view general = u"General";
constexpr std::u16string_view processing = u"Processing";

bool Contains(std::string_view line, std::string_view word)
{
  return line.find(word) != std::string_view::npos;
}

/// The clock in seconds, in steps of a millisecond.
double ElapsedSeconds()
{
  using std::chrono::milliseconds;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<double>(std::chrono::duration_cast<milliseconds>(now).count()) / 1000.0;
}

std::u16string Count(std::size_t number) { return WideFromAscii(std::to_string(number)); }

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

void CFileDxf::Log(std::int32_t level, std::u16string_view category, std::u16string_view text) const
{
  log_.Trace(ElapsedSeconds(), level, category, text);
}

int CFileDxf::Import(std::u16string_view filePath, CLayer* layer)
{
  targetLayer = layer;
  if (layer == nullptr) return -1;
  const std::u16string name(filePath);
  if (Load(filePath) != 0) {
    Log(TraceLevel::Failure, general,
        u"[DXF] Failed to open AutoCAD DXF file. Either the file does not exist, or it is empty: "
        u"[" +
            name + u"].");
    return -1;
  }
  Log(TraceLevel::Success, processing, u"[DXF] Successfully opened file: [" + name + u"].");
  tally.isBinary = std::string_view(buffer.get(), static_cast<std::size_t>(size))
                       .starts_with("AutoCAD Binary DXF");
  if (ProcessFile() != 0) return -1;
  tally.CountShapes(*layer->shapes);
  layer->UpdateExtents();
  Log(TraceLevel::Progress, processing,
      u"[DXF] Detected drawing extends: [" + BoundsOf(layer->extents) + u"].");
  Log(TraceLevel::Success, general,
      u"Successfully loaded the selected AutoCAD DXF file: [ " + name +
          u"]. Please see the 'Processing' tab for details.");
  return 0;
}

bool CFileDxf::HasTarget() const
{
  return targetLayer != nullptr && targetLayer->shapes && frame_ != nullptr && frame_->HasWindow();
}

int CFileDxf::ProcessFile()
{
  // The value of a notification is a number; this one stands for the text.
  static constexpr const char* wait = "Loading and processing DXF file, please wait...";
  if (!HasTarget()) return -1;
  Log(TraceLevel::Progress, processing, u"[DXF] Processing file...");
  frame_->Notify(Notification::ImportStart, reinterpret_cast<std::intptr_t>(wait));
  try {
    ProcessSections();
  } catch (const std::bad_alloc&) {
    // There is no memory for a layer or a block. Without it the entities behind would come out in
    // other colours, or hidden ones would come out at all.
    ++tally.withoutMemory;
  }
  frame_->Notify(Notification::ImportEnd, 0);
  return 0;
}

void CFileDxf::ProcessSections()
{
  DxfLine line;
  while (GetLine(line, longLine) && line.Text() != "EOF") {
    if (line.Trimmed() == "SECTION") tally.hasSections = true;
    if (Contains(line.Text(), "SECTION") && !ProcessSection()) break;
    ReportProgress();
  }
}

bool CFileDxf::ProcessSection()
{
  DxfLine line;
  if (!GetLine(line, longLine) || !GetLine(line, longLine)) return false;
  if (Contains(line.Text(), "ENTITIES")) return ProcessEntities() == 0;
  if (Contains(line.Text(), "TABLES")) {
    Log(TraceLevel::Progress, processing, u"[DXF] Processing 'TABLES' section...");
    ProcessRecords("LAYER", [this] { ProcessLayer(); });
    Log(TraceLevel::Success, processing,
        u"[DXF] 'TABLES' section processed, found " + Count(layers.size()) + u" DXF layers.");
  } else if (Contains(line.Text(), "BLOCKS")) {
    Log(TraceLevel::Progress, processing, u"[DXF] Processing 'BLOCKS' section...");
    ProcessRecords("BLOCK", [this] { ProcessBlock(); });
    Log(TraceLevel::Success, processing,
        u"[DXF] 'BLOCKS' section processed, cached " + Count(blocks.size()) + u" blocks.");
  } else {
    SkipPast("ENDSEC");
  }
  return true;
}

template <class Start>
void CFileDxf::ProcessRecords(std::string_view keyword, Start start)
{
  // Any line that begins with the keyword starts a record, and may end the section as well.
  DxfLine line;
  while (GetLine(line, shortLine)) {
    if (line.Text().starts_with(keyword)) start();
    if (Contains(line.Text(), "ENDSEC")) return;
  }
}

bool CFileDxf::GetLine(DxfLine& line, std::size_t maxChars)
{
  const char* const from = buffer.get() + position;
  const auto left = static_cast<std::size_t>(size - position);
  const std::size_t reach = std::min(left, maxChars);
  const void* const end = std::memchr(from, '\n', reach);
  if (end == nullptr) {
    line.TakePart(from, reach, maxChars);
    position += static_cast<std::int64_t>(reach);
    return false;
  }
  const auto length = static_cast<std::size_t>(static_cast<const char*>(end) - from);
  line.TakeWhole(from, length);
  position += static_cast<std::int64_t>(length) + 1;
  return true;
}

void CFileDxf::ReportProgress()
{
  const float part = static_cast<float>(position) / static_cast<float>(size);
  const std::int32_t percent = TruncateToInt32(part * 100.0F);
  if (percent == lastPercent) return;
  lastPercent = percent;
  frame_->Notify(Notification::ImportProgress, percent);
}

int CFileDxf::ProcessEntities()
{
  if (!HasTarget()) return -1;
  CShapes& target = *targetLayer->shapes;
  Log(TraceLevel::Progress, processing, u"[DXF] Processing 'ENTITIES' section...");
  DxfLine line;
  afterGroupZero_ = false;
  bool isWhole = false;
  while ((isWhole = GetLine(line, shortLine)) && !Contains(line.Text(), "ENDSEC")) {
    TakeEntityLine(line, false, target);
    ReportProgress();
  }
  NoteEnd(isWhole);
  Log(TraceLevel::Success, processing,
      u"[DXF] 'ENTITIES' section processed, added " + Count(target.shapes.size()) +
          u" map features to map layer.");
  return 0;
}

void CFileDxf::NoteEnd(bool isWhole)
{
  if (!isWhole && position < size) ++tally.cutParts;
}

void CFileDxf::SkipPast(std::string_view word)
{
  DxfLine line;
  while (GetLine(line, shortLine) && !Contains(line.Text(), word)) {
  }
}

void CFileDxf::SkipGroupBlock() { SkipPast("}"); }

void CFileDxf::SkipEntity()
{
  ForEachPair([](std::int32_t, std::string_view) {});
}

}  // namespace hullwright
