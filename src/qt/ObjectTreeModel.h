#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <map>

#include "app/ObjectTree.h"

namespace hullwright {

/// The object tree for the toolkit: reads from the tree at each call and keeps nothing
/// itself.
class ObjectTreeModel : public QAbstractItemModel {
  Q_OBJECT

public:
  ObjectTreeModel(const CObjectTree& tree, QObject* parent);

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  TreeItem ItemAt(const QModelIndex& index) const;

  // Around a rebuild of the tree.
  void BeginReset() { beginResetModel(); }
  void EndReset() { endResetModel(); }

  void SetIcons(std::map<TreeImage, QIcon> icons);

private:
  /// What a row tells beside its text; made at each call.
  QVariant ToolTip(const TreeItem& item) const;
  QModelIndex IndexOf(const TreeItem& item) const;

  const CObjectTree& tree_;
  std::map<TreeImage, QIcon> icons_;  ///< by the numbers of the tree's images
};

}  // namespace hullwright
