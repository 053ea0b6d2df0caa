#include "qt/CustomizeDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

#include "base/Code.h"
#include "qt/DialogButtons.h"
#include "qt/ScreenSize.h"

namespace hullwright {
namespace {

/// Keeps the rows of commands without an image as high as the others, and their texts in line.
QIcon NoImage()
{
  QPixmap nothing(32, 32);
  nothing.fill(Qt::transparent);
  return nothing;
}

/// The name that the user types for a toolbar, the proposed one for an empty one; nothing if given
/// up.
std::optional<QString> AskForName(QWidget* parent, const QString& proposed)
{
  QInputDialog input(parent);
  input.setWindowTitle(CustomizeDialog::tr("New Toolbar"));
  input.setLabelText(CustomizeDialog::tr("Name:"));
  input.setTextValue(proposed);
  input.adjustSize();  // makes the buttons
  SetButtonImages(input);
  if (input.exec() != QDialog::Accepted) return std::nullopt;
  const QString typed = input.textValue().trimmed();
  return typed.isEmpty() ? proposed : typed;
}

}  // namespace

CustomizeDialog::CustomizeDialog(const ToolBars& toolBars, Actions& actions, QWidget* parent)
    : QDialog(parent),
      actions_(actions),
      standard_(toolBars.StandardSpec()),
      specs_(toolBars.Specs()),
      bars_(new QComboBox(this)),
      available_(new QListWidget(this)),
      shown_(new QListWidget(this)),
      newBar_(MakeButton(tr("&New..."), &CustomizeDialog::NewToolBar)),
      deleteBar_(MakeButton(tr("&Delete"), &CustomizeDialog::DeleteToolBar))
{
  setWindowTitle(tr("Customize Toolbars"));
  LayOut();
  SetButtonImages(*this);
  ResizeOnScreen(*this, QSize(860, 560));
  for (const ToolBarSpec& spec : specs_) bars_->addItem(spec.title);
  FillAvailable();
  ShowToolBar(0);
  connect(bars_, &QComboBox::currentIndexChanged, this, [this](int index) {
    TakeOver();
    ShowToolBar(index);
  });
}

void CustomizeDialog::LayOut()
{
  const auto labelOf = [this](const QString& text, QWidget* field) {
    auto* const label = new QLabel(text, this);
    label->setBuddy(field);
    return label;
  };
  auto* const grid = new QGridLayout(this);
  auto* const bar = new QHBoxLayout;
  bar->addWidget(labelOf(tr("&Toolbar:"), bars_));
  bar->addWidget(bars_, 1);
  bars_->setMinimumWidth(160);
  grid->addLayout(bar, 0, 0);
  grid->addWidget(newBar_, 0, 1);
  grid->addWidget(deleteBar_, 0, 2, Qt::AlignLeft);
  grid->addWidget(labelOf(tr("&Commands:"), available_), 1, 0);
  grid->addWidget(labelOf(tr("&Buttons:"), shown_), 1, 2);
  grid->addWidget(available_, 2, 0);
  grid->addWidget(shown_, 2, 2);
  available_->setAccessibleName(tr("Commands"));
  shown_->setAccessibleName(tr("Buttons"));
  for (QListWidget* const list : {available_, shown_}) {
    list->setMinimumSize(160, 120);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }
  grid->addLayout(ButtonColumn(), 2, 1);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    TakeOver();
    accept();
  });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
  grid->addWidget(buttons, 3, 0, 1, 3);
}

QVBoxLayout* CustomizeDialog::ButtonColumn()
{
  auto* const column = new QVBoxLayout;
  column->addStretch();
  column->addWidget(MakeButton(tr("&Add"), &CustomizeDialog::Add));
  column->addWidget(MakeButton(tr("&Remove"), &CustomizeDialog::Remove));
  column->addWidget(MakeButton(tr("Move &Up"), &CustomizeDialog::MoveUp));
  column->addWidget(MakeButton(tr("Move Do&wn"), &CustomizeDialog::MoveDown));
  column->addWidget(MakeButton(tr("R&eset"), &CustomizeDialog::Reset));
  column->addStretch();
  return column;
}

QPushButton* CustomizeDialog::MakeButton(const QString& text, void (CustomizeDialog::*act)())
{
  auto* const button = new QPushButton(text, this);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, act] { (this->*act)(); });
  return button;
}

QListWidgetItem* CustomizeDialog::MakeItem(CommandId command)
{
  auto* const item = new QListWidgetItem;
  item->setData(Qt::UserRole, NumberOf(command));
  item->setIcon(NoImage());
  if (command == CommandId::None) {
    item->setText(tr("Separator"));
    return item;
  }
  const QAction* const action = actions_.Get(command);
  QString label = action->iconText();
  label.replace(QLatin1Char('\n'), QLatin1Char(' '));
  const QString prompt = action->statusTip();
  item->setText(prompt.isEmpty() ? label : label + QStringLiteral(" \u2013 ") + prompt);
  item->setToolTip(item->text().toHtmlEscaped());
  if (!action->icon().isNull()) item->setIcon(action->icon());
  return item;
}

void CustomizeDialog::FillAvailable()
{
  available_->addItem(MakeItem(CommandId::None));
  for (const CommandId command : ToolBars::Available()) available_->addItem(MakeItem(command));
  available_->setCurrentRow(0);
}

void CustomizeDialog::ShowToolBar(int index)
{
  current_ = index;
  shown_->clear();
  for (const CommandId command : specs_.at(index).commands) shown_->addItem(MakeItem(command));
  shown_->setCurrentRow(0);
  UpdateButtons();
}

void CustomizeDialog::TakeOver()
{
  QList<CommandId> commands;
  for (int row = 0; row < shown_->count(); ++row) {
    commands.append(CommandId{shown_->item(row)->data(Qt::UserRole).toInt()});
  }
  specs_[current_].commands = commands;
}

void CustomizeDialog::Add()
{
  const QListWidgetItem* const chosen = available_->currentItem();
  if (chosen == nullptr) return;
  const int row = shown_->currentRow() + 1;
  shown_->insertItem(row, MakeItem(CommandId{chosen->data(Qt::UserRole).toInt()}));
  shown_->setCurrentRow(row);
}

void CustomizeDialog::Remove() { delete shown_->takeItem(shown_->currentRow()); }

void CustomizeDialog::MoveBy(int rows)
{
  const int row = shown_->currentRow();
  const int target = row + rows;
  if (row < 0 || target < 0 || target >= shown_->count()) return;
  shown_->insertItem(target, shown_->takeItem(row));
  shown_->setCurrentRow(target);
}

void CustomizeDialog::Reset()
{
  specs_[current_].commands = current_ == 0 ? standard_.commands : QList<CommandId>();
  ShowToolBar(current_);
}

void CustomizeDialog::NewToolBar()
{
  const std::optional<QString> title = AskForName(this, tr("Toolbar %1").arg(specs_.size()));
  if (!title) return;
  specs_.append({*title, {}});
  bars_->addItem(*title);
  bars_->setCurrentIndex(bars_->count() - 1);
}

void CustomizeDialog::DeleteToolBar()
{
  if (current_ == 0) return;
  const int index = current_;
  const QSignalBlocker quiet(bars_);
  specs_.removeAt(index);
  bars_->removeItem(index);
  bars_->setCurrentIndex(index - 1);
  ShowToolBar(index - 1);
}

void CustomizeDialog::UpdateButtons()
{
  newBar_->setEnabled(specs_.size() <= ToolBars::mostUserToolBars);
  deleteBar_->setEnabled(current_ > 0);
}

}  // namespace hullwright
