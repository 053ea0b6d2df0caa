#include "qt/FileDialogLook.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>

#include "qt/DialogButtons.h"

namespace hullwright {

void PrepareFileDialog(QFileDialog& dialog)
{
  constexpr QSize comfortable(900, 560);
  constexpr double mostOfTheScreen = 0.9;
  const auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (list == nullptr) return;
  dialog.resize(comfortable.boundedTo(dialog.screen()->availableSize() * mostOfTheScreen));
  QHeaderView& header = *list->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(0, QHeaderView::Stretch);
  SetButtonImages(dialog);
}

}  // namespace hullwright
