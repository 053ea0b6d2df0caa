#include "resources/DialogTemplates.h"

#include "base/FindOrNull.h"
#include "resources/AboutDialog.h"
#include "resources/Controls.h"
#include "resources/GridDialog.h"
#include "resources/MoveDialog.h"
#include "resources/OffsetsDialog.h"
#include "resources/RotateDialog.h"
#include "resources/ScaleDialog.h"
#include "resources/UnitsDialog.h"
#include "resources/VertexDialog.h"

namespace hullwright {
namespace {

constexpr auto templates = std::to_array<DialogTemplate>({
    aboutDialog,
    gridDialog,
    vertexDialog,
    unitsDialog,
    scaleDialog,
    rotateDialog,
    moveDialog,
    offsetsDialog,
});
static_assert(std::ranges::all_of(templates, HasUniqueControls));

/// Whether the controls of a template are those that are named for it.
constexpr bool HasNamedControls(const DialogTemplate& dialog)
{
  std::ptrdiff_t used = 0;
  for (const DialogRow& row : dialog.rows) {
    for (const ControlId id : ControlsOf(row)) {
      if (id == ControlId::None) continue;
      ++used;
      const auto names = [&](const NamedControl& control) {
        return control.dialog == dialog.id && control.id == id;
      };
      if (std::ranges::none_of(namedControls, names)) return false;
    }
  }
  return used == std::ranges::count(namedControls, dialog.id, &NamedControl::dialog);
}
static_assert(std::ranges::all_of(templates, HasNamedControls));

static_assert(std::ranges::all_of(namedControls, [](const NamedControl& control) {
  return std::ranges::count(namedControls, control.name, &NamedControl::name) == 1;
}));

}  // namespace

const DialogTemplate* FindDialogTemplate(DialogId id)
{
  return FindOrNull(templates, id, &DialogTemplate::id);
}

std::u16string AsTyped(std::u16string_view text)
{
  std::u16string taken(text);
  std::ranges::replace(taken, u',', u'.');
  return taken;
}

ControlId ChosenByTyping(const DialogTemplate& dialog, ControlId field)
{
  const DialogRow* const row = FindField(dialog, field);
  return row != nullptr ? ButtonOf(*row) : ControlId::None;
}

}  // namespace hullwright
