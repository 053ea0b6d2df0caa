#include "cli/ComparedFile.h"

#include "app/ImportText.h"
#include "base/Code.h"
#include "base/OpenFile.h"
#include "base/Text.h"
#include "base/VisibleText.h"
#include "cli/CommandLine.h"
#include "cli/DesignContent.h"
#include "exchange/DrawingUnits.h"
#include "exchange/SideLayers.h"

namespace hullwright {
namespace {

/// The beginning of a file, with room for the longest header that programs write.
std::string BeginningOf(std::u16string_view path)
{
  constexpr std::size_t room = std::size_t{1} << 20U;
  std::string text(room, '\0');
  const FilePointer file = OpenToRead(path);
  text.resize(file ? std::fread(text.data(), 1, text.size(), file.get()) : 0);
  return text;
}

}  // namespace

std::string ComparedFile::Open(ViewSide side)
{
  if (std::string problem = input_.Problem(); !problem.empty()) return problem;
  isDesign_ = input_.IsDesign();
  const std::u16string path = WideFromUtf8(input_.Path());
  editor_.App().activeView = side;
  if (!isDesign_) drawingUnit_ = StatedDrawingUnit(BeginningOf(path));
  if (isDesign_ ? editor_.Open(path) : editor_.Import(path)) return {};
  const char* const hint =
      isDesign_ || editor_.Tally().IsDrawing() ? "" : "; diff takes designs and DXF drawings";
  return input_.Name() + ": " + Utf8FromWide(editor_.Problem()) + hint;
}

bool ComparedFile::HasSides() { return isDesign_ || HasSideLayers(Design().shapeGroups); }

void ComparedFile::TakeSides()
{
  if (!isDesign_) PartBySideLayers(Design().shapeGroups);
}

std::string ComparedFile::Name() const { return VisibleText(WideFromUtf8(input_.Name())); }

std::string ComparedFile::UnitName()
{
  if (isDesign_) return UnitNameOf(Design());
  const DrawingUnit* const unit = FindDrawingUnit(drawingUnit_);
  return unit == nullptr ? std::string() : std::string(unit->name);
}

std::string ComparedFile::UnitWithCode()
{
  const std::string code = isDesign_ ? "EPSG " + std::to_string(NumberOf(Design().unitCode))
                                     : "$INSUNITS " + std::to_string(drawingUnit_);
  return UnitName() + " (" + code + ")";
}

UnitCode ComparedFile::OwnUnit()
{
  if (isDesign_) return Design().unitCode;
  const DrawingUnit* const unit = FindDrawingUnit(drawingUnit_);
  return unit == nullptr ? UnitCode{} : unit->code;
}

std::optional<UnitDifference> ComparedFile::UnitsApart(ComparedFile& former, ComparedFile& current)
{
  if (former.UnitName().empty() || current.UnitName().empty()) return std::nullopt;
  const FormerAndCurrent<UnitCode> units = {former.OwnUnit(), current.OwnUnit()};
  // Units of drawings that no design has are known by their numbers.
  const bool areTheSame =
      units.former == units.current &&
      (units.former != UnitCode{} || former.drawingUnit_ == current.drawingUnit_);
  if (areTheSame) return std::nullopt;
  return UnitDifference{units, false, false};
}

void ComparedFile::AdaptUnitTo(ComparedFile& other)
{
  if (!isDesign_) Design().unitCode = other.Design().unitCode;
}

void ComparedFile::ReportPassedOver() const
{
  const std::u16string passedOver = DescribePassedOver(editor_.Tally());
  if (!isDesign_ && !passedOver.empty()) Remark(input_.Name(), passedOver);
}

}  // namespace hullwright
