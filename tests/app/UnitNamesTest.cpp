#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/AppFixture.h"

namespace hullwright {
namespace {

class UnitNames : public test::AppFixture {};

TEST_F(UnitNames, ComeFromTheTable)
{
  app.unitTable = {{u"m", u"metre", UnitCode::Metre}, {u"ft", u"foot", UnitCode{9002}}};
  app.unitCode = UnitCode{9002};
  std::u16string label = u"meters";
  app.GetUnitLabel(label);
  EXPECT_EQ(label, u"ft");
  EXPECT_EQ(view.UnitsPaneText(), u"Units: foot");
}

TEST_F(UnitNames, AnUnknownUnitLeavesTheLabelAndThePaneWithoutAName)
{
  app.unitTable = {{u"m", u"metre", UnitCode::Metre}};
  app.unitCode = UnitCode{5};
  std::u16string label = u"meters";
  app.GetUnitLabel(label);
  EXPECT_EQ(label, u"meters");
  EXPECT_EQ(view.UnitsPaneText(), u"Units: ");
}

TEST_F(UnitNames, TheTableIsLoadedAtItsFirstUseAndTriedAgainWhileEmpty)
{
  std::filesystem::create_directories(dataFolder.Path() / "Sondaris" / "Database");
  EXPECT_EQ(view.UnitsPaneText(), u"Units: ");
  std::filesystem::copy(HULLWRIGHT_UNIT_DATABASE,
                        dataFolder.Path() / "Sondaris" / "Database" / "geo.db",
                        std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(view.UnitsPaneText(), u"Units: metre");
  std::filesystem::remove_all(dataFolder.Path() / "Sondaris");
  app.unitCode = UnitCode{9036};
  EXPECT_EQ(view.UnitsPaneText(), u"Units: kilometre");
}

}  // namespace
}  // namespace hullwright
