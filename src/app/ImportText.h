#pragma once

#include <string>

#include "dxf/ImportTally.h"

namespace hullwright {

/// Why an import gives nothing at all: "the drawing can't be read, or it is empty", or the error
/// that ended the reading.
std::u16string DescribeUnreadable(const ImportTally& tally);

/// What came out of an import: "355 polylines, 12 texts".
std::u16string DescribeShapes(const ImportTally& tally);

/// What it passed over: "ignored: 985 SPLINE, 3 HATCH; left out: 4 on hidden layers". Empty for
/// nothing.
std::u16string DescribePassedOver(const ImportTally& tally);

/// Both together, or why the file is no drawing that could be read.
std::u16string DescribeImport(const ImportTally& tally);

}  // namespace hullwright
