#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include "qt/Actions.h"

class QMainWindow;
class QSettings;
class QToolBar;
class QToolButton;

namespace hullwright {

/// A toolbar as its title and the commands of its buttons in order; 0 is a separator.
struct ToolBarSpec {
  QString title;
  QList<int> commands;
  friend bool operator==(const ToolBarSpec&, const ToolBarSpec&) = default;
};

/// The toolbars of the window: the standard one and up to ten of the user's, made from their
/// specifications. The standard one is always the first.
class ToolBars : public QObject {
public:
  static constexpr qsizetype mostUserToolBars = 10;

  ToolBars(QMainWindow& window, Actions& actions, QList<int> standardCommands);

  /// What the user has stored; the standard toolbar alone where that is nothing, or nothing usable.
  void Load(const QSettings& settings);
  void Store(QSettings& settings) const;

  const QList<ToolBarSpec>& Specs() const { return specs_; }
  ToolBarSpec StandardSpec() const;

  /// Makes the toolbars anew.
  void Build(const QList<ToolBarSpec>& specs);

  const QList<QToolBar*>& Bars() const { return bars_; }

  /// Shows the image of a side's command on the side drop-downs.
  void SetViewImage(int command);

private:
  void Fill(QToolBar& bar, const QList<int>& commands);
  void AddButton(QToolBar& bar, QAction& action);
  QToolButton* MakeViewButton();

  QMainWindow& window_;
  Actions& actions_;
  QList<int> standardCommands_;
  QList<ToolBarSpec> specs_;
  QList<QToolBar*> bars_;
  QList<QToolButton*> viewButtons_;
  int viewImage_;
};

}  // namespace hullwright
