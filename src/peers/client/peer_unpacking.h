// Unpacking what came from a peer, with the Progress window shown.
#pragma once

#include "peers/client/list_offer.h"
#include "state/program_state.h"
#include "work/archive_view.h"

namespace quorvin {

/// Unpacks an archive with `Progress` shown, whose `CancelButton` ends it. What is wrong with the archive is
/// thrown as fault 75 with its description. Both must outlive the function.
UnpackArchive unpackingShownIn(ProgramState& state, ArchiveView& view);

}  // namespace quorvin
