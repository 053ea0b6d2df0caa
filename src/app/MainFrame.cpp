#include "app/MainFrame.h"

#include "app/HullwrightApp.h"
#include "app/ObjectView.h"
#include "file/HullwrightDoc.h"

namespace hullwright {

CMainFrame::CMainFrame(CHullwrightApp& app, IFrameWidgets& widgets, IMainWindow* listener)
    : viewButtonImage(CommandId::SelectView), app_(app), widgets_(widgets), listener_(listener)
{
  app.LoadLook();
}

void CMainFrame::ShowImport(Notification code, std::intptr_t value)
{
  switch (code) {
    case Notification::ImportStart:
      if (value == 0) break;
      // NOLINTNEXTLINE(performance-no-int-to-ptr): the value of a notification is a number
      widgets_.StartProgress(reinterpret_cast<const char*>(value));
      break;
    case Notification::ImportProgress: widgets_.ShowProgress(static_cast<int>(value)); break;
    case Notification::ImportEnd: widgets_.EndProgress(); break;
    default: break;
  }
}

void CMainFrame::Notify(Notification code, std::intptr_t value)
{
  if (listener_ != nullptr) listener_->Notify(code, value);
  ShowImport(code, value);
  if (code == Notification::RebuildTree) {
    // Whatever was released from the design must not be reached through an old pick.
    if (view != nullptr) view->DropReleasedItems();
    if (objectView != nullptr) objectView->BuildTree();
  } else if (view != nullptr) {
    view->OnUser(code);
  }
}

void CMainFrame::SetModifiedFlag(bool modified)
{
  if (listener_ != nullptr) listener_->SetModifiedFlag(modified);
  if (document != nullptr) document->SetModifiedFlag(modified);
}

bool CMainFrame::OnCommand(CommandId id)
{
  if (view != nullptr && view->OnCommand(id)) return true;
  if (const auto look = LookOf(id)) {
    OnApplicationLook(*look);
    return true;
  }
  return app_.OnCommand(id);
}

void CMainFrame::OnApplicationLook(Look look)
{
  app_.applicationLook = look;
  widgets_.ApplyLook(look);
  app_.StoreLook(look);
}

CommandState CMainFrame::QueryCommand(CommandId id) const
{
  if (view != nullptr) {
    const CommandState state = view->QueryCommand(id);
    if (state.enabled) return state;
  }
  if (const auto look = LookOf(id)) return Checked(app_.applicationLook == *look);
  return app_.QueryCommand(id);
}

void CMainFrame::SetViewButtonImage(CommandId command)
{
  viewButtonImage = command;
  widgets_.SetViewButtonImage(command);
}

void CMainFrame::InvalidateToolBar() { widgets_.InvalidateToolBar(); }

}  // namespace hullwright
