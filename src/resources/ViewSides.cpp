#include "resources/ViewSides.h"

#include "base/Code.h"
#include "base/Numbers.h"

namespace hullwright {

std::string SideName(ViewSide code, std::string_view all, std::string_view other)
{
  if (const ViewSideEntry* const side = FindViewSide(code)) return std::string(side->name);
  if (code == ViewSide::All) return std::string(all);
  return std::string(other) + FormatHex(static_cast<std::uint32_t>(NumberOf(code)), 2);
}

}  // namespace hullwright
