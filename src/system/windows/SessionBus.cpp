#include "system/SessionBus.h"

namespace hullwright {

// There is no such bus here.

std::string SessionBusAddress() { return {}; }

bool BusAnswers(const std::string&, std::chrono::milliseconds) { return true; }

void LeaveSilentSessionBus(std::chrono::milliseconds) {}

}  // namespace hullwright
