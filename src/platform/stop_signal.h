// SPDX-License-Identifier: GPL-2.0-or-later

// Ctrl-C in the terminal as a request that long loops poll.
#pragma once

namespace quorvin {

/// From now on an interrupt or termination signal no longer ends the program but is noted. A second one ends
/// it as usual, in case the program does not come to look. A signal that was ignored when the program
/// started, as under nohup, stays ignored.
void watchStopSignal();

/// Whether such a signal has arrived.
bool stopSignalled();

/// The exit status of a program that such a signal has ended: 128 and the signal's number, as in shells (130
/// for an interrupt, 143 for a termination). 0 while none has arrived.
int stopStatus();

}  // namespace quorvin
