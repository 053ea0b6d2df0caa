#pragma once

#include <QLineEdit>
#include <memory>
#include <vector>

#include "qt/TemplateDialog.h"
#include "support/ShellFixture.h"

namespace hullwright::test {

/// Logic that only writes down what it is asked.
class FakeLogic : public IDialog {
public:
  explicit FakeLogic(DialogId id) : id_(id) {}
  DialogId Template() const override { return id_; }
  void OnStart(IDialogControls& controls) override
  {
    if (focus != ControlId::None) controls.FocusField(focus);
  }
  void OnClick(IDialogControls&, ControlId id) override { clicks.push_back(id); }
  bool OnOk(IDialogControls&) override
  {
    ++oks;
    return agrees;
  }

  ControlId focus = ControlId::None;
  bool agrees = true;
  int oks = 0;
  std::vector<ControlId> clicks;

private:
  DialogId id_;
};

/// A real dialog made from a template, over a logic that only listens.
class TemplateDialogFixture : public ShellFixture {
protected:
  void Open(DialogId id, ControlId focus = ControlId::None)
  {
    logic = std::make_unique<FakeLogic>(id);
    logic->focus = focus;
    dialog = std::make_unique<TemplateDialog>(*FindDialogTemplate(id), *logic, nullptr);
    dialog->show();
    dialog->activateWindow();
    QApplication::processEvents();
  }

  QLineEdit* Focused() { return qobject_cast<QLineEdit*>(dialog->focusWidget()); }

  std::unique_ptr<FakeLogic> logic;
  std::unique_ptr<TemplateDialog> dialog;
};

}  // namespace hullwright::test
