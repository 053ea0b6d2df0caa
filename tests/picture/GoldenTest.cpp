#include <gtest/gtest.h>

#include <QImage>
#include <array>
#include <cmath>
#include <cstdlib>
#include <ostream>

#include "base/Text.h"
#include "cli/HeadlessEditor.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

constexpr int width = 640;
constexpr int height = 400;
constexpr int channelTolerance = 8;
constexpr double pixelTolerance = 0.001;  ///< share of the pixels that may differ by more

bool Accepting() { return std::getenv("HULLWRIGHT_ACCEPT_PICTURES") != nullptr; }

bool Differs(QRgb a, QRgb b)
{
  return std::abs(qRed(a) - qRed(b)) > channelTolerance ||
         std::abs(qGreen(a) - qGreen(b)) > channelTolerance ||
         std::abs(qBlue(a) - qBlue(b)) > channelTolerance;
}

/// Number of pixels that differ; marks them red in `marked`.
int CountDifferences(const QImage& golden, const QImage& picture, QImage& marked)
{
  int count = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      if (!Differs(golden.pixel(x, y), picture.pixel(x, y))) continue;
      marked.setPixelColor(x, y, Qt::red);
      ++count;
    }
  }
  return count;
}

struct Case {
  std::string sample;
  ViewSideEntry side;
};

std::string NameOf(const Case& what) { return what.sample + "-" + std::string(what.side.name); }

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << NameOf(row); }

std::vector<Case> AllCases()
{
  std::vector<Case> cases;
  for (const char* sample : {"workboat", "catamaran", "dredger"}) {
    for (const ViewSideEntry& side : viewSides) cases.push_back({sample, side});
  }
  return cases;
}

/// Compares a picture with the accepted one of its name, or takes it for that.
void ExpectAccepted(const QImage& picture, const std::string& name)
{
  const QString file = QString::fromStdString(name);
  const QString path = QStringLiteral(HULLWRIGHT_TEST_DATA "/picture/golden/%1.png").arg(file);
  if (Accepting()) {
    ASSERT_TRUE(picture.save(path));
    return;
  }
  const QImage golden = QImage(path).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(golden.size(), picture.size()) << path.toStdString();
  QImage marked = golden.copy();
  const int differences = CountDifferences(golden, picture, marked);
  if (differences <= pixelTolerance * width * height) return;
  const QString left = QStringLiteral(HULLWRIGHT_PICTURES "/%1").arg(file);
  picture.save(left + QStringLiteral(".out.png"));
  marked.save(left + QStringLiteral(".diff.png"));
  FAIL() << differences << " pixels differ; see " << left.toStdString() << ".{out,diff}.png";
}

class Golden : public testing::TestWithParam<Case> {};

TEST_P(Golden, ThePictureIsAsAccepted)
{
  PaintSurface surface(width, height);
  PaintTarget target(surface);
  HeadlessEditor editor(target);
  ASSERT_TRUE(editor.Open(WideFromUtf8(HULLWRIGHT_SAMPLES "/" + GetParam().sample + ".xml")));
  editor.ShowSide(GetParam().side.code, width, height);
  editor.Draw();
  ExpectAccepted(surface.Picture(), NameOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(SamplesAndSides, Golden, testing::ValuesIn(AllCases()),
                         [](const auto& test) {
                           return test.param.sample + "_" + std::string(test.param.side.name);
                         });

// What only drawings bring: texts, polygons, points, and lines so wide that their joins show. Each
// of them covers more pixels than may differ.
TEST(GoldenImport, TextsPolygonsPointsAndJoinsAreAsAccepted)
{
  PaintSurface surface(width, height);
  PaintTarget target(surface);
  HeadlessEditor editor(target);
  editor.App().activeView = ViewSide::Front;
  ASSERT_TRUE(editor.Import(WideFromUtf8(HULLWRIGHT_TEST_DATA "/picture/drawings/labels.dxf")));
  editor.ShowSide(ViewSide::Front, width, height, {0.0, 0.0, 64.0, 40.0});
  editor.Draw();
  ExpectAccepted(surface.Picture(), "labels");
}

/// A surface with one target, for pictures of single strokes.
class Strokes : public testing::Test {
protected:
  Strokes() { target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F}); }

  static Stroke Black(float strokeWidth) { return {{0.0F, 0.0F, 0.0F, 1.0F}, strokeWidth}; }

  const QImage& Finish()
  {
    EXPECT_EQ(target.EndFrame().code, 0);
    return surface.Picture();
  }

  PaintSurface surface{60, 40};
  PaintTarget target{surface};
};

TEST_F(Strokes, AOnePixelLineOnPixelCentresCoversThemWhole)
{
  target.DrawLine({10.0F, 20.5F}, {50.0F, 20.5F}, Black(1.0F));
  const QImage& picture = Finish();
  EXPECT_EQ(qGray(picture.pixel(30, 20)), 0);
  EXPECT_GE(qGray(picture.pixel(30, 19)), 254);
  EXPECT_GE(qGray(picture.pixel(30, 21)), 254);
}

TEST_F(Strokes, ALineThinnerThanAPixelCoversAsMuchOfIt)
{
  target.DrawLine({10.0F, 10.5F}, {50.0F, 10.5F}, Black(0.5F));
  target.DrawLine({10.0F, 30.0F}, {50.0F, 30.0F}, Black(0.25F));
  target.DrawEllipse({30.0F, 20.5F}, 20.0F, 5.0F, Black(0.25F));
  const QImage& picture = Finish();
  EXPECT_NEAR(qGray(picture.pixel(15, 10)), 127, 2);
  const int rows = qGray(picture.pixel(15, 29)) + qGray(picture.pixel(15, 30));
  EXPECT_NEAR(2 * 255 - rows, 64, 3);
  EXPECT_NEAR(qGray(picture.pixel(30, 25)), 191, 3);
}

TEST_F(Strokes, ASmallRectangleHasItsCorners)
{
  target.DrawRectangle({20.5F, 20.5F, 22.5F, 22.5F}, Black(1.0F));
  const QImage& picture = Finish();
  EXPECT_EQ(qGray(picture.pixel(20, 20)), 0);
  EXPECT_EQ(qGray(picture.pixel(22, 22)), 0);
  EXPECT_GE(qGray(picture.pixel(21, 21)), 250);
}

TEST_F(Strokes, WidthsThatAreNoneDrawNothing)
{
  for (const float strokeWidth : {-0.001F, -1.0F, std::nanf("")}) {
    target.DrawLine({0.0F, 20.0F}, {60.0F, 20.0F}, Black(strokeWidth));
    target.DrawRectangle({5.0F, 5.0F, 30.0F, 30.0F}, Black(strokeWidth));
    target.DrawEllipse({30.0F, 20.0F}, 10.0F, 10.0F, Black(strokeWidth));
  }
  const QImage& picture = Finish();
  EXPECT_EQ(qGray(picture.pixel(30, 20)), 255);
  EXPECT_EQ(qGray(picture.pixel(5, 20)), 255);
}

TEST_F(Strokes, CoordinatesThatAreNoNumbersOrHugeDoNoHarm)
{
  const float nan = std::nanf("");
  const float huge = 1e38F;
  const Colour ink{0.0F, 0.0F, 0.0F, 1.0F};
  target.DrawLine({nan, 1.0F}, {2.0F, nan}, Black(1.0F));
  target.DrawRectangle({nan, nan, nan, nan}, Black(1.0F));
  target.DrawEllipse({huge, -huge}, 15.0F, 15.0F, Black(2.0F));
  target.FillRectangle({-huge, nan, huge, nan}, ink);
  TextBlock block{u"text", {u"Arial", 14.0F}, {nan, 0.0F, nan, 1.0F}, ink};
  target.DrawText(block);
  block.turn = Turn{nan, {0.0F, 0.0F}};
  target.DrawText(block);
  target.DrawLine({-huge, 20.5F}, {huge, 20.5F}, Black(1.0F));
  const QImage& picture = Finish();
  EXPECT_EQ(qGray(picture.pixel(30, 20)), 0);
  EXPECT_EQ(qGray(picture.pixel(30, 10)), 255);
}

TEST_F(Strokes, TextIsMeasuredAsWrappedAtAThousandPixels)
{
  const TextStyle style{u"Consolas", 20.0F};
  const PixelSize limits{1000.0F, 100.0F};
  const auto one = target.MeasureText(u"W", style, limits);
  const auto many = target.MeasureText(std::u16string(200, u'W'), style, limits);
  EXPECT_LE(many->width, 1000.0F);
  EXPECT_GT(many->height, one->height * 2.0F);
}

TEST_F(Strokes, ATangleOfLongSegmentsIsDrawn)
{
  std::vector<PixelPoint> points;
  for (int i = 0; i < 20000; ++i) {
    points.push_back({static_cast<float>((i * 37) % 61), static_cast<float>((i * 53) % 41)});
  }
  const std::array<std::size_t, 1> end = {points.size()};
  target.DrawFigures({FigureKind::Line, points, end}, Black(2.0F));
  EXPECT_EQ(qGray(Finish().pixel(30, 20)), 0);
}

TEST_F(Strokes, AStartThatOnlyLeadsToAPointThatIsNoNumberDoesNoHarm)
{
  const std::array<PixelPoint, 3> points = {
      {{10.0F, 20.5F}, {std::nanf(""), 20.5F}, {50.0F, 20.5F}}};
  const std::array<std::size_t, 1> end = {points.size()};
  target.DrawFigures({FigureKind::Line, points, end}, Black(1.0F));
  EXPECT_EQ(qGray(Finish().pixel(30, 20)), 255);
}

TEST_F(Strokes, FiguresAreNotConnectedAndOnlyOutlinesAreClosed)
{
  const std::array<PixelPoint, 6> points = {{{10.0F, 10.5F},
                                             {20.5F, 10.5F},
                                             {20.5F, 20.0F},
                                             {40.0F, 10.5F},
                                             {50.5F, 10.5F},
                                             {50.5F, 20.0F}}};
  const std::array<std::size_t, 2> ends = {3, 6};
  target.DrawFigures({FigureKind::Line, points, ends}, Black(1.0F));
  const QImage lines = Finish().copy();
  EXPECT_EQ(qGray(lines.pixel(15, 10)), 0);
  EXPECT_EQ(qGray(lines.pixel(45, 10)), 0);
  EXPECT_EQ(qGray(lines.pixel(30, 15)), 255);
  EXPECT_EQ(qGray(lines.pixel(15, 15)), 255);
  target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
  target.DrawFigures({FigureKind::Outline, points, ends}, Black(1.0F));
  const QImage& outlines = Finish();
  EXPECT_LT(qGray(outlines.pixel(15, 15)), 200);
  EXPECT_LT(qGray(outlines.pixel(45, 15)), 200);
  EXPECT_EQ(qGray(outlines.pixel(30, 15)), 255);
}

TEST(Surface, AZeroSizeIsNoLostDevice)
{
  PaintSurface surface(0, 10);
  PaintTarget target(surface);
  target.BeginFrame({});
  EXPECT_EQ(target.EndFrame().code, 0);
}

TEST(Surface, APictureThereIsNoMemoryForIsALostDevice)
{
  PaintSurface surface(10, 10);
  PaintTarget target(surface);
  target.Resize(100000000, 100000000);
  target.BeginFrame({});
  const FrameResult result = target.EndFrame();
  EXPECT_EQ(result.code, recreateTarget);
  EXPECT_EQ(result.message, "There is not enough memory for the picture.");
}

TEST(Surface, MakingThePictureReadyTakesTheClientSize)
{
  PaintSurface surface(30, 20, 2.0);
  PaintTarget target(surface);
  surface.Picture() = QImage();
  EXPECT_TRUE(target.Prepare(TargetStep::Picture, {}).yielded);
  EXPECT_EQ(surface.Picture().size(), QSize(60, 40));
}

}  // namespace
}  // namespace hullwright
