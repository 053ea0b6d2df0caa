#include "qt/TemplateDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <functional>

#include "qt/DialogButtons.h"
#include "qt/Icons.h"
#include "qt/QtText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

constexpr int labelColumn = 0;
constexpr int fieldColumn = 1;
constexpr int unitColumn = 2;
constexpr int allColumns = 3;
constexpr int fieldWidth = 130;
constexpr int unitWidth = 56;
constexpr int noteWidth = 300;

/// A list box that reports every double click of the left button, also of one beside its entries.
class ListBox : public QListWidget {
public:
  using QListWidget::QListWidget;
  std::function<void()> onDoubleClick;

protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override
  {
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) onDoubleClick();
  }
};

}  // namespace

TemplateDialog::TemplateDialog(const DialogTemplate& rows, IDialog& logic, QWidget* parent)
    : QDialog(parent), rows_(rows), logic_(logic), boxes_(new QVBoxLayout(this))
{
  setWindowTitle(ToQString(rows.title));
  for (const DialogRow& row : rows.rows) AddRow(row);
  AddOkAndCancel(rows.hasCancel);
  boxes_->setSizeConstraint(QLayout::SetFixedSize);
  FocusFirst(rows);
  logic_.OnStart(*this);
}

void TemplateDialog::FocusFirst(const DialogTemplate& rows)
{
  // The first field is ready to be typed over, unless the logic chooses another.
  for (const DialogRow& row : rows.rows) {
    auto* const widget = Find<QWidget>(row.id);
    if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    widget->setFocus();
    if (auto* const field = qobject_cast<QLineEdit*>(widget)) field->selectAll();
    return;
  }
}

template <class T>
T* TemplateDialog::Find(ControlId id) const
{
  const auto found = widgets_.find(id);
  return found == widgets_.end() ? nullptr : dynamic_cast<T*>(found->second);
}

void TemplateDialog::AddRow(const DialogRow& row)
{
  switch (row.kind) {
    case DialogRowKind::Group: AddGroup(row); break;
    case DialogRowKind::Field: AddField(row); break;
    case DialogRowKind::Check:
    case DialogRowKind::Radio:
    case DialogRowKind::RadioField: AddButton(row); break;
    case DialogRowKind::List: AddList(row); break;
    case DialogRowKind::Note: AddNote(row); break;
    case DialogRowKind::Product: AddProduct(row); break;
  }
}

void TemplateDialog::AddGroup(const DialogRow& row)
{
  box_ = row.text.empty() ? new QWidget(this) : new QGroupBox(ToQString(row.text), this);
  grid_ = new QGridLayout(box_);
  if (row.text.empty()) grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setColumnStretch(labelColumn, 1);
  boxes_->addWidget(box_);
}

QGridLayout& TemplateDialog::Grid()
{
  if (grid_ == nullptr) AddGroup({DialogRowKind::Group});
  return *grid_;
}

void TemplateDialog::Keep(ControlId id, QWidget* widget)
{
  if (id != ControlId::None) widgets_[id] = widget;
}

QLineEdit* TemplateDialog::MakeField(ControlId id, const QString& name)
{
  auto* const field = new QLineEdit(box_);
  field->setFixedWidth(fieldWidth);
  field->setAlignment(Qt::AlignRight);
  field->setAccessibleName(name);
  Keep(id, field);
  connect(field, &QLineEdit::textEdited, this, [this, id] { TakeTyped(id); });
  return field;
}

void TemplateDialog::TakeTyped(ControlId field)
{
  auto& edit = *Find<QLineEdit>(field);
  const QString taken = ToQString(AsTyped(ToWide(edit.text())));
  if (taken != edit.text()) {
    const int caret = edit.cursorPosition();
    edit.setText(taken);
    edit.setCursorPosition(caret);
  }
  SetChecked(ChosenByTyping(rows_, field), true);
}

void TemplateDialog::AddField(const DialogRow& row)
{
  QGridLayout& grid = Grid();
  const int line = grid.rowCount();
  auto* const label = new QLabel(ToQString(row.text), box_);
  const QString name = box_->property("title").toString() + QLatin1Char(' ') + label->text();
  QLineEdit* const field = MakeField(row.id, name.trimmed());
  label->setBuddy(field);
  Keep(row.labelId, label);
  grid.addWidget(label, line, labelColumn);
  grid.addWidget(field, line, fieldColumn);
  AddUnit(row);
}

void TemplateDialog::AddUnit(const DialogRow& row)
{
  auto* const unit = new QLabel(ToQString(row.unitText), box_);
  unit->setMinimumWidth(unitWidth);
  Keep(row.unitId, unit);
  unitOf_[unit] = Find<QLineEdit>(FieldOf(row));
  unitOf_[unit]->setAccessibleDescription(unit->text());
  Grid().addWidget(unit, Grid().rowCount() - 1, unitColumn);
}

void TemplateDialog::AddButton(const DialogRow& row)
{
  QGridLayout& grid = Grid();
  const int line = grid.rowCount();
  QAbstractButton* button = nullptr;
  if (row.kind == DialogRowKind::Check) {
    button = new QCheckBox(ToQString(row.text), box_);
  } else {
    button = new QRadioButton(ToQString(row.text), box_);
  }
  Keep(row.id, button);
  connect(button, &QAbstractButton::clicked, this,
          [this, id = row.id] { logic_.OnClick(*this, id); });
  if (row.kind != DialogRowKind::RadioField) {
    grid.addWidget(button, line, labelColumn, 1, allColumns);
    return;
  }
  QLineEdit* const field = MakeField(FieldOf(row), tr("%1 by").arg(ToQString(row.text)));
  grid.addWidget(button, line, labelColumn);
  grid.addWidget(field, line, fieldColumn);
  AddUnit(row);
}

void TemplateDialog::AddList(const DialogRow& row)
{
  auto* const list = new ListBox(this);
  list->onDoubleClick = [this] { accept(); };
  list_ = list;
  list_->setAccessibleName(ToQString(row.text));
  list_->setMinimumSize(noteWidth, noteWidth);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Keep(row.id, list_);
  Grid().addWidget(list_, Grid().rowCount(), labelColumn, 1, allColumns);
}

void TemplateDialog::AddNote(const DialogRow& row)
{
  auto* const note = new QLabel(ToQString(row.text), this);
  note->setWordWrap(true);
  note->setMinimumWidth(noteWidth);
  Grid().addWidget(note, Grid().rowCount(), labelColumn, 1, allColumns);
}

void TemplateDialog::AddProduct(const DialogRow& row)
{
  constexpr int iconSize = 64;
  auto* const icon = new QLabel(this);
  icon->setPixmap(ApplicationIcon().pixmap(iconSize));
  auto* const product =
      new QLabel(QStringLiteral("<b>%1</b> %2")
                     .arg(QLatin1String(Strings::program), QLatin1String(HULLWRIGHT_VERSION)),
                 this);
  Keep(row.id, product);
  product_ = new QVBoxLayout;
  product_->addStretch(1);
  product_->addWidget(product);
  product_->addStretch(1);
  auto* const line = new QHBoxLayout;
  line->addWidget(icon);
  line->addLayout(product_);
  line->addStretch(1);
  Grid().addLayout(line, Grid().rowCount(), labelColumn, 1, allColumns);
}

void TemplateDialog::ShowBesideIcon(const QString& text)
{
  if (product_ == nullptr) return;
  auto* const label = new QLabel(text, this);
  label->setTextFormat(Qt::PlainText);
  product_->insertWidget(product_->count() - 1, label);
}

void TemplateDialog::AddOkAndCancel(bool hasCancel)
{
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  if (hasCancel) buttons->addButton(QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
  boxes_->addWidget(buttons);
  SetButtonImages(*this);
}

std::u16string TemplateDialog::GetText(ControlId id) const
{
  if (const auto* const field = Find<QLineEdit>(id)) return ToWide(field->text());
  if (const auto* const label = Find<QLabel>(id)) return ToWide(label->text());
  return {};
}

void TemplateDialog::SetText(ControlId id, std::u16string_view text)
{
  if (auto* const field = Find<QLineEdit>(id)) {
    field->setText(ToQString(text));
    if (field == focusWidget()) field->selectAll();
  } else if (auto* const label = Find<QLabel>(id)) {
    label->setText(ToQString(text));
    const auto unit = unitOf_.find(label);
    if (unit != unitOf_.end()) unit->second->setAccessibleDescription(label->text());
  }
}

bool TemplateDialog::IsChecked(ControlId id) const
{
  const auto* const button = Find<QAbstractButton>(id);
  return button != nullptr && button->isChecked();
}

void TemplateDialog::SetChecked(ControlId id, bool checked)
{
  if (auto* const button = Find<QAbstractButton>(id)) button->setChecked(checked);
}

void TemplateDialog::SetEnabled(ControlId id, bool enabled)
{
  if (auto* const widget = Find<QWidget>(id)) widget->setEnabled(enabled);
}

void TemplateDialog::FocusField(ControlId id)
{
  if (auto* const field = Find<QLineEdit>(id)) {
    field->setFocus();
    field->selectAll();
  }
}

void TemplateDialog::FillList(std::span<const DialogListItem> items)
{
  if (list_ == nullptr) return;
  list_->setUpdatesEnabled(false);
  list_->clear();
  for (const DialogListItem& item : items) {
    auto* const entry = new QListWidgetItem(ToQString(item.text), list_);
    entry->setData(Qt::UserRole, item.data);
  }
  list_->setUpdatesEnabled(true);
  ShowWholeRows();
}

void TemplateDialog::ShowWholeRows()
{
  constexpr int rows = 16;
  const int height = list_->sizeHintForRow(0);
  if (height <= 0) return;
  list_->setFixedHeight(rows * height + 2 * list_->frameWidth());
}

void TemplateDialog::SelectListItem(std::size_t index)
{
  if (list_ != nullptr) list_->setCurrentRow(static_cast<int>(index));
}

std::optional<std::int32_t> TemplateDialog::SelectedListData() const
{
  if (list_ == nullptr || list_->selectedItems().isEmpty()) return std::nullopt;
  return list_->selectedItems().constFirst()->data(Qt::UserRole).toInt();
}

void TemplateDialog::accept()
{
  if (logic_.OnOk(*this)) QDialog::accept();
}

}  // namespace hullwright
