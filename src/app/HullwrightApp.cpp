#include "app/HullwrightApp.h"

#include <algorithm>
#include <utility>

#include "app/GridSettingsStore.h"
#include "app/MainFrame.h"
#include "resources/CommandIds.h"
#include "resources/Strings.h"
#include "resources/ViewSides.h"

namespace hullwright {

CHullwrightApp::CHullwrightApp(ISettingsStore& settings, IMessageBoxes& messages,
                               std::function<std::u16string()> commonDataFolder)
    : ownViewPort_(std::make_unique<CViewPortDesigner>()),
      settings_(settings),
      messages_(messages),
      traceLog_(std::move(commonDataFolder))
{
  viewPort = ownViewPort_.get();
}

CHullwrightApp::~CHullwrightApp()
{
  anchors.reset();
  offsetGps.reset();
  offsetPivot.reset();
  offsetTransducer.reset();
}

bool CHullwrightApp::InitInstance(IFramework& framework)
{
  constexpr int recentFiles = 4;
  framework.InitialiseControls();
  if (!framework.InitialiseLibraries()) {
    messages_.ShowMessage(Strings::librariesFailed);
    return false;
  }
  framework.OpenUserStore(Strings::maker, recentFiles);
  if (!framework.CreateDocumentTemplate()) return false;
  if (!framework.ProcessCommandLine()) return false;
  framework.ShowMainWindow();
  SetViewSide(ViewSide::Top);
  framework.AcceptDroppedFiles();
  return true;
}

int CHullwrightApp::ExitInstance(IFramework& framework)
{
  framework.ReleaseLibraries();
  return 0;
}

void CHullwrightApp::SetViewSide(std::int32_t code)
{
  activeView = code;
  if (mainFrame == nullptr) return;
  if (const ViewSideEntry* const side = FindViewSide(code)) {
    mainFrame->SetViewButtonImage(side->command);
  }
  mainFrame->InvalidateToolBar();
  mainFrame->Notify(Notification::RepaintDesign, 0);
}

bool CHullwrightApp::OnCommand(int id)
{
  if (const ViewSideEntry* const side = FindViewSideByCommand(id)) {
    SetViewSide(side->code);
    return true;
  }
  switch (id) {
    case Command::CursorZoomIn: cursorTool = CursorTool::ZoomIn; return true;
    case Command::CursorZoomOut: cursorTool = CursorTool::ZoomOut; return true;
    case Command::CursorMove: cursorTool = CursorTool::Move; return true;
    default: return false;
  }
}

void CHullwrightApp::Trace(double elapsedSeconds, std::int32_t level, std::u16string_view category,
                           std::u16string_view text) const
{
  traceLog_.Trace(elapsedSeconds, level, category, text);
}

std::unique_ptr<CViewPortDesigner> CHullwrightApp::HandOverViewPort()
{
  return std::move(ownViewPort_);
}

GridSettings CHullwrightApp::LoadGridSettings() const
{
  return hullwright::LoadGridSettings(settings_);
}

std::u16string CHullwrightApp::GetUnitName()
{
  const auto found = std::ranges::find(unitTable, unitCode, &UnitRecord::numId);
  return found == unitTable.end() ? std::u16string() : found->strUnit;
}

void CHullwrightApp::NotifyDesignChanged()
{
  if (mainFrame != nullptr) mainFrame->NotifyDesignChanged();
}

void CHullwrightApp::SetModifiedFlag(bool modified)
{
  if (mainFrame != nullptr) mainFrame->SetModifiedFlag(modified);
}

}  // namespace hullwright
