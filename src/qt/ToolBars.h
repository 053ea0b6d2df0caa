#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include "qt/Actions.h"
#include "qt/ToolBarFit.h"

class QMainWindow;
class QSettings;
class QToolBar;
class QToolButton;

namespace hullwright {

/// A toolbar as its title and the commands of its buttons in order; no command is a separator.
struct ToolBarSpec {
  QString title;
  QList<CommandId> commands;
  int number = 0;  ///< of a toolbar of the user's own, which keeps its place by it; 0 for none yet
  friend bool operator==(const ToolBarSpec&, const ToolBarSpec&) = default;
};

/// The toolbars of the window: the standard one and up to ten of the user's, made from their
/// specifications. The standard one is always the first.
class ToolBars : public QObject {
public:
  static constexpr qsizetype mostUserToolBars = 10;

  ToolBars(QMainWindow& window, Actions& actions, QList<CommandId> standardCommands);

  /// The commands that can stand on a toolbar: those of the menus, then those that the main toolbar
  /// alone has, each once.
  static QList<CommandId> Available();

  /// What the user has stored; the standard toolbar alone where that is nothing, or nothing usable.
  void Load(const QSettings& settings);
  void Store(QSettings& settings) const;

  const QList<ToolBarSpec>& Specs() const { return specs_; }
  ToolBarSpec StandardSpec() const;

  /// Makes the toolbars anew. Those that were there keep their places, and stay hidden if they
  /// were.
  void Build(const QList<ToolBarSpec>& specs);

  const QList<QToolBar*>& Bars() const { return bars_; }

  /// Shows the image of a side's command on the first side drop-down of the standard toolbar; any
  /// other keeps its own.
  void SetViewImage(CommandId command);

private:
  ToolBarSpec FromText(const QString& text) const;

  /// Gives each toolbar of the user's own a number of its own, the lowest that is free.
  void NumberBars();
  void Fill(QToolBar& bar, const QList<CommandId>& commands);
  void AddButton(QToolBar& bar, QAction& action);
  void AddCustomizeButton(QToolBar& bar);
  void PutInRowOfItsOwn(QToolBar& bar);
  QToolButton* MakeViewButton();
  QToolButton* FirstViewButton() const;

  QMainWindow& window_;
  Actions& actions_;
  QList<CommandId> standardCommands_;
  ToolBarFit* fit_;
  QList<ToolBarSpec> specs_;
  QList<QToolBar*> bars_;
  CommandId viewImage_ = CommandId::SelectView;
};

}  // namespace hullwright
