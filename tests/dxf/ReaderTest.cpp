#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string aLine = Entity("LINE", {{8, "Hull"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}});

class Reader : public DxfFixture {};

// ---------------------------------------------------------------------------------------------------
// The file

TEST_F(Reader, ALayerIsNeeded)
{
  file = std::make_unique<CFileDxf>(&window, log);
  EXPECT_EQ(file->Import(folder.Write("a.dxf", aLine), nullptr), -1);
  EXPECT_THAT(Records(), IsEmpty());
}

TEST_F(Reader, AFileThatIsMissingOrEmptyIsReportedInTheLogOnly)
{
  CLayer target;
  for (const auto& path : {folder.File("missing.dxf"), folder.Write("empty.dxf", "")}) {
    log.records.clear();
    CFileDxf reader(&window, log);
    EXPECT_EQ(reader.Import(path, &target), -1);
    EXPECT_THAT(
        Records(),
        ElementsAre("1 General: [DXF] Failed to open AutoCAD DXF file. Either the file does "
                    "not exist, or it is empty: [" +
                    Utf8FromWide(path) + "]."));
  }
  EXPECT_THAT(window.list, IsEmpty());
}

TEST_F(Reader, TheLogRecordsEveryStep)
{
  ASSERT_EQ(Import(LayerTable(LayerRecord("Hull", 1, 0)) + Blocks(Block("B", aLine)) +
                   Entities(aLine + aLine) + endOfFile),
            0);
  const std::string path = Utf8FromWide(folder.File("drawing.dxf"));
  EXPECT_THAT(
      Records(),
      ElementsAre("32 Processing: [DXF] Successfully opened file: [" + path + "].",
                  "4 Processing: [DXF] Processing file...",
                  "4 Processing: [DXF] Processing 'TABLES' section...",
                  "32 Processing: [DXF] 'TABLES' section processed, found 1 DXF layers.",
                  "4 Processing: [DXF] Processing 'BLOCKS' section...",
                  "32 Processing: [DXF] 'BLOCKS' section processed, cached 1 blocks.",
                  "4 Processing: [DXF] Processing 'ENTITIES' section...",
                  "32 Processing: [DXF] 'ENTITIES' section processed, added 2 map features to map "
                  "layer.",
                  "4 Processing: [DXF] Detected drawing extends: [1.000,2.000,3.000,4.000].",
                  "32 General: Successfully loaded the selected AutoCAD DXF file: [ " + path +
                      "]. Please see the 'Processing' tab for details."));
}

TEST_F(Reader, TheLogSaysNothingOfWhatIsLeftOut)
{
  std::string entities = Entity("LINE", {{67, "1"}}) + Entity("INSERT", {{2, "unknown"}}) +
                         Entity("ATTRIB", {{70, "1"}}) + Entity("SPLINE") + Entity("3DSOLID");
  for (const char* keyword : {"LINE", "TEXT", "INSERT", "LWPOLYLINE", "POLYLINE"}) {
    entities += Entity(keyword, {{8, "off"}});
  }
  ASSERT_EQ(Import(LayerTable(LayerRecord("Hull", 1, 0) + LayerRecord("Hull", 3, 0) +
                              LayerRecord("", 1, 0) + LayerRecord("off", -1, 0)) +
                   Blocks(Block("B", aLine) + Block("B", aLine + aLine) +
                          Entity("BLOCK", {{67, "1"}, {2, "sheet"}}) + aLine + Entity("ENDBLK")) +
                   Entities(entities + aLine)),
            0);
  EXPECT_THAT(Records(),
              ElementsAre(HasSubstr("Successfully opened"), HasSubstr("Processing file"),
                          HasSubstr("Processing 'TABLES'"), HasSubstr("found 2 DXF layers"),
                          HasSubstr("Processing 'BLOCKS'"), HasSubstr("cached 1 blocks"),
                          HasSubstr("Processing 'ENTITIES'"), HasSubstr("added 1 map features"),
                          HasSubstr("drawing extends"), HasSubstr("Successfully loaded")));
}

TEST_F(Reader, AFileThatIsNoDrawingGivesNothingAndSucceeds)
{
  EXPECT_EQ(Import("a letter\nto nobody\n"), 0);
  EXPECT_EQ(ShapeCount(), 0U);
  EXPECT_THAT(Records().at(2),
              EndsWith("extends: [999999999999999983222784.000,999999999999999983222784.000,"
                       "-999999999999999983222784.000,-999999999999999983222784.000]."));
}

TEST_F(Reader, WithoutAWindowTheFileIsOpenedAndNotWalked)
{
  window.hasWindow = false;
  EXPECT_EQ(Import(Entities(aLine)), -1);
  EXPECT_THAT(Records(), ElementsAre(HasSubstr("Successfully opened")));
  EXPECT_THAT(window.list, IsEmpty());
  CLayer target;
  CFileDxf reader(nullptr, log);
  EXPECT_EQ(reader.Import(folder.Write("a.dxf", Entities(aLine)), &target), -1);
}

/// A window that has gone once it has shown some progress.
class WindowThatGoes : public RecordedNotifications {
public:
  void ShowProgress(int) override { hasWindow = false; }
};

TEST_F(Reader, AWindowThatGoesInFrontOfTheEntitiesEndsTheImport)
{
  WindowThatGoes going;
  CLayer target;
  CFileDxf reader(&going, log);
  const std::string text = Section("HEADER", Lines({{9, "$ACADVER"}})) + Entities(aLine);
  EXPECT_EQ(reader.Import(folder.Write("a.dxf", text), &target), 0);
  EXPECT_FALSE(going.hasWindow);
  EXPECT_THAT(target.shapes->shapes, IsEmpty());
  EXPECT_THAT(Records(), Not(Contains(HasSubstr("'ENTITIES'"))));
  EXPECT_EQ(going.list.back(), "end");
}

TEST_F(Reader, WithoutAGroupTheFileIsNotWalked)
{
  CLayer target;
  target.shapes.reset();
  CFileDxf reader(&window, log);
  EXPECT_EQ(reader.Import(folder.Write("a.dxf", Entities(aLine)), &target), -1);
  EXPECT_THAT(Records(), ElementsAre(HasSubstr("Successfully opened")));
  EXPECT_THAT(window.list, IsEmpty());
}

// ---------------------------------------------------------------------------------------------------
// Sections

TEST_F(Reader, AFileOfEntitiesAloneIsEnough)
{
  ImportEntities(aLine);
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, TheEndOfFileLineMayBeMissing)
{
  ASSERT_EQ(Import(Entities(aLine) + endOfFile), 0);
  const auto with = VerticesOf(0);
  ASSERT_EQ(Import(Entities(aLine)), 0);
  EXPECT_EQ(VerticesOf(0), with);
}

TEST_F(Reader, AnEndOfFileLineBetweenSectionsEndsTheImport)
{
  Import(Entities(aLine) + endOfFile + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 1U);
  Import("EOF \n" + Entities(aLine));  // with a blank it is just a line
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, AnEndOfFileLineInsideASectionHasNoEffect)
{
  ImportEntities(aLine + "0\nEOF\n" + aLine);
  EXPECT_EQ(ShapeCount(), 2U);
}

TEST_F(Reader, SectionsComeAsOftenAsTheyAppear)
{
  Import(Entities(aLine) + Section("HEADER", Lines({{9, "$ACADVER"}})) + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 2U);
}

TEST_F(Reader, OtherSectionsAreWalkedPast)
{
  Import(Section("OBJECTS", aLine) + Section("CLASSES", aLine) + Section("HEADER", aLine));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Reader, AnyLineWithTheWordEndsASectionThatIsWalkedPast)
{
  Import("0\nSECTION\n2\nHEADER\n9\nxENDSECx\n" + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, EachSectionOfEntitiesReportsAllTheShapesSoFar)
{
  Import(Entities(aLine) + Entities(aLine + aLine));
  EXPECT_THAT(Records(), Contains(HasSubstr("added 1 map features")));
  EXPECT_THAT(Records(), Contains(HasSubstr("added 3 map features")));
}

TEST_F(Reader, ARecordThatIsNotImportedHasItsApplicationDataReadAsPairs)
{
  ImportEntities(Entity("SPLINE", {{102, "{A"}}) + Entity("LINE", {{10, "1"}, {102, "}"}}));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, NamesOfSectionsAreFoundInsideALine)
{
  Import("xSECTIONx\nany\n(ENTITIES)\n" + aLine + "0\nENDSEC\n");
  EXPECT_EQ(ShapeCount(), 1U);
  // The first name that is found counts.
  Import("SECTION\n2\nBLOCKS TABLES ENTITIES\n" + aLine + "0\nENDSEC\n");
  EXPECT_EQ(ShapeCount(), 1U);
  Import("SECTION\n2\nBLOCKS TABLES\n0\nLAYER\n2\nA\n0\nENDSEC\n");
  EXPECT_EQ(Layers().size(), 1U);
  Import("SECTION\n2\n(BLOCKS)\n0\nBLOCK\n2\nB\n0\nENDBLK\n0\nENDSEC\n");
  EXPECT_TRUE(file->Drawing().blocks.contains("B"));
}

TEST_F(Reader, ACommentWithTheWordStartsASection)
{
  Import("999\nnothing here\n" + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 1U);
  // The two lines behind it are taken for code and name, so the true section is passed over.
  Import("999\nthe first SECTION\n" + Entities(aLine) + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, TheEndOfTheTextInASectionsNameEndsTheImport)
{
  Import("0\nSECTION\n2\nENTITIES");
  EXPECT_THAT(Records(), Not(Contains(HasSubstr("'ENTITIES'"))));
  Import("0\nSECTION\n2");
  EXPECT_TRUE(ProgressHasEnded());
}

TEST_F(Reader, ATooLongLineBetweenSectionsEndsTheImport)
{
  Import("999\n" + std::string(511, 'x') + "\n" + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 1U);
  Import("999\n" + std::string(512, 'x') + "\n" + Entities(aLine));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Reader, ATooLongLineInASkippedSectionEndsThatSection)
{
  // What follows the long line is then read as what stands between sections.
  const std::string hidden = "0\nSECTION\n2\nENTITIES\n" + aLine + "0\nENDSEC\n";
  Import("0\nSECTION\n2\nHEADER\n" + std::string(255, 'x') + "\n" + hidden);
  EXPECT_EQ(ShapeCount(), 0U);
  Import("0\nSECTION\n2\nHEADER\n" + std::string(256, 'x') + "\n" + hidden);
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Reader, ATooLongLineAmongEntitiesEndsTheirSection)
{
  ImportEntities(aLine + "0\nOTHER\n" + std::string(255, 'x') + "\n" + aLine);
  EXPECT_EQ(ShapeCount(), 2U);
  ImportEntities(aLine + "0\nOTHER\n" + std::string(256, 'x') + "\n" + aLine);
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_THAT(Records(), Contains(HasSubstr("added 1 map features")));
}

TEST_F(Reader, TheLastLineIsNotSeenWithoutItsEnd)
{
  // The last value falls away with its line, but the buffer still holds the one before, over which
  // the part was copied.
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n15\n20\n2");
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(VerticesOf(0).at(0), (std::vector<double>{15.0, 25.0, 0.0}));
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE");
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Reader, TruncatedInputKeepsWhatWasComplete)
{
  const std::string whole = Entities(aLine + aLine);
  const std::string keyword = "LINE\n";
  const std::size_t first = whole.find(keyword) + keyword.size();
  const std::size_t second = whole.rfind(keyword) + keyword.size();
  for (std::size_t length = 1; length <= whole.size(); ++length) {
    Import(whole.substr(0, length));
    // Behind its keyword an entity is finished with what it has.
    EXPECT_EQ(ShapeCount(), (length >= first ? 1U : 0U) + (length >= second ? 1U : 0U)) << length;
    EXPECT_TRUE(ProgressHasEnded());
  }
}

TEST_F(Reader, AnUnfinishedEntityIsFinishedWithWhatItHas)
{
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n7\n");
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(VerticesOf(0).at(0).at(0), 7.0);
}

TEST_F(Reader, AValueThatIsTooLongStillCounts)
{
  // Its first 512 bytes count, the rest of the line is read as a code.
  const std::string text(520, 'a');
  ImportEntities(Entity("TEXT") + "1\n" + text + "\n" + aLine);
  EXPECT_EQ(At<CShapeText>(0).text.size(), 512U);
  EXPECT_EQ(ShapeCount(), 2U);
  ImportEntities(Entity("TEXT") + "1\n" + text.substr(0, 511) + "\n" + aLine);
  EXPECT_EQ(At<CShapeText>(0).text.size(), 511U);
}

TEST_F(Reader, ACodeThatIsNoNumberEndsTheRecord)
{
  ImportEntities(Entity("LINE", {{10, "1"}}) + "abc\n20\n5\n" + aLine);
  ASSERT_EQ(ShapeCount(), 2U);
  EXPECT_EQ(VerticesOf(0).at(0), (std::vector<double>{1.0, 0.0, 0.0}));
}

TEST_F(Reader, NumbersAreReadLeniently)
{
  ImportEntities(" 0\nLINE\n  10\n 1.5abc\n+20\n-2,5\n30x\n1e2\n11\nabc\n 21 \n.5\n31\n\n");
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_THAT(VerticesOf(0),
              ElementsAre(ElementsAre(1.5, -2.0, 100.0), ElementsAre(0.0, 0.5, 0.0)));
}

TEST_F(Reader, ApplicationDataIsReadPastWithoutPairs)
{
  ImportEntities(Entity("LINE") + "102\n{ACAD_REACTORS\n330\n10\n0\nnot a pair\n102\n}\n10\n3\n");
  EXPECT_EQ(VerticesOf(0).at(0).at(0), 3.0);
}

TEST_F(Reader, ApplicationDataEndsAtAnyLineWithABraceOrALineTooLong)
{
  ImportEntities(Entity("LINE") + "102\n{A\nx}x\n10\n3\n");
  EXPECT_EQ(VerticesOf(0).at(0).at(0), 3.0);
  ImportEntities(Entity("LINE") + "102\n{A\n" + std::string(256, 'x') + "\n10\n4\n");
  EXPECT_EQ(VerticesOf(0).at(0).at(0), 0.0);  // the empty rest of that line ends the record
}

TEST_F(Reader, ApplicationDataBeginsWhateverItsValue)
{
  for (const char* value : {"}", "X", ""}) {
    ImportEntities(Entity("LINE", {{102, value}}) + "10\n1\n}\n10\n3\n");
    EXPECT_EQ(VerticesOf(0).at(0).at(0), 3.0) << value;
  }
}

}  // namespace
}  // namespace hullwright
