#include "update/web_update.h"

#include "archive/archive_display.h"
#include "dates/day_and_second.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "update/web_update_address.h"
#include "update/web_update_headers.h"

#include <QFile>

#include <string_view>
#include <utility>

namespace quorvin {
namespace {

constexpr qsizetype kChunkSize = 1024;
/// A server's copy must be newer by more minutes than this.
constexpr std::int64_t kSameMinutes = 1;
/// 1 January 1980, older than any copy on a server.
constexpr DateValue kNoCopy = 29221;

/// The pointer that tells of work, taken back on every way out.
class BusyPointer {
 public:
  explicit BusyPointer(WebUpdateView& view) : view_(view) { view_.setBusyPointer(true); }
  ~BusyPointer() { view_.setBusyPointer(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  WebUpdateView& view_;
};

}  // namespace

WebUpdate::WebUpdate(ProgramState& state, WebUpdateView& view, MessageBoxes& boxes, HttpTransfer& web,
                     const QLocale& locale)
    : state_(state), view_(view), boxes_(boxes), web_(web), locale_(locale) {}

void WebUpdate::WebUpdate_Click() {
  try {
    view_.setWebUpdateEnabled(false);
    if (run() == Step::Cancelled) return;
  } catch (const RuntimeFault& fault) {
    web_.cancel();
    view_.leaveProgress();
    if (!isClosing())
      boxes_.inform(QString::number(fault.number()) + QStringLiteral(": Could not get an update."));
  }
  view_.setWebUpdateEnabled(true);
}

WebUpdate::Step WebUpdate::run() {
  archiveFile_ = state_.ArchiveFile;
  localFolder_ = state_.LocalFolder;
  address_ = webUpdateAddress(state_.WebServer, archiveFile_);
  if (const Step step = check(); step != Step::GoOn) return step;
  if (const Step step = download(); step != Step::GoOn) return step;
  if (!archiveFile_.isEmpty() && ordinaryFileExists(archivePath())) unpack();
  view_.unloadProgress();
  return Step::Done;
}

WebUpdate::Step WebUpdate::check() {
  DateValue serverDate = 0;
  {
    const BusyPointer busy(view_);
    web_.execute(address_);
    if (!waitForHeaders()) return Step::Done;
    serverDate = serverDateOf(web_.header(QStringLiteral("Last-Modified:")), locale_);
    remoteSize_ = remoteSizeOf(web_.header(QStringLiteral("Content-Length:")));
    web_.cancel();
  }
  if (minutesBetween(localDate(), serverDate) <= kSameMinutes) {
    boxes_.inform(QStringLiteral("Your data file is up to date."));
    return Step::Done;
  }
  const bool isWanted =
      boxes_.askYesNo(QStringLiteral("An updated data file is avaliable at ") + address_.toDisplayString() +
                      QStringLiteral(" do you want to download the update?"));
  return isWanted && !isClosing() ? Step::GoOn : Step::Done;
}

/// The headers are only asked for: no window shows that there is something to cancel yet.
bool WebUpdate::waitForHeaders() {
  while (web_.stillExecuting()) {
    view_.waitForEvents();
    if (!isClosing()) continue;
    web_.cancel();
    return false;
  }
  return true;
}

DateValue WebUpdate::localDate() const {
  return ordinaryFileExists(archivePath()) ? modifiedInUtc(archivePath()) : kNoCopy;
}

WebUpdate::Step WebUpdate::download() {
  // A request that an earlier piece of work has left over is not meant for this one.
  state_.AbortRequested = false;
  view_.showProgress();
  view_.setBarMaximum(remoteSize_);
  view_.setStatus(QStringLiteral("Starting download of update."));
  web_.execute(address_);
  while (web_.stillExecuting()) {
    view_.waitForEvents();
    if (isCancelled()) return cancelDownload();
  }
  std::optional<QByteArray> first = nextChunk();
  if (!first || receive(*std::move(first)) == Step::Cancelled) return cancelDownload();
  return Step::GoOn;
}

WebUpdate::Step WebUpdate::receive(QByteArray next) {
  // Without a name there is no file to write; the document is only received.
  std::optional<OverwrittenFile> archive;
  if (!archiveFile_.isEmpty()) archive.emplace(archivePath());
  bytesCounted_ = 0;
  archiveLength_ = 0;
  while (true) {
    const QByteArray block = std::move(next);
    std::optional<QByteArray> following = nextChunk();
    if (!following) return Step::Cancelled;
    next = *std::move(following);
    if (archive) archive->write(std::string_view(block.constData(), static_cast<std::size_t>(block.size())));
    archiveLength_ += block.size();
    count(next.size());
    view_.processEvents();
    if (isCancelled()) return Step::Cancelled;
    if (next.isEmpty()) break;
  }
  if (archive) archive->flush();
  web_.cancel();
  return Step::GoOn;
}

/// Nothing when the user cancels.
std::optional<QByteArray> WebUpdate::nextChunk() {
  while (!web_.chunkIsReady(kChunkSize)) {
    view_.waitForEvents();
    if (isCancelled()) return std::nullopt;
  }
  return web_.chunk(kChunkSize);
}

/// The first chunk is never counted, and each other one as an even number of bytes.
void WebUpdate::count(qsizetype bytes) {
  const qsizetype pairs = (bytes + 1) / 2;
  const std::int64_t counted = bytesCounted_ + std::int64_t{2} * pairs;
  if (counted > remoteSize_) throw RuntimeFault(FaultNumber::InvalidProcedureCall);
  bytesCounted_ = static_cast<std::int32_t>(counted);
  view_.setBar(bytesCounted_);
}

WebUpdate::Step WebUpdate::cancelDownload() {
  if (!isClosing()) state_.AbortRequested = false;
  web_.cancel();
  view_.unloadProgress();
  if (archiveFile_.isEmpty() || !ordinaryFileExists(archivePath())) return Step::Cancelled;
  if (!QFile::remove(archivePath())) throw RuntimeFault(FaultNumber::PermissionDenied);
  return Step::Cancelled;
}

void WebUpdate::unpack() {
  view_.setStatus(QStringLiteral("Retrieved compressed data update!"));
  view_.setBarMaximum(kFullBar);
  view_.setBar(0);
  view_.setStatus(QStringLiteral("Decompressing..."));
  showArchiveError(boxes_, unpackArchiveShownIn(view_, state_, archivePath(), localFolder_, archiveLength_));
  if (!isClosing()) state_.AbortRequested = false;
}

QString WebUpdate::archivePath() const {
  return localFolder_ + archiveFile_;
}

bool WebUpdate::isCancelled() const {
  return state_.AbortRequested || isClosing();
}

bool WebUpdate::isClosing() const {
  return state_.QuitPending || view_.endRequested();
}

}  // namespace quorvin
