#include "app/GridSettingsStore.h"

#include <array>

#include "base/Numbers.h"

namespace hullwright {
namespace {

constexpr std::string_view section = "Grid";

struct FlagKey {
  std::string_view key;
  std::int32_t GridSettings::*field;
};

struct SpacingKey {
  std::string_view key;
  double GridSettings::*field;
};

constexpr std::array<FlagKey, 2> flags = {
    {{"Show", &GridSettings::show}, {"Snap", &GridSettings::snap}}};

constexpr std::array<SpacingKey, 4> spacings = {{{"SpacingShowX", &GridSettings::spacingShowX},
                                                 {"SpacingShowY", &GridSettings::spacingShowY},
                                                 {"SpacingSnapX", &GridSettings::spacingSnapX},
                                                 {"SpacingSnapY", &GridSettings::spacingSnapY}}};

constexpr double hundredths = 100.0;

}  // namespace

GridSettings LoadGridSettings(const ISettingsStore& store)
{
  store.Refresh();
  const GridSettings defaults;
  GridSettings grid;
  for (const auto& [key, field] : flags) {
    grid.*field = store.ReadInteger(section, key, defaults.*field);
  }
  for (const auto& [key, field] : spacings) {
    const auto fallback = static_cast<std::int32_t>(defaults.*field * hundredths);
    const auto stored = static_cast<std::uint32_t>(store.ReadInteger(section, key, fallback));
    grid.*field = static_cast<double>(stored) / hundredths;
  }
  return grid;
}

void SaveGridSettings(ISettingsStore& store, const GridSettings& grid)
{
  for (const auto& [key, field] : flags) store.WriteInteger(section, key, grid.*field);
  for (const auto& [key, field] : spacings) {
    store.WriteInteger(section, key, TruncateToInt32(grid.*field * hundredths));
  }
}

}  // namespace hullwright
