#include "qt/DesignWidget.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QTest>
#include <QVBoxLayout>
#include <set>

#include "support/DesignPaneFixture.h"
#include "support/PaintCounter.h"

namespace hullwright {
namespace {

constexpr QRgb paper = qRgb(255, 255, 224);

class DesignPane : public test::DesignPaneFixture {};

TEST_F(DesignPane, IsNeverTooSmallToWorkIn)
{
  widget.resize(1, 1);
  EXPECT_EQ(widget.size(), QSize(120, 90));
}

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

TEST_F(DesignPane, AContextMenuGoesWhenItCloses)
{
  Press({123, 45}, Qt::RightButton);
  ASSERT_NE(OpenMenu(), nullptr);
  OpenMenu()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(widget.findChildren<QMenu*>().isEmpty());
}

TEST_F(DesignPane, NoKeyEndsAPolylineOrADrag)
{
  const auto press = [this] {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete}) {
      QTest::keyClick(&widget, key);
    }
  };
  BeginLineAt({200, 250});
  press();
  ASSERT_TRUE(view.drawing);
  EXPECT_EQ(view.newShape->vertices.size(), 1U);
  Press({300, 250}, Qt::RightButton);
  Move({200, 250});  // the vertex that is now in the design
  Move({240, 250}, Qt::LeftButton);
  press();
  EXPECT_TRUE(view.dragging);
  EXPECT_EQ(design.shapeGroups.at(0)->shapes.at(0)->vertices.at(0)->x, -40.0);
}

}  // namespace
}  // namespace hullwright
