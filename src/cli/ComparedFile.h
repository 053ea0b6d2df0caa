#pragma once

#include <optional>
#include <string>

#include "cli/HeadlessEditor.h"
#include "cli/TerminalProgress.h"
#include "compare/Differences.h"
#include "system/InputFile.h"

namespace hullwright {

/// A file that is compared: a design, or a drawing as the sides of a new design.
class ComparedFile {
public:
  /// Reads standard input to its end where that is the file.
  explicit ComparedFile(const std::string& name) : input_(name) {}

  /// Empty on success, else what is wrong with the file. The shapes of a drawing lie on `side`.
  std::string Open(ViewSide side);

  bool IsDesign() const { return isDesign_; }

  /// Whether the file tells which shapes lie on which side: a design, or a drawing whose layers are
  /// named after sides.
  bool HasSides();

  /// Puts the shapes of a drawing with such layers on these sides; nothing for a design.
  void TakeSides();

  /// What the report calls the file, on one line whatever its name.
  std::string Name() const;

  CHullwrightApp& Design() { return editor_.App(); }

  /// Name of the unit; empty for a drawing that states none.
  std::string UnitName();

  /// The same with its code: "metre (EPSG 9001)", and "foot ($INSUNITS 2)" for a drawing.
  std::string UnitWithCode();

  /// The difference of two units where one is that of a drawing, whose numbers count as they stand
  /// in it. Nothing where they are the same, or where a drawing states none.
  static std::optional<UnitDifference> UnitsApart(ComparedFile& former, ComparedFile& current);

  /// Lets a drawing be in the unit of what it is compared with.
  void AdaptUnitTo(ComparedFile& other);

  /// Reports what the import of a drawing passed over.
  void ReportPassedOver() const;

private:
  /// The unit's code; 0 for a unit of a drawing that no design has.
  UnitCode OwnUnit();

  InputFile input_;
  TerminalProgress progress_;
  HeadlessEditor editor_{&progress_};
  bool isDesign_ = false;
  int drawingUnit_ = 0;  ///< $INSUNITS of a drawing
};

}  // namespace hullwright
