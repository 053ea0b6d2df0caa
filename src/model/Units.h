#pragma once

#include <cstdint>

namespace hullwright {

/// A unit of length by its code in the EPSG registry. A design may hold any number here.
enum class UnitCode : std::int32_t { Metre = 9001 };

/// Takes a length in a unit to metres; one that the table of factors lacks counts as the metre. The
/// factors are those of the EPSG registry, some of them rounded; that of Clarke's yard (9037) is
/// 1.2e-9 m less than three of Clarke's feet (9005).
double ToMetres(UnitCode unit, double value);

/// Takes a length in metres to a unit. The US survey foot's factor is one digit shorter here than
/// on the way to metres, so that a value taken there and back is not exactly what it was.
double FromMetres(UnitCode unit, double value);

/// Whether a unit has a factor, as the metre has; all others are taken for it.
bool HasUnitFactor(UnitCode unit);

}  // namespace hullwright
