#include "qt/FileDialogLook.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

#include "qt/DialogButtons.h"
#include "qt/ScreenSize.h"

namespace hullwright {

void PrepareFileDialog(QFileDialog& dialog)
{
  const auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (list == nullptr) return;
  ResizeOnScreen(dialog, QSize(900, 560));
  QHeaderView& header = *list->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(0, QHeaderView::Stretch);
  SetButtonImages(dialog);
}

}  // namespace hullwright
