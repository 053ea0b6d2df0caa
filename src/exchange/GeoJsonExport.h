#pragma once

#include <string>

#include "exchange/ExportedDesign.h"

namespace hullwright {

/// A FeatureCollection as RFC 7946 has it, but in vessel coordinates, which it states: a LineString
/// for each polyline, a Point for each offset and anchor.
std::string MakeGeoJson(const ExportedDesign& design);

}  // namespace hullwright
