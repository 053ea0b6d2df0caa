#include <gtest/gtest.h>

#include <QClipboard>
#include <QStyledItemDelegate>
#include <QTest>
#include <QWindow>

#include "qt/Icons.h"
#include "support/DeskFixture.h"
#include "support/PaintCounter.h"

namespace hullwright {
namespace {

class ObjectPane : public test::DeskFixture {
protected:
  ObjectPane()
  {
    app.anchors->items.at(1)->marked = true;
    // A rebuild, so that the anchor's mark is seen.
    app.NotifyDesignChanged();
    Tree().expand(At({0, 0}));
    Window().activateWindow();
    QApplication::processEvents();
  }

  QModelIndex At(std::initializer_list<int> rows)
  {
    QModelIndex index;
    for (const int row : rows) index = Tree().model()->index(row, 0, index);
    return index;
  }

  QPoint Place(const QModelIndex& index)
  {
    Tree().scrollTo(index);
    return Tree().visualRect(index).center();
  }

  /// Through the window, as the platform sends it, so that a press of the right button asks for the
  /// context menu.
  void ClickAt(QPoint place, Qt::MouseButton button)
  {
    QTest::mouseClick(Window().windowHandle(), button, {},
                      Tree().viewport()->mapTo(&Window(), place));
  }
  void LeftClick(std::initializer_list<int> rows) { ClickAt(Place(At(rows)), Qt::LeftButton); }

  /// The mark that opens and closes a node.
  QPoint Arrow(const QModelIndex& index)
  {
    Place(index);
    const QRect row = Tree().visualRect(index);
    return {row.left() - Tree().indentation() / 2, row.center().y()};
  }

  QImage Icon(std::initializer_list<int> rows)
  {
    return Tree().model()->data(At(rows), Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
  }
  static QImage Picture(const char* name)
  {
    return ThemedIcon(name, QApplication::palette()).pixmap(16).toImage();
  }

  /// What a delegate takes for the size of a row.
  QSize Measured(const QAbstractItemDelegate& delegate, const QModelIndex& index)
  {
    QStyleOptionViewItem option;
    option.initFrom(&Tree());
    option.font = Tree().font();
    option.decorationSize = Tree().iconSize();
    option.widget = &Tree();
    return delegate.sizeHint(option, index);
  }

  void ExpectSizesOfTheToolkit()
  {
    const QStyledItemDelegate plain;
    for (const QModelIndex& index : {At({0}), At({0, 0}), At({0, 0, 0}), At({0, 0, 1}),
                                     At({0, 0, 0, 0}), At({1}), At({1, 1})}) {
      const QString text = index.data().toString();
      EXPECT_EQ(Measured(*Tree().itemDelegate(), index), Measured(plain, index))
          << text.toStdString();
    }
  }

  const CShape& Line(std::size_t row)
  {
    return *FindViewGroup(app.shapeGroups, ViewSide::Top)->shapes.at(row);
  }

  CHullwrightApp& app = shell->App();
};

TEST_F(ObjectPane, ALeftClickMarksAPolylineAndASecondOneTakesTheMarkBack)
{
  LeftClick({0, 0, 1});
  EXPECT_FALSE(Line(0).editing);
  EXPECT_TRUE(Line(1).editing);
  EXPECT_EQ(Tree().currentIndex(), At({0, 0, 1}));
  LeftClick({0, 0, 0});
  EXPECT_TRUE(Line(0).editing);
  EXPECT_FALSE(Line(1).editing);
  LeftClick({0, 0, 0});
  EXPECT_FALSE(Line(0).editing);
}

TEST_F(ObjectPane, ADoubleClickIsOneClick)
{
  QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, {},
                     Tree().viewport()->mapTo(&Window(), Place(At({0, 0, 1}))));
  EXPECT_TRUE(Line(1).editing);
}

TEST_F(ObjectPane, ALeftClickOnASideChoosesWhosePicturesFollow)
{
  const QImage built = Picture("tree-polyline");
  LeftClick({0, 0, 0});
  EXPECT_EQ(Icon({0, 0, 0}), built);
  LeftClick({0, 0});
  LeftClick({0, 0, 1});
  EXPECT_EQ(Icon({0, 0, 0}), Picture("tree-polyline-plain"));
  EXPECT_EQ(Icon({0, 0, 1}), Picture("tree-polyline-marked"));
  EXPECT_EQ(Icon({0, 0, 2}), Picture("tree-polyline-marked"));
}

TEST_F(ObjectPane, NewPicturesArePaintedInAllRows)
{
  test::PaintCounter paints(*Tree().viewport());
  Tree().ImagesChanged();
  paints.Settle();
  EXPECT_GT(paints.count, 0);
  EXPECT_EQ(paints.painted.boundingRect(), Tree().viewport()->rect());
}

TEST_F(ObjectPane, EachImageNumberHasItsPicture)
{
  const std::vector<const char*> names = {
      "tree-node",           "tree-polyline",        "tree-point",        "tree-anchor",
      "tree-polyline-plain", "tree-polyline-marked", "tree-anchor-marked"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_FALSE(Picture(names[i]).isNull());
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(Picture(names[i]), Picture(names[j])) << i << j;
  }
  EXPECT_EQ(Icon({0}), Picture("tree-node"));
  EXPECT_EQ(Icon({0, 5}), Picture("tree-node"));
  EXPECT_EQ(Icon({1}), Picture("tree-node"));
  EXPECT_EQ(Icon({0, 0, 0}), Picture("tree-polyline"));
  EXPECT_EQ(Icon({0, 0, 0, 0}), Picture("tree-point"));
  EXPECT_EQ(Icon({1, 0}), Picture("tree-anchor"));
  EXPECT_EQ(Icon({1, 1}), Picture("tree-anchor-marked"));
}

TEST_F(ObjectPane, ARightClickSelectsItsItemAndOpensTheMenuThereWithoutMarking)
{
  LeftClick({0, 0});
  const QPoint place = Place(At({0, 0, 1}));
  ClickAt(place, Qt::RightButton);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->pos(), Tree().viewport()->mapToGlobal(place));
  QStringList entries;
  for (const QAction* entry : menu->actions()) {
    entries.append(entry->text());
    EXPECT_FALSE(entry->icon().isNull()) << entry->text().toStdString();
  }
  EXPECT_EQ(entries,
            (QStringList{QStringLiteral("&Edit Point..."), QStringLiteral("&Remove Point...")}));
  menu->close();
  EXPECT_EQ(Tree().currentIndex(), At({0, 0, 1}));
  EXPECT_FALSE(Line(1).editing);
  EXPECT_EQ(Icon({0, 0, 1}), Picture("tree-polyline"));
}

TEST_F(ObjectPane, ARightClickOnASideOffersThatSidesMenuAndItsCommandRuns)
{
  ClickAt(Place(At({0, 5})), Qt::RightButton);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("&Add Polyline..."));
  const std::size_t before = FindViewGroup(app.shapeGroups, ViewSide::Top)->shapes.size();
  menu->actions().at(0)->trigger();
  menu->close();
  EXPECT_EQ(FindViewGroup(app.shapeGroups, ViewSide::Top)->shapes.size(), before + 1);
}

TEST_F(ObjectPane, ARightClickOnEmptySpaceOpensNothing)
{
  Tree().collapse(At({0, 0}));
  LeftClick({0, 2});
  const QPoint empty(Tree().viewport()->width() / 2, Tree().viewport()->height() - 3);
  ASSERT_FALSE(Tree().indexAt(empty).isValid());
  ClickAt(empty, Qt::RightButton);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Tree().currentIndex(), At({0, 2}));
}

TEST_F(ObjectPane, OpeningANodeByItsArrowIsNoClickOnIt)
{
  Tree().collapse(At({0, 0}));
  ClickAt(Arrow(At({0, 0})), Qt::LeftButton);
  ASSERT_TRUE(Tree().isExpanded(At({0, 0})));
  LeftClick({0, 0, 0});
  EXPECT_TRUE(Line(0).editing);
  // The pictures follow the side that was clicked, and none was.
  EXPECT_EQ(Icon({0, 0, 0}), Picture("tree-polyline"));
  ClickAt(Arrow(At({0, 0, 1})), Qt::LeftButton);
  ASSERT_TRUE(Tree().isExpanded(At({0, 0, 1})));
  EXPECT_FALSE(Line(1).editing);
  ClickAt(Arrow(At({0, 0})), Qt::LeftButton);
  ASSERT_FALSE(Tree().isExpanded(At({0, 0})));
  Tree().expand(At({0, 0}));
  LeftClick({0, 0, 2});
  EXPECT_EQ(Icon({0, 0, 2}), Picture("tree-polyline"));
}

TEST_F(ObjectPane, TheReturnKeyIsAClickOnTheCurrentItem)
{
  Tree().setCurrentIndex(At({0, 0}));
  QTest::keyClick(&Tree(), Qt::Key_Return);
  Tree().setCurrentIndex(At({0, 0, 1}));
  QTest::keyClick(&Tree(), Qt::Key_Enter);
  EXPECT_TRUE(Line(1).editing);
  EXPECT_EQ(Icon({0, 0, 1}), Picture("tree-polyline-marked"));
}

TEST_F(ObjectPane, RowsAreAsLargeAsTheToolkitMeasuresThem)
{
  ExpectSizesOfTheToolkit();
  QFont font = Tree().font();
  font.setPointSize(3 * font.pointSize());
  Tree().setFont(font);
  ExpectSizesOfTheToolkit();
  QApplication::processEvents();
  EXPECT_GE(Tree().columnWidth(0), Measured(*Tree().itemDelegate(), At({0, 0, 0})).width());
  Tree().setFont(QFont());
  ExpectSizesOfTheToolkit();
}

TEST_F(ObjectPane, WithoutADesignARebuildShowsNothing)
{
  ObjectTreeWidget tree(nullptr);
  tree.BeforeRebuild();
  tree.Rebuilt();
  EXPECT_EQ(tree.model(), nullptr);
}

TEST_F(ObjectPane, TheKeysForCopyingLeaveTheClipboardAlone)
{
  QApplication::clipboard()->setText(QStringLiteral("12.5"));
  Tree().setFocus();
  Tree().setCurrentIndex(At({0, 0, 0, 0}));
  QTest::keyClick(&Tree(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("12.5"));
  QTest::keyClick(&Tree(), Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("12.5"));
  EXPECT_EQ(Tree().currentIndex(), At({0, 0, 0, 0}));
}

}  // namespace
}  // namespace hullwright
