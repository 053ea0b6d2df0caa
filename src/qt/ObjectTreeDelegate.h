#pragma once

#include <QFont>
#include <QSize>
#include <QStyledItemDelegate>
#include <map>

#include "app/ObjectTree.h"

namespace hullwright {

/// Measures the rows of the object tree. The view asks for a thousand rows several times at each
/// rebuild; polylines look alike but for their images, so that one of each image is measured.
class ObjectTreeDelegate : public QStyledItemDelegate {
public:
  /// The tree is that of the model whose rows are measured.
  ObjectTreeDelegate(const CObjectTree& tree, QObject* parent);

  /// Shows the text of a row that is not seen whole above what the model tells of it.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
  QSize& KeptSize(const QStyleOptionViewItem& option, TreeImage image) const;

  const CObjectTree& tree_;
  mutable std::map<TreeImage, QSize> polylines_;
  mutable QFont font_;  ///< what they are measured in
  mutable const QStyle* style_ = nullptr;
};

}  // namespace hullwright
