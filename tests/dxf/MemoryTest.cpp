#include <limits>
#include <new>
#include <optional>
#include <set>

#include "dxf/OpenPolyline.h"
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
  /// Makes ready for an import. What a test keeps shall not be what fails, nor need memory in one
  /// import alone.
  void Prepare()
  {
    constexpr std::size_t plenty = 1000;
    window = {};
    log.records.clear();
    window.list.reserve(plenty);
    log.records.reserve(plenty);
    layer = std::make_unique<CLayer>();
    file = std::make_unique<CFileDxf>(&window, log);
  }

  /// Imports text once for each of its allocations, which fails, and at last without a failure.
  /// `look` is called behind each import with its result, which is nothing if the import ended with
  /// an exception: in the log, before or behind the reading.
  template <class Look>
  void TryWithEachFailure(const std::string& text, Look look)
  {
    const auto path = folder.Write("drawing.dxf", text);
    bool failed = true;
    for (std::size_t which = 1; failed; ++which) {
      SCOPED_TRACE(which);
      Prepare();
      std::optional<int> result;
      const FailingNew memory(which);
      try {
        result = file->Import(path, layer.get());
      } catch (const std::bad_alloc&) {
        result.reset();
      }
      failed = FailingNew::Stop();
      look(result);
    }
  }

  /// The same, but `look` is called behind each import that has begun to walk the file, even if it
  /// could not record its end in the log.
  template <class Look>
  void ImportWithEachFailure(const std::string& text, Look look)
  {
    TryWithEachFailure(text, [&](std::optional<int> result) {
      if (window.list.empty()) return;
      EXPECT_EQ(result.value_or(0), 0);
      EXPECT_EQ(window.list.back(), "end");
      EXPECT_EQ(std::ranges::count(window.list, "end"), 1);
      look();
    });
  }

  /// Allocations of an import.
  std::size_t AllocationsOf(const std::string& text)
  {
    const auto path = folder.Write("drawing.dxf", text);
    Prepare();
    const FailingNew none(std::numeric_limits<std::size_t>::max());
    EXPECT_EQ(file->Import(path, layer.get()), 0);
    return FailingNew::Count();
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

TEST_F(Memory, ThatDoesNotSufficeForTheTextIsAFileThatWontOpen)
{
  int withoutText = 0;
  TryWithEachFailure(Entities(LineAt("1")), [&](std::optional<int> result) {
    if (result.value_or(0) == 0) return;
    ++withoutText;
    EXPECT_EQ(result, -1);
    EXPECT_THAT(window.list, testing::IsEmpty());
    EXPECT_THAT(Records(), testing::ElementsAre(
                               "1 General: [DXF] Failed to open AutoCAD DXF file. Either the file "
                               "does not exist, or it is empty: [" +
                               Utf8FromWide(folder.File("drawing.dxf")) + "]."));
  });
  EXPECT_EQ(withoutText, 1);
}

TEST_F(Memory, IsNotTakenForSingleLines)
{
  const auto withLines = [](int number) {
    std::string lines;
    for (int i = 0; i < number; ++i) {
      lines += Lines({{999, "a remark that is too long for a text without memory of its own"}});
    }
    return lines + Section("HEADER", lines) + Section("TABLES", lines) + Section("BLOCKS", lines) +
           Entities(lines + LineAt("1") + lines);
  };
  EXPECT_EQ(AllocationsOf(withLines(1000)), AllocationsOf(withLines(10)));
}

TEST_F(Memory, OfTheVerticesOfAPolylineServesTheNextOne)
{
  OpenPolyline polyline;
  const auto gather = [&] {
    for (int i = 0; i < 1000; ++i) polyline.AddVertex({});
  };
  gather();
  polyline.Wait(std::make_unique<CShapePolyline>());
  bool leftOut = false;
  EXPECT_NE(polyline.End(VertexLimit::usual, leftOut), nullptr);
  const FailingNew none(std::numeric_limits<std::size_t>::max());
  gather();
  EXPECT_EQ(FailingNew::Count(), 0U);
}

/// A window that has no memory to show how far an import is.
class WindowWithoutMemory : public RecordedNotifications {
public:
  void ShowProgress(int) override
  {
    ++failures;
    throw std::bad_alloc();
  }
  int failures = 0;
};

TEST_F(Memory, ThatDoesNotSufficeToShowTheProgressCostsNothingOfTheDrawing)
{
  WindowWithoutMemory busy;
  CLayer target;
  CFileDxf reader(&busy, log);
  const std::string text =
      Section("HEADER", "") + LayerTable("") + Entities(LineAt("1") + LineAt("2") + LineAt("3"));
  EXPECT_EQ(reader.Import(folder.Write("drawing.dxf", text), &target), 0);
  EXPECT_EQ(target.shapes->shapes.size(), 3U);
  EXPECT_EQ(reader.Tally().withoutMemory, 0U);
  EXPECT_GT(busy.failures, 3);
  EXPECT_EQ(busy.list.back(), "end");
}

TEST_F(Memory, ThatEndsDuringOneCopyOfAnInsertionLeavesOutThatCopyAlone)
{
  const std::string insert = Entity("INSERT", {{2, "B"}, {5, "C3"}});
  const std::string recordOfOne =
      "1 General: [DXF] Left out for want of memory: 1 parts of the drawing.";
  bool reported = false;
  std::set<std::string> seen;
  ImportWithEachFailure(Blocks(Block("B", LineAt("1") + LineAt("2") + LineAt("3"))) +
                            Entities(insert + insert + LineAt("4")),
                        [&] {
                          seen.insert(Places());
                          // Whatever is missing is counted.
                          EXPECT_TRUE(Places() == "1231234" || Tally().withoutMemory > 0);
                          reported = reported || std::ranges::count(Records(), recordOfOne) == 1;
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
  EXPECT_TRUE(reported);
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
        const std::string got = names + " " + Places();
        EXPECT_TRUE(got == "0ab ab 14" || Tally().withoutMemory > 0) << got;
        seen.insert(got);
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
