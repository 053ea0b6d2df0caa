#include "qt/ObjectTreeDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

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

bool ObjectTreeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
  if (event->type() != QEvent::ToolTip || !index.isValid()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QStringList lines;
  const QRect row = view->visualRect(index);
  const QRect seen = view->viewport()->rect();
  const bool isWhole = row.left() >= seen.left() && row.left() + row.width() - 1 <= seen.right();
  if (!isWhole) lines.append(index.data(Qt::DisplayRole).toString());
  const QString told = index.data(Qt::ToolTipRole).toString();
  if (!told.isEmpty()) lines.append(told);
  QToolTip::showText(event->globalPos(), lines.join(QLatin1Char('\n')), view->viewport(), row);
  return true;
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
