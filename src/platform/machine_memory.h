// The memory of the machine, and this program's part of it.
#pragma once

#include <cstdint>

namespace quorvin {

/// Bytes of physical memory; a gibibyte where the system does not tell.
std::int64_t machineMemory();

/// Gives back to the system what this program has freed and still holds. Takes some milliseconds at most; for
/// the end of work that used much memory for a while.
void giveBackFreedMemory();

}  // namespace quorvin
