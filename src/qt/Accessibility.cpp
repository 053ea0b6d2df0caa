#include "qt/Accessibility.h"

#include <QAccessibleWidget>
#include <QTimer>

#include "qt/DesignWidget.h"
#include "qt/GuideWindow.h"
#include "qt/StatusPane.h"

namespace hullwright {
namespace {

/// A pane of the status bar: a button where a press acts upon it.
class AccessiblePane : public QAccessibleWidget {
public:
  explicit AccessiblePane(StatusPane& pane) : QAccessibleWidget(&pane), pane_(pane) {}

  QAccessible::Role role() const override
  {
    return pane_.onPress ? QAccessible::Button : QAccessible::StaticText;
  }

  QStringList actionNames() const override
  {
    return pane_.onPress ? QStringList{pressAction()} : QStringList();
  }

  void doAction(const QString& name) override
  {
    // Later, as buttons do: who presses must not wait for the end of the dialog that opens.
    if (name == pressAction() && pane_.onPress) QTimer::singleShot(0, &pane_, pane_.onPress);
  }

private:
  StatusPane& pane_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
  if (auto* const design = qobject_cast<DesignWidget*>(object)) {
    return new QAccessibleWidget(design, QAccessible::Canvas, design->accessibleName());
  }
  if (auto* const guide = qobject_cast<GuideWindow*>(object)) {
    return new QAccessibleWidget(guide, QAccessible::Window);
  }
  auto* const pane = qobject_cast<StatusPane*>(object);
  return pane == nullptr ? nullptr : new AccessiblePane(*pane);
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(MakeInterface); }

}  // namespace hullwright
