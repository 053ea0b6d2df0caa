#include "qt/ObjectTreeModel.h"

#include <QColor>
#include <utility>

#include "model/ShapeColours.h"
#include "qt/QtText.h"

namespace hullwright {
namespace {

// An index carries its row; level, side and polyline go into the number that the toolkit keeps with
// it.
constexpr unsigned sideShift = 4;
constexpr unsigned rowShift = 8;

quintptr Pack(const TreeItem& item)
{
  const auto level = static_cast<quintptr>(item.level);
  const quintptr polyline = item.level == TreeLevel::Point ? item.row : 0;
  return level | (item.side << sideShift) | (polyline << rowShift);
}

int RowOf(const TreeItem& item)
{
  switch (item.level) {
    case TreeLevel::Side: return static_cast<int>(item.side);
    case TreeLevel::Polyline:
    case TreeLevel::Anchor: return static_cast<int>(item.row);
    case TreeLevel::Point: return static_cast<int>(item.point);
    case TreeLevel::Anchors: return 1;
    default: return 0;
  }
}

}  // namespace

ObjectTreeModel::ObjectTreeModel(const CObjectTree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree)
{
}

QModelIndex ObjectTreeModel::IndexOf(const TreeItem& item) const
{
  return item ? createIndex(RowOf(item), 0, Pack(item)) : QModelIndex();
}

TreeItem ObjectTreeModel::ItemAt(const QModelIndex& index) const
{
  if (!index.isValid()) return {};
  const quintptr id = index.internalId();
  const auto row = static_cast<std::size_t>(index.row());
  TreeItem item = tree_.Root();
  item.level = static_cast<TreeLevel>(id & 0xFU);
  item.side = (id >> sideShift) & 0xFU;
  item.row = item.level == TreeLevel::Point ? id >> rowShift : row;
  item.point = item.level == TreeLevel::Point ? row : 0;
  if (item.level == TreeLevel::Root || item.level == TreeLevel::Side ||
      item.level == TreeLevel::Anchors) {
    item.row = 0;
  }
  return item;
}

QModelIndex ObjectTreeModel::index(int row, int column, const QModelIndex& parent) const
{
  if (row < 0 || column != 0) return {};
  if (parent.isValid()) return IndexOf(tree_.Child(ItemAt(parent), static_cast<std::size_t>(row)));
  if (row == 0) return IndexOf(tree_.Root());
  return row == 1 ? IndexOf(tree_.Anchors()) : QModelIndex();
}

QModelIndex ObjectTreeModel::parent(const QModelIndex& index) const
{
  return IndexOf(tree_.Parent(ItemAt(index)));
}

int ObjectTreeModel::rowCount(const QModelIndex& parent) const
{
  if (parent.isValid()) return static_cast<int>(tree_.ChildCount(ItemAt(parent)));
  return tree_.Anchors() ? 2 : 1;
}

int ObjectTreeModel::columnCount(const QModelIndex&) const { return 1; }

QVariant ObjectTreeModel::data(const QModelIndex& index, int role) const
{
  const TreeItem item = ItemAt(index);
  if (role == Qt::DisplayRole) return ToQString(tree_.Text(item));
  if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) return ToolTip(item);
  if (role != Qt::DecorationRole) return {};
  const auto icon = icons_.find(tree_.Image(item));
  return icon == icons_.end() ? QVariant() : QVariant(icon->second);
}

QVariant ObjectTreeModel::ToolTip(const TreeItem& item) const
{
  const CShape* const shape = item.level == TreeLevel::Polyline ? tree_.Shape(item) : nullptr;
  if (shape == nullptr) return {};
  const ShapeStyle& style = StyleOf(*shape);
  const QColor colour(RedOf(style.lineColour), GreenOf(style.lineColour), BlueOf(style.lineColour));
  return tr("%1 points, width %2, colour %3")
      .arg(tree_.ChildCount(item))
      .arg(QString::number(style.lineWidth), colour.name());
}

void ObjectTreeModel::SetIcons(std::map<TreeImage, QIcon> icons) { icons_ = std::move(icons); }

}  // namespace hullwright
