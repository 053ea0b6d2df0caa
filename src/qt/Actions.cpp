#include "qt/Actions.h"

#include <QMenuBar>
#include <QWidget>

#include "qt/Icons.h"
#include "qt/QtText.h"

namespace hullwright {

QString OneLine(std::u16string_view label)
{
  return ToQString(label).replace(QLatin1Char('\r'), QLatin1Char(' '));
}

QString TwoLines(std::u16string_view label)
{
  return ToQString(label).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QString ToolTip(const CommandEntry& command)
{
  QString tip = OneLine(TooltipText(command));
  if (!command.key.empty()) {
    const QKeySequence key(ToQString(command.key));
    tip += QStringLiteral(" (%1)").arg(key.toString(QKeySequence::NativeText));
  }
  const QString prompt = ToQString(StatusText(command));
  const bool tellsMore = prompt.compare(tip, Qt::CaseInsensitive) != 0;
  return tip.isEmpty() || prompt.isEmpty() || !tellsMore ? tip : tip + QLatin1Char('\n') + prompt;
}

Actions::Actions(QWidget* window, std::function<void(CommandId)> run)
    : QObject(window), window_(window), looks_(new QActionGroup(this)), run_(std::move(run))
{
}

QAction* Actions::Get(CommandId command)
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
    action->setToolTip(ToolTip(*entry));
    SetKeys(*entry, *action);
  }
  if (LookOf(command)) looks_->addAction(action);
  connect(action, &QAction::triggered, this, [this, command] { run_(command); });
  return action;
}

void Actions::SetKeys(const CommandEntry& command, QAction& action)
{
  QList<QKeySequence> keys;
  for (const std::string_view key : {command.key, command.otherKey}) {
    if (!key.empty()) keys.append(QKeySequence(ToQString(key)));
  }
  if (keys.isEmpty()) return;
  action.setShortcuts(keys);
  window_->addAction(&action);
}

void Actions::FillMenuBar(QMenuBar& bar, std::span<const MenuItem> rows)
{
  for (std::size_t i = 0; i < rows.size();) {
    QMenu* const menu = bar.addMenu(ToQString(rows[i].title));
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
        current = current->addMenu(ToQString(item.title));
        if (onMenu) onMenu(*current);
        break;
      case MenuRow::EndSubMenu: current = qobject_cast<QMenu*>(current->parent()); break;
      case MenuRow::Separator: current->addSeparator(); break;
      default: AddEntry(*current, item.id);
    }
  }
}

void Actions::AddEntry(QMenu& menu, CommandId command)
{
  QAction* const action = Get(command);
  const QString label = action->iconText();
  const QString tip = action->toolTip();
  const CommandEntry& entry = *FindCommand(command);
  const QString text = ToQString(entry.text);
  // A key that works is shown by the action itself.
  action->setText(entry.shownKey.empty() ? text
                                         : text + QLatin1Char('\t') + ToQString(entry.shownKey));
  action->setIconText(label.isEmpty() ? QString(text).remove(QLatin1Char('&')) : label);
  if (!tip.isEmpty()) action->setToolTip(tip);
  menu.addAction(action);
}

void Actions::ForEach(const std::function<void(CommandId, QAction&)>& visit)
{
  for (const auto& [command, action] : actions_) visit(command, *action);
}

void Actions::RefreshIcons()
{
  ForEach([this](CommandId command, QAction& action) {
    const CommandEntry* const entry = FindCommand(command);
    if (entry != nullptr) action.setIcon(ThemedIcon(entry->icon, window_->palette()));
  });
}

}  // namespace hullwright
