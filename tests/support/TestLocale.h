#pragma once

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace hullwright::test {

/// Sets the user's locale, as the toolkit does in the real program. False where the run is meant to
/// have a decimal comma and has none.
inline bool UseTestLocale()
{
  std::setlocale(LC_ALL, "");
  if (std::getenv("HULLWRIGHT_EXPECT_COMMA") == nullptr) return true;
  if (std::strcmp(std::localeconv()->decimal_point, ",") == 0) return true;
  std::fputs("The locale with a decimal comma is missing.\n", stderr);
  return false;
}

}  // namespace hullwright::test
