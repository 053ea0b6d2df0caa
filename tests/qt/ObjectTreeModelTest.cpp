#include "qt/ObjectTreeModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "base/Code.h"
#include "model/ShapePolyline.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

class TreeModel : public test::ShellFixture {
protected:
  TreeModel()
  {
    for (const ViewSide side : {ViewSide::Top, ViewSide::Rear}) {
      for (int line = 0; line < 3; ++line) {
        auto shape = std::make_unique<CShapePolyline>();
        for (int i = 0; i <= line; ++i) shape->AddVertex(NumberOf(side), line, i);
        GetShapes(design.shapeGroups, side)->shapes.push_back(std::move(shape));
      }
    }
    design.anchors->items.push_back(design.anchors->NewAnchor());
    tree.Rebuild();
  }

  QModelIndex At(std::initializer_list<int> rows) const
  {
    QModelIndex index;
    for (const int row : rows) index = model.index(row, 0, index);
    return index;
  }
  QString Text(std::initializer_list<int> rows) const
  {
    return model.data(At(rows), Qt::DisplayRole).toString();
  }

  DesignState design;
  CObjectTree tree{design};
  ObjectTreeModel model{tree, nullptr};
};

TEST_F(TreeModel, AnswersTheToolkitConsistently)
{
  const QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.BeginReset();
  tree.Rebuild();
  model.EndReset();
  EXPECT_EQ(model.rowCount({}), 2);
}

TEST_F(TreeModel, EveryLevelIsReachedAndFindsItsWayBack)
{
  EXPECT_EQ(Text({0}), QStringLiteral("Vessel Design"));
  EXPECT_EQ(Text({0, 5}), QStringLiteral("REAR"));
  EXPECT_EQ(Text({0, 5, 2}), QStringLiteral("Polyline"));
  EXPECT_EQ(Text({0, 5, 2, 1}), QStringLiteral("+32.000,+2.000,+1.000"));
  EXPECT_EQ(Text({1, 0}), QStringLiteral("Anchor #1"));
  EXPECT_EQ(At({0, 5, 2, 1}).parent(), At({0, 5, 2}));
  EXPECT_EQ(At({0, 5, 2}).parent(), At({0, 5}));
  EXPECT_EQ(At({0, 5}).parent(), At({0}));
  EXPECT_EQ(At({1, 0}).parent(), At({1}));
  EXPECT_FALSE(At({0, 5, 2, 3}).isValid());
  EXPECT_FALSE(At({2}).isValid());
  EXPECT_EQ(model.ItemAt(At({0, 5, 2, 1})).point, 1U);
}

TEST_F(TreeModel, WithoutAnAnchorListThereIsOneRoot)
{
  design.anchors.reset();
  model.BeginReset();
  tree.Rebuild();
  model.EndReset();
  EXPECT_EQ(model.rowCount({}), 1);
}

}  // namespace
}  // namespace hullwright
