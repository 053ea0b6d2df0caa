#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/DialogPort.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

/// What happens in the next dialogs: texts filled in, buttons clicked, texts typed, a list entry
/// chosen, then the end.
struct DialogScript {
  bool ok = false;

  /// Texts that stand in their fields without further effect.
  std::map<ControlId, std::u16string> fields = {};
  std::vector<std::pair<ControlId, bool>> clicks = {};

  /// Texts typed over what is there, with all that a person's typing does.
  std::map<ControlId, std::u16string> typed = {};

  /// The list entry that is chosen; without one, what was selected at the start stays.
  std::optional<std::size_t> select = std::nullopt;
  bool selectNothing = false;
};

/// Runs the logic of dialogs against their templates, without a window, and keeps what they showed.
class ScriptedDialogs : public IDialogRunner, public IDialogControls {
public:
  DialogEnd Run(IDialog& dialog) override;

  std::u16string GetText(ControlId id) const override;
  void SetText(ControlId id, std::u16string_view text) override;
  bool IsChecked(ControlId id) const override;
  void SetChecked(ControlId id, bool checked) override;
  void SetEnabled(ControlId id, bool on) override { enabled[id] = on; }
  void FocusField(ControlId id) override { focus = id; }
  void FillList(std::span<const DialogListItem> items) override
  {
    list.assign(items.begin(), items.end());
  }
  void SelectListItem(std::size_t index) override { selected = index; }
  std::optional<std::int32_t> SelectedListData() const override;

  DialogScript script;

  // What the last dialog showed at its start, and how it stood at its end.
  std::vector<DialogId> shown;  ///< templates of all dialogs so far
  std::map<ControlId, std::u16string> startTexts;
  std::map<ControlId, bool> startChecks;
  std::map<ControlId, bool> startEnabled;
  std::map<ControlId, bool> enabled;
  std::optional<ControlId> focus;
  std::vector<DialogListItem> list;
  std::optional<std::size_t> selected;
  std::optional<std::size_t> startSelected;
  bool stayedOpen = false;  ///< OK was refused

private:
  void Open(DialogId templateId);
  void Click(IDialog& dialog, ControlId id, bool checked);
  void Type(const DialogTemplate& form, ControlId id, std::u16string_view text);

  std::map<ControlId, std::u16string> texts_;
  std::map<ControlId, bool> checks_;
  std::vector<std::vector<ControlId>> radioGroups_;
};

}  // namespace hullwright
