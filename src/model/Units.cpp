#include "model/Units.h"

#include <algorithm>
#include <array>

#include "model/ShapeVertex.h"

namespace hullwright {
namespace {

/// A unit of length and how many metres one of it is.
struct UnitFactor {
  UnitCode code;
  double toMetres;
  double fromMetres;
};

constexpr UnitFactor Same(std::int32_t code, double factor)
{
  return {UnitCode{code}, factor, factor};
}

constexpr std::array unitFactors = std::to_array<UnitFactor>({
    Same(9002, 0.3048),
    {UnitCode{9003}, 0.3048006096012192, 0.304800609601219},
    Same(9005, 0.3047972654),
    Same(9031, 1.0000135965),
    Same(9033, 20.1168402336805),
    Same(9034, 0.201168402336805),
    Same(9035, 1609.34721869444),
    Same(9036, 1000.0),
    Same(9037, 0.914391795),
    Same(9038, 20.1166195164),
    Same(9039, 0.201166195164),
    Same(9040, 0.9143984146160287),
    Same(9041, 0.304799471538676),
    Same(9042, 20.1167651215526),
    Same(9043, 0.201167651215526),
    Same(9062, 20.11678249437587),
    Same(9080, 0.304799510248147),
    Same(9084, 0.9143985307444408),
    Same(9093, 1609.344),
    Same(9094, 0.304799710181509),
    Same(9095, 0.3048007491),
    Same(9097, 20.1168),
    Same(9098, 0.201168),
});

/// The factors of a unit; null for one that counts as the metre.
const UnitFactor* Find(UnitCode code)
{
  const auto* const found = std::ranges::find(unitFactors, code, &UnitFactor::code);
  return found == unitFactors.end() ? nullptr : found;
}

}  // namespace

double ToMetres(UnitCode code, double value)
{
  const UnitFactor* const unit = Find(code);
  return unit == nullptr ? value : value * unit->toMetres;
}

double FromMetres(UnitCode code, double value)
{
  const UnitFactor* const unit = Find(code);
  return unit == nullptr ? value : value / unit->fromMetres;
}

bool HasUnitFactor(UnitCode code) { return code == UnitCode::Metre || Find(code) != nullptr; }

bool CShapeVertex::ConvertUnits(UnitCode from, UnitCode to)
{
  if (x == 0.0 && y == 0.0 && z == 0.0) return false;
  if (from == to) return false;
  for (double* const coordinate : {&x, &y, &z}) {
    *coordinate = FromMetres(to, ToMetres(from, *coordinate));
  }
  return true;
}

}  // namespace hullwright
