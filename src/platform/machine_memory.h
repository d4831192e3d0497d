// SPDX-License-Identifier: GPL-2.0-or-later

// The memory of the machine, and this program's part of it.
#pragma once

#include <cstdint>

namespace quorvin {

/// Bytes of physical memory; a gibibyte where the system does not tell.
std::int64_t machineMemory();

/// Gives back to the system what this program has freed and still holds. Takes some milliseconds at most; for
/// the end of work that used much memory for a while.
void giveBackFreedMemory();

/// Has all threads but the first one share one store of freed memory from now on. Else each has its own, in
/// which some megabytes stay of whatever it has made: tens of them in a program that loads pictures all day.
/// To be called before other threads are started.
void shareFreedMemoryAmongThreads();

}  // namespace quorvin
