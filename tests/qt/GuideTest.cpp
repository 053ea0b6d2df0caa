#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextTable>

#include "file/SaxParser.h"
#include "qt/Icons.h"
#include "qt/TemplateDialog.h"
#include "support/DeskFixture.h"
#include "system/LibraryVersions.h"

namespace hullwright {
namespace {

class Guide : public test::DeskFixture {
protected:
  Guide()
  {
    Window().activateWindow();
    QApplication::processEvents();
  }

  /// The guide's window, as the key opens it.
  GuideWindow* Open()
  {
    QTest::keyClick(&View(), Qt::Key_F1);
    QApplication::processEvents();
    return Window().findChild<GuideWindow*>();
  }

  /// The targets of a page's links, and the pictures that it shows.
  static QStringList Targets(const QTextBrowser& page, bool pictures)
  {
    QStringList targets;
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        if (pictures && format.isImageFormat()) targets.append(format.toImageFormat().name());
        if (!pictures && format.isAnchor()) targets.append(format.anchorHref());
      }
    }
    targets.removeDuplicates();
    return targets;
  }

  /// Every page that links lead to, from the contents on.
  static QStringList AllPages(GuidePage& page)
  {
    QStringList pages = {page.source().toLocalFile()};
    for (qsizetype i = 0; i < pages.size(); ++i) {
      page.setSource(QUrl::fromLocalFile(pages.at(i)));
      for (const QString& link : Targets(page, false)) {
        const QUrl target = page.source().resolved(QUrl(link));
        Q_EMIT page.anchorClicked(QUrl(link));
        EXPECT_EQ(page.source(), target) << link.toStdString();
        if (!pages.contains(target.toLocalFile())) pages.append(target.toLocalFile());
        page.setSource(QUrl::fromLocalFile(pages.at(i)));
      }
    }
    return pages;
  }
};

TEST_F(Guide, HelpStandsBehindAboutAndHasTheKeyF1)
{
  const QList<QAction*> entries = Window().menuBar()->actions().constLast()->menu()->actions();
  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries.at(0)->text(), QStringLiteral("&About Sondaris..."));
  EXPECT_EQ(entries.at(1)->text(), QStringLiteral("&Help"));
  EXPECT_EQ(entries.at(1)->shortcut(), QKeySequence(Qt::Key_F1));
  EXPECT_FALSE(entries.at(1)->icon().isNull());
  EXPECT_EQ(entries.at(1)->statusTip(), QStringLiteral("Read the guide"));
}

TEST_F(Guide, TheTablesOfAPageHaveRoomAndOneLineBetweenTheirCells)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  const auto frames = window->findChild<GuidePage*>()->document()->rootFrame()->childFrames();
  ASSERT_FALSE(frames.isEmpty());
  for (QTextFrame* const frame : frames) {
    const auto* const table = qobject_cast<QTextTable*>(frame);
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->format().borderCollapse());
    EXPECT_EQ(table->format().cellPadding(), 4.0);
  }
}

TEST_F(Guide, TheImageOfItsEntryFollowsTheLook)
{
  const QAction& entry = *Window().menuBar()->actions().constLast()->menu()->actions().constLast();
  Window().RunCommand(CommandOf(Look::Black));
  QApplication::processEvents();
  EXPECT_EQ(entry.icon().pixmap(16).toImage(),
            ThemedIcon("help", QApplication::palette()).pixmap(16).toImage());
  Window().RunCommand(CommandOf(Look::VisualStudio2008));
}

TEST_F(Guide, IsNotMadeBeforeItIsAskedForAndOpensOnce)
{
  EXPECT_EQ(Window().findChild<GuideWindow*>(), nullptr);
  const GuideWindow* const first = Open();
  ASSERT_NE(first, nullptr);
  EXPECT_TRUE(first->isVisible());
  EXPECT_EQ(first->windowTitle(), QStringLiteral("Guide"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(Open(), first);
}

/// Counts how often a window is brought to the front of those that it shares the screen with.
class RaiseCounter : public QObject {
public:
  explicit RaiseCounter(QWidget& window) { window.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override
  {
    count += event->type() == QEvent::ZOrderChange ? 1 : 0;
    return false;
  }

  int count = 0;
};

TEST_F(Guide, ComesToTheFrontWhenItIsAskedForAgain)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  const RaiseCounter raises(*window);
  Window().activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(raises.count, 0);
  Open();
  EXPECT_EQ(raises.count, 1);
}

TEST_F(Guide, EveryLinkOpensAPageAndEveryPictureIsThere)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  auto& page = *window->findChild<GuidePage*>();
  EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("Hullwright: the guide")));
  int pictures = 0;
  const QStringList pages = AllPages(page);
  EXPECT_GE(pages.size(), 11);
  for (const QString& file : pages) {
    page.setSource(QUrl::fromLocalFile(file));
    for (const QString& name : Targets(page, true)) {
      const auto picture =
          page.loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
      EXPECT_FALSE(picture.isNull()) << name.toStdString();
      EXPECT_LE(picture.width() / picture.devicePixelRatio(), page.viewport()->width());
      ++pictures;
    }
  }
  EXPECT_GT(pictures, 10);
}

TEST_F(Guide, ALinkThatLeavesTheDiskIsNotFollowed)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  auto& page = *window->findChild<GuidePage*>();
  const QUrl before = page.source();
  for (const char* link : {"https://host.invalid/page.md", "missing.md", "pictures/window.png"}) {
    Q_EMIT page.anchorClicked(QUrl(QLatin1String(link)));
    EXPECT_EQ(page.source(), before) << link;
  }
  EXPECT_FALSE(
      page.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("http://host.invalid/a")))
          .isValid());
}

TEST_F(Guide, IsReadByTheKeyboard)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  window->activateWindow();
  QApplication::processEvents();
  auto& page = *window->findChild<GuidePage*>();
  EXPECT_TRUE(page.hasFocus());
  const QUrl contents = page.source();
  QTest::keyClick(&page, Qt::Key_Tab);
  QTest::keyClick(&page, Qt::Key_Return);
  const QUrl first = page.source();
  EXPECT_NE(first, contents);
  // A button that its key presses is seen to go down before it acts.
  const auto leadsTo = [&page](Qt::Key key, const QUrl& target) {
    QTest::keyClick(&page, key, Qt::AltModifier);
    return QTest::qWaitFor([&] { return page.source() == target; });
  };
  EXPECT_TRUE(leadsTo(Qt::Key_Left, contents));
  EXPECT_TRUE(leadsTo(Qt::Key_Right, first));
  EXPECT_TRUE(leadsTo(Qt::Key_Home, contents));
  QTest::keyClick(&page, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(Guide, ItsButtonsStandSideBySideAboveThePage)
{
  GuideWindow* const window = Open();
  ASSERT_NE(window, nullptr);
  const auto buttons = window->findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 3);
  int right = 0;
  for (const QPushButton* const button : buttons) {
    EXPECT_GT(button->x(), right);
    EXPECT_LT(button->geometry().bottom(), window->findChild<GuidePage*>()->y());
    right = button->geometry().right();
  }
}

TEST_F(Guide, WhereItIsMissingAMessageNamesTheFile)
{
  Window().guideFolder = QString::fromStdString((folder.Path() / "none").string());
  Answer(QMessageBox::Ok);
  EXPECT_EQ(Open(), nullptr);
  EXPECT_EQ(lastQuestion,
            QStringLiteral("The guide is not installed: there is no file %1/README.md.")
                .arg(Window().guideFolder));
}

class About : public test::DeskFixture {
protected:
  /// Runs the about box with `act` on it.
  void Show(const std::function<void(TemplateDialog&)>& act)
  {
    WhenAsked<TemplateDialog>([act](TemplateDialog& dialog) {
      act(dialog);
      dialog.accept();
    });
    Window().RunCommand(CommandId::About);
    EXPECT_EQ(dialogs, 1);
  }

  static QLabel* LabelWith(const QDialog& dialog, const QString& text)
  {
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
      if (label->text().contains(text)) return label;
    }
    return nullptr;
  }
};

TEST_F(About, NamesTheLibrariesWithTheVersionsThatRun)
{
  ASSERT_FALSE(SqliteVersion().empty());
  Show([](const TemplateDialog& dialog) {
    const QString expected =
        QStringLiteral("Runs on Qt %1, Expat %2, SQLite %3.")
            .arg(QString::fromLatin1(qVersion()), QString::fromStdString(XmlLibraryVersion()),
                 QString::fromStdString(SqliteVersion()));
    const QLabel* const libraries = LabelWith(dialog, expected);
    ASSERT_NE(libraries, nullptr) << expected.toStdString();
    EXPECT_EQ(libraries->textFormat(), Qt::PlainText);
    EXPECT_NE(LabelWith(dialog, QStringLiteral("MIT licence")), nullptr);
    EXPECT_NE(LabelWith(dialog, QStringLiteral(HULLWRIGHT_VERSION)), nullptr);
  });
}

TEST_F(About, TheNameStandsBesideTheIcon)
{
  Show([](const TemplateDialog& dialog) {
    const QLabel* icon = nullptr;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      if (!label->pixmap().isNull()) icon = label;
    }
    const QLabel* const name = LabelWith(dialog, QStringLiteral("<b>Hullwright</b>"));
    ASSERT_TRUE(icon != nullptr && name != nullptr);
    EXPECT_EQ(icon->width(), 64);
    EXPECT_GT(name->x(), icon->geometry().right());
    EXPECT_LE(name->x() - icon->geometry().right(), 16);
  });
}

}  // namespace
}  // namespace hullwright
