#include "qt/ObjectTreeWidget.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <utility>

#include "qt/Icons.h"
#include "qt/ObjectTreeDelegate.h"
#include "qt/QtText.h"

namespace hullwright {

ObjectTreeWidget::ObjectTreeWidget(QWidget* parent) : QTreeView(parent)
{
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIconSize(QSize(16, 16));
  setTextElideMode(Qt::ElideNone);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAccessibleName(tr("Object tree"));
  setAccessibleDescription(tr("The design by side, with its polylines, points and anchors"));
  connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { Click(index); });
}

void ObjectTreeWidget::Attach(CObjectView& pane)
{
  pane_ = &pane;
  model_ = new ObjectTreeModel(pane.Tree(), this);
  setModel(model_);
  setItemDelegate(new ObjectTreeDelegate(pane.Tree(), this));
  RefreshIcons();
}

void ObjectTreeWidget::Detach()
{
  pane_ = nullptr;
  setModel(nullptr);
  delete std::exchange(model_, nullptr);
}

void ObjectTreeWidget::RefreshIcons()
{
  if (model_ == nullptr) return;
  model_->SetIcons({{TreeImage::Node, ThemedIcon("tree-node", palette())},
                    {TreeImage::PolylineUnmarked, ThemedIcon("tree-polyline-plain", palette())},
                    {TreeImage::Point, ThemedIcon("tree-point", palette())},
                    {TreeImage::Anchor, ThemedIcon("tree-anchor", palette())},
                    {TreeImage::Polyline, ThemedIcon("tree-polyline", palette())},
                    {TreeImage::PolylineMarked, ThemedIcon("tree-polyline-marked", palette())},
                    {TreeImage::AnchorMarked, ThemedIcon("tree-anchor-marked", palette())}});
  viewport()->update();
}

void ObjectTreeWidget::BeforeRebuild()
{
  if (model_ != nullptr) model_->BeginReset();
}

void ObjectTreeWidget::Rebuilt()
{
  if (model_ == nullptr) return;
  model_->EndReset();
  for (int root = 0; root < model_->rowCount({}); ++root) expand(model_->index(root, 0, {}));
}

void ObjectTreeWidget::ImagesChanged()
{
  // Images of all visible rows are read again; notifying of each changed row would take longer.
  viewport()->update();
}

void ObjectTreeWidget::ShowMenu(std::span<const PopupEntry> entries)
{
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const PopupEntry& entry : entries) {
    QAction* const action = menu->addAction(ToQString(entry.text));
    if (iconOf) action->setIcon(iconOf(entry.id));
    connect(action, &QAction::triggered, this, [this, id = entry.id] {
      if (pane_ != nullptr) pane_->OnCommand(id);
      Q_EMIT Changed();
    });
  }
  menu->popup(menuPlace_);
}

void ObjectTreeWidget::Click(const QModelIndex& index)
{
  if (pane_ == nullptr) return;
  pane_->OnClick(model_->ItemAt(index));
  Q_EMIT Changed();
}

void ObjectTreeWidget::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Click(currentIndex());
    return;
  }
  if (event->matches(QKeySequence::Copy)) {
    // The toolkit would copy the row's text; the program's own command of this key does nothing.
    event->ignore();
    return;
  }
  QTreeView::keyPressEvent(event);
}

void ObjectTreeWidget::changeEvent(QEvent* event)
{
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) RefreshIcons();
}

QItemSelectionModel::SelectionFlags ObjectTreeWidget::selectionCommand(const QModelIndex& index,
                                                                       const QEvent*) const
{
  // The current item is the selected one, whatever keys are held.
  return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                         : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

void ObjectTreeWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
  QTreeView::currentChanged(current, previous);
  if (pane_ != nullptr) pane_->selectedItem = model_->ItemAt(current);
}

void ObjectTreeWidget::contextMenuEvent(QContextMenuEvent* event)
{
  if (pane_ == nullptr) return;
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
  if (!index.isValid()) return;
  setCurrentIndex(index);
  scrollTo(index);
  menuPlace_ = byKey ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos();
  pane_->OnContextMenu(model_->ItemAt(index));
}

}  // namespace hullwright
