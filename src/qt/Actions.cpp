#include "qt/Actions.h"

#include <QMenuBar>
#include <QWidget>

#include "qt/Icons.h"
#include "qt/QtText.h"
#include "resources/Accelerators.h"
#include "resources/Commands.h"

namespace hullwright {

QString OneLine(std::u16string_view label)
{
  return ToQString(label).replace(QLatin1Char('\r'), QLatin1Char(' '));
}

QString TwoLines(std::u16string_view label)
{
  return ToQString(label).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

Actions::Actions(QWidget* window, std::function<void(int)> run)
    : QObject(window), window_(window), looks_(new QActionGroup(this)), run_(std::move(run))
{
  looks_->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
}

QAction* Actions::Get(int command)
{
  if (const auto found = actions_.find(command); found != actions_.end()) return found->second;
  auto* const action = new QAction(this);
  actions_[command] = action;
  if (const CommandEntry* const entry = FindCommand(command)) {
    action->setIcon(ThemedIcon(entry->icon, window_->palette()));
    action->setStatusTip(ToQString(StatusText(*entry)));
    const std::u16string_view tooltip = TooltipText(*entry);
    action->setText(OneLine(tooltip));
    action->setIconText(TwoLines(tooltip));
    action->setToolTip(OneLine(tooltip));
  }
  if (command >= Command::LookFirst && command <= Command::LookLast) looks_->addAction(action);
  SetKeys(command, *action);
  connect(action, &QAction::triggered, this, [this, command] { run_(command); });
  return action;
}

void Actions::SetKeys(int command, QAction& action)
{
  QList<QKeySequence> keys;
  for (const Accelerator& accelerator : accelerators) {
    if (accelerator.command == command) keys.append(QKeySequence(ToQString(accelerator.key)));
  }
  if (keys.isEmpty()) return;
  action.setShortcuts(keys);
  action.setToolTip(action.toolTip() +
                    QStringLiteral(" (%1)").arg(keys.first().toString(QKeySequence::NativeText)));
  window_->addAction(&action);
}

void Actions::FillMenuBar(QMenuBar& bar, std::span<const MenuItem> rows)
{
  for (std::size_t i = 0; i < rows.size();) {
    QMenu* const menu = bar.addMenu(ToQString(rows[i].text));
    std::size_t end = i + 1;
    while (end < rows.size() && rows[end].row != MenuRow::Menu) ++end;
    FillMenu(*menu, rows.subspan(i + 1, end - i - 1));
    i = end;
  }
}

void Actions::FillMenu(QMenu& menu, std::span<const MenuItem> rows)
{
  QMenu* current = &menu;
  if (onMenu) onMenu(menu);
  for (const MenuItem& item : rows) {
    switch (item.row) {
      case MenuRow::SubMenu:
        current = current->addMenu(ToQString(item.text));
        if (onMenu) onMenu(*current);
        break;
      case MenuRow::EndSubMenu: current = qobject_cast<QMenu*>(current->parent()); break;
      case MenuRow::Separator: current->addSeparator(); break;
      default: AddEntry(*current, item);
    }
  }
}

void Actions::AddEntry(QMenu& menu, const MenuItem& item)
{
  QAction* const action = Get(item.id);
  const QString label = action->iconText();
  const QString tip = action->toolTip();
  QString text = ToQString(item.text);
  // A key that works is shown by the action itself; one that is only named stays in the text.
  if (!action->shortcut().isEmpty()) text = text.section(QLatin1Char('\t'), 0, 0);
  action->setText(text);
  action->setIconText(label.isEmpty() ? QString(text).remove(QLatin1Char('&')) : label);
  if (!tip.isEmpty()) action->setToolTip(tip);
  menu.addAction(action);
}

void Actions::ForEach(const std::function<void(int, QAction&)>& visit)
{
  for (const auto& [command, action] : actions_) visit(command, *action);
}

void Actions::RefreshIcons()
{
  ForEach([this](int command, QAction& action) {
    const CommandEntry* const entry = FindCommand(command);
    if (entry != nullptr) action.setIcon(ThemedIcon(entry->icon, window_->palette()));
  });
}

}  // namespace hullwright
