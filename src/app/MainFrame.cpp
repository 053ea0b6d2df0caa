#include "app/MainFrame.h"

#include "app/HullwrightApp.h"
#include "app/ObjectView.h"
#include "file/HullwrightDoc.h"
#include "resources/CommandIds.h"

namespace hullwright {
namespace {

bool IsLook(int id) { return id >= Command::LookFirst && id <= Command::LookLast; }

}  // namespace

CMainFrame::CMainFrame(CHullwrightApp& app, IFrameWidgets& widgets, IMainWindow* listener)
    : viewButtonImage(Command::SelectView), app_(app), widgets_(widgets), listener_(listener)
{
  app.LoadLook();
}

void CMainFrame::ShowImport(int code, std::intptr_t value)
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

void CMainFrame::Notify(int code, std::intptr_t value)
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

bool CMainFrame::OnCommand(int id)
{
  if (id == Command::ShowAll || id == Command::DrawPolyline) {
    if (view != nullptr) view->OnCommand(id);
    return view != nullptr;
  }
  if (IsLook(id)) {
    OnApplicationLook(id);
    return true;
  }
  return app_.OnCommand(id);
}

void CMainFrame::OnApplicationLook(int look)
{
  app_.applicationLook = look;
  widgets_.ApplyLook(look);
  app_.StoreLook(look);
}

CommandState CMainFrame::QueryCommand(int id) const
{
  const auto tool = [this](std::int32_t value) {
    return CommandState{true, app_.cursorTool == value, true};
  };
  switch (id) {
    case Command::ToggleGrid: return {true, app_.LoadGridSettings().show != 0, true};
    case Command::ToggleSnap: return {true, app_.LoadGridSettings().snap != 0, true};
    case Command::CursorZoomIn: return tool(CursorTool::ZoomIn);
    case Command::CursorZoomOut: return tool(CursorTool::ZoomOut);
    case Command::CursorMove: return tool(CursorTool::Move);
    case Command::ShowAll: return {true};
    case Command::DrawPolyline: return {true, view != nullptr && view->drawing, true};
    default: break;
  }
  if (IsLook(id)) return {true, app_.applicationLook == id, true};
  return {CHullwrightApp::IsCommand(id)};
}

void CMainFrame::SetViewButtonImage(int command)
{
  viewButtonImage = command;
  widgets_.SetViewButtonImage(command);
}

void CMainFrame::InvalidateToolBar() { widgets_.InvalidateToolBar(); }

}  // namespace hullwright
