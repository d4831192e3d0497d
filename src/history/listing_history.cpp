// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/listing_history.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_identity.h"
#include "files/file_lock.h"
#include "files/folder_reader.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <functional>
#include <utility>

namespace quorvin {

namespace {

constexpr int kDigits = 8;
constexpr int kMarkSize = 16;
constexpr int kLastNumber = 99'999'999;
/// Below this the blocks of the file system are larger than the differences.
constexpr std::uint64_t kAlwaysAllowed = std::uint64_t{64} << 10;

/// Whether a history may be kept under this name: it must not lead out of the folder.
bool isBelowDataFolder(const QString& listing) {
  const QString clean = QDir::cleanPath(listing);
  return !listing.isEmpty() && !listing.contains(QChar(u'\0')) && QDir::isRelativePath(clean) &&
         clean != u"." && clean != u".." && !clean.startsWith(u"../");
}

/// The number in the name of a version's file; 0 for other names. A regular expression that gets no memory
/// fits no name, and the number of a version would be given to another one.
int numberOf(const QString& fileName) {
  constexpr QStringView ending = u".version";
  if (fileName.size() != kDigits + ending.size() || !fileName.endsWith(ending)) return 0;
  const QStringView digits = QStringView(fileName).first(kDigits);
  const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
  return std::ranges::all_of(digits, isDigit) ? digits.toInt() : 0;
}

bool isSameText(const QString& path, const QString& other, const HistoryPause& pause) {
  constexpr std::size_t kPiece = std::size_t{1} << 20;
  if (QFileInfo(path).size() != QFileInfo(other).size()) return false;
  const std::unique_ptr<ListingBytes> texts[] = {openListing(path), openListing(other)};
  std::vector<char> pieces[] = {std::vector<char>(kPiece), std::vector<char>(kPiece)};
  for (;;) {
    const std::size_t count = texts[0]->read(pieces[0]);
    // Both are plain files, which are read as far as the buffer goes.
    if (texts[1]->read(pieces[1]) != count) return false;
    if (count == 0) return true;
    if (std::memcmp(pieces[0].data(), pieces[1].data(), count) != 0) return false;
    if (pause) pause();
  }
}

QByteArray asHex(std::uint64_t checksum) {
  return QByteArray::number(static_cast<qulonglong>(checksum), 16).rightJustified(16, '0');
}

/// A version's file.
struct Stored {
  int number = 0;
  QString path;
  VersionHead head;
  std::int64_t fileSize = 0;
};

struct Names {
  QStringList files;
  QStringList folders;
};

/// What is in `folder`; nothing where there is no such folder. A folder that cannot be read must not be taken
/// for an empty one, whose numbers are free: then RuntimeFault is thrown.
Names namesIn(const QString& folder) {
  const std::unique_ptr<FolderReader> reader = makeFolderReader();
  int error = reader->enterTop(folder);
  if (error == ENOENT || error == ENOTDIR) return {};
  Names names;
  FolderName name;
  while (error == 0 && (error = reader->next(name)) == 0 && !name.bytes.empty()) {
    const QString text =
        QFile::decodeName(QByteArray(name.bytes.data(), static_cast<qsizetype>(name.bytes.size())));
    if (name.kind == NameKind::File) names.files += text;
    if (name.kind == NameKind::Folder) names.folders += text;
  }
  if (error != 0) throw faultOfSystemError(error, folder);
  return names;
}

bool hasVersions(const Names& names) {
  return std::ranges::any_of(names.files, [](const QString& name) { return numberOf(name) > 0; });
}

/// The versions in `folder`, which ends in a separator, newest first. Throws RuntimeFault where one cannot be
/// read.
std::vector<Stored> storedIn(const QString& folder) {
  std::vector<Stored> versions;
  for (const QString& name : namesIn(folder).files) {
    const int number = numberOf(name);
    if (number == 0) continue;
    const QString path = folder + name;
    const std::optional<VersionHead> head = readVersionHead(path);
    if (head) versions.push_back({number, path, *head, QFileInfo(path).size()});
  }
  std::ranges::sort(versions, std::ranges::greater(), &Stored::number);
  return versions;
}

/// The version that versions[index] differs from: the nearest newer one with that text; nothing where it is
/// missing.
std::optional<std::size_t> baseOf(const std::vector<Stored>& versions, std::size_t index) {
  for (std::size_t newer = index; newer-- > 0;) {
    if (versions[newer].head.text.checksum == versions[index].head.base) return newer;
  }
  return std::nullopt;
}

bool isReadable(const std::vector<Stored>& versions, std::size_t index) {
  while (versions[index].head.base) {
    const std::optional<std::size_t> base = baseOf(versions, index);
    if (!base) return false;
    index = *base;
  }
  return true;
}

bool isWorthKeeping(const std::vector<Stored>& versions, std::size_t index) {
  const VersionHead& head = versions[index].head;
  return head.isComplete && head.text.entries > 0 && isReadable(versions, index);
}

std::unique_ptr<ListingBytes> open(const std::vector<Stored>& versions, std::size_t index) {
  const Stored& version = versions[index];
  if (!version.head.base) return openVersion(version.path, nullptr);
  const std::optional<std::size_t> base = baseOf(versions, index);
  if (base) return openVersion(version.path, open(versions, *base));
  throw DamagedVersion(Texts::tr("%1 differs from a version that is missing").arg(version.path));
}

/// Writes a version anew, as what differs from another one. It stays as it is where that would not be
/// smaller, unless `isNeeded`, since the one that it differs from now is going to be removed.
void storeDifference(const std::vector<Stored>& versions, std::size_t older, std::size_t base, bool isNeeded,
                     const HistoryPause& pause) {
  const Stored& version = versions[older];
  VersionHead head = version.head;
  head.base = versions[base].head.text.checksum;
  FileAside file(version.path);
  writeVersion(file.writer(), head, *open(versions, older), open(versions, base).get(), pause);
  file.writer().flush();
  if (isNeeded || QFileInfo(file.path()).size() < version.fileSize) file.commit();
}

bool fits(const std::vector<Stored>& versions, std::uint64_t listingSize, const HistoryLimits& limits) {
  if (versions.size() > static_cast<std::size_t>(std::max(limits.versions, 1))) return false;
  std::uint64_t older = 0;
  for (std::size_t index = 1; index < versions.size(); ++index) {
    older += static_cast<std::uint64_t>(versions[index].fileSize);
  }
  return older <= std::max(kAlwaysAllowed, listingSize / 100 * static_cast<std::uint64_t>(limits.percent));
}

bool isDamaged(const std::vector<Stored>& versions, std::size_t index, const HistoryPause& pause) {
  try {
    factsOf(*open(versions, index), pause);
    return false;
  } catch (const DamagedVersion&) {
    return true;
  }
}

/// Which version is to go, as an index; nothing when none may. The last complete one stays, and does not need
/// the one that goes in its place any more.
std::optional<std::size_t> nextToGo(const std::vector<Stored>& versions, const HistoryPause& pause) {
  const std::size_t oldest = versions.size() - 1;
  bool isLastComplete = isWorthKeeping(versions, oldest);
  for (std::size_t index = 0; index < oldest; ++index) {
    isLastComplete = isLastComplete && !isWorthKeeping(versions, index);
  }
  if (!isLastComplete || isDamaged(versions, oldest, pause)) return oldest;
  if (oldest < 2) return std::nullopt;
  if (versions[oldest].head.base) storeDifference(versions, oldest, oldest - 2, true, pause);
  return oldest - 1;
}

}  // namespace

ListingHistory::ListingHistory(const QString& dataFolder, HistoryPause pause, HistoryLimits limits)
    : dataFolder_(dataFolder), pause_(std::move(pause)), limits_(limits) {}

QString ListingHistory::historyFolder() const {
  return dataFolder_ + QStringLiteral("history");
}

QString ListingHistory::folderOf(const QString& listing) const {
  if (!isBelowDataFolder(listing)) throw faultOfSystemError(EINVAL, listing);
  return historyFolder() + u'/' + QDir::cleanPath(listing) + u'/';
}

QString ListingHistory::pathOf(const QString& listing) const {
  return dataFolder_ + listing;
}

QString ListingHistory::versionPath(const QString& listing, int number) const {
  return folderOf(listing) + QStringLiteral("%1.version").arg(number, kDigits, 10, QLatin1Char('0'));
}

/// For the user alone: a listing that others may not read must not be open to them here.
void ListingHistory::makeFolder(const QString& listing) const {
  const QString folder = folderOf(listing);
  const QString history = historyFolder();
  if (!QFileInfo::exists(history)) {
    QDir().mkdir(history, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  }
  if (!QDir().mkpath(folder)) throw faultOfSystemError(EEXIST, folder);
}

QStringList ListingHistory::listings() const {
  QStringList listings;
  QStringList folders;
  folders += QString();
  while (!folders.isEmpty()) {
    const QString folder = folders.takeFirst();
    const Names names = namesIn(historyFolder() + u'/' + folder);
    if (!folder.isEmpty() && hasVersions(names)) listings += folder;
    for (const QString& name : names.folders) {
      folders += folder.isEmpty() ? name : folder + u'/' + name;
    }
  }
  listings.sort();
  return listings;
}

int ListingHistory::freeNumber(const QString& listing) const {
  int newest = 0;
  for (const QString& name : namesIn(folderOf(listing)).files) {
    newest = std::max(newest, numberOf(name));
  }
  if (newest == kLastNumber) throw faultOfSystemError(EEXIST, versionPath(listing, newest));
  return newest + 1;
}

std::vector<ListingVersion> ListingHistory::versions(const QString& listing) const {
  const std::vector<Stored> versions = storedIn(folderOf(listing));
  std::vector<ListingVersion> found;
  for (std::size_t index = 0; index < versions.size(); ++index) {
    const VersionHead& head = versions[index].head;
    found.push_back({versions[index].number, head.made, head.text.entries, head.text.size, head.isComplete,
                     isReadable(versions, index)});
  }
  return found;
}

std::optional<ListingVersion> ListingHistory::newestComplete(const QString& listing) const {
  if (!isBelowDataFolder(listing)) return std::nullopt;
  for (const ListingVersion& version : versions(listing)) {
    if (version.isComplete && version.isReadable && version.entries > 0) return version;
  }
  return std::nullopt;
}

std::optional<ListingVersion> ListingHistory::present(const QString& listing) const {
  try {
    const ListingFacts facts = factsOfFile(pathOf(listing));
    const std::int64_t made = QFileInfo(pathOf(listing)).lastModified().toMSecsSinceEpoch();
    return ListingVersion{0, made, facts.entries, facts.size, !isMarkedIncomplete(listing, facts), true};
  } catch (const RuntimeFault&) {
    return std::nullopt;
  }
}

KeptListing ListingHistory::keep(const QString& listing, const QString& replacement, bool isComplete) {
  KeptListing kept;
  try {
    const bool isThere = fileIsThere(pathOf(listing));
    const bool isReplaced = isThere && !isSameText(pathOf(listing), replacement, pause_);
    kept.isSame = isThere && !isReplaced;
    if (!isReplaced && isComplete) return kept;
    makeFolder(listing);
    const std::optional<FolderLock> lock = FolderLock::take(historyFolder());
    if (!lock) throw faultOfSystemError(EBUSY, historyFolder());
    if (isReplaced) {
      const ListingFacts facts = factsOfFile(pathOf(listing));
      kept.entries = facts.entries;
      addPresent(listing, facts);
    }
    if (!isComplete) markIncomplete(listing, factsOfFile(replacement));
  } catch (const RuntimeFault& fault) {
    kept.fault = fault.description();
  } catch (const std::exception&) {
    kept.fault = Texts::tr("There is not enough memory");
  }
  return kept;
}

void ListingHistory::addPresent(const QString& listing, const ListingFacts& facts) {
  if (facts.size == 0) return;
  removeLeftovers(folderOf(listing));
  const std::vector<Stored> earlier = storedIn(folderOf(listing));
  const bool isThere = !earlier.empty() && earlier.front().head.text == facts;
  if (isThere && !isDamaged(earlier, 0, pause_)) return;
  VersionHead head;
  head.text = facts;
  head.made = QFileInfo(pathOf(listing)).lastModified().toMSecsSinceEpoch();
  head.isComplete = !isMarkedIncomplete(listing, facts);
  // The earlier one is going to depend on it.
  const Durability durability = earlier.empty() ? Durability::OldOrNew : Durability::New;
  const QString path = versionPath(listing, freeNumber(listing));
  FileAside file(path, {.durability = durability, .mayReplace = false});
  writeVersion(file.writer(), head, *openListing(pathOf(listing)), nullptr, pause_);
  if (!file.commitUnlessTaken(QFileInfo(path).fileName())) throw faultOfSystemError(EEXIST, path);
  try {
    const std::vector<Stored> versions = storedIn(folderOf(listing));
    if (versions.size() > 1) storeDifference(versions, 1, 0, false, pause_);
    removeBeyondLimits(listing, facts.size);
  } catch (const RuntimeFault&) {
    // The listing is kept. What is larger than it need be costs room only, until next time.
  }
}

void ListingHistory::removeBeyondLimits(const QString& listing, std::uint64_t listingSize) const {
  for (;;) {
    const std::vector<Stored> versions = storedIn(folderOf(listing));
    if (versions.size() < 2 || fits(versions, listingSize, limits_)) return;
    const std::optional<std::size_t> goes = nextToGo(versions, pause_);
    if (!goes || !QFile::remove(versions[*goes].path)) return;
  }
}

std::unique_ptr<ListingBytes> ListingHistory::text(const QString& listing, int number) const {
  const std::vector<Stored> versions = storedIn(folderOf(listing));
  const auto wanted = std::ranges::find(versions, number, &Stored::number);
  if (wanted == versions.end()) throw faultOfSystemError(ENOENT, versionPath(listing, number));
  return open(versions, static_cast<std::size_t>(wanted - versions.begin()));
}

void ListingHistory::restore(const QString& listing, int number) {
  const std::optional<FolderLock> lock = FolderLock::take(dataFolder_);
  if (!lock) {
    throw RuntimeFault(FaultNumber::PathFileAccess,
                       Texts::tr("The listing cannot be restored now: a refresh is running."));
  }
  const std::unique_ptr<ListingBytes> version = text(listing, number);
  const std::optional<VersionHead> head = readVersionHead(versionPath(listing, number));
  FileAside file(pathOf(listing));
  std::vector<char> buffer(std::size_t{1} << 20);
  while (const std::size_t count = version->read(buffer)) {
    file.write({buffer.data(), count});
    if (pause_) pause_();
  }
  file.finish();
  const KeptListing kept = keep(listing, file.path(), !head || head->isComplete);
  if (!kept.fault.isEmpty()) throw RuntimeFault(FaultNumber::PathFileAccess, kept.fault);
  file.commit();
}

ListingFacts ListingHistory::factsOfFile(const QString& path) const {
  return factsOf(*openListing(path), pause_);
}

// In a file of its own: what a listing holds is the listing's alone.
bool ListingHistory::isMarkedIncomplete(const QString& listing, const ListingFacts& facts) const {
  QFile mark(folderOf(listing) + QStringLiteral("incomplete"));
  if (!mark.open(QIODevice::ReadOnly)) return false;
  return mark.read(kMarkSize) == asHex(facts.checksum);
}

void ListingHistory::markIncomplete(const QString& listing, const ListingFacts& facts) const {
  FileAside mark(folderOf(listing) + QStringLiteral("incomplete"));
  mark.write(asHex(facts.checksum).toStdString());
  mark.commit();
}

}  // namespace quorvin
