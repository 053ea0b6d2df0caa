#include "resources/DialogTemplates.h"

#include "resources/AboutDialog.h"
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

}  // namespace

const DialogTemplate* FindDialogTemplate(DialogId id)
{
  const auto* const found = std::ranges::find(templates, id, &DialogTemplate::id);
  return found == templates.end() ? nullptr : found;
}

std::u16string AsTyped(std::u16string_view text)
{
  std::u16string taken(text);
  std::ranges::replace(taken, u',', u'.');
  return taken;
}

ControlId ChosenByTyping(const DialogTemplate& rows, ControlId field)
{
  const DialogRow* const row = FindField(rows, field);
  return row != nullptr ? ButtonOf(*row) : ControlId::None;
}

}  // namespace hullwright
