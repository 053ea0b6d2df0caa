#pragma once

#include <QDialog>
#include <map>

#include "platform/DialogPort.h"
#include "resources/DialogTemplates.h"

class QAbstractButton;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QVBoxLayout;

namespace hullwright {

/// A modal dialog made from its template: boxes from top to bottom, in each a column of labels, one
/// of fields and one of units, OK and Cancel below. The logic fills it and takes its values. The
/// template must outlive it.
class TemplateDialog : public QDialog, public IDialogControls {
  Q_OBJECT

public:
  TemplateDialog(const DialogTemplate& rows, IDialog& logic, QWidget* parent);

  std::u16string GetText(ControlId id) const override;
  void SetText(ControlId id, std::u16string_view text) override;
  bool IsChecked(ControlId id) const override;
  void SetChecked(ControlId id, bool checked) override;
  void SetEnabled(ControlId id, bool enabled) override;
  void FocusField(ControlId id) override;
  void FillList(std::span<const DialogListItem> items) override;
  void SelectListItem(std::size_t index) override;
  std::optional<std::int32_t> SelectedListData() const override;

  /// Shows a text below the product's name.
  void ShowBesideIcon(const QString& text);

  /// OK: closes the dialog if the logic agrees.
  void accept() override;

private:
  void AddRow(const DialogRow& row);
  void AddGroup(const DialogRow& row);
  void AddField(const DialogRow& row);
  void AddButton(const DialogRow& row);
  void AddList(const DialogRow& row);
  void AddNote(const DialogRow& row);
  void AddProduct(const DialogRow& row);
  void ShowWholeRows();
  void AddUnit(const DialogRow& row);
  void AddOkAndCancel(bool hasCancel);
  void FocusFirst(const DialogTemplate& rows);
  QGridLayout& Grid();
  QLineEdit* MakeField(ControlId id, const QString& name);
  void TakeTyped(ControlId field);
  void Keep(ControlId id, QWidget* widget);

  template <class T>
  T* Find(ControlId id) const;

  const DialogTemplate& rows_;
  IDialog& logic_;
  QVBoxLayout* boxes_;
  QWidget* box_ = nullptr;       ///< the box that rows go into
  QGridLayout* grid_ = nullptr;  ///< its layout
  QListWidget* list_ = nullptr;
  QVBoxLayout* product_ = nullptr;  ///< what stands beside the icon
  std::map<ControlId, QWidget*> widgets_;
  std::map<QLabel*, QLineEdit*> unitOf_;  ///< the field that a unit's label stands behind
};

}  // namespace hullwright
