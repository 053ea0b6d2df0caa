#pragma once

#include <QIcon>
#include <string_view>

class QPalette;

namespace hullwright {

/// An icon of the program's family, in the colours of a palette: its ink takes the text's colour
/// and its accent the highlight's, so that it reads on light and dark looks. An unknown name gives
/// an empty icon.
QIcon ThemedIcon(std::string_view name, const QPalette& palette);

/// The application's icon.
QIcon ApplicationIcon();

}  // namespace hullwright
