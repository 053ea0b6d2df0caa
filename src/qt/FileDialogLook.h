#pragma once

class QFileDialog;

namespace hullwright {

/// Makes a file dialog of the toolkit's large enough for its columns, the names getting what the
/// others leave, and gives its buttons their images. One of the desktop's own stays as it is.
void PrepareFileDialog(QFileDialog& dialog);

}  // namespace hullwright
