#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dxf/ImportTally.h"
#include "model/DesignState.h"
#include "platform/DialogPort.h"
#include "platform/FileDialogs.h"
#include "platform/Framework.h"
#include "platform/MainWindowPort.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "platform/Trace.h"
#include "platform/UnitDatabasePort.h"
#include "render/ViewPort.h"
#include "resources/CommandHandler.h"
#include "view/ViewHost.h"

namespace hullwright {

class CMainFrame;

/// What the application asks of the platform.
struct AppPorts {
  ISettingsStore& settings;
  IMessageBoxes& messages;
  IDialogRunner& dialogs;
  IFileDialogs& fileDialogs;
  IUnitDatabase& units;
  ITrace& log;
};

/// The one application object: it holds the design itself, carries out the design-wide commands and
/// answers what the view asks. It is made before frame, document and view, and must outlive them.
class CHullwrightApp : public DesignState, public IViewHost {
public:
  explicit CHullwrightApp(const AppPorts& ports);

  /// Start-up to the first selected side, which is always the top. False ends the process; only a
  /// failure of the libraries is reported in a message.
  bool InitInstance(IFramework& framework);

  /// The process's exit code.
  int ExitInstance(IFramework& framework);

  /// Brings a side into view: stores the code, shows it on the toolbar's drop-down, repaints.
  void SetViewSide(ViewSide side);

  /// Fills the unit table from the database; what is there stays where that fails.
  void LoadUnits();

  /// Sets `label` to the short name of the design's unit; an unknown unit leaves it as it is.
  void GetUnitLabel(std::u16string& label);

  /// Carries out a design command; false for an id that is none.
  bool OnCommand(CommandId id);

  /// How a design command looks at the moment; disabled for an id that is none.
  CommandState QueryCommand(CommandId id) const;

  /// Turns the polylines of the side in view, making the group if need be; shapes of other kinds
  /// stay as they are. An angle of 0.0 turns nothing.
  void RotatePolylines(double angleDegrees);

  /// Takes the shapes of the side in view, the antenna's and the transducer's offset from one unit
  /// to another, if the user confirms it. Without shapes there, or between equal units, there is no
  /// question.
  void ConvertDesign(UnitCode from, UnitCode to);

  /// The units of length that the database has now.
  std::vector<UnitRecord> ReadUnits() { return ports_.units.ReadUnits(); }

  /// Adds the shapes of a drawing to the side in view. 0 on success; -1, with the design untouched,
  /// for a drawing that can't be read. `tally` is set to what the import took in and passed over.
  int ImportDrawing(std::u16string_view path, ImportTally& tally);

  /// Repaints the design.
  void Repaint() const;

  /// Notifies all of a change of the design by a command: repaint, tree, modified.
  void NotifyModified();

  bool AskYesNo(std::u16string_view question) { return ports_.messages.AskYesNo(question); }

  /// The look that the settings store has, and its way there.
  void LoadLook();
  void StoreLook(Look look);

  void ShowMessage(std::u16string_view text) { ports_.messages.ShowMessage(text); }
  void SaveGridSettings(const GridSettings& grid);

  std::unique_ptr<CViewPortDesigner> HandOverViewPort() override;
  bool EditVertex(CShapeVertex& vertex) override;
  bool EditOffsets(HitKind focus) override;
  GridSettings LoadGridSettings() const override;
  CursorTool GetCursorTool() const override { return cursorTool; }
  std::u16string GetUnitName() override;
  void NotifyDesignChanged() override;
  void SetModifiedFlag(bool modified) override;

  CMainFrame* mainFrame = nullptr;  ///< set by the editor; null before and after the frame
  CursorTool cursorTool = CursorTool::None;
  std::vector<UnitRecord> unitTable;  ///< names of the units, loaded at their first use
  Look applicationLook{};             ///< read when the frame is made
  std::int32_t paneStyleFlag = 1;     ///< read once, when the frame builds its panes

private:
  std::unique_ptr<CViewPortDesigner> ownViewPort_;  ///< until a view takes it over
  const UnitRecord* FindUnit();

  friend struct DesignCommandTable;

  // Design commands (DesignCommands.cpp)
  void Scale(double fx, double fy, double fz);
  void MirrorVertically();
  void MirrorHorizontally();
  void ScaleDesign();
  void MoveDesign();
  void RotateRight();
  void RotateLeft();
  void RotateDesign(bool clockwise);
  void ModifyOffsets();
  void SwitchUnits();
  void EditGrid();
  void ToggleGrid();
  void ToggleSnap();
  void ShowAbout();
  void ImportDxf();

  AppPorts ports_;
};

}  // namespace hullwright
