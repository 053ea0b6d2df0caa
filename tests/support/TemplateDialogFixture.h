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
  explicit FakeLogic(int id) : id_(id) {}
  int Template() const override { return id_; }
  void OnStart(IDialogControls& controls) override
  {
    if (focus != 0) controls.FocusField(focus);
  }
  void OnClick(IDialogControls&, int id) override { clicks.push_back(id); }
  bool OnOk(IDialogControls&) override
  {
    ++oks;
    return agrees;
  }

  int focus = 0;
  bool agrees = true;
  int oks = 0;
  std::vector<int> clicks;

private:
  int id_;
};

/// A real dialog made from a template, over a logic that only listens.
class TemplateDialogFixture : public ShellFixture {
protected:
  void Open(int id, int focus = 0)
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
