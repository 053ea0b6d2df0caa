#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/Numbers.h"
#include "dxf/ColourTable.h"
#include "dxf/DxfCode.h"
#include "dxf/DxfLines.h"
#include "dxf/DxfPoint.h"

namespace hullwright {

/// What the groups of one record say, by their codes. A group that comes again replaces its value;
/// groups that no record has a use for are not kept. Texts are views of the lines they came in.
class DxfEntity {
public:
  /// `colour` is that of a record that names none.
  explicit DxfEntity(ColourIndex colour = ColourIndex::ByLayer);

  /// Takes a group in.
  void Take(DxfCode code, std::string_view value)
  {
    if (IsNumber(code)) {
      numbers_[PlaceOf(code)] = ParseDouble(value);
    } else {
      TakeOther(code, value);
    }
  }

  /// Value of a group from 10 to 59 or 210 to 239; 0.0 if the record has none.
  double Number(DxfCode code) const { return numbers_[PlaceOf(code)]; }

  /// Gives a group a default other than 0.0.
  void SetDefault(DxfCode code, double value) { numbers_[PlaceOf(code)] = value; }

  /// The point whose x has this code.
  DxfPoint Point(DxfCode x) const;

  /// The extrusion direction, by default straight up.
  DxfPoint Normal() const { return Point(DxfCode::NormalX); }

  std::string_view Name() const { return name_; }
  std::string_view Handle() const { return handle_; }
  std::string_view LayerName() const { return layerName_; }
  ColourIndex Colour() const { return colour_; }
  std::int32_t Flags() const { return flags_; }
  bool HasFlag(std::int32_t bit) const { return (flags_ & bit) != 0; }

  /// Exactly 1 marks the paper space; any other value does not.
  bool IsInPaperSpace() const { return paperSpace_ == 1; }

private:
  // Numbers have codes from 10 to 59 and from 210 to 239. An entity is made for each record, so its
  // table has no places for others, which would have to be cleared as well.
  static constexpr int lowest = 10;
  static constexpr int lowCount = 50;
  static constexpr int highest = 239;
  static constexpr int highCount = 30;

  static constexpr bool IsNumber(DxfCode code)
  {
    const auto group = static_cast<int>(code);
    return (group >= lowest && group < lowest + lowCount) ||
           (group > highest - highCount && group <= highest);
  }

  /// Where a number stands.
  static constexpr std::size_t PlaceOf(DxfCode code)
  {
    const auto group = static_cast<int>(code);
    const int place =
        group < lowest + lowCount ? group - lowest : group - highest + highCount + lowCount - 1;
    return static_cast<std::size_t>(place);
  }

  void TakeOther(DxfCode code, std::string_view value);

  std::string_view name_;
  std::string_view handle_;
  std::string_view layerName_;
  ColourIndex colour_;
  std::int32_t paperSpace_ = 0;
  std::int32_t flags_ = 0;
  std::array<double, lowCount + highCount> numbers_{};
};

/// Reads the groups of a record into `entity` and passes each on to `visit`. Application data is
/// walked past.
template <class Visit>
void ReadGroups(DxfLines& lines, DxfEntity& entity, Visit visit,
                std::size_t valueLimit = DxfLines::longLine)
{
  const auto take = [&](DxfCode code, std::string_view value) {
    if (code == DxfCode::ApplicationData) {
      lines.SkipGroupBlock();
    } else {
      entity.Take(code, value);
      visit(code, value);
    }
  };
  lines.WalkPairs(take, valueLimit);
}

inline void ReadGroups(DxfLines& lines, DxfEntity& entity)
{
  ReadGroups(lines, entity, [](DxfCode, std::string_view) {});
}

/// Reads the pairs of a record into `entity`, those of application data like any others.
void ReadPairs(DxfLines& lines, DxfEntity& entity, std::size_t valueLimit = DxfLines::longLine);

}  // namespace hullwright
