#include "qt/Accessibility.h"

#include <QAccessibleWidget>

#include "qt/DesignWidget.h"
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
    if (name == pressAction() && pane_.onPress) pane_.onPress();
  }

private:
  StatusPane& pane_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
  if (auto* const design = qobject_cast<DesignWidget*>(object)) {
    return new QAccessibleWidget(design, QAccessible::Canvas, design->accessibleName());
  }
  auto* const pane = qobject_cast<StatusPane*>(object);
  return pane == nullptr ? nullptr : new AccessiblePane(*pane);
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(MakeInterface); }

}  // namespace hullwright
