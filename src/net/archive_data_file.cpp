#include "net/archive_data_file.h"

#include "net/archive_display.h"
#include "net/archive_unpacking.h"
#include "platform/runtime_fault.h"

namespace quorvin {
namespace {

constexpr std::int32_t kFullBar = 100;

}  // namespace

DataFileExtraction::DataFileExtraction(ProgramState& state, ArchiveView& view, MessageBoxes& boxes)
    : state_(state), view_(view), boxes_(boxes) {}

void DataFileExtraction::extractArchive(const QString& archivePath, const QString& targetFolder) {
  view_.showMainWindow();
  state_.AbortRequested = false;
  view_.showProgress();
  try {
    unpack(archivePath, targetFolder);
  } catch (const RuntimeFault&) {
    view_.unloadProgress();
    throw;
  }
  view_.unloadProgress();
}

void DataFileExtraction::unpack(const QString& archivePath, const QString& targetFolder) {
  view_.setStatus(QStringLiteral("Decompressing Compressed Data File."));
  view_.setBarMaximum(kFullBar);
  view_.setBar(0);
  ArchiveDisplay display(state_, view_, boxes_);
  const UnpackingOutcome outcome = unpackArchive(archivePath, targetFolder, display);
  if (!state_.QuitPending) state_.AbortRequested = false;
  if (outcome != UnpackingOutcome::Failed) return;
  throw RuntimeFault(FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) +
                                                      QStringLiteral(": ") + archivePath +
                                                      QStringLiteral(" could not be unpacked"));
}

}  // namespace quorvin
