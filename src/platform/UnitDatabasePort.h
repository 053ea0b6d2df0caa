#pragma once

#include <string>
#include <vector>

#include "model/Units.h"

namespace hullwright {

/// One row of the table of length units.
struct UnitRecord {
  std::u16string strUnitShort;
  std::u16string strUnit;
  UnitCode numId{};
};

/// Where the units of length are kept.
class IUnitDatabase {
public:
  virtual ~IUnitDatabase() = default;

  /// The units of length as they are now, in the order of their codes; empty where they can't be
  /// read.
  virtual std::vector<UnitRecord> ReadUnits() = 0;
};

}  // namespace hullwright
