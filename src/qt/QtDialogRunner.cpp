#include "qt/QtDialogRunner.h"

#include "qt/TemplateDialog.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

DialogEnd QtDialogRunner::Run(IDialog& dialog)
{
  const DialogTemplate* const rows = FindDialogTemplate(dialog.Template());
  if (rows == nullptr) return DialogEnd::Cancel;
  TemplateDialog window(*rows, dialog, parent_);
  if (rows->id == DialogId::About && libraries) window.ShowBesideIcon(libraries());
  const bool accepted = window.exec() == QDialog::Accepted;
  // A message box that its logic shows closes in the same moment; window managers then give the
  // keyboard to this dialog, which is gone.
  if (parent_ != nullptr) parent_->activateWindow();
  return accepted ? DialogEnd::Ok : DialogEnd::Cancel;
}

}  // namespace hullwright
