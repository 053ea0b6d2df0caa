#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>

#include "cli/Picture.h"
#include "qt/Shell.h"
#include "resources/ViewSides.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

/// Number of pixels of which a channel differs by more than the antialiasing may.
int DifferentPixels(const QImage& a, const QImage& b)
{
  constexpr int tolerance = 8;
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      if (std::abs(qRed(p) - qRed(q)) > tolerance || std::abs(qGreen(p) - qGreen(q)) > tolerance ||
          std::abs(qBlue(p) - qBlue(q)) > tolerance) {
        ++count;
      }
    }
  }
  return count;
}

class SamePicture : public test::ShellFixture, public testing::WithParamInterface<const char*> {};

TEST_P(SamePicture, TheCommandLineDrawsWhatTheWindowShows)
{
  const std::string design = std::string(HULLWRIGHT_SAMPLES "/") + GetParam();
  Shell shell(QString::fromStdString(design));
  ASSERT_TRUE(shell.App().InitInstance(shell));
  shell.Window()->resize(1000, 700);
  QApplication::processEvents();
  auto& widget = *shell.Window()->findChild<DesignWidget*>();
  widget.clearFocus();  // its mark lies over the picture
  const QCoreApplication* const toolkit = QCoreApplication::instance();
  for (const ViewSideEntry& side : viewSides) {
    shell.App().SetViewSide(side.code);
    const QImage window = widget.grab().toImage();
    const CViewPort& view = *shell.App().viewPort;
    PictureRequest request;
    request.input = design;
    request.output = (folder.Path() / "picture.png").string();
    request.sides = {side};
    request.width = widget.width();
    request.height = widget.height();
    request.stretch = Extents{view.left, view.bottom, view.right, view.top};
    bool isIncomplete = true;
    ASSERT_EQ(WritePictures(request, isIncomplete), "");
    EXPECT_FALSE(isIncomplete);
    EXPECT_EQ(QCoreApplication::instance(), toolkit);  // no second one is made beside it
    const QImage picture(QString::fromStdString(request.output));
    ASSERT_EQ(picture.size(), window.size()) << side.name;
    EXPECT_LE(DifferentPixels(window, picture), picture.width() * picture.height() / 10000)
        << side.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, SamePicture,
                         testing::Values("workboat.xml", "catamaran.xml", "dredger.xml"));

}  // namespace
}  // namespace hullwright
