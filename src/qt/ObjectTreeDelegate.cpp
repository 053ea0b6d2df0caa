#include "qt/ObjectTreeDelegate.h"

#include <QWidget>

#include "qt/ObjectTreeModel.h"

namespace hullwright {

ObjectTreeDelegate::ObjectTreeDelegate(const CObjectTree& tree, QObject* parent)
    : QStyledItemDelegate(parent), tree_(tree)
{
}

QSize ObjectTreeDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
  const TreeItem item = static_cast<const ObjectTreeModel&>(*index.model()).ItemAt(index);
  if (item.level != TreeLevel::Polyline) return QStyledItemDelegate::sizeHint(option, index);
  QSize& size = KeptSize(option, tree_.Image(item));
  if (!size.isValid()) size = QStyledItemDelegate::sizeHint(option, index);
  return size;
}

QSize& ObjectTreeDelegate::KeptSize(const QStyleOptionViewItem& option, TreeImage image) const
{
  const QStyle* const style = option.widget->style();
  if (option.font != font_ || style != style_) polylines_.clear();
  font_ = option.font;
  style_ = style;
  return polylines_[image];
}

}  // namespace hullwright
