#pragma once

namespace hullwright {

/// Shows the wait cursor until the program handles events again, which those of a dialog that asks
/// something meanwhile are as well.
void ShowBusy();

}  // namespace hullwright
