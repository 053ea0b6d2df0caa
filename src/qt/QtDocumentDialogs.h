#pragma once

#include <QWidget>

#include "platform/DocumentDialogs.h"

namespace hullwright {

/// Asks for designs and about changes over the main window.
class QtDocumentDialogs : public IDocumentDialogs {
public:
  explicit QtDocumentDialogs(QWidget* window) : window_(window) {}

  std::optional<std::u16string> AskDesignToOpen(std::u16string_view folder) override;
  std::optional<std::u16string> AskDesignToSave(std::u16string_view folder,
                                                std::u16string_view name) override;
  LeaveAnswer AskToLeave(std::u16string_view name) override;

private:
  QWidget* window_;
};

}  // namespace hullwright
