#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "resources/DialogIds.h"

namespace hullwright {

/// An entry of a list box with the number that it stands for.
struct DialogListItem {
  std::u16string text;
  std::int32_t data = 0;
};

/// What the logic of a dialog sees of it: controls by their ids. An id that the dialog lacks reads
/// as empty, unchecked, and takes nothing.
class IDialogControls {
public:
  virtual ~IDialogControls() = default;
  virtual std::u16string GetText(ControlId id) const = 0;
  virtual void SetText(ControlId id, std::u16string_view text) = 0;
  virtual bool IsChecked(ControlId id) const = 0;
  virtual void SetChecked(ControlId id, bool checked) = 0;
  virtual void SetEnabled(ControlId id, bool enabled) = 0;

  /// Gives an edit field the focus, with its text selected and its caret in view.
  virtual void FocusField(ControlId id) = 0;

  // The one list box of a dialog.
  virtual void FillList(std::span<const DialogListItem> items) = 0;
  virtual void SelectListItem(std::size_t index) = 0;
  virtual std::optional<std::int32_t> SelectedListData() const = 0;
};

/// The logic of one modal dialog.
class IDialog {
public:
  virtual ~IDialog() = default;

  /// Number of the dialog's template.
  virtual DialogId Template() const = 0;

  /// Fills the controls before the dialog is seen.
  virtual void OnStart(IDialogControls&) {}

  /// A check box or radio button was clicked.
  virtual void OnClick(IDialogControls&, ControlId /*id*/) {}

  /// Takes the values over; false keeps the dialog open.
  virtual bool OnOk(IDialogControls&) { return true; }
};

enum class DialogEnd { Ok = 1, Cancel = 2 };

/// Shows a dialog and runs it to its end.
class IDialogRunner {
public:
  virtual ~IDialogRunner() = default;
  virtual DialogEnd Run(IDialog& dialog) = 0;
};

}  // namespace hullwright
