#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"
#include "resources/Strings.h"

namespace hullwright {

namespace AboutControls {
inline constexpr auto rows = std::to_array<DialogRow>({
    {.kind = DialogRowKind::Product, .id = product},
    {.kind = DialogRowKind::Note, .text = Strings::description},
    {.kind = DialogRowKind::Note,
     .text = u"Free software under the MIT licence. \u00A9 2026 The Hullwright developers."},
});
}  // namespace AboutControls

inline constexpr DialogTemplate aboutDialog = {DialogId::About, u"About Sondaris",
                                               AboutControls::rows, false};

}  // namespace hullwright
