#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

/// What happens in the next dialogs: texts filled in, buttons clicked, texts typed, a list entry
/// chosen, then the end.
struct DialogScript {
  bool ok = false;
  std::map<int, std::u16string> fields = {};  ///< stand in their fields without further effect
  std::vector<std::pair<int, bool>> clicks = {};
  std::map<int, std::u16string> typed = {};  ///< typed over, with all that a person's typing does
  std::optional<std::size_t> select =
      std::nullopt;  ///< list entry; what was selected at opening stays
  bool selectNothing = false;
};

/// Runs the logic of dialogs against their templates, without a window, and keeps what they showed.
class ScriptedDialogs : public IDialogRunner, public IDialogControls {
public:
  DialogEnd Run(IDialog& dialog) override;

  std::u16string GetText(int id) const override;
  void SetText(int id, std::u16string_view text) override;
  bool IsChecked(int id) const override;
  void SetChecked(int id, bool checked) override;
  void SetEnabled(int id, bool on) override { enabled[id] = on; }
  void FocusField(int id) override { focus = id; }
  void FillList(std::span<const DialogListItem> items) override
  {
    list.assign(items.begin(), items.end());
  }
  void SelectListItem(std::size_t index) override { selected = index; }
  std::optional<std::int32_t> SelectedListData() const override;

  DialogScript script;

  // What the last dialog showed at its start, and how it stood at its end.
  std::vector<int> shown;  ///< templates of all dialogs so far
  std::map<int, std::u16string> startTexts;
  std::map<int, bool> startChecks;
  std::map<int, bool> startEnabled;
  std::map<int, bool> enabled;
  std::optional<int> focus;
  std::vector<DialogListItem> list;
  std::optional<std::size_t> selected;
  std::optional<std::size_t> startSelected;
  bool stayedOpen = false;  ///< OK was refused

private:
  void Open(int templateId);
  void Click(IDialog& dialog, int id, bool checked);
  void Type(const DialogTemplate& rows, int id, std::u16string_view text);

  std::map<int, std::u16string> texts_;
  std::map<int, bool> checks_;
  std::vector<std::vector<int>> radioGroups_;
};

}  // namespace hullwright
