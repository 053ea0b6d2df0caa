#include "exchange/DrawingUnits.h"

#include <array>

#include "base/FindOrNull.h"
#include "base/Numbers.h"
#include "dxf/DxfLines.h"

namespace hullwright {
namespace {

constexpr auto drawingUnits = std::to_array<DrawingUnit>({
    {1, "inch"},
    {2, "foot", UnitCode{9002}},
    {3, "mile", UnitCode{9093}},
    {4, "millimetre"},
    {5, "centimetre"},
    {6, "metre", UnitCode{9001}},
    {7, "kilometre", UnitCode{9036}},
    {8, "microinch"},
    {9, "mil"},
    {10, "yard"},
    {11, "angstrom"},
    {12, "nanometre"},
    {13, "micrometre"},
    {14, "decimetre"},
    {15, "decametre"},
    {16, "hectometre"},
    {17, "gigametre"},
    {18, "astronomical unit"},
    {19, "light year"},
    {20, "parsec"},
    {21, "US survey foot", UnitCode{9003}},
    {22, "US survey inch"},
    {23, "US survey yard"},
    {24, "US survey mile", UnitCode{9035}},
});

/// The groups of a drawing, one after the other.
class Groups {
public:
  explicit Groups(std::string_view drawing) : lines_(drawing) {}

  /// Reads the next group; false at the end, and where a line is longer than a drawing's may be.
  bool Next()
  {
    std::string_view code;
    std::string_view value;
    if (!lines_.GetLine(code, DxfLines::longLine) || !lines_.GetLine(value, DxfLines::longLine)) {
      return false;
    }
    code_ = ParseInt32(Trimmed(code), 10);
    value_ = Trimmed(value);
    return true;
  }

  bool Is(int code, std::string_view value) const { return code_ == code && value_ == value; }
  std::string_view Value() const { return value_; }

private:
  DxfLines lines_;
  int code_ = 0;
  std::string_view value_;
};

}  // namespace

const DrawingUnit* FindDrawingUnit(int number)
{
  return FindOrNull(drawingUnits, number, &DrawingUnit::number);
}

int DrawingUnitOf(UnitCode unit)
{
  if (unit == UnitCode{}) return 0;
  const DrawingUnit* const found = FindOrNull(drawingUnits, unit, &DrawingUnit::code);
  return found == nullptr ? 0 : found->number;
}

int StatedDrawingUnit(std::string_view drawing)
{
  constexpr int keyword = 0;
  constexpr int name = 2;
  constexpr int variable = 9;
  Groups groups(drawing);
  while (groups.Next()) {
    // The header is the first section.
    if (groups.Is(keyword, "SECTION") && !(groups.Next() && groups.Is(name, "HEADER"))) return 0;
    if (groups.Is(keyword, "ENDSEC")) return 0;
    if (groups.Is(variable, "$INSUNITS")) {
      return groups.Next() ? ParseInt32(groups.Value(), 10) : 0;
    }
  }
  return 0;
}

}  // namespace hullwright
