#pragma once

#include <cstdint>

namespace hullwright {

/// Takes a length in a unit to metres. `unitCode` is an EPSG unit of measure; one that the table of
/// factors lacks counts as the metre. Factors are those of the EPSG registry.
double ToMetres(std::int32_t unitCode, double value);

/// Takes a length in metres to a unit. The US survey foot's factor is one digit shorter here than
/// on the way to metres, so that a value taken there and back is not exactly what it was.
double FromMetres(std::int32_t unitCode, double value);

/// Whether a unit has a factor, as the metre has; all others are taken for it.
bool HasUnitFactor(std::int32_t unitCode);

}  // namespace hullwright
