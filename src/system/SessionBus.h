#pragma once

#include <chrono>
#include <string>

namespace hullwright {

/// Where the session bus is: what the environment names, else the socket in the user's runtime
/// folder; empty for none.
std::string SessionBusAddress();

/// Whether a bus answers a greeting in time. A bus that can't be reached at all counts as one that
/// answers, as does one at an address of another kind than a local socket.
bool BusAnswers(const std::string& address, std::chrono::milliseconds patience);

/// Has this run do without the session bus if that never answers. The toolkit asks the bus for
/// readers of the screen when the window is made, and would wait without an end.
void LeaveSilentSessionBus(std::chrono::milliseconds patience);

}  // namespace hullwright
