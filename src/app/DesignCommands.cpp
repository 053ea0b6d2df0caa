#include "app/DesignCommandTable.h"
#include "app/Dialogs.h"
#include "app/ImportText.h"
#include "app/MainFrame.h"
#include "dxf/FileDxf.h"
#include "resources/Strings.h"

// The design commands of the application object. Each acts on the side in view, works about the
// world origin and leaves offsets and anchors alone unless it is theirs.
namespace hullwright {
namespace {

/// Whether shapes were imported and the view shows no part of the box around them.
bool AreOutOfView(const ImportTally& imported, const CViewPort& view)
{
  const Extents& box = imported.extents;
  return !box.IsEmpty() && (box.minX > view.right || box.maxX < view.left || box.minY > view.top ||
                            box.maxY < view.bottom);
}

}  // namespace

bool CHullwrightApp::OnCommand(CommandId id)
{
  return RunCommand(DesignCommandTable::rows, *this, id);
}

CommandState CHullwrightApp::QueryCommand(CommandId id) const
{
  return StateOf(DesignCommandTable::rows, *this, id);
}

void CHullwrightApp::Repaint() const
{
  if (mainFrame != nullptr) mainFrame->Notify(Notification::RepaintDesign);
}

void CHullwrightApp::NotifyModified()
{
  NotifyDesignChanged();
  SetModifiedFlag(true);
}

void CHullwrightApp::Scale(double fx, double fy, double fz)
{
  CShapes* const group = FindViewGroup(shapeGroups, activeView);
  if (group == nullptr) return;
  Walk(group->cursor, group->shapes, [&](CShape& shape) { shape.Scale(fx, fy, fz); });
  NotifyModified();
}

void CHullwrightApp::MirrorVertically() { Scale(1.0, -1.0, 1.0); }

void CHullwrightApp::MirrorHorizontally() { Scale(-1.0, 1.0, 1.0); }

void CHullwrightApp::ScaleDesign()
{
  CDialogScale dialog(*this);
  if (ports_.dialogs.Run(dialog) == DialogEnd::Cancel) return;
  if (dialog.factor == 0.0) return;
  Scale(dialog.factor, dialog.factor, dialog.factor);
}

void CHullwrightApp::MoveDesign()
{
  CShapeVertex by;
  CDialogMove dialog(*this, by);
  if (ports_.dialogs.Run(dialog) == DialogEnd::Cancel) return;
  CShapes* const group = FindViewGroup(shapeGroups, activeView);
  if (group == nullptr) return;
  Walk(group->cursor, group->shapes, [&](CShape& shape) { shape.Translate(by.x, by.y, by.z); });
  NotifyModified();
}

void CHullwrightApp::RotateRight() { RotateDesign(true); }

void CHullwrightApp::RotateLeft() { RotateDesign(false); }

void CHullwrightApp::RotateDesign(bool clockwise)
{
  // The dialog does the turning, so that the design has changed by the time that it closes.
  CDialogRotate dialog(*this, clockwise);
  if (ports_.dialogs.Run(dialog) != DialogEnd::Cancel) NotifyModified();
}

void CHullwrightApp::RotatePolylines(double angleDegrees)
{
  CShapes* const group = GetShapes(shapeGroups, activeView);
  if (group == nullptr || angleDegrees == 0.0) return;
  Walk(group->cursor, group->shapes, [angleDegrees](CShape& shape) {
    if (shape.type == ShapeType::Polyline) shape.Rotate(angleDegrees);
  });
}

void CHullwrightApp::ModifyOffsets()
{
  if (!EditOffsets(HitKind::Gps)) return;
  Repaint();
  SetModifiedFlag(true);
}

void CHullwrightApp::SwitchUnits()
{
  CDialogUnits dialog(*this);
  if (ports_.dialogs.Run(dialog) != DialogEnd::Cancel) NotifyModified();
}

void CHullwrightApp::ConvertDesign(UnitCode from, UnitCode to)
{
  const CShapes* const group = GetShapes(shapeGroups, activeView);
  if (group == nullptr || group->shapes.empty() || from == to) return;
  if (!ports_.messages.AskYesNo(Strings::convertUnits)) return;
  // All are gathered before the first is converted: half a design in another unit would be the
  // worst that memory can do by running out.
  std::vector<CShapeVertex*> vertices;
  Walk(group->cursor, group->shapes, [&](CShape& shape) { shape.GetVertices(vertices); });
  for (CShapeVertex* const vertex : vertices) {
    if (vertex != nullptr) vertex->ConvertUnits(from, to);
  }
  // The pivot, the anchors and the other sides keep their numbers.
  offsetGps->ConvertUnits(from, to);
  offsetTransducer->ConvertUnits(from, to);
}

void CHullwrightApp::EditGrid()
{
  CDialogGrid dialog(*this);
  if (ports_.dialogs.Run(dialog) != DialogEnd::Cancel) Repaint();
}

void CHullwrightApp::ToggleGrid()
{
  GridSettings grid = LoadGridSettings();
  grid.show = grid.show == 0 ? 1 : 0;
  SaveGridSettings(grid);
  Repaint();
}

void CHullwrightApp::ToggleSnap()
{
  GridSettings grid = LoadGridSettings();
  grid.snap = grid.snap == 0 ? 1 : 0;
  SaveGridSettings(grid);
}

void CHullwrightApp::ImportDxf()
{
  const auto path = ports_.fileDialogs.AskOpen(Strings::drawingExtension, Strings::drawingFilter);
  if (!path) return;
  ImportTally tally;
  std::u16string note;
  if (ImportDrawing(*path, tally) != 0) {
    note = DescribeUnreadable(tally);
  } else {
    note = DescribeImport(tally);
    if (AreOutOfView(tally, *viewPort)) note += u"; outside the view: Show All";
  }
  if (mainFrame != nullptr) mainFrame->ShowNote(note);
}

int CHullwrightApp::ImportDrawing(std::u16string_view path, ImportTally& tally)
{
  CLayer layer;
  {
    CFileDxf drawing(mainFrame, ports_.log);
    const int result = drawing.Import(path, &layer);
    tally = drawing.TakeTally();
    if (result != 0) return -1;
  }
  CShapes* group = FindViewGroup(shapeGroups, activeView);
  if (group == nullptr) {  // `GetShapes` makes none for the code 0
    group = shapeGroups.emplace_back(std::make_unique<CShapes>(activeView)).get();
  }
  group->TakeShapes(*layer.shapes);
  NotifyModified();
  return 0;
}

void CHullwrightApp::ShowAbout()
{
  CAboutDlg dialog;
  ports_.dialogs.Run(dialog);
}

}  // namespace hullwright
