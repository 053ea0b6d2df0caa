#include "qt/DialogButtons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <array>
#include <string_view>

#include "qt/Icons.h"

namespace hullwright {
namespace {

struct ButtonImage {
  QDialogButtonBox::StandardButton button;
  std::string_view icon;
};

constexpr auto images = std::to_array<ButtonImage>({
    {QDialogButtonBox::Ok, "dialog-ok"},
    {QDialogButtonBox::Yes, "dialog-ok"},
    {QDialogButtonBox::No, "dialog-no"},
    {QDialogButtonBox::Cancel, "dialog-cancel"},
    {QDialogButtonBox::Open, "file-open"},
    {QDialogButtonBox::Save, "file-save"},
});

}  // namespace

void SetButtonImages(const QDialog& dialog)
{
  for (const auto* const box : dialog.findChildren<QDialogButtonBox*>()) {
    for (const ButtonImage& image : images) {
      QPushButton* const button = box->button(image.button);
      if (button != nullptr) button->setIcon(ThemedIcon(image.icon, dialog.palette()));
    }
  }
}

}  // namespace hullwright
