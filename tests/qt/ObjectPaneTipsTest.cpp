#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include "support/DeskFixture.h"
#include "support/Pixels.h"

namespace hullwright {
namespace {

class PaneTips : public test::DeskFixture {
protected:
  PaneTips()
  {
    Window().activateWindow();
    QApplication::processEvents();
    QToolTip::hideText();
  }

  QModelIndex At(std::initializer_list<int> rows)
  {
    QModelIndex index;
    for (const int row : rows) index = Tree().model()->index(row, 0, index);
    return index;
  }

  /// The tooltip that comes up when the mouse rests on a row.
  QString TipAt(const QModelIndex& index)
  {
    QToolTip::hideText();
    // It goes a moment later.
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    const QRect row = Tree().visualRect(index);
    const QPoint place(row.left() + 20, row.center().y());
    QHelpEvent help(QEvent::ToolTip, place, Tree().viewport()->mapToGlobal(place));
    QApplication::sendEvent(Tree().viewport(), &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }

  void SetPaneWidth(int width)
  {
    Window().resizeDocks({Window().findChild<QDockWidget*>()}, {width}, Qt::Horizontal);
    QApplication::processEvents();
  }

  CShape& Line(std::size_t row)
  {
    return *FindViewGroup(shell->App().shapeGroups, ViewSide::Top)->shapes.at(row);
  }
};

TEST_F(PaneTips, APolylineTellsItsPointsWidthAndColourAndKeepsItsText)
{
  Tree().expand(At({0, 0}));
  Line(1).style = std::make_unique<ShapeStyle>();
  Line(1).style->lineWidth = 2.5F;
  Line(1).style->lineColour = 0x00332211;
  const QString points = QString::number(Line(1).vertices.size());
  EXPECT_EQ(At({0, 0, 1}).data().toString(), QStringLiteral("Polyline"));
  EXPECT_EQ(At({0, 0, 1}).data(Qt::ToolTipRole).toString(),
            QStringLiteral("%1 points, width 2.5, colour #112233").arg(points));
  SetPaneWidth(400);
  EXPECT_EQ(TipAt(At({0, 0, 1})),
            QStringLiteral("%1 points, width 2.5, colour #112233").arg(points));
  Line(1).style.reset();
  EXPECT_EQ(At({0, 0, 1}).data(Qt::ToolTipRole).toString(),
            QStringLiteral("%1 points, width 1, colour #000000").arg(points));
}

TEST_F(PaneTips, CoordinatesThatAreNotSeenWholeStandInTheTooltipAndOthersDoNot)
{
  Tree().expand(At({0, 0}));
  Tree().expand(At({0, 0, 0}));
  SetPaneWidth(140);
  const QModelIndex point = At({0, 0, 0, 0});
  ASSERT_GT(Tree().visualRect(point).right(), Tree().viewport()->rect().right());
  EXPECT_EQ(TipAt(point), point.data().toString());
  SetPaneWidth(500);
  ASSERT_LE(Tree().visualRect(point).right(), Tree().viewport()->rect().right());
  EXPECT_EQ(TipAt(point), QString());
}

TEST_F(PaneTips, ARowThatEndsWithThePaneIsSeenWhole)
{
  Tree().expand(At({0, 0}));
  Tree().expand(At({0, 0, 0}));
  SetPaneWidth(500);
  const QModelIndex point = At({0, 0, 0, 0});
  const auto& pane = *Window().findChild<QDockWidget*>();
  ASSERT_TRUE(QTest::qWaitFor([&] {
    const int spare = Tree().viewport()->rect().right() - Tree().visualRect(point).right();
    SetPaneWidth(pane.width() - spare);
    return spare == 0;
  }));
  EXPECT_EQ(TipAt(point), QString());
}

TEST_F(PaneTips, ScrollBarsAreThereOnlyWhereTheyAreNeeded)
{
  Window().resize(1280, 860);
  SetPaneWidth(260);
  EXPECT_FALSE(Tree().horizontalScrollBar()->isVisible());
  EXPECT_FALSE(Tree().verticalScrollBar()->isVisible());
  Tree().expand(At({0, 0}));
  Tree().expand(At({0, 0, 0}));
  SetPaneWidth(130);
  EXPECT_TRUE(Tree().horizontalScrollBar()->isVisible());
  SetPaneWidth(500);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Tree().horizontalScrollBar()->isVisible(); }));
}

TEST_F(PaneTips, TheChosenRowPalesWhileTheKeyboardIsElsewhereInTheWindow)
{
  Tree().setCurrentIndex(At({0, 0}));
  const auto colour = [this] {
    QApplication::processEvents();
    const QRect row = Tree().visualRect(At({0, 0}));
    return test::Picture(*Tree().viewport()).pixelColor(row.right() - 1, row.center().y());
  };
  Tree().setFocus();
  // Within the rounding of the paint device.
  const auto isLike = [](const QColor& shown, QPalette::ColorGroup group) {
    const QColor wanted = QApplication::palette().color(group, QPalette::Highlight);
    return Contrast(shown, wanted) < 1.05;
  };
  EXPECT_TRUE(isLike(colour(), QPalette::Active));
  View().setFocus();
  const QColor pale = colour();
  EXPECT_TRUE(isLike(pale, QPalette::Inactive));
  EXPECT_LT(pale.hsvSaturation(), 30);
}

}  // namespace
}  // namespace hullwright
