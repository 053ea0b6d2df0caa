#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dxf/DxfEntity.h"
#include "dxf/DxfLine.h"
#include "dxf/Extrusion.h"
#include "dxf/FileDxfBlock.h"
#include "dxf/FileDxfLayer.h"
#include "dxf/FileDxfVertex.h"
#include "dxf/ImportTally.h"
#include "file/FileBase.h"
#include "model/Layer.h"
#include "model/ShapePolyline.h"
#include "platform/MainWindow.h"
#include "platform/Trace.h"

namespace hullwright {

class CShapeText;

/// Reader of AutoCAD drawings in their ASCII form: one pass over the text in memory, with a cursor
/// that only moves forward. Layers, blocks and entities become shapes of a layer; what it does not
/// understand it walks past. Numbers are parsed leniently, and nothing below the file level is ever
/// reported. An object lives for one import.
class CFileDxf : public CFileBase {
public:
  /// `frame` hears of the progress and may be null, which `ProcessFile` refuses.
  CFileDxf(IMainWindow* frame, const ITrace& log) : frame_(frame), log_(log) {}

  /// Reads a drawing into a layer. 0 on success; -1, with a record in the log, for a file that
  /// can't be read or is empty. A file that is no drawing gives no shapes and counts as read.
  int Import(std::u16string_view filePath, CLayer* layer);

  /// Walks the sections of the loaded text. -1 without a group to read into and without a window.
  /// Without memory for an entity or for the copy of one, that one is left out; without memory for
  /// anything else the walk ends there, as at the end of the text.
  int ProcessFile();

  /// Copies the next line. False when the text ends before the line does, or when `maxChars` bytes
  /// came without an end: the cursor then stands behind them, inside the line, and the buffer holds
  /// the part over what was there before.
  bool GetLine(DxfLine& line, std::size_t maxChars);

  /// Tells the main window how far the reading is, once for each percent.
  void ReportProgress();

  /// Reads the entities section. -1 without a group to read into and without a window.
  int ProcessEntities();

  /// Reads one record of the layer table, whose first line has been read. The first of a name
  /// stays, one without a name is nothing.
  void ProcessLayer();

  /// Reads one block, whose first line has been read. The first of a name stays; one of the paper
  /// space is nothing.
  void ProcessBlock();

  /// While the drawing has shown no layer table: makes a layer for an entity that names a new one.
  void AddImplicitLayer(std::string_view name, std::int32_t colour);

  /// Whether the layer is known to be off or frozen.
  bool IsLayerHidden(std::string_view name) const;

  // Readers of one entity each: entered behind the line with its keyword, left behind the next
  // group 0. A reader that is given no target makes no shape by itself.
  void ReadLine(CShapes& target);
  void ReadPoint(CShapes& target);
  void ReadArc(CShapes& target);
  void ReadCircle(CShapes& target);
  void ReadEllipse(CShapes& target);
  void ReadSolid(CShapes& target);
  void Read3DFace(CShapes& target);
  void ReadPolyline();
  void ReadVertex();
  void ReadSeqEnd(CShapes& target);
  void ReadLwPolyline(CShapes& target);
  void ReadText(CShapes& target);
  void ReadMText(CShapes& target);
  void ReadAttribute(CShapes& target);
  void ReadInsert(CShapes& target);
  void SkipEntity();

  /// Reads on to the line that ends a block of application data.
  void SkipGroupBlock();

  /// Takes a point into the world's coordinate system.
  void ApplyExtrusion(DxfPoint& point, const DxfPoint& normal) const;

  /// Gives a shape the colour of an index; 256 stands for the colour of the layer.
  void ResolveColour(CShape& shape, std::string_view layerName, std::int32_t colour) const;

  /// An arc of about 182 vertices, whatever its size. The last two nearly or exactly coincide.
  std::unique_ptr<CShapePolyline> MakeArc(const DxfPoint& centre, const DxfPoint& normal,
                                          double radius, double startDegrees, double endDegrees,
                                          bool clockwise) const;

  /// An ellipse of 61 vertices. Only a whole one along the axes comes out as drawn.
  std::unique_ptr<CShapePolyline> MakeEllipse(const DxfPoint& centre, const DxfPoint& normal,
                                              double rotationDegrees, double majorLength,
                                              double minorLength, double start, double end) const;

  /// A polyline of the vertices with their bulges as arcs; null for an empty list. Empties the
  /// list.
  std::unique_ptr<CShapePolyline> FlattenVertices(std::vector<CFileDxfVertex>& list) const;

  /// Takes the formatting codes out of a shape's text; codes for colours colour it.
  void CleanTextCodes(CShapeText& shape) const;

  /// Whether an entity of the entities section becomes a shape, or belongs to one.
  static bool IsImported(std::string_view keyword);

  template <class Value>
  using NameMap = std::map<std::string, std::unique_ptr<Value>, std::less<>>;

  bool ignoreExtrusion = false;  ///< takes points as they are; nothing sets it
  bool layerTableSeen = false;
  NameMap<CFileDxfLayer> layers;
  NameMap<CFileDxfBlock> blocks;
  std::int32_t polylineFlags = 0;      ///< of the last header that had some
  std::int32_t polylineCurveType = 0;  ///< likewise; read by nothing
  std::vector<CFileDxfVertex> polylineVertices;
  DxfPoint polylineExtrusion;
  std::unique_ptr<CShapePolyline> pendingPolyline;  ///< waits for its end of sequence
  CLayer* targetLayer = nullptr;
  std::int32_t lastPercent = 0;

  /// Bytes that copies of inserted shapes may still take, roughly. Blocks that insert blocks
  /// multiply without bound; when this is used up, no more copies are made.
  std::int64_t copyBudget = std::int64_t{1} << 30;

  ImportTally tally;  ///< complete when the import is through

private:
  static constexpr std::size_t shortLine = 256;
  static constexpr std::size_t longLine = 512;

  struct Keyword;
  static const Keyword* FindKeyword(std::string_view line, bool inBlock);

  /// Calls `act` with code and value of each pair up to a group 0. A value that was cut short
  /// counts as it stands in the buffer.
  template <class Act>
  void ForEachPair(Act act, std::size_t valueLimit = longLine)
  {
    DxfLine code;
    DxfLine value;
    afterGroupZero_ = false;
    while (GetLine(code, shortLine)) {
      const std::int32_t group = ParseInt32(code.Text(), 10);
      if (group == 0) {
        afterGroupZero_ = code.IsGroupZero();
        return;
      }
      GetLine(value, valueLimit);
      act(group, value.Text());
    }
  }

  /// Takes the pairs of an entity in, then passes each on to `act`.
  template <class Act>
  void ReadGroups(DxfEntity& entity, Act act, std::size_t valueLimit = longLine)
  {
    constexpr std::int32_t applicationData = 102;
    const auto take = [&](std::int32_t code, std::string_view value) {
      if (code == applicationData) {
        SkipGroupBlock();
      } else {
        entity.Take(code, value);
        act(code, value);
      }
    };
    ForEachPair(take, valueLimit);
  }
  void ReadGroups(DxfEntity& entity)
  {
    ReadGroups(entity, [](std::int32_t, std::string_view) {});
  }

  /// Counts a part that ended early: at a line that is too long, with text behind it.
  void NoteEnd(bool isWhole);

  bool HasTarget() const;
  void ProcessSections();
  bool ProcessSection();
  template <class Start>
  void ProcessRecords(std::string_view keyword, Start start);
  void SkipPast(std::string_view word);

  /// Takes a line of the walk over entities: one with a keyword starts its reader.
  void TakeEntityLine(const DxfLine& line, bool inBlock, CShapes& target);
  bool IsLeftOut(const DxfEntity& entity);
  bool IsOnHiddenLayer(const DxfEntity& entity);

  /// Takes the groups of an entity in; false for one that is left out.
  bool ReadEntity(DxfEntity& entity);
  void Identify(CShape& shape, const DxfEntity& entity) const;
  void Colour(CShape& shape, const DxfEntity& entity);
  void AddShape(std::unique_ptr<CShape> shape, const DxfEntity& entity, CShapes& target);
  Extrusion ExtrusionAlong(const DxfPoint& normal) const;
  void AddWorldVertex(CShapePolyline& line, DxfPoint point, const DxfPoint& normal) const;
  void ReadAnyText(CShapes& target, bool hasChunks, bool hasFlags);
  void AppendFlattened(CShapePolyline& shape, std::vector<CFileDxfVertex>& list) const;
  bool TakeCopyBudget(const CShape& shape);
  void AddCopy(const CShape& shape, const DxfEntity& insert, CShapes& target) const;
  void Log(std::int32_t level, std::u16string_view category, std::u16string_view text) const;

  /// Whether the line read last was the code of a group 0, so that the next is a keyword, known or
  /// not. Entities without a reader are walked line by line, codes and values alike; what follows a
  /// value of 0 there is a code, which is a number.
  bool afterGroupZero_ = false;

  IMainWindow* frame_;
  const ITrace& log_;
};

}  // namespace hullwright
