// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_unpacking.h"

#include "files/folder_writer.h"
#include "texts/texts.h"

#include <span>
#include <string_view>
#include <vector>

namespace quorvin {
namespace {

/// Some tenths of a millisecond's work.
constexpr std::size_t kUnpackedAtOnce = std::size_t{1} << 16;
/// Entries without content take time too.
constexpr int kFilesPerPause = 16;
constexpr int kFull = 100;

class Unpacking {
 public:
  Unpacking(const ArchiveReader& archive, const ArchivePlan& plan, const QString& targetFolder,
            const ArchivePause& pause, const BeforeReplacing& beforeReplacing)
      : archive_(archive),
        plan_(plan),
        target_(targetFolder),
        pause_(pause),
        beforeReplacing_(beforeReplacing),
        buffer_(kUnpackedAtOnce) {}

  UnpackingOutcome run() {
    isStopped_ = pause_(0);
    for (const PlannedEntry& planned : plan_.entries) {
      if (++entries_ % kFilesPerPause == 0) pause();
      if (isStopped_ || !unpack(planned)) return UnpackingOutcome::Stopped;
    }
    if (isStopped_) return UnpackingOutcome::Stopped;
    pause_(kFull);
    return UnpackingOutcome::Unpacked;
  }

  int filesInPlace() const { return filesInPlace_; }

 private:
  /// False when the unpacking was stopped.
  bool unpack(const PlannedEntry& planned) {
    if (planned.place.isFolder) {
      target_.makeFolder(planned.place.path);
      return true;
    }
    ArchiveContent content(archive_, planned.entry);
    FileAside file = target_.newFile(planned.place.path);
    while (const std::size_t count = content.read(buffer_)) {
      file.write(std::string_view(buffer_.data(), count));
      done_ += count;
      pause();
      if (isStopped_) return false;
    }
    file.finish();
    if (beforeReplacing_) beforeReplacing_(planned.place.path.join(u'/'), file.path());
    file.commit();
    ++filesInPlace_;
    return true;
  }

  void pause() { isStopped_ = pause_(plan_.bytes == 0 ? 0 : static_cast<int>(done_ * kFull / plan_.bytes)); }

  const ArchiveReader& archive_;
  const ArchivePlan& plan_;
  FolderWriter target_;
  const ArchivePause& pause_;
  const BeforeReplacing& beforeReplacing_;
  std::vector<char> buffer_;
  std::uint64_t done_ = 0;
  int entries_ = 0;
  int filesInPlace_ = 0;
  bool isStopped_ = false;
};

QString afterFailure(int filesInPlace) {
  if (filesInPlace == 0) return u' ' + Texts::tr("Nothing was unpacked.");
  if (filesInPlace == 1)
    return u' ' + Texts::tr("One file before it was unpacked, nothing else was changed.");
  return u' ' +
         Texts::tr("The %1 files before it were unpacked, nothing else was changed.", nullptr, filesInPlace)
             .arg(filesInPlace);
}

UnpackingOutcome unpackEntries(const ArchiveReader& archive, const ArchivePlan& plan,
                               const QString& targetFolder, const ArchivePause& pause,
                               const BeforeReplacing& beforeReplacing) {
  Unpacking unpacking(archive, plan, targetFolder, pause, beforeReplacing);
  try {
    return unpacking.run();
  } catch (const ArchiveError& error) {
    throw ArchiveError(error.code(), error.description() + afterFailure(unpacking.filesInPlace()));
  }
}

}  // namespace

UnpackingResult unpackArchive(const QString& archivePath, const QString& targetFolder,
                              const ArchivePause& pause, const UnpackingOptions& options) {
  try {
    const ArchiveReader archive(archivePath, options.archiveLength, options.limits.entries, pause);
    const ArchivePlan plan = planOf(archive, options.limits, options.isProtected);
    const UnpackingOutcome outcome =
        unpackEntries(archive, plan, targetFolder, pause, options.beforeReplacing);
    return {outcome, {}, {}, plan.leftOut};
  } catch (const ArchiveError& error) {
    return {UnpackingOutcome::Failed, error.code(), error.description(), {}};
  } catch (const ArchiveStopped&) {
    return {UnpackingOutcome::Stopped, {}, {}, {}};
  }
}

UnpackingResult unpackArchive(Job& job, const QString& archivePath, const QString& targetFolder,
                              const UnpackingOptions& options) {
  int shownPercent = -1;
  const auto pause = [&job, &shownPercent](int percent) {
    if (percent != shownPercent) job.display().setBar(percent);
    shownPercent = percent;
    job.letEventsRun();
    return job.isStopRequested();
  };
  return unpackArchive(archivePath, targetFolder, pause, options);
}

}  // namespace quorvin
