#include "app/HullwrightApp.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/GridSettingsStore.h"
#include "app/MainFrame.h"
#include "resources/CommandIds.h"
#include "resources/Strings.h"
#include "resources/ViewSides.h"

namespace hullwright {

CHullwrightApp::CHullwrightApp(ISettingsStore& settings, IMessageBoxes& messages,
                               ILibraryLoader& libraries,
                               std::function<std::u16string()> commonDataFolder)
    : ownViewPort_(std::make_unique<CViewPortDesigner>()),
      settings_(settings),
      messages_(messages),
      libraries_(libraries),
      commonDataFolder_(commonDataFolder),
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

void CHullwrightApp::LoadUnits()
{
  std::vector<UnitRecord> read =
      ReadUnits(libraries_, messages_, GetDatabasePath(commonDataFolder_()));
  std::ranges::move(read, std::back_inserter(unitTable));
}

const UnitRecord* CHullwrightApp::FindUnit()
{
  if (unitTable.empty()) LoadUnits();
  const auto found = std::ranges::find(unitTable, unitCode, &UnitRecord::numId);
  return found == unitTable.end() ? nullptr : &*found;
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

void CHullwrightApp::NotifyDesignChanged()
{
  if (mainFrame != nullptr) mainFrame->NotifyDesignChanged();
}

void CHullwrightApp::SetModifiedFlag(bool modified)
{
  if (mainFrame != nullptr) mainFrame->SetModifiedFlag(modified);
}

}  // namespace hullwright
