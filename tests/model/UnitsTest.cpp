#include "base/Code.h"
#include "model/Units.h"

#include <gtest/gtest.h>

#include <set>

#include "model/ShapeVertex.h"

namespace hullwright {
namespace {

constexpr double value = 123.456;

struct Factor {
  UnitCode code;
  double toMetres;
  double fromMetres;
};

std::ostream& operator<<(std::ostream& out, const Factor& row) { return out << NumberOf(row.code); }

class UnitFactor : public testing::TestWithParam<Factor> {};

TEST_P(UnitFactor, MultipliesToMetresAndDividesFromThem)
{
  EXPECT_EQ(ToMetres(GetParam().code, value), value * GetParam().toMetres);
  EXPECT_EQ(FromMetres(GetParam().code, value), value / GetParam().fromMetres);
  EXPECT_TRUE(HasUnitFactor(GetParam().code));
}

INSTANTIATE_TEST_SUITE_P(
    Codes, UnitFactor,
    testing::Values(Factor{UnitCode{9002}, 0.3048, 0.3048},
                    Factor{UnitCode{9003}, 0.3048006096012192, 0.304800609601219},
                    Factor{UnitCode{9005}, 0.3047972654, 0.3047972654},
                    Factor{UnitCode{9031}, 1.0000135965, 1.0000135965},
                    Factor{UnitCode{9033}, 20.1168402336805, 20.1168402336805},
                    Factor{UnitCode{9034}, 0.201168402336805, 0.201168402336805},
                    Factor{UnitCode{9035}, 1609.34721869444, 1609.34721869444},
                    Factor{UnitCode{9036}, 1000.0, 1000.0},
                    Factor{UnitCode{9037}, 0.914391795, 0.914391795},
                    Factor{UnitCode{9038}, 20.1166195164, 20.1166195164},
                    Factor{UnitCode{9039}, 0.201166195164, 0.201166195164},
                    Factor{UnitCode{9040}, 0.9143984146160287, 0.9143984146160287},
                    Factor{UnitCode{9041}, 0.304799471538676, 0.304799471538676},
                    Factor{UnitCode{9042}, 20.1167651215526, 20.1167651215526},
                    Factor{UnitCode{9043}, 0.201167651215526, 0.201167651215526},
                    Factor{UnitCode{9062}, 20.11678249437587, 20.11678249437587},
                    Factor{UnitCode{9080}, 0.304799510248147, 0.304799510248147},
                    Factor{UnitCode{9084}, 0.9143985307444408, 0.9143985307444408},
                    Factor{UnitCode{9093}, 1609.344, 1609.344},
                    Factor{UnitCode{9094}, 0.304799710181509, 0.304799710181509},
                    Factor{UnitCode{9095}, 0.3048007491, 0.3048007491},
                    Factor{UnitCode{9097}, 20.1168, 20.1168},
                    Factor{UnitCode{9098}, 0.201168, 0.201168}));

TEST(Units, TheMetreAndCodesWithoutAnEntryLeaveTheValue)
{
  for (const std::int32_t number : {9001, 8999, 9000, 9099, 9004, 9030, 9096, 0, -1}) {
    const UnitCode code{number};
    EXPECT_EQ(ToMetres(code, value), value) << number;
    EXPECT_EQ(HasUnitFactor(code), code == UnitCode::Metre) << number;
    EXPECT_EQ(FromMetres(code, value), value) << number;
  }
}

TEST(Units, NoOtherCodeThanThese23HasAFactor)
{
  const std::set<int> withFactor = {9002, 9003, 9005, 9031, 9033, 9034, 9035, 9036,
                                    9037, 9038, 9039, 9040, 9041, 9042, 9043, 9062,
                                    9080, 9084, 9093, 9094, 9095, 9097, 9098};
  ASSERT_EQ(withFactor.size(), 23U);
  for (int number = 0; number <= 10100; ++number) {
    const UnitCode code{number};
    const bool isKnown = withFactor.contains(number);
    EXPECT_EQ(ToMetres(code, value) != value, isKnown) << number;
    EXPECT_EQ(FromMetres(code, value) != value, isKnown) << number;
    EXPECT_EQ(HasUnitFactor(code), isKnown || code == UnitCode::Metre) << number;
  }
}

TEST(Units, TheUsSurveyFootDoesNotComeBackExactly)
{
  EXPECT_NE(FromMetres(UnitCode{9003}, ToMetres(UnitCode{9003}, 1.0)), 1.0);
}

TEST(Units, AVertexIsConvertedInAllThreeCoordinates)
{
  CShapeVertex vertex(1.0, -2.0, 3.0);
  vertex.tagA = 4;
  EXPECT_TRUE(vertex.ConvertUnits(UnitCode::Metre, UnitCode{9002}));
  EXPECT_TRUE(vertex == CShapeVertex(1.0 / 0.3048, -2.0 / 0.3048, 3.0 / 0.3048));
  EXPECT_EQ(vertex.tagA, 4);
}

TEST(Units, BetweenTwoUnitsEveryBitGoesThroughTheMetre)
{
  constexpr double usFoot = 0.3048006096012192;
  constexpr double clarkesLink = 0.201166195164;
  constexpr double x = -35.0;
  constexpr double y = 34.937;
  constexpr double z = -34.979;
  CShapeVertex vertex(x, y, z);
  ASSERT_TRUE(vertex.ConvertUnits(UnitCode{9003}, UnitCode{9039}));
  EXPECT_TRUE(vertex == CShapeVertex(x * usFoot / clarkesLink, y * usFoot / clarkesLink,
                                     z * usFoot / clarkesLink));
  // One factor for both steps would differ in the last bits, as would multiplying by a reciprocal.
  const double both = usFoot / clarkesLink;
  EXPECT_FALSE(vertex == CShapeVertex(x * both, y * both, z * both));
  const double back = 1.0 / clarkesLink;
  EXPECT_FALSE(vertex == CShapeVertex(x * usFoot * back, y * usFoot * back, z * usFoot * back));
}

TEST(Units, TheOriginAndEqualCodesAreNotConverted)
{
  CShapeVertex origin(0.0, -0.0, 0.0);
  EXPECT_FALSE(origin.ConvertUnits(UnitCode::Metre, UnitCode{9002}));
  CShapeVertex vertex(1.0, 0.0, 0.0);
  EXPECT_FALSE(vertex.ConvertUnits(UnitCode{9003}, UnitCode{9003}));
  EXPECT_EQ(vertex.x, 1.0);
}

TEST(Units, APlaceNextToTheOriginIsConverted)
{
  constexpr double tiny = 1e-300;
  for (const CShapeVertex& place : {CShapeVertex(tiny, 0.0, 0.0), CShapeVertex(0.0, -tiny, 0.0),
                                    CShapeVertex(0.0, 0.0, tiny)}) {
    CShapeVertex vertex = place;
    EXPECT_TRUE(vertex.ConvertUnits(UnitCode::Metre, UnitCode{9036}));
    EXPECT_FALSE(vertex == place);
  }
}

TEST(Units, AnUnknownCodeConvertsAsTheMetre)
{
  CShapeVertex vertex(1.0, 0.0, 0.0);
  EXPECT_TRUE(vertex.ConvertUnits(UnitCode::Metre, UnitCode{9004}));
  EXPECT_EQ(vertex.x, 1.0);
}

}  // namespace
}  // namespace hullwright
