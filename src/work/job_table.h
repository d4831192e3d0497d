// SPDX-License-Identifier: GPL-2.0-or-later

// Which long jobs may run beside each other.
#pragma once

#include <QString>

#include <cstdint>

namespace quorvin {

/// Everything that takes long. `Closing` is the closing of the program, which runs from its request to the
/// end of the process.
enum class JobKind : std::uint8_t {
  Search,
  /// A refresh of the local lists; in the console also the indexing of a single folder.
  Refresh,
  Update,
  /// Unpacking the main data file at start-up.
  Extraction,
  /// Packing listings for peers.
  Packing,
  /// Getting lists from a peer.
  Getting,
  /// Unpacking lists that came from a peer.
  Unpacking,
  /// Writing hits to a file.
  Export,
  Closing,
};

inline constexpr int kJobKinds = 9;

/// What becomes of a job that is asked for while another one runs, from the mildest to the strictest.
enum class Answer : std::uint8_t {
  /// It starts at once.
  Starts,
  /// It starts at once, and the running job is asked to end. For a search: the request is the stop request.
  Stops,
  /// It starts when the running job has ended.
  Waits,
  /// It does not start, and a message says why.
  Refused,
};

/// The one rule of what may run beside what: the answer to `wanted` while `running` runs.
Answer answerWhile(JobKind running, JobKind wanted);

/// The message when `wanted` is refused since `running` runs: what is running, and that the other
/// can be started when it has ended. Empty while the program closes: nothing more is said then.
QString refusalText(JobKind running, JobKind wanted);

}  // namespace quorvin
