#pragma once

class QDialog;

namespace hullwright {

/// Gives the standard buttons of a dialog the program's own images: OK, Yes, No, Cancel, Open,
/// Save.
void SetButtonImages(const QDialog& dialog);

}  // namespace hullwright
