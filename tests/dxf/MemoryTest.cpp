#include <new>
#include <set>

#include "support/DxfFixture.h"
#include "support/FailingNew.h"

namespace hullwright {
namespace {

using namespace test;

std::string LineAt(const std::string& x)
{
  return Entity("LINE", {{5, "A1"}, {8, "0"}, {62, "3"}, {10, x}});
}

/// Imports in which memory ends at one place after the other.
class Memory : public DxfFixture {
protected:
  /// Imports text once for each of its allocations, which fails, and at last without a failure.
  /// `look` is called behind each import that has begun to walk the file.
  template <class Look>
  void ImportWithEachFailure(const std::string& text, Look look)
  {
    constexpr std::size_t plenty = 1000;
    const auto path = folder.Write("drawing.dxf", text);
    bool failed = true;
    for (std::size_t which = 1; failed; ++which) {
      window = {};
      log.records.clear();
      // What a test keeps shall not be what fails, nor need memory in one import alone.
      window.list.reserve(plenty);
      log.records.reserve(plenty);
      layer = std::make_unique<CLayer>();
      file = std::make_unique<CFileDxf>(&window, log);
      int result = 0;
      const FailingNew memory(which);
      try {
        result = file->Import(path, layer.get());
      } catch (const std::bad_alloc&) {
        // Before the reading.
      }
      failed = FailingNew::Stop();
      if (window.list.empty()) continue;
      EXPECT_EQ(result, 0) << which;
      EXPECT_EQ(window.list.back(), "end") << which;
      EXPECT_EQ(std::ranges::count(window.list, "end"), 1) << which;
      look();
    }
  }

  /// The first vertices' x of all shapes, in a row.
  std::string Places() const
  {
    std::string places;
    for (std::size_t i = 0; i < ShapeCount(); ++i) {
      places += std::to_string(static_cast<int>(VerticesOf(i).at(0).at(0)));
    }
    return places;
  }
};

TEST_F(Memory, ThatEndsDuringOneCopyOfAnInsertionLeavesOutThatCopyAlone)
{
  const std::string insert = Entity("INSERT", {{2, "B"}, {5, "C3"}});
  std::set<std::string> seen;
  ImportWithEachFailure(Blocks(Block("B", LineAt("1") + LineAt("2") + LineAt("3"))) +
                            Entities(insert + insert + LineAt("4")),
                        [&] {
                          seen.insert(Places());
                          // Whatever is missing is counted.
                          EXPECT_TRUE(Places() == "1231234" || Tally().withoutMemory > 0);
                          for (std::size_t i = 0; i < ShapeCount(); ++i) {
                            // A copy is whole or not there.
                            const bool isCopy = At(i).tag == 0xC3;
                            EXPECT_EQ(AttributesOf(i).size(), isCopy ? 4U : 2U);
                            EXPECT_EQ(VerticesOf(i).size(), 2U);
                            EXPECT_EQ(ColourOf(i), 0x00FF00U);
                          }
                        });
  EXPECT_EQ(seen, (std::set<std::string>{"1231234", "231234", "131234", "121234", "123234",
                                         "123134", "123124",         // a copy
                                         "23234", "13134", "12124",  // an entity of the block
                                         "123123",                   // the last entity
                                         "1234",                     // an insertion
                                         ""}));                      // the block
}

TEST_F(Memory, ThatEndsDuringACleaningLeavesTheTextWithItsCodes)
{
  const std::string text =
      R"({\fArial|b0;\A1;\H2;\L\l\P\p\C1;\c16711680;\U+0041^I%%c%%d%%p%%C%%D%%P, a long text})";
  constexpr std::uint32_t green = 0x00FF00;  // of the entity
  constexpr std::uint32_t blue = 0xFF0000;   // of the true colour in the text
  // The places of the backslashes need memory, which no step behind them does; the braces go first.
  const std::set<std::pair<std::u16string, std::uint32_t>> steps = {
      {u"\\fArial|b0;\\A1;\\H2;\\L\\l\\P\\p\\C1;\\c16711680;\\U+0041^I"
       u"%%c%%d%%p%%C%%D%%P, a long text",
       green},
      {u"\nA\t\u2300\u00B0\u00B1\u2300\u00B0\u00B1, a long text", blue}};
  std::set<std::pair<std::u16string, std::uint32_t>> seen;
  int leftOutBehindItsLayer = 0;
  ImportWithEachFailure(Entities(Entity("MTEXT", {{8, "A"}, {62, "3"}, {1, text}})), [&] {
    if (ShapeCount() > 0) {
      seen.emplace(At<CShapeText>(0).text, ColourOf(0));
    } else if (Layers().contains("A")) {
      ++leftOutBehindItsLayer;
    }
  });
  EXPECT_EQ(seen, steps);
  // The layer is made just before the cleaning; behind that only the list of shapes may fail.
  EXPECT_LE(leftOutBehindItsLayer, 1);
}

TEST_F(Memory, ThatEndsWhereAPolylineEndsLeavesNothingOfItForTheNextEnd)
{
  constexpr std::int32_t polylineTag = 0xB2;
  const std::string polyline = Entity("POLYLINE", {{5, "B2"}, {70, "1"}}) +
                               Entity("VERTEX", {{10, "1"}, {42, "1"}}) +
                               Entity("VERTEX", {{10, "2"}}) + Entity("SEQEND");
  const std::string insert = Entity("INSERT", {{2, "B"}, {66, "1"}}) + Entity("SEQEND");
  std::set<bool> cameOut;
  ImportWithEachFailure(Blocks(Block("B", LineAt("5"))) + Entities(polyline + insert + LineAt("3")),
                        [&] {
                          bool hasPolyline = false;
                          for (std::size_t i = 0; i < ShapeCount(); ++i) {
                            if (At(i).tag != polylineTag) continue;
                            hasPolyline = true;
                            EXPECT_EQ(i, 0U) << "the end behind the insertion has made it";
                            EXPECT_THAT(VerticesOf(i), testing::Not(testing::IsEmpty()));
                          }
                          cameOut.insert(hasPolyline);
                          EXPECT_TRUE(hasPolyline || Tally().withoutMemory > 0);
                        });
  EXPECT_EQ(cameOut, (std::set<bool>{false, true}));
}

TEST_F(Memory, ThatEndsInTheNameOfAKeywordStillCountsIt)
{
  for (std::size_t which = 1, failed = 1; failed != 0; ++which) {
    KeywordCounts counts;
    const std::string keyword = "ACAD_PROXY_ENTITY";
    {
      const FailingNew memory(which);
      counts.Count(keyword);
      failed = FailingNew::Stop() ? 1 : 0;
    }
    EXPECT_EQ(counts.Others(), failed);
    EXPECT_EQ(counts.ByKeyword().count(keyword), 1 - failed);
  }
}

TEST_F(Memory, ThatEndsInALayerOrABlockEndsTheImportThere)
{
  const std::string a = "a name that is long: a";
  const std::string b = "a name that is long: b";
  std::set<std::string> seen;
  ImportWithEachFailure(
      Entities(LineAt("1")) + LayerTable(LayerRecord(a, 1, 0) + LayerRecord(b, 1, 0)) +
          Blocks(Block(a, LineAt("2")) + Block(b, LineAt("3"))) + Entities(LineAt("4")),
      [&] {
        std::string names;
        for (const auto& entry : Layers()) names += entry.first.back();
        names += " ";
        for (const auto& entry : file->Drawing().blocks) names += entry.first.back();
        seen.insert(names + " " + Places());
      });
  const std::set<std::string> whereItEnds = {
      "0  1",       // the first layer
      "0a  1",      // the second
      "0ab  1",     // the first block
      "0ab a 1",    // the second
      "0ab ab 1",   // the last entity
      "0ab ab 4",   // the first one
      "ab ab 4",    // its layer
      "0ab ab 14",  // an entity of a block, or nowhere
  };
  EXPECT_EQ(seen, whereItEnds);
}

}  // namespace
}  // namespace hullwright
