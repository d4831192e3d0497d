// Adding the lists that came from a peer to the offline sources.
#pragma once

#include "peers/client/peer_client.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QString>

#include <functional>

namespace quorvin {

/// Unpacks the archive at `archivePath` into `targetFolder`, which exists and ends in a separator, and
/// returns when that is done; false when the user has ended it. Throws RuntimeFault when it fails; its
/// description is reported.
using UnpackArchive = std::function<bool(const QString& archivePath, const QString& targetFolder)>;

/// Unpacking as a part of `job`, which is shown by then and must outlive the function. What is wrong with an
/// archive is thrown as fault 75 with its description.
UnpackArchive unpackingIn(Job& job);

/// As a job of the kind Unpacking: tells what came of a conversation, and asks whether the lists that have
/// come are to be added to the offline sources. Then each archive is unpacked into a new folder of its own
/// beside it, and every ".txt" file in it becomes an offline source, in place of the one that the same list
/// of this peer has made earlier; what cannot be unpacked or does not fit into the table any more is told.
/// When the user ends the unpacking, what was unpacked of that archive is removed again, and it is told how
/// many lists were left out. Nothing is told or asked of a conversation that the user cancelled before
/// anything came, and nothing more is done or told once the program is closing. True when offline sources
/// were added.
bool offerReceivedLists(const PeerOutcome& outcome, ProgramState& state, Job& job, MessageBoxes& messages,
                        const UnpackArchive& unpack);

}  // namespace quorvin
