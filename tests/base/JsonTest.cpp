#include "base/Json.h"

#include <gtest/gtest.h>

#include <limits>

namespace hullwright {
namespace {

TEST(JsonWriter, WritesToTheEndOfAText)
{
  std::string text = "before ";
  {
    JsonWriter json(text);
    json.BeginObject();
    json.Key("a").Doubles({1.0, -0.0, std::numeric_limits<double>::infinity()});
    json.Key("b").Text(u"\"\u00E4\n");
    json.EndObject();
  }
  EXPECT_EQ(text, "before {\"a\":[1.0,-0.0,\"inf\"],\"b\":\"\\\"\u00E4\\u000A\"}");
}

TEST(JsonWriter, ALongTextComesWhole)
{
  constexpr int many = 100000;
  std::string text;
  JsonWriter json(text);
  json.BeginArray();
  for (int i = 0; i < many; ++i) json.Integer(7);
  json.EndArray();
  json.EndLine();
  EXPECT_EQ(text.size(), 2U * many + 2U);
}

}  // namespace
}  // namespace hullwright
