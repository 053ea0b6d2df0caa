#include "app/Dialogs.h"

#include <array>

#include "app/GridSettingsStore.h"
#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/DialogTemplates.h"
#include "resources/Strings.h"
#include "view/PickedItem.h"

namespace hullwright {
namespace {

/// Shows a number with two or three decimals.
void ShowNumber(IDialogControls& controls, int id, double value, int decimals)
{
  controls.SetText(id, WideFromAscii(FormatFixed(value, decimals)));
}

double ReadNumber(const IDialogControls& controls, int id)
{
  return ParseDouble(controls.GetText(id));
}

constexpr int shortDecimals = 2;
constexpr int longDecimals = 3;

/// A field of a vertex: the control that shows it.
struct VertexField {
  int id;
  double CShapeVertex::*coordinate;
};

constexpr std::array<VertexField, 3> vertexFields = {
    {{1008, &CShapeVertex::x}, {1009, &CShapeVertex::y}, {1023, &CShapeVertex::z}}};

}  // namespace

void CDialogNumbers::FillUnitLabels(IDialogControls& controls, std::initializer_list<int> ids)
{
  for (const int id : ids) {
    std::u16string label = controls.GetText(id);
    app_.GetUnitLabel(label);
    controls.SetText(id, label);
  }
}

int CDialogGrid::Template() const { return DialogId::Grid; }

void CDialogGrid::OnStart(IDialogControls& controls)
{
  const GridSettings grid = app_.LoadGridSettings();
  controls.SetChecked(1002, grid.show != 0);
  controls.SetChecked(1001, grid.snap != 0);
  ShowNumber(controls, 1000, grid.spacingShowX, shortDecimals);
  ShowNumber(controls, 1003, grid.spacingShowY, shortDecimals);
  ShowNumber(controls, 1009, grid.spacingSnapX, shortDecimals);
  ShowNumber(controls, 1012, grid.spacingSnapY, shortDecimals);
  FillUnitLabels(controls, {1004, 1005, 1010, 1013});
  UpdateEnabled(controls);
}

void CDialogGrid::OnClick(IDialogControls& controls, int) { UpdateEnabled(controls); }

void CDialogGrid::UpdateEnabled(IDialogControls& controls)
{
  const bool show = controls.IsChecked(1002);
  for (const int id : {1004, 1005, 1000, 1003, 1006, 1007}) controls.SetEnabled(id, show);
  const bool snap = controls.IsChecked(1001);
  for (const int id : {1010, 1013, 1009, 1012, 1008, 1011}) controls.SetEnabled(id, snap);
}

bool CDialogGrid::OnOk(IDialogControls& controls)
{
  GridSettings grid = app_.LoadGridSettings();
  grid.show = controls.IsChecked(1002) ? 1 : 0;
  grid.snap = controls.IsChecked(1001) ? 1 : 0;
  grid.spacingShowX = ReadNumber(controls, 1000);
  grid.spacingShowY = ReadNumber(controls, 1003);
  grid.spacingSnapX = ReadNumber(controls, 1009);
  grid.spacingSnapY = ReadNumber(controls, 1012);
  app_.SaveGridSettings(grid);
  return true;
}

int CDialogMove::Template() const { return DialogId::Move; }

void CDialogMove::OnStart(IDialogControls& controls)
{
  ShowNumber(controls, 1024, way_.x, shortDecimals);
  ShowNumber(controls, 1025, way_.y, shortDecimals);
  FillUnitLabels(controls, {1004, 1005});
}

bool CDialogMove::OnOk(IDialogControls& controls)
{
  way_.x = ReadNumber(controls, 1024);
  way_.y = ReadNumber(controls, 1025);
  return true;
}

int CDialogOffsets::Template() const { return DialogId::Offsets; }

void CDialogOffsets::OnStart(IDialogControls& controls)
{
  if (!app_.offsetGps || !app_.offsetTransducer || !app_.offsetPivot) return;
  ShowNumber(controls, 1027, app_.offsetGps->x, longDecimals);
  ShowNumber(controls, 1028, app_.offsetGps->y, longDecimals);
  ShowNumber(controls, 1030, app_.offsetTransducer->x, longDecimals);
  ShowNumber(controls, 1031, app_.offsetTransducer->y, longDecimals);
  ShowNumber(controls, 1001, app_.offsetPivot->x, longDecimals);
  ShowNumber(controls, 1002, app_.offsetPivot->y, longDecimals);
  ShowNumber(controls, 1003, app_.offsetPivot->z, longDecimals);
  FillUnitLabels(controls, {1004, 1005, 1010, 1013, 1006, 1007, 1008});
  if (focus_ == HitKind::Gps) controls.FocusField(1027);
  if (focus_ == HitKind::Transducer) controls.FocusField(1030);
  if (focus_ == HitKind::Pivot) controls.FocusField(1001);
}

bool CDialogOffsets::OnOk(IDialogControls& controls)
{
  if (!app_.offsetGps || !app_.offsetTransducer || !app_.offsetPivot) return true;
  const auto read = [&controls](CShapeVertex& offset, int x, int y) {
    offset.x = ReadNumber(controls, x);
    offset.y = ReadNumber(controls, y);
    offset.z = 0.0;
  };
  read(*app_.offsetGps, 1027, 1028);
  read(*app_.offsetTransducer, 1030, 1031);
  read(*app_.offsetPivot, 1001, 1002);
  app_.offsetPivot->z = ReadNumber(controls, 1003);
  return true;
}

int CDialogRotate::Template() const { return DialogId::Rotate; }

void CDialogRotate::OnStart(IDialogControls& controls)
{
  controls.SetChecked(1013, true);
  controls.SetText(1017, u"0.0");
  controls.SetChecked(clockwise_ ? 1021 : 1022, true);
}

bool CDialogRotate::OnOk(IDialogControls& controls)
{
  double angle = 0.0;
  if (controls.IsChecked(1013)) angle = 90.0;
  if (controls.IsChecked(1014)) angle = 180.0;
  if (controls.IsChecked(1015)) angle = 270.0;
  if (controls.IsChecked(1016)) angle = ReadNumber(controls, 1017);
  if (controls.IsChecked(1021)) angle = -angle;
  app_.RotatePolylines(angle);
  return true;
}

int CDialogScale::Template() const { return DialogId::Scale; }

void CDialogScale::OnStart(IDialogControls& controls) { controls.SetText(1011, u"1.00"); }

bool CDialogScale::OnOk(IDialogControls& controls)
{
  factor = ReadNumber(controls, 1011);
  return true;
}

int CDialogVertex::Template() const { return DialogId::Vertex; }

void CDialogVertex::OnStart(IDialogControls& controls)
{
  if (vertex_ != nullptr) {
    for (const auto& [id, coordinate] : vertexFields) {
      ShowNumber(controls, id, vertex_->*coordinate, longDecimals);
    }
  }
  FillUnitLabels(controls, {1004, 1005, 1010});
}

bool CDialogVertex::OnOk(IDialogControls& controls)
{
  if (vertex_ == nullptr) return true;
  for (const auto& [id, coordinate] : vertexFields) {
    vertex_->*coordinate = ReadNumber(controls, id);
  }
  return true;
}

int CDialogUnits::Template() const { return DialogId::Units; }

void CDialogUnits::OnStart(IDialogControls& controls)
{
  const std::vector<UnitRecord> units = app_.ReadUnits();
  std::vector<DialogListItem> items;
  items.reserve(units.size());
  for (const UnitRecord& unit : units) items.push_back({unit.strUnit, NumberOf(unit.numId)});
  controls.FillList(items);
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (units[i].numId == app_.unitCode) controls.SelectListItem(i);
  }
}

bool CDialogUnits::OnOk(IDialogControls& controls)
{
  const auto chosen = controls.SelectedListData();
  if (!chosen) {
    app_.ShowMessage(Strings::selectUnit);
    return false;
  }
  app_.unitCode = UnitCode{*chosen};
  app_.ConvertDesign(oldUnit_, app_.unitCode);
  return true;
}

int CAboutDlg::Template() const { return DialogId::About; }

}  // namespace hullwright
