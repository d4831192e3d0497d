#include "archive/archive_unpacking.h"

#include "archive/archive_error.h"
#include "files/folder_writer.h"

#include <span>
#include <string_view>
#include <vector>

namespace quorvin {
namespace {

/// Some tenths of a millisecond's work.
constexpr std::size_t kBlockSize = std::size_t{1} << 16;
/// Entries without content cost time too.
constexpr int kEntriesPerTick = 16;
constexpr std::uint64_t kFull = 100;

/// The running number of the ticks, which goes on from the look at the archive to its unpacking.
class Ticker {
 public:
  explicit Ticker(ArchiveEvents& events) : events_(events) {}

  /// True when the work is to end.
  bool tick() {
    events_.idleTick(++ticks_);
    return events_.stopRequested();
  }

 private:
  ArchiveEvents& events_;
  std::int32_t ticks_ = 0;
};

class Unpacking {
 public:
  Unpacking(const ArchiveReader& archive, const ArchivePlan& plan, const QString& targetFolder,
            ArchiveEvents& events, Ticker& ticker)
      : archive_(archive),
        plan_(plan),
        target_(targetFolder),
        events_(events),
        ticker_(ticker),
        buffer_(kBlockSize) {}

  UnpackingOutcome run() {
    events_.percentDone(0);
    for (const PlannedEntry& planned : plan_.entries) {
      if (++entries_ % kEntriesPerTick == 0) tick();
      if (isStopped_ || !unpack(planned)) return UnpackingOutcome::Stopped;
    }
    if (shownPercent_ != kFull) events_.percentDone(kFull);
    return UnpackingOutcome::Unpacked;
  }

  int filesInPlace() const { return filesInPlace_; }

 private:
  bool unpack(const PlannedEntry& planned) {
    if (planned.place.isFolder) {
      target_.makeFolder(planned.place.path);
      return true;
    }
    ArchiveContent content(archive_, planned.entry);
    NewFile file = target_.newFile(planned.place.path);
    while (const std::size_t count = content.read(buffer_)) {
      file.write(std::string_view(buffer_.data(), count));
      done_ += count;
      tick();
      if (isStopped_) return false;
    }
    file.putInPlace();
    ++filesInPlace_;
    events_.fileNotice(planned.place.path.join(u'/'), static_cast<std::int64_t>(planned.entry.size));
    return true;
  }

  void tick() {
    const std::uint64_t percent = plan_.bytes == 0 ? 0 : done_ * kFull / plan_.bytes;
    if (percent != shownPercent_) events_.percentDone(static_cast<double>(percent));
    shownPercent_ = percent;
    isStopped_ = ticker_.tick();
  }

  const ArchiveReader& archive_;
  const ArchivePlan& plan_;
  FolderWriter target_;
  ArchiveEvents& events_;
  Ticker& ticker_;
  std::vector<char> buffer_;
  std::uint64_t done_ = 0;
  std::uint64_t shownPercent_ = 0;
  int entries_ = 0;
  int filesInPlace_ = 0;
  bool isStopped_ = false;
};

QString afterFailure(int filesInPlace) {
  if (filesInPlace == 0) return QStringLiteral(" Nothing was unpacked.");
  if (filesInPlace == 1) return QStringLiteral(" One file before it was unpacked, nothing else was changed.");
  return QStringLiteral(" The %1 files before it were unpacked, nothing else was changed.").arg(filesInPlace);
}

UnpackingOutcome unpackEntries(const ArchiveReader& archive, const ArchivePlan& plan,
                               const QString& targetFolder, ArchiveEvents& events, Ticker& ticker) {
  Unpacking unpacking(archive, plan, targetFolder, events, ticker);
  try {
    return unpacking.run();
  } catch (const ArchiveError& error) {
    throw ArchiveError(error.code(), error.description() + afterFailure(unpacking.filesInPlace()));
  }
}

}  // namespace

UnpackingOutcome unpackArchive(const QString& archivePath, const QString& targetFolder, ArchiveEvents& events,
                               const ArchiveLimits& limits, std::int64_t archiveLength) {
  Ticker ticker(events);
  try {
    const ArchiveReader archive(archivePath, archiveLength, limits.entries,
                                [&ticker] { return ticker.tick(); });
    const ArchivePlan plan = planOf(archive, limits);
    return unpackEntries(archive, plan, targetFolder, events, ticker);
  } catch (const ArchiveError& error) {
    events.archiveError(static_cast<std::int32_t>(error.code()), error.description());
    return UnpackingOutcome::Failed;
  } catch (const ArchiveStopped&) {
    return UnpackingOutcome::Stopped;
  }
}

}  // namespace quorvin
