// Ctrl-C in the terminal as a request that long loops poll.
#pragma once

namespace quorvin {

/// From now on an interrupt or termination signal no longer ends the program but sets stopSignalled(). A
/// second signal ends it as usual, should the program not come to look.
void watchStopSignal();

/// Whether such a signal has arrived.
bool stopSignalled();

}  // namespace quorvin
