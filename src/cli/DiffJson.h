#pragma once

#include <string>

#include "base/Json.h"
#include "compare/DifferenceText.h"

namespace hullwright {

/// What a comparison was made of.
struct DiffSubject {
  FormerAndCurrent<std::string> name;  ///< of the files
  FormerAndCurrent<std::string> unit;  ///< names of the units
  double tolerance = 0.0;
  std::string (*nameOfSide)(ViewSide) = nullptr;
};

/// Writes differences as one JSON document, whole: a member for each kind, empty or null where
/// there is no difference. Places are lists of x, y and z, of x and y for anchors, with all digits;
/// ways and distances have the decimals of the text.
void WriteDiffJson(JsonWriter& json, const Differences& differences, const DiffSubject& subject);

}  // namespace hullwright
