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

constexpr UnitFactor Same(UnitCode code, double factor) { return {code, factor, factor}; }

constexpr std::array unitFactors = std::to_array<UnitFactor>({
    Same(UnitCode{9002}, 0.3048),
    {UnitCode{9003}, 0.3048006096012192, 0.304800609601219},
    Same(UnitCode{9005}, 0.3047972654),
    Same(UnitCode{9031}, 1.0000135965),
    Same(UnitCode{9033}, 20.1168402336805),
    Same(UnitCode{9034}, 0.201168402336805),
    Same(UnitCode{9035}, 1609.34721869444),
    Same(UnitCode{9036}, 1000.0),
    Same(UnitCode{9037}, 0.914391795),
    Same(UnitCode{9038}, 20.1166195164),
    Same(UnitCode{9039}, 0.201166195164),
    Same(UnitCode{9040}, 0.9143984146160287),
    Same(UnitCode{9041}, 0.304799471538676),
    Same(UnitCode{9042}, 20.1167651215526),
    Same(UnitCode{9043}, 0.201167651215526),
    Same(UnitCode{9062}, 20.11678249437587),
    Same(UnitCode{9080}, 0.304799510248147),
    Same(UnitCode{9084}, 0.9143985307444408),
    Same(UnitCode{9093}, 1609.344),
    Same(UnitCode{9094}, 0.304799710181509),
    Same(UnitCode{9095}, 0.3048007491),
    Same(UnitCode{9097}, 20.1168),
    Same(UnitCode{9098}, 0.201168),
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
