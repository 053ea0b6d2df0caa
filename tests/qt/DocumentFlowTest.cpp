#include <gtest/gtest.h>

#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include "qt/Shell.h"
#include "resources/CommandIds.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

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
  DocumentController& Documents() { return Window().Document(); }
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
  EXPECT_FALSE(Start(Design("bad.xml", "<vessel>")));
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
  EXPECT_EQ(Documents().Name(), QStringLiteral("Untitled"));
  EXPECT_EQ(dialogs, 2);
}

TEST_F(DocumentFlow, YesSavesBeforeItGoesOn)
{
  const QString path = Design("boat.xml");
  ASSERT_TRUE(Start(path));
  shell->App().unitCode = 9002;
  Modify();
  Answer(QMessageBox::Yes);
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
    EXPECT_FALSE(Documents().Open(Path(name)));
  }
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(Groups(), 1U);
  EXPECT_EQ(Documents().Name(), QStringLiteral("boat.xml"));
}

TEST_F(DocumentFlow, WhatAMalformedFileLeavesIsNotSavedOverTheOldFile)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  EXPECT_FALSE(Documents().Open(Design("bad.xml", "<vessel>")));
  EXPECT_EQ(dialogs, 0);
  EXPECT_EQ(Documents().Name(), QStringLiteral("Untitled"));
  WhenAsked<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(Documents().Save());
  EXPECT_EQ(folder.Read("boat.xml"), oneLine);
}

TEST_F(DocumentFlow, SavingAnUntitledDesignAsksForANameAndAddsTheSuffix)
{
  ASSERT_TRUE(Start());
  Modify();
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) {
    dialog.selectFile(Path("new boat"));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_TRUE(Documents().Save());
  EXPECT_TRUE(
      folder.Read("new boat.xml").starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"));
  EXPECT_EQ(Documents().Name(), QStringLiteral("new boat.xml"));
  EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(DocumentFlow, ATargetThatCannotBeWrittenIsToldAndNothingIsLost)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  std::filesystem::remove(folder.Path() / "boat.xml");
  std::filesystem::create_directory(folder.Path() / "boat.xml");
  WhenAsked<QMessageBox>([this](QMessageBox& box) {
    lastQuestion = box.text();
    WhenAsked<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    box.accept();
  });
  EXPECT_FALSE(Documents().Save());
  EXPECT_EQ(lastQuestion, QStringLiteral("Error writing config file!!!"));
  EXPECT_EQ(dialogs, 2);
  Documents().onChange();
  EXPECT_TRUE(Window().isWindowModified());
  EXPECT_EQ(Groups(), 1U);
}

TEST_F(DocumentFlow, AFullDiskIsToldAndTheDesignStaysModified)
{
  ASSERT_TRUE(Start(Design("boat.xml")));
  Modify();
  std::filesystem::remove(folder.Path() / "boat.xml");
  std::filesystem::create_symlink("/dev/full", folder.Path() / "boat.xml");
  Answer(QMessageBox::Ok);
  EXPECT_FALSE(Documents().Save());
  EXPECT_EQ(lastQuestion, QStringLiteral("Error writing config file!!!"));
  Documents().onChange();
  EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(DocumentFlow, KeepsTheFourFilesOpenedLast)
{
  ASSERT_TRUE(Start());
  for (const char* name : {"a.xml", "b.xml", "c.xml", "d.xml", "e.xml", "c.xml"}) {
    Documents().Open(Design(name));
  }
  const QStringList wanted = {Path("c.xml"), Path("e.xml"), Path("d.xml"), Path("b.xml")};
  EXPECT_EQ(Documents().RecentFiles(), wanted);
  std::filesystem::remove(folder.Path() / "e.xml");
  Answer(QMessageBox::Ok);
  Documents().Open(Path("e.xml"));
  EXPECT_FALSE(Documents().RecentFiles().contains(Path("e.xml")));
}

TEST_F(DocumentFlow, TheListOfFilesSurvivesARestart)
{
  ASSERT_TRUE(Start());
  Documents().Open(Design("a.xml"));
  Window().close();
  ASSERT_TRUE(Start());
  EXPECT_EQ(Documents().RecentFiles(), QStringList{Path("a.xml")});
}

TEST_F(DocumentFlow, ADroppedFileOpens)
{
  ASSERT_TRUE(Start());
  QMimeData data;
  data.setUrls(
      {QUrl(QStringLiteral("https://example.org/x.xml")), QUrl::fromLocalFile(Design("a.xml"))});
  QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::ShiftModifier);
  QApplication::sendEvent(&Window(), &enter);
  QDropEvent drop(QPointF(100, 100), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                  Qt::ShiftModifier);
  QApplication::sendEvent(&Window(), &drop);
  EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
  QApplication::processEvents();
  EXPECT_EQ(Groups(), 1U);
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

}  // namespace
}  // namespace hullwright
