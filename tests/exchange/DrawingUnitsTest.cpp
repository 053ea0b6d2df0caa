#include "exchange/DrawingUnits.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace hullwright {
namespace {

/// A drawing whose header has these lines.
std::string Drawing(const std::string& header)
{
  return "999\nplan\n  0\nSECTION\n  2\nHEADER\n" + header + "  0\nENDSEC\n  0\nEOF\n";
}

TEST(StatedDrawingUnits, AreTheNumberOfTheVariable)
{
  EXPECT_EQ(StatedDrawingUnit(Drawing("  9\n$ACADVER\n  1\nAC1015\n  9\n$INSUNITS\n 70\n     6\n")),
            6);
  EXPECT_EQ(StatedDrawingUnit(Drawing("9\r\n$INSUNITS\r\n70\r\n21\r\n")), 21);
}

TEST(StatedDrawingUnits, AreNoneWithoutTheVariable)
{
  EXPECT_EQ(StatedDrawingUnit(Drawing("  9\n$ACADVER\n  1\nAC1009\n")), 0);
  EXPECT_EQ(StatedDrawingUnit(""), 0);
  EXPECT_EQ(StatedDrawingUnit("Dear Sirs\n"), 0);
  EXPECT_EQ(StatedDrawingUnit(Drawing("  9\n$INSUNITS\n")), 0);
  EXPECT_EQ(StatedDrawingUnit(Drawing("  1\n$INSUNITS\n 70\n6\n")), 0);  // a text, no variable
}

TEST(StatedDrawingUnits, AreLookedForInTheHeaderAlone)
{
  const std::string variable = "  9\n$INSUNITS\n 70\n6\n";
  EXPECT_EQ(StatedDrawingUnit(Drawing("") + variable), 0);
  EXPECT_EQ(StatedDrawingUnit("0\nSECTION\n2\nENTITIES\n" + variable), 0);
}

TEST(DrawingUnits, HaveNumbersAndNamesOfTheirOwn)
{
  std::set<std::string_view> names;
  for (int number = 1; number <= 24; ++number) {
    const DrawingUnit* const unit = FindDrawingUnit(number);
    ASSERT_NE(unit, nullptr) << number;
    names.insert(unit->name);
    if (unit->code == UnitCode{}) continue;
    EXPECT_EQ(DrawingUnitOf(unit->code), number);
  }
  EXPECT_EQ(names.size(), 24U);
  EXPECT_EQ(FindDrawingUnit(0), nullptr);
  EXPECT_EQ(FindDrawingUnit(25), nullptr);
}

TEST(DrawingUnits, OfADesignHaveTheSameFactor)
{
  EXPECT_EQ(DrawingUnitOf(UnitCode::Metre), 6);
  EXPECT_EQ(DrawingUnitOf(UnitCode{9002}), 2);
  EXPECT_EQ(DrawingUnitOf(UnitCode{9005}), 0);
  EXPECT_EQ(DrawingUnitOf(UnitCode{}), 0);
}

}  // namespace
}  // namespace hullwright
