#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/TraceLog.h"
#include "app/UnitTable.h"
#include "model/DesignState.h"
#include "platform/Framework.h"
#include "platform/MainWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "render/ViewPort.h"
#include "view/ViewHost.h"

namespace hullwright {

class CMainFrame;

/// The one application object: it holds the design itself, carries out the design-wide commands and
/// answers what the view asks. It is made before frame, document and view, and must outlive them.
class CHullwrightApp : public DesignState, public IViewHost {
public:
  /// `commonDataFolder` tells the folder of the survey package's common data.
  CHullwrightApp(ISettingsStore& settings, IMessageBoxes& messages, ILibraryLoader& libraries,
                 std::function<std::u16string()> commonDataFolder);
  ~CHullwrightApp() override;

  /// Start-up to the first selected side, which is always the top. False ends the process; only a
  /// failure of the libraries is told in a message.
  bool InitInstance(IFramework& framework);

  /// The process's exit code.
  int ExitInstance(IFramework& framework);

  /// Brings a side into view: stores the code, shows it on the toolbar's drop-down, repaints.
  void SetViewSide(std::int32_t code);

  /// Fills the unit table from the database; what is there stays where that fails.
  void LoadUnits();

  /// Sets `label` to the short name of the design's unit; an unknown unit leaves it as it is.
  void GetUnitLabel(std::u16string& label);

  /// Carries out a design command; false for an id that is none.
  bool OnCommand(int id);

  /// Adds a record to the log of a category.
  void Trace(double elapsedSeconds, std::int32_t level, std::u16string_view category,
             std::u16string_view text) const;

  std::unique_ptr<CViewPortDesigner> HandOverViewPort() override;
  GridSettings LoadGridSettings() const override;
  std::int32_t GetCursorTool() const override { return cursorTool; }
  std::u16string GetUnitName() override;
  void NotifyDesignChanged() override;
  void SetModifiedFlag(bool modified) override;

  CMainFrame* mainFrame = nullptr;  ///< null until the frame exists
  std::int32_t cursorTool = CursorTool::None;
  std::vector<UnitRecord> unitTable;  ///< names of the units, loaded at their first use
  std::int32_t paneStyleFlag = 1;     ///< read once, when the frame builds its panes

private:
  std::unique_ptr<CViewPortDesigner> ownViewPort_;  ///< until a view takes it over
  const UnitRecord* FindUnit();

  ISettingsStore& settings_;
  IMessageBoxes& messages_;
  ILibraryLoader& libraries_;
  std::function<std::u16string()> commonDataFolder_;
  CTraceLog traceLog_;
};

}  // namespace hullwright
