#pragma once

#include <QItemSelectionModel>
#include <QTreeView>
#include <functional>

#include "app/ObjectView.h"
#include "platform/TreeControl.h"
#include "qt/ObjectTreeModel.h"

namespace hullwright {

/// The widget of the object pane: shows the tree and brings clicks, menus and keys to its logic.
class ObjectTreeWidget : public QTreeView, public ITreeControl {
  Q_OBJECT

public:
  explicit ObjectTreeWidget(QWidget* parent);

  /// Shows a pane's tree; the pane must outlive the widget's events.
  void Attach(CObjectView& pane);

  void Detach();

  void BeforeRebuild() override;
  void Rebuilt() override;
  void ImagesChanged() override;
  void ShowMenu(std::span<const PopupEntry> entries) override;

  /// Gives the entries of context menus their images.
  std::function<QIcon(CommandId)> iconOf;

Q_SIGNALS:
  /// A click or a command has run, which may have changed what panes and commands show.
  void Changed();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  void RefreshIcons();
  void Click(const QModelIndex& index);

  CObjectView* pane_ = nullptr;
  ObjectTreeModel* model_ = nullptr;
  QPoint menuPlace_;  ///< of the screen
};

}  // namespace hullwright
