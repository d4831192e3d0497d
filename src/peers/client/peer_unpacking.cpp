#include "peers/client/peer_unpacking.h"

#include "archive/archive_display.h"
#include "faults/runtime_fault.h"

#include <QFileInfo>

namespace quorvin {

UnpackArchive unpackingShownIn(ProgramState& state, ArchiveView& view) {
  return [&state, &view](const QString& archivePath, const QString& targetFolder) {
    const ShownUnpacking shown(state, view, QStringLiteral("Unpacking ") + QFileInfo(archivePath).fileName());
    const UnpackingResult result = unpackArchiveShownIn(view, state, archivePath, targetFolder);
    if (result.outcome == UnpackingOutcome::Failed) {
      throw RuntimeFault(FaultNumber::PathFileAccess, result.error);
    }
    return result.outcome == UnpackingOutcome::Unpacked;
  };
}

}  // namespace quorvin
