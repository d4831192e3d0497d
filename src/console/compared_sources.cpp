// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/compared_sources.h"

#include "catalogue/compared_place.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quorvin {

namespace {

/// In the listing itself, which counts as its newest version.
constexpr int kPresent = 0;

RuntimeFault notFound(const QString& sentence) {
  return RuntimeFault(FaultNumber::FileNotFound, sentence);
}

}  // namespace

QString listingWithHistory(const QString& text, const ListingHistory& history, const ProgramState& state) {
  QString name = text;
  if (name.startsWith(state.LocalFolder)) name.remove(0, state.LocalFolder.size());
  const QStringList listings = history.listings();
  for (const QString& wanted : {name, name + QStringLiteral(".txt")}) {
    if (listings.contains(wanted)) return wanted;
  }
  return {};
}

ComparedSources::ComparedSources(const CompareRequest& request, const ProgramState& state)
    : request_(request), state_(state), history_(state.LocalFolder) {}

ComparedSources::~ComparedSources() = default;

bool ComparedSources::find() {
  if (asksForVersion()) {
    const QString listing = historyOf(request_.before);
    before_ = openerOfVersion(listing);
    after_ =
        request_.after.isEmpty() ? openerOfListing(state_.LocalFolder + listing) : openerOf(request_.after);
  } else {
    before_ = openerOf(request_.before);
    after_ = openerOf(request_.after);
  }
  return areListed_;
}

bool ComparedSources::asksForVersion() const {
  return request_.after.isEmpty() || request_.version || request_.day;
}

QString ComparedSources::historyOf(const QString& name) const {
  const QString listing = listingWithHistory(name, history_, state_);
  if (listing.isEmpty()) throw notFound(Texts::tr("there is no earlier version of %1").arg(name));
  return listing;
}

/// A file or folder of that name, or else a listing in the data folder.
ListingOpener ComparedSources::openerOf(const QString& name) {
  const QFileInfo info(name);
  if (info.isDir()) return openerOfFolder(name);
  if (info.exists()) return openerOfListing(name);
  for (const QString& ending : {QString(), QStringLiteral(".txt")}) {
    const QString path = state_.LocalFolder + name + ending;
    if (QFileInfo(path).isFile()) return openerOfListing(path);
  }
  throw notFound(Texts::tr("there is neither a listing nor a folder %1").arg(name));
}

ListingOpener ComparedSources::openerOfVersion(const QString& listing) const {
  const int number = versionToShow(listing);
  if (number == kPresent) return openerOfListing(state_.LocalFolder + listing);
  return quorvin::openerOfVersion(history_, listing, number);
}

int ComparedSources::versionToShow(const QString& listing) const {
  if (request_.version) return *request_.version;
  if (request_.day) return versionOfDay(listing);
  const std::optional<ListingVersion> newest = history_.newestComplete(listing);
  if (newest) return newest->number;
  throw notFound(Texts::tr("there is no complete earlier version of %1").arg(listing));
}

/// The newest that was made by the end of that day, unless a rescan that was stopped made it.
int ComparedSources::versionOfDay(const QString& listing) const {
  const std::int64_t end = request_.day->endOfDay().toMSecsSinceEpoch();
  const auto isOfThen = [end](const ListingVersion& version) {
    return version.isComplete && version.isReadable && version.made <= end;
  };
  const std::optional<ListingVersion> present = history_.present(listing);
  if (present && isOfThen(*present)) return kPresent;
  const std::vector<ListingVersion> versions = history_.versions(listing);
  const auto found = std::ranges::find_if(versions, isOfThen);
  if (found != versions.end()) return found->number;
  throw notFound(Texts::tr("no version of %1 that is kept is as old as %2")
                     .arg(listing, request_.day->toString(Qt::ISODate)));
}

ListingOpener ComparedSources::openerOfFolder(const QString& path) {
  removeLeftovers(QDir::tempPath());
  const QString place = QDir::tempPath() + QStringLiteral("/quorvin-compared.txt");
  listedFolders_.push_back(std::make_unique<FileAside>(place, AsideOptions{.durability = Durability::None}));
  FileAside& listing = *listedFolders_.back();
  IndexRequest request;
  request.folder = path;
  request.isQuiet = request_.isQuiet;
  const IndexOutcome outcome = indexInto(listing.writer(), request);
  status_ = std::max(status_, outcome.status);
  areListed_ = areListed_ && !outcome.hasFailed;
  if (!outcome.hasFailed) listing.finish();
  return openerOfListing(listing.path());
}

}  // namespace quorvin
