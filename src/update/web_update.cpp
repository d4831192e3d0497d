// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/web_update.h"

#include "archive/archive_unpacking.h"
#include "dates/general_date.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/file_writer.h"
#include "history/listing_history.h"
#include "texts/texts.h"
#include "update/web_update_server.h"

#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <string_view>
#include <utility>

namespace quorvin {
namespace {

constexpr qsizetype kChunkSize = 1024;
/// A server's copy must be newer by more minutes than this.
constexpr std::int64_t kSameMinutes = 1;
/// 1 January 1980, older than any copy on a server.
constexpr DateValue kNoCopy = 29221;

/// The pointer that says that the program is working, taken back on every way out.
class BusyPointer {
 public:
  explicit BusyPointer(WorkDisplay& display) : display_(display) { display_.setBusyPointer(true); }
  ~BusyPointer() { display_.setBusyPointer(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  WorkDisplay& display_;
};

/// Where the system does not let the time be set, the file has kept that of its last write.
void setModified(const QString& path, const QDateTime& moment) {
  QFile file(path);
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) return;
  file.setFileTime(moment, QFileDevice::FileModificationTime);
}

QString leftOutText(const QStringList& names) {
  constexpr qsizetype kMostShown = 10;
  QString text = Texts::tr(
      "These files of the archive were left out, since they would have replaced your source lists, your "
      "settings, your listing history, or the program itself:");
  for (const QString& name : names.first(std::min(names.size(), kMostShown))) {
    text += QStringLiteral("\r\n") + shownEntryName(name);
  }
  const qsizetype more = names.size() - kMostShown;
  if (more > 0)
    text += QStringLiteral("\r\n") +
            Texts::tr("and %1 more", nullptr, Texts::plural(more)).arg(QLocale().toString(more));
  return text;
}

/// What is wrong with the archive, and what was left out of it, is shown in a message box.
UnpackingOutcome unpackDataFile(Job& job, const QString& archivePath, const QString& targetFolder,
                                MessageBoxes& boxes, const ProtectedFiles& files,
                                UnpackingOptions options = {}) {
  options.isProtected = [&files](const QStringList& path) { return files.has(path); };
  const UnpackingResult result = unpackArchive(job, archivePath, targetFolder, options);
  if (!result.error.isEmpty()) boxes.inform(Texts::tr("Archive Error: %1").arg(result.error));
  if (!result.leftOut.isEmpty() && !job.isClosing()) boxes.inform(leftOutText(result.leftOut));
  return result.outcome;
}

/// What there is to report of a listing that the update replaces; empty when all is well.
QString sentenceOf(const QString& name, const KeptListing& kept) {
  if (kept.fault.isEmpty()) return {};
  return Texts::tr("The earlier %1 could not be kept in the listing history: %2").arg(name, kept.fault) +
         QStringLiteral("\r\n");
}

}  // namespace

WebUpdate::WebUpdate(const ProgramState& state, Job& job, MessageBoxes& boxes, HttpTransfer& web,
                     const QLocale& locale, EnableCommand enableCommand, OwnPlaces places)
    : state_(state),
      job_(job),
      display_(job.display()),
      boxes_(boxes),
      web_(web),
      locale_(locale),
      enableCommand_(std::move(enableCommand)),
      places_(std::move(places)) {}

void WebUpdate::WebUpdate_Click() {
  try {
    enableCommand_(false);
    if (run() == Step::Cancelled) return;
  } catch (const RuntimeFault& fault) {
    web_.cancel();
    job_.leaveStanding();
    if (!job_.isClosing()) {
      boxes_.inform(Texts::tr("%1: Could not get an update.").arg(fault.number()));
    }
  }
  enableCommand_(true);
}

WebUpdate::Step WebUpdate::run() {
  archiveFile_ = state_.ArchiveFile;
  localFolder_ = state_.LocalFolder;
  address_ = webUpdateAddress(state_.WebServer, archiveFile_);
  if (const Step step = check(); step != Step::GoOn) return step;
  if (const Step step = download(); step != Step::GoOn) return step;
  if (!archiveFile_.isEmpty()) unpackReceived();
  job_.hide();
  return Step::Done;
}

void WebUpdate::unpackReceived() {
  if (ordinaryFileExists(archivePath())) return unpack();
  if (job_.isClosing()) return;
  boxes_.inform(Texts::tr("The update was downloaded, but %1 cannot be found now. Nothing was unpacked.")
                    .arg(archivePath()));
}

WebUpdate::Step WebUpdate::check() {
  DateValue serverDate = 0;
  {
    const BusyPointer busy(display_);
    web_.execute(address_);
    if (!waitForHeaders()) return Step::Done;
    serverDate = serverDateOf(web_.header(QStringLiteral("Last-Modified:")), locale_);
    remoteSize_ = remoteSizeOf(web_.header(QStringLiteral("Content-Length:")));
    web_.cancel();
  }
  if (minutesBetween(localDate(), serverDate) <= kSameMinutes) {
    boxes_.inform(Texts::tr("Your data file is up to date."));
    return Step::Done;
  }
  const bool isWanted =
      boxes_.askYesNo(Texts::tr("An updated data file is avaliable at %1 do you want to download the update?")
                          .arg(address_.toDisplayString()));
  return isWanted && !job_.isClosing() ? Step::GoOn : Step::Done;
}

/// The headers are only asked for: no window shows that there is something to cancel yet.
bool WebUpdate::waitForHeaders() {
  while (web_.stillExecuting()) {
    job_.waitForEvents();
    if (!job_.isClosing()) continue;
    web_.cancel();
    return false;
  }
  return true;
}

DateValue WebUpdate::localDate() const {
  return ordinaryFileExists(archivePath()) ? modifiedInUtc(archivePath()) : kNoCopy;
}

WebUpdate::Step WebUpdate::download() {
  // A request that was left over is not meant for this job.
  job_.dropStopRequest();
  job_.show();
  display_.setBarMaximum(remoteSize_);
  display_.setStatus(Texts::tr("Starting download of update."));
  web_.execute(address_);
  while (web_.stillExecuting()) {
    job_.waitForEvents();
    if (job_.isStopRequested()) return cancelDownload();
  }
  std::optional<QByteArray> first = nextChunk();
  if (!first || receive(*std::move(first)) == Step::Cancelled) return cancelDownload();
  return Step::GoOn;
}

WebUpdate::Step WebUpdate::receive(QByteArray next) {
  // Without a name there is no file to write; the document is only received.
  std::optional<OverwrittenFile> archive;
  if (!archiveFile_.isEmpty()) {
    isPartial_ = !ordinaryFileExists(archivePath());
    archive.emplace(archivePath());
  }
  bytesCounted_ = 0;
  archiveLength_ = 0;
  while (true) {
    const QByteArray block = std::move(next);
    std::optional<QByteArray> following = nextChunk();
    if (!following) return Step::Cancelled;
    next = *std::move(following);
    isPartial_ = true;
    if (archive) archive->write(std::string_view(block.constData(), static_cast<std::size_t>(block.size())));
    archiveLength_ += block.size();
    count(next.size());
    job_.letEventsRun();
    if (job_.isStopRequested()) return Step::Cancelled;
    if (next.isEmpty()) break;
  }
  if (archive) archive->flush();
  received_ = QDateTime::currentDateTimeUtc();
  web_.cancel();
  return Step::GoOn;
}

/// Nothing when the user cancels.
std::optional<QByteArray> WebUpdate::nextChunk() {
  while (!web_.chunkIsReady(kChunkSize)) {
    job_.waitForEvents();
    if (job_.isStopRequested()) return std::nullopt;
  }
  return web_.chunk(kChunkSize);
}

/// The first chunk is never counted, and each other one as an even number of bytes.
void WebUpdate::count(qsizetype bytes) {
  const qsizetype pairs = (bytes + 1) / 2;
  const std::int64_t counted = bytesCounted_ + std::int64_t{2} * pairs;
  if (counted > remoteSize_) throw RuntimeFault(FaultNumber::InvalidProcedureCall);
  bytesCounted_ = static_cast<std::int32_t>(counted);
  display_.setBar(bytesCounted_);
}

WebUpdate::Step WebUpdate::cancelDownload() {
  job_.dropStopRequest();
  web_.cancel();
  job_.hide();
  if (archiveFile_.isEmpty() || !isPartial_ || !ordinaryFileExists(archivePath())) return Step::Cancelled;
  if (!QFile::remove(archivePath())) throw RuntimeFault(FaultNumber::PermissionDenied);
  return Step::Cancelled;
}

void WebUpdate::unpack() {
  display_.setStatus(Texts::tr("Retrieved compressed data update!"));
  display_.setBarMaximum(kFullBar);
  display_.setBar(0);
  display_.setStatus(Texts::tr("Decompressing..."));
  QString notKept;
  ListingHistory history(localFolder_, [this] { job_.letEventsRun(); });
  const auto keepListing = [&](const QString& name, const QString& made) {
    if (state_.isListing(localFolder_ + name)) notKept += sentenceOf(name, history.keep(name, made, true));
  };
  const UnpackingOutcome outcome =
      unpackDataFile(job_, archivePath(), localFolder_, boxes_, ProtectedFiles(state_, localFolder_, places_),
                     {.archiveLength = archiveLength_, .beforeReplacing = keepListing});
  job_.dropStopRequest();
  if (outcome == UnpackingOutcome::Unpacked) setModified(archivePath(), received_);
  if (!notKept.isEmpty()) boxes_.inform(notKept);
}

QString WebUpdate::archivePath() const {
  return localFolder_ + archiveFile_;
}

void extractDataFile(Job& job, const QString& archivePath, const QString& targetFolder, MessageBoxes& boxes,
                     const ProtectedFiles& files) {
  job.dropStopRequest();
  const auto afterwards = qScopeGuard([&job] { job.dropStopRequest(); });
  job.show();
  WorkDisplay& display = job.display();
  display.setStatus(Texts::tr("Decompressing Compressed Data File."));
  display.setBarMaximum(kFullBar);
  display.setBar(0);
  if (unpackDataFile(job, archivePath, targetFolder, boxes, files) != UnpackingOutcome::Failed) return;
  throw RuntimeFault(FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) +
                                                      QStringLiteral(": ") +
                                                      Texts::tr("%1 could not be unpacked").arg(archivePath));
}

}  // namespace quorvin
