#include "app/Dialogs.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

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

/// An edit field and where the values of its dialog hold its number.
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

/// Whether every check box and radio button of the template stands in one of the tables.
constexpr bool BindsAllButtons(const DialogTemplate& dialog, const auto&... tables)
{
  const auto binds = [](const auto& table, ControlId id) {
    return std::ranges::any_of(table, [id](const auto& row) { return row.button == id; });
  };
  return std::ranges::all_of(dialog.rows, [&](const DialogRow& row) {
    const ControlId id = ButtonOf(row);
    return id == ControlId::None || (binds(tables, id) || ...);
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

std::vector<BoundNumber> Bind(const auto& fields, auto& values)
{
  std::vector<BoundNumber> bound;
  bound.reserve(std::size(fields));
  for (const auto& row : fields) bound.push_back({row.field, row.value(values), row.decimals});
  return bound;
}

/// Fills the labels behind the fields with the short name of the design's unit; where that is not
/// known, they keep the template's text.
void FillUnitLabels(IDialogControls& controls, const DialogTemplate& dialog, CHullwrightApp& app)
{
  for (const DialogRow& row : dialog.rows) {
    if (row.unitId == ControlId::None) continue;
    std::u16string label = controls.GetText(row.unitId);
    app.GetUnitLabel(label);
    controls.SetText(row.unitId, label);
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
static_assert(HasButtons(gridDialog, gridSwitches) && BindsAllButtons(gridDialog, gridSwitches));

constexpr auto moveFields = std::to_array<NumberField<CShapeVertex>>({
    {MoveControls::directionX, Of<&CShapeVertex::x>, shortDecimals},
    {MoveControls::directionY, Of<&CShapeVertex::y>, shortDecimals},
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
static_assert(BindsAllButtons(rotateDialog, angleButtons, directionButtons));

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

void CDialogNumbers::OnStart(IDialogControls& controls)
{
  for (const BoundNumber& number : Numbers()) {
    controls.SetText(number.field, WideFromAscii(FormatFixed(number.value, number.decimals)));
  }
  FillUnitLabels(controls, *FindDialogTemplate(Template()), app_);
}

bool CDialogNumbers::OnOk(IDialogControls& controls)
{
  // All are read before the first is taken, so that where memory ends none is.
  const std::vector<BoundNumber> numbers = Numbers();
  std::vector<double> read;
  read.reserve(numbers.size());
  for (const BoundNumber& number : numbers) read.push_back(ReadNumber(controls, number.field));
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i].value = read[i];
  return true;
}

std::vector<BoundNumber> CDialogGrid::Numbers() { return Bind(gridFields, grid_); }

void CDialogGrid::OnStart(IDialogControls& controls)
{
  grid_ = app_.LoadGridSettings();
  for (const auto& [button, isOn] : gridSwitches) controls.SetChecked(button, grid_.*isOn != 0);
  CDialogNumbers::OnStart(controls);
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
  for (const auto& [button, isOn] : gridSwitches) grid_.*isOn = controls.IsChecked(button) ? 1 : 0;
  CDialogNumbers::OnOk(controls);
  app_.SaveGridSettings(grid_);
  return true;
}

std::vector<BoundNumber> CDialogMove::Numbers() { return Bind(moveFields, displacement_); }

bool CDialogOffsets::HasOffsets() const
{
  return app_.offsetGps && app_.offsetTransducer && app_.offsetPivot;
}

std::vector<BoundNumber> CDialogOffsets::Numbers()
{
  return Bind(offsetsFields, static_cast<DesignState&>(app_));
}

void CDialogOffsets::OnStart(IDialogControls& controls)
{
  if (!HasOffsets()) return;
  CDialogNumbers::OnStart(controls);
  for (const auto& [kind, field] : offsetFocuses) {
    if (focus_ == kind) controls.FocusField(field);
  }
}

bool CDialogOffsets::OnOk(IDialogControls& controls)
{
  if (!HasOffsets()) return true;
  const bool done = CDialogNumbers::OnOk(controls);
  app_.offsetGps->z = 0.0;
  app_.offsetTransducer->z = 0.0;
  return done;
}

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

std::vector<BoundNumber> CDialogScale::Numbers() { return Bind(scaleFields, *this); }

std::vector<BoundNumber> CDialogVertex::Numbers()
{
  return vertex_ == nullptr ? std::vector<BoundNumber>{} : Bind(vertexFields, *vertex_);
}

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
  // The question is asked with the new unit in force; where memory ends, the old one comes back.
  app_.unitCode = UnitCode{*chosen};
  try {
    app_.ConvertDesign(oldUnit_, app_.unitCode);
  } catch (const std::bad_alloc&) {
    app_.unitCode = oldUnit_;
    throw;
  }
  return true;
}

}  // namespace hullwright
