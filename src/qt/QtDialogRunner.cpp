#include "qt/QtDialogRunner.h"

#include "qt/TemplateDialog.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

DialogEnd QtDialogRunner::Run(IDialog& dialog)
{
  const DialogTemplate* const rows = FindDialogTemplate(dialog.Template());
  if (rows == nullptr) return DialogEnd::Cancel;
  TemplateDialog window(*rows, dialog, parent_);
  return window.exec() == QDialog::Accepted ? DialogEnd::Ok : DialogEnd::Cancel;
}

}  // namespace hullwright
