// How much memory the machine has.
#pragma once

#include <cstdint>

namespace quorvin {

/// Bytes of physical memory; a gibibyte where the system does not tell.
std::int64_t machineMemory();

}  // namespace quorvin
