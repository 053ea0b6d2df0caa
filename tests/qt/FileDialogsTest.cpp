#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <string_view>

#include "qt/Icons.h"
#include "qt/QtFileDialogs.h"
#include "qt/QtText.h"
#include "resources/CommandIds.h"
#include "resources/Strings.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

/// The dialogs that ask for files, as the toolkit shows them.
class FileDialogs : public test::DeskFixture {
protected:
  FileDialogs() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  /// Types the path of a file of the test's folder and accepts it.
  void Enter(QFileDialog& dialog, const char* name)
  {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(ToQString(folder.File(name)));
    static_cast<QDialog&>(dialog).accept();
    EXPECT_FALSE(dialog.isVisible()) << name;
    if (dialog.isVisible()) dialog.reject();  // it would wait for ever
  }
};

TEST_F(FileDialogs, AnImportOffersDrawingsAndTheirEndingNeedNotBeTyped)
{
  QtSettingsStore settings;
  QtFileDialogs asker(settings);
  const auto answer = [&](const char* typed) {
    WhenAsked<QFileDialog>([this, typed](QFileDialog& dialog) {
      EXPECT_EQ(dialog.nameFilters(), (QStringList{QStringLiteral("AutoCad DXF Files (*.dxf)"),
                                                   QStringLiteral("All Files (*)")}));
      EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
      Enter(dialog, typed);
    });
    return asker.AskOpen(Strings::drawingExtension, Strings::drawingFilter);
  };
  const std::u16string drawing = folder.Write("hull.dxf", "");
  EXPECT_EQ(answer("hull.dxf"), drawing);
  EXPECT_EQ(answer("hull"), drawing);
  const std::u16string namesake = folder.Write("hull", "");
  EXPECT_EQ(answer("hull"), namesake);
}

TEST_F(FileDialogs, AnImportBeginsInTheFolderOfTheOneBefore)
{
  folder.Write("hull.dxf", "");
  QtSettingsStore settings;
  settings.Open(QStringLiteral("maker"), QStringLiteral("program"));
  QtFileDialogs asker(settings);
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir::current());
    Enter(dialog, "hull.dxf");
  });
  asker.AskOpen(Strings::drawingExtension, Strings::drawingFilter);
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory(), QDir(QString::fromStdString(folder.Path().string())));
    dialog.reject();
  });
  asker.AskOpen(Strings::drawingExtension, Strings::drawingFilter);
  EXPECT_EQ(dialogs, 2);
}

TEST_F(FileDialogs, TheButtonsForDesignsHaveTheProgramsImages)
{
  const auto expectImage = [this](CommandId command, QDialogButtonBox::StandardButton button,
                                  std::string_view icon) {
    WhenAsked<QFileDialog>([button, icon](QFileDialog& dialog) {
      const auto picture = [](const QIcon& of) { return of.pixmap(16, 16).toImage(); };
      EXPECT_EQ(picture(dialog.findChild<QDialogButtonBox*>()->button(button)->icon()),
                picture(ThemedIcon(icon, dialog.palette())))
          << icon;
      dialog.reject();
    });
    Window().RunCommand(command);
  };
  expectImage(CommandId::FileOpen, QDialogButtonBox::Open, "file-open");
  expectImage(CommandId::FileSaveAs, QDialogButtonBox::Save, "file-save");
  EXPECT_EQ(dialogs, 2);
}

TEST_F(FileDialogs, TheCursorWaitsWhileTheDesignThatWasChosenIsRead)
{
  folder.Write("feet.xml", "<vessel><units id='9002'/></vessel>");
  WhenAsked<QFileDialog>([this](QFileDialog& dialog) { Enter(dialog, "feet.xml"); });
  Window().RunCommand(CommandId::FileOpen);
  EXPECT_EQ(Window().Document().Name(), u"feet.xml");
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace hullwright
