#include "update/archive_data_file.h"

#include "archive/archive_display.h"
#include "faults/runtime_fault.h"

namespace quorvin {

DataFileExtraction::DataFileExtraction(ProgramState& state, ArchiveView& view, MessageBoxes& boxes)
    : state_(state), view_(view), boxes_(boxes) {}

void DataFileExtraction::extractArchive(const QString& archivePath, const QString& targetFolder) {
  view_.showMainWindow();
  const ShownUnpacking shown(state_, view_, QStringLiteral("Decompressing Compressed Data File."));
  const UnpackingResult result = unpackArchiveShownIn(view_, state_, archivePath, targetFolder);
  showArchiveError(boxes_, result);
  if (result.outcome != UnpackingOutcome::Failed) return;
  throw RuntimeFault(FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) +
                                                      QStringLiteral(": ") + archivePath +
                                                      QStringLiteral(" could not be unpacked"));
}

}  // namespace quorvin
