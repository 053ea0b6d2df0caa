#pragma once

#include <QDialog>

#include "qt/ToolBars.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QVBoxLayout;

namespace hullwright {

/// Chooses which buttons stand on which toolbar in which order, and makes toolbars of the user's
/// own.
class CustomizeDialog : public QDialog {
public:
  CustomizeDialog(const ToolBars& toolBars, Actions& actions, QWidget* parent);

  /// The toolbars as they are arranged now.
  QList<ToolBarSpec> Specs() const { return specs_; }

private:
  QListWidgetItem* MakeItem(CommandId command);
  QPushButton* MakeButton(const QString& text, void (CustomizeDialog::*act)());
  void LayOut();
  QVBoxLayout* ButtonColumn();  ///< what acts on the lists, between them
  void FillAvailable();
  void ShowToolBar(int index);
  void TakeOver();
  void Add();
  void Remove();
  void MoveUp() { MoveBy(-1); }
  void MoveDown() { MoveBy(1); }
  void MoveBy(int rows);
  void Reset();
  void NewToolBar();
  void DeleteToolBar();
  void UpdateButtons();

  Actions& actions_;
  ToolBarSpec standard_;
  QList<ToolBarSpec> specs_;
  int current_ = 0;
  QComboBox* bars_;
  QListWidget* available_;
  QListWidget* shown_;
  QPushButton* newBar_;
  QPushButton* deleteBar_;
};

}  // namespace hullwright
