#include "app/Dialogs.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "app/GridSettingsStore.h"
#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/GridDialog.h"
#include "resources/MoveDialog.h"
#include "resources/OffsetsDialog.h"
#include "resources/RotateDialog.h"
#include "resources/ScaleDialog.h"
#include "resources/Strings.h"
#include "resources/VertexDialog.h"
#include "view/PickedItem.h"

namespace hullwright {
namespace {

/// An edit field bound to the number that it shows and sets.
template <typename Values>
struct NumberField {
  ControlId field;
  double& (*value)(Values&);
  int decimals;
};

constexpr int shortDecimals = 2;
constexpr int longDecimals = 3;

/// What a field is bound to: a member of the values.
template <auto member>
double& Of(auto& values)
{
  return values.*member;
}

/// What a field is bound to: a coordinate of one of the design's offsets, which must be there.
template <auto offset, auto coordinate>
double& OffsetOf(DesignState& design)
{
  return *(design.*offset).*coordinate;
}

constexpr bool HasFields(const DialogTemplate& dialog, const auto& fields)
{
  return std::ranges::all_of(fields, [&dialog](const auto& row) {
    return std::ranges::find(dialog.rows, row.field, FieldOf) != dialog.rows.end();
  });
}

/// Whether every edit field of the template has a row that binds it.
constexpr bool BindsAll(const DialogTemplate& dialog, const auto& fields)
{
  return std::ranges::all_of(dialog.rows, [&fields](const DialogRow& row) {
    return row.kind != DialogRowKind::Field ||
           std::ranges::any_of(fields, [&row](const auto& bound) { return bound.field == row.id; });
  });
}

constexpr bool HasButtons(const DialogTemplate& dialog, const auto& buttons)
{
  return std::ranges::all_of(buttons, [&dialog](const auto& row) {
    return std::ranges::find(dialog.rows, row.button, ButtonOf) != dialog.rows.end();
  });
}

double ReadNumber(const IDialogControls& controls, ControlId field)
{
  return ParseDouble(controls.GetText(field));
}

void ShowNumbers(IDialogControls& controls, const auto& fields, auto& values)
{
  for (const auto& row : fields) {
    controls.SetText(row.field, WideFromAscii(FormatFixed(row.value(values), row.decimals)));
  }
}

void ReadNumbers(const IDialogControls& controls, const auto& fields, auto& values)
{
  for (const auto& row : fields) row.value(values) = ReadNumber(controls, row.field);
}

/// Fills the labels behind the fields with the short name of the design's unit; where that is not
/// known, they keep the template's text.
void FillUnitLabels(IDialogControls& controls, const DialogTemplate& dialog, const auto& fields,
                    CHullwrightApp& app)
{
  for (const auto& row : fields) {
    const ControlId unit = FindField(dialog, row.field)->unitId;
    if (unit == ControlId::None) continue;
    std::u16string label = controls.GetText(unit);
    app.GetUnitLabel(label);
    controls.SetText(unit, label);
  }
}

constexpr auto gridFields = std::to_array<NumberField<GridSettings>>({
    {GridControls::showX, Of<&GridSettings::spacingShowX>, shortDecimals},
    {GridControls::showY, Of<&GridSettings::spacingShowY>, shortDecimals},
    {GridControls::snapX, Of<&GridSettings::spacingSnapX>, shortDecimals},
    {GridControls::snapY, Of<&GridSettings::spacingSnapY>, shortDecimals},
});
static_assert(HasFields(gridDialog, gridFields) && BindsAll(gridDialog, gridFields));

/// A check box of the grid dialog, which enables what stands behind it in its group.
struct GridSwitch {
  ControlId button;
  std::int32_t GridSettings::*isOn;
};

constexpr auto gridSwitches = std::to_array<GridSwitch>({
    {GridControls::showGrid, &GridSettings::show},
    {GridControls::snapToGrid, &GridSettings::snap},
});
static_assert(HasButtons(gridDialog, gridSwitches));

constexpr auto moveFields = std::to_array<NumberField<CShapeVertex>>({
    {MoveControls::x, Of<&CShapeVertex::x>, shortDecimals},
    {MoveControls::y, Of<&CShapeVertex::y>, shortDecimals},
});
static_assert(HasFields(moveDialog, moveFields) && BindsAll(moveDialog, moveFields));

constexpr auto offsetsFields = [] {
  using namespace OffsetsControls;
  using State = DesignState;
  using Vertex = CShapeVertex;
  return std::to_array<NumberField<DesignState>>({
      {antennaX, OffsetOf<&State::offsetGps, &Vertex::x>, longDecimals},
      {antennaY, OffsetOf<&State::offsetGps, &Vertex::y>, longDecimals},
      {transducerX, OffsetOf<&State::offsetTransducer, &Vertex::x>, longDecimals},
      {transducerY, OffsetOf<&State::offsetTransducer, &Vertex::y>, longDecimals},
      {pivotX, OffsetOf<&State::offsetPivot, &Vertex::x>, longDecimals},
      {pivotY, OffsetOf<&State::offsetPivot, &Vertex::y>, longDecimals},
      {pivotZ, OffsetOf<&State::offsetPivot, &Vertex::z>, longDecimals},
  });
}();
static_assert(HasFields(offsetsDialog, offsetsFields) && BindsAll(offsetsDialog, offsetsFields));

/// The field that has the focus when the dialog opens for a kind of pick.
struct OffsetFocus {
  HitKind kind;
  ControlId field;
};

constexpr auto offsetFocuses = std::to_array<OffsetFocus>({
    {HitKind::Gps, OffsetsControls::antennaX},
    {HitKind::Transducer, OffsetsControls::transducerX},
    {HitKind::Pivot, OffsetsControls::pivotX},
});
static_assert(HasFields(offsetsDialog, offsetFocuses));

/// A radio button with the angle in degrees that it stands for; one with a field of its own stands
/// for the number there.
struct AngleButton {
  ControlId button;
  double degrees = 0.0;
};

constexpr auto angleButtons = std::to_array<AngleButton>({
    {RotateControls::by90, 90.0},
    {RotateControls::by180, 180.0},
    {RotateControls::by270, 270.0},
    {RotateControls::byAngle},
});
static_assert(HasButtons(rotateDialog, angleButtons));
static_assert(FieldOf(*FindButton(rotateDialog, RotateControls::byAngle)) == RotateControls::angle);

struct DirectionButton {
  ControlId button;
  bool clockwise;
};

constexpr auto directionButtons = std::to_array<DirectionButton>({
    {RotateControls::clockwise, true},
    {RotateControls::counterClockwise, false},
});
static_assert(HasButtons(rotateDialog, directionButtons));

constexpr auto scaleFields = std::to_array<NumberField<CDialogScale>>({
    {ScaleControls::factor, Of<&CDialogScale::factor>, shortDecimals},
});
static_assert(HasFields(scaleDialog, scaleFields) && BindsAll(scaleDialog, scaleFields));

constexpr auto vertexFields = std::to_array<NumberField<CShapeVertex>>({
    {VertexControls::x, Of<&CShapeVertex::x>, longDecimals},
    {VertexControls::y, Of<&CShapeVertex::y>, longDecimals},
    {VertexControls::z, Of<&CShapeVertex::z>, longDecimals},
});
static_assert(HasFields(vertexDialog, vertexFields) && BindsAll(vertexDialog, vertexFields));

}  // namespace

DialogId CDialogGrid::Template() const { return DialogId::Grid; }

void CDialogGrid::OnStart(IDialogControls& controls)
{
  GridSettings grid = app_.LoadGridSettings();
  for (const auto& [button, isOn] : gridSwitches) controls.SetChecked(button, grid.*isOn != 0);
  ShowNumbers(controls, gridFields, grid);
  FillUnitLabels(controls, gridDialog, gridFields, app_);
  UpdateEnabled(controls);
}

void CDialogGrid::OnClick(IDialogControls& controls, ControlId) { UpdateEnabled(controls); }

void CDialogGrid::UpdateEnabled(IDialogControls& controls)
{
  for (const auto& [button, isOn] : gridSwitches) {
    const bool enabled = controls.IsChecked(button);
    for (const DialogRow& row : RowsBehind(gridDialog, button)) {
      for (const ControlId id : ControlsOf(row)) {
        if (id != ControlId::None) controls.SetEnabled(id, enabled);
      }
    }
  }
}

bool CDialogGrid::OnOk(IDialogControls& controls)
{
  GridSettings grid = app_.LoadGridSettings();
  for (const auto& [button, isOn] : gridSwitches) grid.*isOn = controls.IsChecked(button) ? 1 : 0;
  ReadNumbers(controls, gridFields, grid);
  app_.SaveGridSettings(grid);
  return true;
}

DialogId CDialogMove::Template() const { return DialogId::Move; }

void CDialogMove::OnStart(IDialogControls& controls)
{
  ShowNumbers(controls, moveFields, way_);
  FillUnitLabels(controls, moveDialog, moveFields, app_);
}

bool CDialogMove::OnOk(IDialogControls& controls)
{
  ReadNumbers(controls, moveFields, way_);
  return true;
}

DialogId CDialogOffsets::Template() const { return DialogId::Offsets; }

void CDialogOffsets::OnStart(IDialogControls& controls)
{
  if (!app_.offsetGps || !app_.offsetTransducer || !app_.offsetPivot) return;
  ShowNumbers(controls, offsetsFields, app_);
  FillUnitLabels(controls, offsetsDialog, offsetsFields, app_);
  for (const auto& [kind, field] : offsetFocuses) {
    if (focus_ == kind) controls.FocusField(field);
  }
}

bool CDialogOffsets::OnOk(IDialogControls& controls)
{
  if (!app_.offsetGps || !app_.offsetTransducer || !app_.offsetPivot) return true;
  app_.offsetGps->z = 0.0;
  app_.offsetTransducer->z = 0.0;
  ReadNumbers(controls, offsetsFields, app_);
  return true;
}

DialogId CDialogRotate::Template() const { return DialogId::Rotate; }

void CDialogRotate::OnStart(IDialogControls& controls)
{
  controls.SetChecked(angleButtons.front().button, true);
  controls.SetText(RotateControls::angle, u"0.0");
  for (const auto& [button, clockwise] : directionButtons) {
    if (clockwise == clockwise_) controls.SetChecked(button, true);
  }
}

bool CDialogRotate::OnOk(IDialogControls& controls)
{
  double angle = 0.0;
  for (const auto& [button, degrees] : angleButtons) {
    if (!controls.IsChecked(button)) continue;
    const ControlId field = FieldOf(*FindButton(rotateDialog, button));
    angle = field == ControlId::None ? degrees : ReadNumber(controls, field);
  }
  for (const auto& [button, clockwise] : directionButtons) {
    if (clockwise && controls.IsChecked(button)) angle = -angle;
  }
  app_.RotatePolylines(angle);
  return true;
}

DialogId CDialogScale::Template() const { return DialogId::Scale; }

void CDialogScale::OnStart(IDialogControls& controls) { ShowNumbers(controls, scaleFields, *this); }

bool CDialogScale::OnOk(IDialogControls& controls)
{
  ReadNumbers(controls, scaleFields, *this);
  return true;
}

DialogId CDialogVertex::Template() const { return DialogId::Vertex; }

void CDialogVertex::OnStart(IDialogControls& controls)
{
  if (vertex_ != nullptr) ShowNumbers(controls, vertexFields, *vertex_);
  FillUnitLabels(controls, vertexDialog, vertexFields, app_);
}

bool CDialogVertex::OnOk(IDialogControls& controls)
{
  if (vertex_ != nullptr) ReadNumbers(controls, vertexFields, *vertex_);
  return true;
}

DialogId CDialogUnits::Template() const { return DialogId::Units; }

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

DialogId CAboutDlg::Template() const { return DialogId::About; }

}  // namespace hullwright
