#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <set>

#include "qt/QtText.h"
#include "qt/Shell.h"
#include "resources/CommandIds.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* oneLine =
    "<vessel><shapes view='01'><polyline><vertex x='1'/><vertex "
    "x='2'/></polyline></shapes></vessel>";

class DocumentFlow : public test::ShellFixture {
protected:
  DocumentFlow() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  /// Starts the program as the command line would.
  bool Start(const QString& file = {})
  {
    shell = std::make_unique<Shell>(file);
    return shell->App().InitInstance(*shell);
  }

  QString Design(const char* name, const char* text = oneLine) const
  {
    folder.Write(name, text);
    return Path(name);
  }
  QString Path(const char* name) const
  {
    return QString::fromStdString((folder.Path() / name).string());
  }

  MainWindow& Window() { return *shell->Window(); }
  DocumentLife& Documents() { return Window().Document(); }
  bool Open(const QString& path) { return Documents().Open(ToWide(path)); }
  QString Prompt() { return Window().findChild<PromptPane*>()->Text(); }

  /// Drops files on the window, which are offered to be moved; the action that was taken.
  Qt::DropAction Drop(const QList<QUrl>& urls)
  {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::ShiftModifier);
    QApplication::sendEvent(&Window(), &enter);
    QDropEvent drop(QPointF(100, 100), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                    Qt::ShiftModifier);
    QApplication::sendEvent(&Window(), &drop);
    QApplication::processEvents();
    return drop.dropAction();
  }

  /// The former versions that are kept, the oldest first, as their bytes.
  std::vector<std::string> FormerVersions() const
  {
    std::set<std::string> names;
    const auto state = folder.Path() / "state" / "hullwright";
    if (std::filesystem::exists(state)) {
      for (const auto& copy : std::filesystem::directory_iterator(state)) {
        names.insert("state/hullwright/" + copy.path().filename().string());
      }
    }
    std::vector<std::string> texts;
    for (const std::string& name : names) texts.push_back(folder.Read(name));
    return texts;
  }
  void Modify() { shell->App().SetModifiedFlag(true); }
  std::size_t Groups() { return shell->App().shapeGroups.size(); }

  std::unique_ptr<Shell> shell;
};

TEST_F(DocumentFlow, StartsWithAnUntitledDesign)
{
  ASSERT_TRUE(Start());
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Untitled[*] - Hullwright"));
  EXPECT_FALSE(Window().isWindowModified());
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(DocumentFlow, AStartWithoutADesignShowsTheTreeOfANewOne)
{
  ASSERT_TRUE(Start());
  const auto& tree = *Window().findChild<ObjectTreeWidget*>();
  const QAbstractItemModel& model = *tree.model();
  ASSERT_EQ(model.rowCount(), 2);
  const QModelIndex design = model.index(0, 0);
  EXPECT_EQ(design.data().toString(), QStringLiteral("Vessel Design"));
  EXPECT_EQ(model.rowCount(design), 7);
  EXPECT_TRUE(tree.isExpanded(design));
  EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("Anchors"));
  EXPECT_EQ(model.rowCount(model.index(1, 0)), 0);
}

TEST_F(DocumentFlow, OpensTheFileOfTheCommandLineOnTheTopSide)
{
  ASSERT_TRUE(Start(Design("Schiff \xC3\x84 \xF0\x9F\x9A\xA2.xml")));
  EXPECT_EQ(Groups(), 1U);
  EXPECT_EQ(shell->App().activeView, ViewSide::Top);
  EXPECT_TRUE(
      Window().windowTitle().startsWith(QString::fromUtf8("Schiff \xC3\x84 \xF0\x9F\x9A\xA2")));
}

TEST_F(DocumentFlow, AFileThatIsMissingOrNoDesignEndsTheStart)
{
  Answer(QMessageBox::Ok);
  EXPECT_FALSE(Start(Path("missing.xml")));
  EXPECT_EQ(dialogs, 1);
  EXPECT_TRUE(lastQuestion.contains(Path("missing.xml")));
  testing::internal::CaptureStderr();
  EXPECT_FALSE(Start(Design("bad.xml", "<vessel>")));
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              HasSubstr("hullwright: cannot open the design '" + Path("bad.xml").toStdString() +
                        "': line 1, column 9: no element found\n"));
  EXPECT_EQ(dialogs, 1);
}

TEST_F(DocumentFlow, TheTitleShowsNameAndModification)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  Documents().onChange();
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("boat.xml[*] - Hullwright"));
  EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(DocumentFlow, NewAsksForAModifiedDesignAndCancelKeepsIt)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  Answer(QMessageBox::Cancel);
  Documents().New();
  EXPECT_EQ(lastQuestion, QStringLiteral("Save changes to boat.xml?"));
  EXPECT_EQ(Groups(), 1U);
  Answer(QMessageBox::No);
  Documents().New();
  EXPECT_EQ(Groups(), 0U);
  EXPECT_EQ(Documents().Name(), u"Untitled");
  EXPECT_EQ(dialogs, 2);
}

TEST_F(DocumentFlow, YesSavesBeforeItGoesOn)
{
  const QString path = Design("boat.xml");
  ASSERT_TRUE(Start(path));
  shell->App().unitCode = UnitCode{9002};
  Modify();
  Answer(QMessageBox::Yes);
  Documents().New();
  EXPECT_NE(folder.Read("boat.xml").find("9002"), std::string::npos);
  EXPECT_EQ(Groups(), 0U);
}

TEST_F(DocumentFlow, TheReturnKeyAnswersTheQuestionWithYes)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  shell->App().unitCode = UnitCode{9002};
  Modify();
  WhenAsked<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  Documents().New();
  EXPECT_NE(folder.Read("boat.xml").find("9002"), std::string::npos);
  EXPECT_EQ(Groups(), 0U);
}

TEST_F(DocumentFlow, AnUnmodifiedDesignIsLeftWithoutAQuestion)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Documents().New();
  EXPECT_TRUE(Window().close());
  EXPECT_EQ(dialogs, 0);
}

TEST_F(DocumentFlow, CancelKeepsTheWindowOpen)
{
  ASSERT_TRUE(Start());
  Modify();
  Answer(QMessageBox::Cancel);
  EXPECT_FALSE(Window().close());
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(DocumentFlow, AFileThatCannotBeOpenedKeepsTheDesignAndItsName)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  for (const char* name : {"missing.xml", ""}) {
    Answer(QMessageBox::Ok);
    EXPECT_FALSE(Open(Path(name)));
  }
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(Groups(), 1U);
  EXPECT_EQ(Documents().Name(), u"boat.xml");
}

TEST_F(DocumentFlow, WhatAMalformedFileLeavesIsNotSavedOverTheOldFile)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  EXPECT_FALSE(Open(Design("bad.xml", "<vessel>")));
  EXPECT_EQ(dialogs, 0);
  EXPECT_EQ(Documents().Name(), u"Untitled");
  WhenAsked<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(Documents().Save());
  EXPECT_EQ(folder.Read("boat.xml"), oneLine);
}

TEST_F(DocumentFlow, SavingAnUntitledDesignAsksForANameAndAddsTheSuffix)
{
  ASSERT_TRUE(Start());
  Modify();
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.nameFilters(), (QStringList{QStringLiteral("Hullwright Files(*.xml)"),
                                                 QStringLiteral("All Files(*)")}));
    dialog.selectFile(Path("new boat"));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_TRUE(Documents().Save());
  EXPECT_TRUE(
      folder.Read("new boat.xml").starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"));
  EXPECT_EQ(Documents().Name(), u"new boat.xml");
  EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(DocumentFlow, ATargetThatIsGoneIsReportedInTheStatusBarAndStillAskedFor)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  std::filesystem::remove(folder.Path() / "boat.xml");
  std::filesystem::create_directory(folder.Path() / "boat.xml");
  Window().RunCommand(CommandId::FileSave);
  EXPECT_EQ(dialogs, 0);
  EXPECT_EQ(Prompt(), QStringLiteral("Nothing was saved to \"boat.xml\": Is a directory."));
  // The flag is the document's, which counts a failed save as one; the changes are asked for all
  // the same.
  EXPECT_FALSE(Window().isWindowModified());
  Answer(QMessageBox::No);
  EXPECT_TRUE(Window().close());
  EXPECT_EQ(lastQuestion, QStringLiteral("Save changes to boat.xml?"));
}

TEST_F(DocumentFlow, AFullDiskIsReportedOnceAndTheSaveThatWasAskedForKeepsTheWindowOpen)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  std::filesystem::remove(folder.Path() / "boat.xml");
  std::filesystem::create_symlink("/dev/full", folder.Path() / "boat.xml");
  WhenAsked<QMessageBox>([this](QMessageBox& question) {
    Answer(QMessageBox::Ok);
    question.button(QMessageBox::Yes)->click();
  });
  EXPECT_FALSE(Window().close());
  EXPECT_EQ(lastQuestion, QStringLiteral("Error writing config file!!!"));
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(Prompt(),
            QStringLiteral("Nothing was saved to \"boat.xml\": No space left on device."));
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(DocumentFlow, ASaveKeepsWhatTheFileHeldBefore)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Window().RunCommand(CommandId::FileSave);
  EXPECT_THAT(FormerVersions(), ElementsAre(oneLine));
  EXPECT_NE(folder.Read("boat.xml"), oneLine);
}

TEST_F(DocumentFlow, AnOutlineThatWasDrawnIsAskedForThoughTheDesignIsNotModified)
{
  ASSERT_TRUE(Start());
  Window().RunCommand(CommandId::DrawPolyline);
  EXPECT_EQ(Prompt(),
            QStringLiteral("Left click adds a vertex, right click ends the polyline: 0 so far"));
  auto* const design = Window().findChild<DesignWidget*>();
  QTest::mouseMove(design, QPoint(100, 100));
  QTest::mouseClick(design, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
  EXPECT_TRUE(Prompt().endsWith(QStringLiteral("1 so far")));
  Answer(QMessageBox::Cancel);
  EXPECT_FALSE(Window().close());  // the polyline is not in the design yet
  Window().ShowNote(u"something else");
  EXPECT_EQ(Prompt(), QStringLiteral("something else"));
  QTest::mouseMove(design, QPoint(150, 100));
  EXPECT_EQ(Prompt(), QStringLiteral("something else"));
  QTest::mouseClick(design, Qt::LeftButton, Qt::NoModifier, QPoint(150, 100));
  EXPECT_TRUE(Prompt().endsWith(QStringLiteral("2 so far")));
  QTest::mouseClick(design, Qt::RightButton, Qt::NoModifier, QPoint(100, 100));
  EXPECT_EQ(Prompt(), QStringLiteral("Ready"));
  EXPECT_FALSE(Window().isWindowModified());
  Answer(QMessageBox::Cancel);
  EXPECT_FALSE(Window().close());
  EXPECT_EQ(lastQuestion, QStringLiteral("Save changes to Untitled?"));
}

TEST_F(DocumentFlow, AFileThatIsNoDesignIsReportedWithLineAndColumn)
{
  ASSERT_TRUE(Start());
  EXPECT_FALSE(Open(Design("bad.xml", "<vessel>\n<shapes>\n</vessel>")));
  EXPECT_EQ(dialogs, 0);
  EXPECT_EQ(Prompt(),
            QStringLiteral("\"bad.xml\" was not opened: line 3, column 3: mismatched tag"));
}

TEST_F(DocumentFlow, KeepsTheFourFilesOpenedLast)
{
  ASSERT_TRUE(Start());
  for (const char* name : {"a.xml", "b.xml", "c.xml", "d.xml", "e.xml", "c.xml"}) {
    Open(Design(name));
  }
  EXPECT_THAT(Documents().RecentFiles(), ElementsAre(folder.File("c.xml"), folder.File("e.xml"),
                                                     folder.File("d.xml"), folder.File("b.xml")));
  std::filesystem::remove(folder.Path() / "e.xml");
  Answer(QMessageBox::Ok);
  Open(Path("e.xml"));
  EXPECT_THAT(Documents().RecentFiles(), Not(Contains(folder.File("e.xml"))));
}

TEST_F(DocumentFlow, TheListOfFilesSurvivesARestart)
{
  ASSERT_TRUE(Start());
  Open(Design("a.xml"));
  Window().close();
  ASSERT_TRUE(Start());
  EXPECT_THAT(Documents().RecentFiles(), ElementsAre(folder.File("a.xml")));
}

TEST_F(DocumentFlow, ADroppedFileOpens)
{
  ASSERT_TRUE(Start());
  Window().ShowNote(u"of before");
  EXPECT_EQ(Drop({QUrl(QStringLiteral("https://example.org/x.xml")),
                  QUrl::fromLocalFile(Design("a.xml"))}),
            Qt::CopyAction);
  EXPECT_EQ(Groups(), 1U);
  EXPECT_EQ(Prompt(), QStringLiteral("Ready"));
}

TEST_F(DocumentFlow, OfSeveralDroppedFilesTheFirstOpensAndTheOthersAreNamed)
{
  ASSERT_TRUE(Start());
  Drop({QUrl::fromLocalFile(Design("a.xml")), QUrl::fromLocalFile(Design("b.xml")),
        QUrl::fromLocalFile(Design("c.xml"))});
  EXPECT_EQ(Documents().Name(), u"a.xml");
  EXPECT_EQ(Prompt(),
            QStringLiteral("One design is open at a time; not opened: \"b.xml\", \"c.xml\""));
}

TEST_F(DocumentFlow, ADropWithoutAFileIsRefused)
{
  ASSERT_TRUE(Start());
  QMimeData data;
  data.setText(QStringLiteral("text"));
  QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QApplication::sendEvent(&Window(), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST_F(DocumentFlow, MessagesAndTheQuestionForADrawingStandOverTheWindow)
{
  ASSERT_TRUE(Start());
  WhenAsked<QMessageBox>([this](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &Window());
    box.accept();
  });
  shell->App().ShowMessage(u"Note");
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.parentWidget(), &Window());
    dialog.reject();
  });
  Window().RunCommand(CommandId::ImportDxf);
  EXPECT_EQ(dialogs, 2);
}

}  // namespace
}  // namespace hullwright
