#include "model/Units.h"

#include <array>

#include "base/FindOrNull.h"

namespace hullwright {
namespace {

/// A unit of length and how many metres one of it is: what lengths are multiplied by on the way to
/// metres, and divided by on the way back. The two differ for the US survey foot alone.
struct UnitFactor {
  UnitCode code;
  double toMetres;
  double fromMetresDivisor;
};

constexpr UnitFactor Same(UnitCode code, double factor) { return {code, factor, factor}; }

constexpr std::array unitFactors = std::to_array<UnitFactor>({
    Same(UnitCode{9002}, 0.3048),                             // foot
    {UnitCode{9003}, 0.3048006096012192, 0.304800609601219},  // US survey foot
    Same(UnitCode{9005}, 0.3047972654),                       // Clarke's foot
    Same(UnitCode{9031}, 1.0000135965),                       // German legal metre
    Same(UnitCode{9033}, 20.1168402336805),                   // US survey chain
    Same(UnitCode{9034}, 0.201168402336805),                  // US survey link
    Same(UnitCode{9035}, 1609.34721869444),                   // US survey mile
    Same(UnitCode{9036}, 1000.0),                             // kilometre
    Same(UnitCode{9037}, 0.914391795),                        // Clarke's yard
    Same(UnitCode{9038}, 20.1166195164),                      // Clarke's chain
    Same(UnitCode{9039}, 0.201166195164),                     // Clarke's link
    Same(UnitCode{9040}, 0.9143984146160287),                 // British yard (Sears 1922)
    Same(UnitCode{9041}, 0.304799471538676),                  // British foot (Sears 1922)
    Same(UnitCode{9042}, 20.1167651215526),                   // British chain (Sears 1922)
    Same(UnitCode{9043}, 0.201167651215526),                  // British link (Sears 1922)
    Same(UnitCode{9062}, 20.11678249437587),                  // British chain (Benoit 1895 B)
    Same(UnitCode{9080}, 0.304799510248147),                  // Indian foot
    Same(UnitCode{9084}, 0.9143985307444408),                 // Indian yard
    Same(UnitCode{9093}, 1609.344),                           // Statute mile
    Same(UnitCode{9094}, 0.304799710181509),                  // Gold Coast foot
    Same(UnitCode{9095}, 0.3048007491),                       // British foot (1936)
    Same(UnitCode{9097}, 20.1168),                            // chain
    Same(UnitCode{9098}, 0.201168),                           // link
});

/// The factors of a unit; null for one that counts as the metre.
const UnitFactor* Find(UnitCode code) { return FindOrNull(unitFactors, code, &UnitFactor::code); }

}  // namespace

double ToMetres(UnitCode code, double value)
{
  const UnitFactor* const unit = Find(code);
  return unit == nullptr ? value : value * unit->toMetres;
}

double FromMetres(UnitCode code, double value)
{
  const UnitFactor* const unit = Find(code);
  return unit == nullptr ? value : value / unit->fromMetresDivisor;
}

bool HasUnitFactor(UnitCode code) { return code == UnitCode::Metre || Find(code) != nullptr; }

}  // namespace hullwright
