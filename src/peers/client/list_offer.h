// SPDX-License-Identifier: GPL-2.0-or-later

// Adding the lists that came from a peer to the offline sources.
#pragma once

#include "peers/client/peer_client.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// Unpacks the archive at `archivePath` into `targetFolder`, which exists and ends in a separator. False if
/// the user has ended it. Throws RuntimeFault when it fails; its description is shown to the user.
using UnpackArchive = std::function<bool(const QString& archivePath, const QString& targetFolder)>;

/// Unpacking as a part of `job`, which must be shown by then and outlive the function. Whatever is wrong with
/// an archive is thrown as fault 75 with a description.
UnpackArchive unpackingIn(Job& job);

/// How many listings, that is ".txt" files, the archives of `lists` hold together, as a part of `job`: events
/// run meanwhile. An archive that cannot be unpacked counts as empty.
std::int64_t countListings(const std::vector<ReceivedList>& lists, const Job& job);

/// As a job of the kind Unpacking: says what came of a conversation, and asks whether to add the received
/// lists to the offline sources. The question says how many listings there are where that is not one for each
/// list, and how many more sources there is room for where that is fewer.
///
/// On Yes, each archive is unpacked into a new folder beside it, and every ".txt" file in it becomes an
/// offline source as long as there is room. It takes the place of the source that the same list of this peer
/// became earlier. A message says what could not be unpacked or did not fit. If the user ends the unpacking,
/// what was unpacked of that archive is removed, and the message says how many lists were left out.
///
/// Nothing is said about a conversation that the user cancelled before anything came, and nothing more is
/// done or shown once the program is closing. True if offline sources were added.
bool offerReceivedLists(const PeerOutcome& outcome, ProgramState& state, Job& job, MessageBoxes& messages,
                        const UnpackArchive& unpack);

}  // namespace quorvin
