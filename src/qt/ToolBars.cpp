#include "qt/ToolBars.h"

#include <QMainWindow>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "base/Code.h"
#include "qt/QtText.h"
#include "resources/Commands.h"
#include "resources/Menus.h"
#include "resources/Strings.h"
#include "resources/ToolBarButtons.h"

namespace hullwright {
namespace {

constexpr const char* storeKey = "Workspace/ToolBars";
constexpr int firstUserToolBar = 59432;

// A toolbar's number in its line of text.
constexpr QLatin1Char numberMark('#');

/// One toolbar as a line of text: its number, if it has one, commands, then the title.
QString ToText(const ToolBarSpec& spec)
{
  QStringList words;
  if (spec.number != 0) words.append(numberMark + QString::number(spec.number));
  for (const CommandId command : spec.commands) words.append(QString::number(NumberOf(command)));
  return words.join(QLatin1Char(' ')) + QLatin1Char('|') + spec.title;
}

void ShowSide(QToolButton& button, const QAction& side, CommandId command)
{
  const QString name = command == CommandId::SelectView ? QString() : side.text();
  const CommandEntry& entry = *FindCommand(CommandId::SelectView);
  const QString label = OneLine(TooltipText(entry));
  button.setIcon(side.icon());
  button.setAccessibleDescription(name);
  button.setToolTip(QStringLiteral("%1\n%2").arg(
      name.isEmpty() ? label : QStringLiteral("%1: %2").arg(label, name),
      ToQString(StatusText(entry))));
}

}  // namespace

ToolBars::ToolBars(QMainWindow& window, Actions& actions, QList<CommandId> standardCommands)
    : QObject(&window),
      window_(window),
      actions_(actions),
      standardCommands_(std::move(standardCommands)),
      fit_(new ToolBarFit(window))
{
}

QList<CommandId> ToolBars::Available()
{
  QList<CommandId> commands;
  const auto add = [&commands](CommandId command) {
    // Placeholders of lists that a menu is filled with are no buttons.
    const bool isList = command == CommandId::RecentFile || command == CommandId::ViewToolbars;
    if (command != CommandId::None && !isList && !commands.contains(command)) {
      commands.append(command);
    }
  };
  for (const MenuItem& item : mainMenu) add(item.id);
  for (const CommandId command : mainToolBar) add(command);
  for (const MenuItem& item : viewMenu) add(item.id);
  return commands;
}

/// Leaves out what is no command of a button, as an older or newer program may have stored.
ToolBarSpec ToolBars::FromText(const QString& text) const
{
  const QList<CommandId> available =
      Available() + standardCommands_ + QList<CommandId>{CommandId::None};
  ToolBarSpec spec;
  spec.title = text.section(QLatin1Char('|'), 1);
  for (const QString& word : text.section(QLatin1Char('|'), 0, 0).split(QLatin1Char(' '))) {
    if (word.startsWith(numberMark)) spec.number = word.mid(1).toInt();
    bool isNumber = false;
    const CommandId command{word.toInt(&isNumber)};
    if (isNumber && available.contains(command)) spec.commands.append(command);
  }
  return spec;
}

ToolBarSpec ToolBars::StandardSpec() const
{
  return {ToQString(Strings::standardToolBar), standardCommands_};
}

void ToolBars::Load(const QSettings& settings)
{
  QList<ToolBarSpec> specs;
  for (const QString& text : settings.value(QLatin1String(storeKey)).toStringList()) {
    if (specs.size() <= mostUserToolBars) specs.append(FromText(text));
  }
  const bool usable = specs.size() > 1 || (!specs.isEmpty() && !specs.first().commands.isEmpty());
  if (!usable) specs = {StandardSpec()};
  specs.first().title = StandardSpec().title;
  Build(specs);
}

void ToolBars::Store(QSettings& settings) const
{
  QStringList lines;
  for (const ToolBarSpec& spec : specs_) lines.append(ToText(spec));
  settings.setValue(QLatin1String(storeKey), lines);
}

void ToolBars::Build(const QList<ToolBarSpec>& specs)
{
  QStringList before;
  for (const QToolBar* const bar : bars_) before.append(bar->objectName());
  const QByteArray places = window_.saveState();
  fit_->SetBars({});
  qDeleteAll(std::exchange(bars_, {}));
  specs_ = specs;
  NumberBars();
  for (const ToolBarSpec& spec : specs_) {
    auto* const bar = window_.addToolBar(spec.title);
    bar->setObjectName(bars_.isEmpty() ? QStringLiteral("StandardToolBar")
                                       : QString::number(spec.number));
    bar->toggleViewAction()->setText(AsMenuText(spec.title));
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(24, 24));
    bars_.append(bar);
    Fill(*bar, spec.commands);
    AddCustomizeButton(*bar);
  }
  if (!before.isEmpty()) window_.restoreState(places);
  // A toolbar without a place of before would stay hidden.
  for (QToolBar* const bar : bars_) {
    if (before.contains(bar->objectName())) continue;
    if (bar != bars_.constFirst()) PutInRowOfItsOwn(*bar);
    bar->show();
  }
  fit_->SetBars(bars_);
  SetViewImage(viewImage_);
  fit_->Fit();
}

void ToolBars::PutInRowOfItsOwn(QToolBar& bar)
{
  window_.addToolBarBreak(Qt::TopToolBarArea);
  window_.addToolBar(Qt::TopToolBarArea, &bar);
}

void ToolBars::NumberBars()
{
  QList<int> taken;
  specs_.first().number = 0;
  for (qsizetype i = 1; i < specs_.size(); ++i) {
    int& number = specs_[i].number;
    if (number < firstUserToolBar || taken.contains(number)) number = 0;
    if (number != 0) taken.append(number);
  }
  for (qsizetype i = 1; i < specs_.size(); ++i) {
    int& number = specs_[i].number;
    if (number != 0) continue;
    number = firstUserToolBar;
    while (taken.contains(number)) ++number;
    taken.append(number);
  }
}

void ToolBars::Fill(QToolBar& bar, const QList<CommandId>& commands)
{
  for (const CommandId command : commands) {
    if (command == CommandId::None) {
      bar.addSeparator();
    } else if (command == CommandId::SelectView) {
      bar.addWidget(MakeViewButton());
    } else {
      AddButton(bar, *actions_.Get(command));
    }
  }
}

void ToolBars::AddButton(QToolBar& bar, QAction& action)
{
  bar.addAction(&action);
  QWidget* const button = bar.widgetForAction(&action);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(action.iconText().replace(QLatin1Char('\n'), QLatin1Char(' ')));
  button->setAccessibleDescription(action.statusTip());
}

void ToolBars::AddCustomizeButton(QToolBar& bar)
{
  QAction* const action = actions_.Get(CommandId::Customize);
  AddButton(bar, *action);
  // Its image alone: it stands on every toolbar and must not take the place of a command's.
  if (auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(action))) {
    button->setObjectName(QLatin1String(customizeButtonName));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setIconSize(QSize(16, 16));
  }
}

QToolButton* ToolBars::MakeViewButton()
{
  auto* const button = new QToolButton(&window_);
  button->setObjectName(QLatin1String(sideButtonName));
  auto* const menu = new QMenu(button);
  actions_.FillMenu(*menu, viewMenu);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setText(TwoLines(viewButtonText));
  button->setAccessibleName(OneLine(viewButtonText));
  const CommandEntry* const entry = FindCommand(CommandId::SelectView);
  button->setStatusTip(ToQString(StatusText(*entry)));
  ShowSide(*button, *actions_.Get(CommandId::SelectView), CommandId::SelectView);
  return button;
}

QToolButton* ToolBars::FirstViewButton() const
{
  if (bars_.isEmpty()) return nullptr;
  // In the order of the buttons, which is not the order in which the toolbar's children were made.
  for (QAction* const action : bars_.first()->actions()) {
    auto* const button = qobject_cast<QToolButton*>(bars_.first()->widgetForAction(action));
    if (button != nullptr && button->objectName() == QLatin1String(sideButtonName)) return button;
  }
  return nullptr;
}

void ToolBars::SetViewImage(CommandId command)
{
  viewImage_ = command;
  if (QToolButton* const button = FirstViewButton()) {
    ShowSide(*button, *actions_.Get(command), command);
  }
}

}  // namespace hullwright
