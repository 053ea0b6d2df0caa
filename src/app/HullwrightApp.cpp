#include "app/HullwrightApp.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/Dialogs.h"
#include "app/GridSettingsStore.h"
#include "app/MainFrame.h"
#include "base/Code.h"
#include "base/FindOrNull.h"
#include "resources/CommandIds.h"
#include "resources/Strings.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

constexpr std::string_view workspaceSection = "Workspace";
constexpr std::string_view lookKey = "ApplicationLook";

}  // namespace

CHullwrightApp::CHullwrightApp(const AppPorts& ports)
    : ownViewPort_(std::make_unique<CViewPortDesigner>()), ports_(ports)
{
  viewPort = ownViewPort_.get();
}

bool CHullwrightApp::InitInstance(IFramework& framework)
{
  constexpr int recentFiles = 4;
  framework.InitialiseControls();
  if (!framework.InitialiseLibraries()) {
    ports_.messages.ShowMessage(Strings::librariesFailed);
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

void CHullwrightApp::SetViewSide(ViewSide side)
{
  activeView = side;
  if (mainFrame == nullptr) return;
  if (const ViewSideEntry* const entry = FindViewSide(side)) {
    mainFrame->SetViewButtonImage(entry->command);
  }
  mainFrame->InvalidateToolBar();
  mainFrame->Notify(Notification::RepaintDesign);
}

std::unique_ptr<CViewPortDesigner> CHullwrightApp::HandOverViewPort()
{
  return std::move(ownViewPort_);
}

GridSettings CHullwrightApp::LoadGridSettings() const
{
  return hullwright::LoadGridSettings(ports_.settings);
}

void CHullwrightApp::LoadUnits()
{
  std::vector<UnitRecord> read = ReadUnits();
  std::ranges::move(read, std::back_inserter(unitTable));
}

const UnitRecord* CHullwrightApp::FindUnit()
{
  if (unitTable.empty()) LoadUnits();
  return FindOrNull(unitTable, unitCode, &UnitRecord::numId);
}

void CHullwrightApp::GetUnitLabel(std::u16string& label)
{
  if (const UnitRecord* const unit = FindUnit()) label = unit->strUnitShort;
}

std::u16string CHullwrightApp::GetUnitName()
{
  const UnitRecord* const unit = FindUnit();
  return unit == nullptr ? std::u16string() : unit->strUnit;
}

void CHullwrightApp::SaveGridSettings(const GridSettings& grid)
{
  hullwright::SaveGridSettings(ports_.settings, grid);
}

void CHullwrightApp::LoadLook()
{
  ports_.settings.Refresh();
  applicationLook = Look{
      ports_.settings.ReadInteger(workspaceSection, lookKey, NumberOf(Look::VisualStudio2008))};
}

void CHullwrightApp::StoreLook(Look look)
{
  ports_.settings.WriteInteger(workspaceSection, lookKey, NumberOf(look));
}

bool CHullwrightApp::EditVertex(CShapeVertex& vertex)
{
  CDialogVertex dialog(*this, &vertex);
  return ports_.dialogs.Run(dialog) != DialogEnd::Cancel;
}

bool CHullwrightApp::EditOffsets(HitKind focus)
{
  CDialogOffsets dialog(*this, focus);
  return ports_.dialogs.Run(dialog) != DialogEnd::Cancel;
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
