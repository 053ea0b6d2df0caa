#include "headless/ScriptedDialogs.h"

#include <algorithm>

namespace hullwright {

DialogEnd ScriptedDialogs::Run(IDialog& dialog)
{
  Open(dialog.Template());
  dialog.OnStart(*this);
  startTexts = texts_;
  startChecks = checks_;
  startEnabled = enabled;
  startSelected = selected;
  for (const auto& [id, text] : script.fields) SetText(id, text);
  for (const auto& [id, checked] : script.clicks) Click(dialog, id, checked);
  if (const DialogTemplate* const form = FindDialogTemplate(dialog.Template())) {
    for (const auto& [id, text] : script.typed) Type(*form, id, text);
  }
  if (script.select) selected = script.select;
  if (script.selectNothing) selected.reset();
  if (!script.ok) return DialogEnd::Cancel;
  stayedOpen = !dialog.OnOk(*this);
  return stayedOpen ? DialogEnd::Cancel : DialogEnd::Ok;
}

void ScriptedDialogs::Open(DialogId templateId)
{
  shown.push_back(templateId);
  texts_.clear();
  checks_.clear();
  enabled.clear();
  radioGroups_.assign(1, {});
  list.clear();
  focus.reset();
  selected.reset();
  const DialogTemplate* const form = FindDialogTemplate(templateId);
  if (form == nullptr) return;
  for (const DialogRow& row : form->rows) {
    switch (row.kind) {
      case DialogRowKind::Group: radioGroups_.emplace_back(); break;
      case DialogRowKind::Field:
        texts_[row.id] = u"";
        if (row.unitId != ControlId::None) texts_[row.unitId] = row.unitText;
        break;
      case DialogRowKind::RadioField: texts_[row.labelId] = u""; [[fallthrough]];
      case DialogRowKind::Radio: radioGroups_.back().push_back(row.id); [[fallthrough]];
      case DialogRowKind::Check: checks_[row.id] = false; break;
      default: break;
    }
  }
}

void ScriptedDialogs::Click(IDialog& dialog, ControlId id, bool checked)
{
  SetChecked(id, checked);
  dialog.OnClick(*this, id);
}

void ScriptedDialogs::Type(const DialogTemplate& form, ControlId id, std::u16string_view text)
{
  // Nobody can type into a label or into a field that is greyed.
  if (FindField(form, id) == nullptr) return;
  if (const auto found = enabled.find(id); found != enabled.end() && !found->second) return;
  SetText(id, AsTyped(text));
  SetChecked(ChosenByTyping(form, id), true);
}

std::u16string ScriptedDialogs::GetText(ControlId id) const
{
  const auto found = texts_.find(id);
  return found == texts_.end() ? std::u16string() : found->second;
}

void ScriptedDialogs::SetText(ControlId id, std::u16string_view text)
{
  const auto found = texts_.find(id);
  if (found != texts_.end()) found->second = text;
}

bool ScriptedDialogs::IsChecked(ControlId id) const
{
  const auto found = checks_.find(id);
  return found != checks_.end() && found->second;
}

void ScriptedDialogs::SetChecked(ControlId id, bool checked)
{
  for (const auto& group : radioGroups_) {
    if (checked && std::ranges::find(group, id) != group.end()) {
      for (const ControlId other : group) checks_[other] = false;
    }
  }
  const auto found = checks_.find(id);
  if (found != checks_.end()) found->second = checked;
}

std::optional<std::int32_t> ScriptedDialogs::SelectedListData() const
{
  if (!selected || *selected >= list.size()) return std::nullopt;
  return list[*selected].data;
}

}  // namespace hullwright
