#include "replay/driver/ScriptFile.h"

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "support/TempFolder.h"

// How a script is written down: lines, names, and texts in files of their own.
namespace hullwright::replay {
namespace {

class ScriptFile : public testing::Test {
protected:
  std::vector<Json> Read(std::string_view script) const
  {
    folder_.Write("script", script);
    return ReadScript(folder_.Path() / "script");
  }

  /// What is reported of a script that can't be read, without the folder.
  std::string ProblemOf(std::string_view script) const
  {
    try {
      Read(script);
    } catch (const std::exception& problem) {
      std::string text = problem.what();
      const std::string folder = hullwright::TextOf(folder_.Path()) + "/";
      for (std::size_t at = 0; (at = text.find(folder)) != std::string::npos;) {
        text.erase(at, folder.size());
      }
      return text;
    }
    return "none";
  }

  test::TempFolder folder_;
};

TEST_F(ScriptFile, HasAStepALineAndRemarks)
{
  const auto steps = Read(
      "# What it shows.\n\n{\"do\":\"new\"}\r\n#= {\"result\":true}\n# A remark \\\n"
      " {\"do\":\"save\"}");
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0]["do"], "new");
  EXPECT_EQ(steps[1]["do"], "save");
}

TEST_F(ScriptFile, ABackslashAtTheEndOfALineGoesOnBehindTheBlanksOfTheNext)
{
  const auto steps = Read(
      "{\"do\":\"write\", \\\n  \"path\":\"a.xml\",\\ \r\n \"text\":\"one \\\n"
      "   two\\n\\\n\tthree\"}\n{\"do\":\"new\"}\n");
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0]["path"], "a.xml");
  EXPECT_EQ(steps[0]["text"], "one two\nthree");
}

TEST_F(ScriptFile, AStepThatGoesOnBeyondTheLastLineIsAnError)
{
  EXPECT_EQ(ProblemOf("{\"do\":\"new\"}\n{\"do\":\"new\"}\\\n"),
            "script:2: goes on beyond the last line");
}

TEST_F(ScriptFile, NamesBecomeNumbers)
{
  const auto steps = Read(R"({"do":"command","id":"View.Top"})");
  EXPECT_EQ(steps.at(0)["id"], 32804);
}

TEST_F(ScriptFile, AnUnknownNameIsReportedWithTheLineOfItsStep)
{
  EXPECT_EQ(ProblemOf("# One\n{\"do\":\"new\"}\n{\"do\":\"command\",\\\n\"id\":\"View.Inside\"}\n"),
            "script:3: no command is called \"View.Inside\"");
}

TEST_F(ScriptFile, WhatIsNoObjectIsReportedWithItsLine)
{
  EXPECT_EQ(ProblemOf("\n[1]\n"), "script:2: no object");
  EXPECT_TRUE(ProblemOf("{\"do\":\n").starts_with("script:1: "));
}

TEST_F(ScriptFile, ATextMayStandInAFileBesideTheScript)
{
  folder_.Write("hull.dxf", "0\r\nEOF\n\xE4");
  const auto steps = Read(
      "{\"files\":{\"in/a.dxf\":{\"textFile\":\"hull.dxf\"},\"b.txt\":\"as it stands\"}}\n"
      "{\"do\":\"write\",\"path\":\"a.dxf\",\"textFile\":\"hull.dxf\"}\n");
  const std::string text = "0\r\nEOF\n\u00E4";
  EXPECT_EQ(steps.at(0)["files"]["in/a.dxf"], text);
  EXPECT_EQ(steps.at(0)["files"]["b.txt"], "as it stands");
  EXPECT_EQ(steps.at(1)["text"], text);
  EXPECT_EQ(BytesOf(steps.at(1)["text"]), "0\r\nEOF\n\xE4");
}

TEST_F(ScriptFile, ATextThatIsNotThereIsAnError)
{
  EXPECT_EQ(ProblemOf("{\"do\":\"write\",\"textFile\":\"none.dxf\"}"),
            "script:1: none.dxf can't be read");
}

}  // namespace
}  // namespace hullwright::replay
