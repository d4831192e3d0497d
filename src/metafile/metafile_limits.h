// Limits that a process sets itself before it touches what it does not trust.
#pragma once

namespace quorvin {

/// From now on this process has at most 512 MB of address space, five seconds of processor time (from its
/// start) and 64 open files, can write to no file (a pipe that is open stays), and leaves no core behind.
/// Beyond a limit it fails or is ended by the system. Says whether all of them could be set.
bool limitThisProcess();

}  // namespace quorvin
