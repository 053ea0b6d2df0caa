#include "qt/DesignWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>
#include <set>

#include "resources/CommandIds.h"
#include "support/PaintCounter.h"
#include "support/ViewFixture.h"

namespace hullwright {
namespace {

constexpr QRgb paper = qRgb(255, 255, 224);

/// The widget alone, 800 by 600 client pixels of a view 200 wide, with a view that works in it.
/// Snapping and grid are off.
class DesignPane : public testing::Test {
protected:
  DesignPane()
  {
    host.viewPort = std::make_unique<CViewPortDesigner>();
    design.viewPort = host.viewPort.get();
    design.activeView = ViewSide::Right;
    host.grid.snap = 0;
    host.grid.show = 0;
    widget.Attach(view);
    widget.resize(800, 600);
    widget.show();
    QApplication::processEvents();
  }
  ~DesignPane() override { widget.Detach(); }

  /// Adds a polyline to the side in view.
  CShapePolyline& AddLine(std::initializer_list<CShapeVertex> vertices)
  {
    return test::AddLine(design, design.activeView, vertices);
  }

  void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
  {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
  void Move(QPointF at, Qt::MouseButtons held = Qt::NoButton)
  {
    Mouse(QEvent::MouseMove, at, Qt::NoButton, held);
  }
  void Press(QPointF at, Qt::MouseButton button)
  {
    Mouse(QEvent::MouseButtonPress, at, button, button);
  }
  void Release(QPointF at, Qt::MouseButton button, Qt::MouseButtons held = Qt::NoButton)
  {
    Mouse(QEvent::MouseButtonRelease, at, button, held);
  }
  void Turn(QPoint angle)
  {
    QWheelEvent event(QPointF(200, 200), widget.mapToGlobal(QPointF(200, 200)), QPoint(), angle,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }

  /// Begins a polyline at a pixel.
  void BeginLineAt(QPointF at)
  {
    view.OnCommand(CommandId::DrawPolyline);
    Move(at);
    Press(at, Qt::LeftButton);
    Release(at, Qt::LeftButton);
  }

  QImage Shown() { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  /// The context menu that is open; null when there is none.
  static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  KeptMessages messages;
  test::FakeHost host;
  DesignState design;
  DesignWidget widget;
  CHullwrightView view{design, host, {messages, widget, widget, widget}};
};

TEST_F(DesignPane, TheBandIsADashedLineOfOnePixelThatInvertsWhatIsUnderIt)
{
  AddLine({{-25.0, 0.0, 0.0}, {-20.0, 30.0, 0.0}, {-15.0, 0.0, 0.0}});
  BeginLineAt({200, 250});
  const QImage clean = Shown();
  Move({600, 250});
  const QImage picture = Shown();
  std::set<int> rows;
  int on = 0;
  int ink = 0;
  int dashes = 0;
  bool before = false;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb was = clean.pixel(x, y);
      const bool changed = picture.pixel(x, y) != was;
      dashes += changed && !before ? 1 : 0;
      before = changed;
      if (!changed) continue;
      EXPECT_EQ(picture.pixel(x, y), was ^ 0xFFFFFFU) << x << ' ' << y;
      rows.insert(y);
      ink += was == paper ? 0 : 1;
      ++on;
      EXPECT_GE(x, 200);
      EXPECT_LE(x, 600);
    }
  }
  EXPECT_EQ(rows.size(), 1U);
  EXPECT_GT(ink, 0);
  EXPECT_NEAR(on, 400 * 0.6, 8);
  EXPECT_NEAR(dashes, 40, 2);
}

TEST_F(DesignPane, TheBandMovesWithTheMouseAndLeavesNoTrace)
{
  BeginLineAt({200, 250});
  Move({600, 250});
  const QImage first = Shown();
  Move({200, 450});
  const QImage second = Shown();
  EXPECT_NE(first, second);
  for (int x = 210; x < 600; ++x) EXPECT_EQ(second.pixel(x, 250), paper) << x;
  Move({600, 250});
  EXPECT_EQ(Shown(), first);
}

TEST_F(DesignPane, TheMouseMovingTheBandAsksForAPaint)
{
  BeginLineAt({200, 250});
  test::PaintCounter paints(widget);
  Move({600, 250});
  paints.Settle();
  EXPECT_GT(paints.count, 0);
}

TEST_F(DesignPane, ANewFrameIsPaintedWithoutBeingAskedFor)
{
  test::PaintCounter paints(widget);
  view.Repaint();
  paints.Settle();
  EXPECT_GT(paints.count, 0);
  EXPECT_EQ(paints.painted.boundingRect(), widget.rect());
}

TEST_F(DesignPane, TheContextMenuOpensAtThePressWithItsSeparator)
{
  Press({123, 45}, Qt::RightButton);
  QMenu* const menu = OpenMenu();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->pos(), widget.mapToGlobal(QPoint(123, 45)));
  QStringList entries;
  for (const QAction* action : menu->actions()) {
    entries.append(action->isSeparator() ? QStringLiteral("-") : action->text());
  }
  EXPECT_EQ(entries,
            (QStringList{QStringLiteral("Zoom &In"), QStringLiteral("Zoom &Out"),
                         QStringLiteral("Ce&nter"), QStringLiteral("-"),
                         QStringLiteral("&Add Vertex..."), QStringLiteral("&Add Anchor")}));
  menu->actions().at(2)->trigger();
  EXPECT_EQ(view.viewPort->left, -100.0 + (123.0 - 400.0) / 4.0);
  menu->close();
}

TEST_F(DesignPane, OnlyTheLeftButtonDrags)
{
  const CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Move({400, 300});
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    Move({440, 300}, button);
    EXPECT_EQ(line.vertices[0]->x, 0.0) << button;
    EXPECT_FALSE(view.dragging) << button;
    Move({400, 300});
  }
  Move({440, 300}, Qt::LeftButton | Qt::RightButton);
  EXPECT_EQ(line.vertices[0]->x, 10.0);
}

TEST_F(DesignPane, OnlyTheLeftButtonsReleaseEndsADrag)
{
  const CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Move({400, 300});
  Press({400, 300}, Qt::LeftButton);
  Move({440, 300}, Qt::LeftButton);
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    Release({480, 300}, button, Qt::LeftButton);
    EXPECT_TRUE(view.dragging) << button;
    EXPECT_EQ(line.vertices[0]->x, 10.0) << button;
  }
  Release({480, 300}, Qt::LeftButton);
  EXPECT_FALSE(view.dragging);
  EXPECT_EQ(line.vertices[0]->x, 20.0);
}

TEST_F(DesignPane, OnlyTheRightButtonOpensTheMenuOrEndsAPolyline)
{
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::BackButton}) {
    Press({200, 200}, button);
    Release({200, 200}, button);
    EXPECT_EQ(OpenMenu(), nullptr) << button;
  }
  EXPECT_TRUE(design.shapeGroups.empty());
  BeginLineAt({200, 250});
  for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
    Press({300, 250}, button);
    Release({300, 250}, button);
    ASSERT_TRUE(view.drawing) << button;
    EXPECT_EQ(view.newShape->vertices.size(), 1U) << button;
  }
  Press({300, 250}, Qt::RightButton);
  EXPECT_FALSE(view.drawing);
  EXPECT_EQ(OpenMenu(), nullptr);
}

TEST_F(DesignPane, OtherButtonsUseNoTool)
{
  host.cursorTool = CursorTool::ZoomIn;
  for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
    Press({200, 200}, button);
    Mouse(QEvent::MouseButtonDblClick, {200, 200}, button, button);
  }
  EXPECT_EQ(view.viewPort->width, 200.0);
  Press({200, 200}, Qt::LeftButton);
  EXPECT_EQ(view.viewPort->width, 150.0);
}

TEST_F(DesignPane, ALeftPressTakesTheFocus)
{
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const other = new QWidget(&window);
  other->setFocusPolicy(Qt::StrongFocus);
  layout->addWidget(other);
  layout->addWidget(&widget);
  window.show();
  other->setFocus();
  ASSERT_EQ(window.focusWidget(), other);
  Move({50, 50});
  EXPECT_EQ(window.focusWidget(), other);
  Press({50, 50}, Qt::LeftButton);
  EXPECT_EQ(window.focusWidget(), &widget);
  widget.setParent(nullptr);
}

TEST_F(DesignPane, AFastSecondLeftPressIsAPress)
{
  BeginLineAt({200, 250});
  Move({300, 250});
  Mouse(QEvent::MouseButtonDblClick, {300, 250}, Qt::LeftButton, Qt::LeftButton);
  ASSERT_EQ(view.newShape->vertices.size(), 2U);
  EXPECT_EQ(view.newShape->vertices[1]->x, -25.0);
}

TEST_F(DesignPane, AHorizontalWheelDoesNothing)
{
  Turn({0, 60});
  for (const int turn : {120, -120, 480}) Turn({turn, 0});
  EXPECT_EQ(view.viewPort->width, 200.0);
  EXPECT_EQ(view.viewPort->left, -100.0);
  Turn({0, 60});  // the rest of the notch
  EXPECT_EQ(view.viewPort->width, 150.0);
  Turn({0, -60});
  Turn({120, 0});
  Turn({0, -60});
  EXPECT_DOUBLE_EQ(view.viewPort->width, 200.0);
}

TEST_F(DesignPane, TheMenuKeyOpensTheMenuButEndsNoPolyline)
{
  const auto menuKey = [this](QContextMenuEvent::Reason reason) {
    QContextMenuEvent event(reason, QPoint(123, 45), widget.mapToGlobal(QPoint(123, 45)));
    QApplication::sendEvent(&widget, &event);
    EXPECT_TRUE(event.isAccepted());
  };
  BeginLineAt({200, 250});
  menuKey(QContextMenuEvent::Keyboard);
  EXPECT_TRUE(view.drawing);
  EXPECT_EQ(OpenMenu(), nullptr);
  Press({300, 250}, Qt::RightButton);
  ASSERT_FALSE(view.drawing);
  menuKey(QContextMenuEvent::Mouse);  // the press itself has opened it, or ended the polyline
  EXPECT_EQ(OpenMenu(), nullptr);
  menuKey(QContextMenuEvent::Keyboard);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(OpenMenu()->pos(), widget.mapToGlobal(QPoint(123, 45)));
  OpenMenu()->close();
}

/// Runs at the ratio of the environment, which a second run of these tests makes fractional.
class PixelRatio : public DesignPane {
protected:
  PixelRatio() : ratio(widget.devicePixelRatioF()) {}

  double ratio;
};

TEST_F(PixelRatio, IsTheOneThatTheRunIsFor)
{
  const QByteArray expected = qgetenv("HULLWRIGHT_EXPECT_RATIO");
  EXPECT_EQ(ratio, expected.isEmpty() ? 1.0 : expected.toDouble());
}

TEST_F(PixelRatio, ThePictureIsPaintedInThePixelsOfTheMonitor)
{
  AddLine({{-50.0, -20.0, 0.0}, {-20.0, 30.0, 0.0}, {45.5, -31.0, 0.0}});
  design.activeView = ViewSide::Top;
  AddLine({{-50.0, -20.0, 0.0}, {-20.0, 30.0, 0.0}, {45.5, -31.0, 0.0}});
  view.Repaint();
  widget.clearFocus();  // its mark lies over the picture
  const QImage shown = Shown();
  // The same frame painted at once in a picture of that many pixels.
  PaintSurface surface(800, 600, ratio);
  PaintTarget target(surface);
  CCanvas canvas;
  ASSERT_TRUE(canvas.Initialize(&target));
  CCanvas* const before = std::exchange(view.viewPort->canvas, &canvas);
  view.Repaint();
  view.viewPort->canvas = before;
  QImage sharp = surface.Picture();
  sharp.setDevicePixelRatio(shown.devicePixelRatio());
  ASSERT_EQ(shown.width(), static_cast<int>(std::ceil(800 * ratio)));
  EXPECT_EQ(shown, sharp);
}

TEST_F(PixelRatio, TheMouseMeetsWhatIsSeenUnderIt)
{
  design.activeView = ViewSide::Top;
  *design.offsetGps = CShapeVertex(60.25, -40.5, 0.0);
  view.Repaint();
  // The middle of the crossed circle, in pixels of the monitor.
  const QImage shown = Shown();
  long long sumX = 0;
  long long sumY = 0;
  int count = 0;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      if (shown.pixel(x, y) != qRgb(255, 0, 0)) continue;
      sumX += x;
      sumY += y;
      ++count;
    }
  }
  ASSERT_GT(count, 20);
  const double left = static_cast<double>(sumX) / count / ratio;
  const double middle = 400.0 + 60.25 * 4.0;
  EXPECT_NEAR(left, middle, 1.0);
  EXPECT_NEAR(static_cast<double>(sumY) / count / ratio, 300.0 + 40.5 * 4.0, 12.0);  // and its name
  Move({left, 300.0 + 40.5 * 4.0});
  EXPECT_EQ(view.hitKind, HitKind::Gps);
}

TEST_F(PixelRatio, TheBandIsAPixelOfTheMonitorWide)
{
  BeginLineAt({200, 250});
  const QImage clean = Shown();
  Move({600, 250});
  const QImage picture = Shown();
  std::set<int> rows;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != clean.pixel(x, y)) rows.insert(y);
    }
  }
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_NEAR(*rows.begin(), 250.0 * ratio, 1.0);
}

TEST_F(PixelRatio, APositionBetweenPixelsCountsAsThePixelThatItLiesIn)
{
  Move({406.7, 309.4});
  EXPECT_EQ(view.statusText, u"X: +01.50 Y: -02.25");
  Move({-0.3, -0.3});
  EXPECT_EQ(view.statusText, u"X: -100.25 Y: +75.25");
  Press({123.9, 45.6}, Qt::RightButton);
  EXPECT_EQ(view.menuPoint, (ClientPoint{123, 45}));
  ASSERT_NE(OpenMenu(), nullptr);
  OpenMenu()->close();
}

}  // namespace
}  // namespace hullwright
