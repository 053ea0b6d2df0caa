#include "app/MainFrame.h"

#include "app/HullwrightApp.h"
#include "app/ObjectView.h"
#include "file/HullwrightDoc.h"

namespace hullwright {

CMainFrame::CMainFrame(CHullwrightApp& app, IFrameWidgets& widgets, IMainWindow* listener)
    : app_(app), widgets_(widgets), listener_(listener)
{
  app.LoadLook();
}

void CMainFrame::StartProgress(std::string_view text)
{
  if (listener_ != nullptr) listener_->StartProgress(text);
  widgets_.StartProgress(text);
}

void CMainFrame::ShowProgress(int percent)
{
  if (listener_ != nullptr) listener_->ShowProgress(percent);
  widgets_.ShowProgress(percent);
}

void CMainFrame::EndProgress()
{
  if (listener_ != nullptr) listener_->EndProgress();
  widgets_.EndProgress();
}

void CMainFrame::Notify(Notification code)
{
  if (listener_ != nullptr) listener_->Notify(code);
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
