// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_plan.h"

#include "texts/texts.h"

#include <QFile>
#include <QHash>
#include <QLocale>

#include <algorithm>

namespace quorvin {
namespace {

// The file types of Unix, which archives carry on whatever system they are read.
constexpr std::uint32_t kTypeBits = 0170000;
constexpr std::uint32_t kRegularFile = 0100000;
constexpr std::uint32_t kFolder = 0040000;
constexpr std::uint32_t kLink = 0120000;
// What came out of a pipe: an ordinary content.
constexpr std::uint32_t kPipe = 0010000;

// How deep an entry may lie, and how many bytes each of its names may take in the file system.
constexpr qsizetype kMostArchiveFolders = 64;
constexpr qsizetype kMostNameBytes = 255;

// What each entry takes at least besides its packed bytes: a header before them and a line in the directory.
constexpr std::uint64_t kBytesAroundEntry = 30 + 46;

[[noreturn]] void refuse(ArchiveErrorCode code, const QString& text) {
  throw ArchiveError(code, text + u' ' + Texts::tr("Nothing was unpacked."));
}

[[noreturn]] void refuseEntry(ArchiveErrorCode code, const QString& text, const QString& name) {
  refuse(code, text.arg(shownEntryName(name)));
}

bool isControl(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

bool hasDrive(QStringView name) {
  return name.size() >= 2 && name[1] == u':' && name[0].unicode() < 128 && name[0].isLetter();
}

[[noreturn]] void refuseName(const QString& name, const QString& why) {
  refuse(ArchiveErrorCode::BadName,
         Texts::tr("The archive has an entry whose name %1: \"%2\".").arg(why, shownEntryName(name)));
}

void checkWhole(const QString& name, QStringView separated) {
  if (name.isEmpty()) refuseName(name, Texts::tr("is empty"));
  if (std::any_of(name.begin(), name.end(), isControl)) {
    refuseName(name, Texts::tr("holds control characters"));
  }
  if (separated.startsWith(u'/')) refuseName(name, Texts::tr("is an absolute path"));
}

void checkPart(const QString& name, const QString& part) {
  if (part == QStringLiteral("..")) refuseName(name, Texts::tr("leads out of the folder"));
  if (hasDrive(part)) refuseName(name, Texts::tr("has a drive"));
  if (QFile::encodeName(part).size() > kMostNameBytes) refuseName(name, Texts::tr("is too long"));
}

// The place that the entry name `name` stands for. Both "/" and "\" separate names, since programs differ;
// names that are empty or "." are skipped.
ArchivePlace archivePlaceOf(const QString& name) {
  QString separated = name;
  separated.replace(u'\\', u'/');
  checkWhole(name, separated);
  ArchivePlace place;
  place.isFolder = separated.endsWith(u'/') || separated.endsWith(QStringLiteral("/.")) ||
                   separated == QStringLiteral(".");
  for (const QString& part : separated.split(u'/', Qt::SkipEmptyParts)) {
    if (part == QStringLiteral(".")) continue;
    checkPart(name, part);
    place.path += part;
  }
  if (place.path.size() > kMostArchiveFolders + 1) {
    refuse(ArchiveErrorCode::TooDeep,
           Texts::tr("The archive has an entry that is more than %1 folders deep: \"%2\".")
               .arg(kMostArchiveFolders)
               .arg(shownEntryName(name)));
  }
  return place;
}

void checkKind(const ArchiveEntry& entry, ArchivePlace& place) {
  const std::uint32_t type = entry.mode & kTypeBits;
  if (type == kLink) {
    refuseEntry(ArchiveErrorCode::NotAFile, Texts::tr("The archive holds a link: \"%1\"."), entry.name);
  }
  if (type != 0 && type != kRegularFile && type != kPipe && type != kFolder) {
    refuseEntry(ArchiveErrorCode::NotAFile, Texts::tr("The archive holds a device or a socket: \"%1\"."),
                entry.name);
  }
  place.isFolder = place.isFolder || type == kFolder;
  if (place.isFolder && entry.size > 0) {
    refuseEntry(ArchiveErrorCode::NotAFile, Texts::tr("The archive holds a folder with content: \"%1\"."),
                entry.name);
  }
}

void checkPacking(const ArchiveEntry& entry) {
  if (entry.isEncrypted) {
    refuseEntry(ArchiveErrorCode::Encrypted, Texts::tr("\"%1\" in the archive is encrypted."), entry.name);
  }
  if (!entry.hasKnownMethod) {
    refuseEntry(ArchiveErrorCode::UnknownMethod,
                Texts::tr("\"%1\" in the archive is packed in a way that this program does not know."),
                entry.name);
  }
}

/// A name in the folder that has this number.
struct PlaceKey {
  quint64 folder = 0;
  QString part;

  bool operator==(const PlaceKey&) const = default;
};

size_t qHash(const PlaceKey& key, size_t seed) {
  return qHashMulti(seed, key.folder, key.part);
}

/// Tells whether places stand in each other's way, and counts them: the folders that entries only imply are
/// made too, and one entry may imply many.
class TakenPlaces {
 public:
  explicit TakenPlaces(std::uint64_t most) : most_(most) {}

  /// Names that were met before are replaced by the earlier ones, which then are in memory only once.
  void take(ArchivePlace& place, const QString& name) {
    quint64 folder = 0;
    for (qsizetype i = 0; i < place.path.size(); ++i) {
      const bool isLast = i + 1 == place.path.size();
      folder = takeOne(folder, place.path[i], isLast ? Use{place.isFolder, true} : Use{true, false}, name);
    }
  }

 private:
  struct Use {
    bool isFolder = false;
    /// By an entry of its own, not only as the folder of another.
    bool isNamed = false;
    /// The number of the place, from 1 on; 0 is the target folder.
    quint64 number = 0;
  };

  quint64 takeOne(quint64 folder, QString& part, Use use, const QString& name) {
    const auto before = uses_.find({folder, part});
    if (before == uses_.end()) return takeNew(folder, part, use);
    part = before.key().part;
    if (before->isFolder != use.isFolder) {
      refuseEntry(ArchiveErrorCode::DuplicateName,
                  Texts::tr("In the archive a file and a folder have the same name: \"%1\"."), name);
    }
    if (before->isNamed && use.isNamed) {
      refuseEntry(ArchiveErrorCode::DuplicateName,
                  Texts::tr("The archive holds two entries of the same name: \"%1\"."), name);
    }
    before->isNamed = before->isNamed || use.isNamed;
    return before->number;
  }

  quint64 takeNew(quint64 folder, const QString& part, Use use) {
    use.number = static_cast<quint64>(uses_.size()) + 1;
    if (use.number > most_) {
      refuse(ArchiveErrorCode::TooManyEntries,
             Texts::tr("The archive holds more than %1 files and folders.").arg(most_));
    }
    uses_.insert({folder, part}, use);
    return use.number;
  }

  std::uint64_t most_;
  QHash<PlaceKey, Use> uses_;
};

/// Adds up what the entries announce; every sum stays far below the largest number, since each step checks.
class Totals {
 public:
  Totals(std::int64_t archiveLength, const ArchiveLimits& limits)
      : archiveLength_(static_cast<std::uint64_t>(archiveLength)), limits_(limits) {}

  void add(const ArchiveEntry& entry) {
    if (entry.size > limits_.bytes - unpacked_) {
      refuse(ArchiveErrorCode::TooLarge,
             Texts::tr("The archive would unpack to more than %1.")
                 .arg(QLocale::c().formattedDataSize(static_cast<qint64>(limits_.bytes), 1)));
    }
    unpacked_ += entry.size;
    if (entry.packedSize > archiveLength_ || packed_ > archiveLength_ - entry.packedSize) overlap();
    packed_ += entry.packedSize + kBytesAroundEntry;
    if (packed_ > archiveLength_) overlap();
  }

 private:
  [[noreturn]] static void overlap() {
    refuse(ArchiveErrorCode::Overlapping,
           Texts::tr("The entries of the archive overlap; it was made to do harm."));
  }

  std::uint64_t archiveLength_;
  ArchiveLimits limits_;
  std::uint64_t unpacked_ = 0;
  std::uint64_t packed_ = 0;
};

}  // namespace

ArchivePlan planOf(const ArchiveReader& archive, const ArchiveLimits& limits,
                   const IsProtected& isProtected) {
  ArchivePlan plan;
  TakenPlaces taken(limits.entries);
  Totals totals(archive.length(), limits);
  const std::uint64_t count = archive.entryCount();
  if (count > limits.entries) {
    refuse(ArchiveErrorCode::TooManyEntries,
           Texts::tr("The archive holds more than %1 entries.").arg(limits.entries));
  }
  for (std::uint64_t index = 0; index < count; ++index) {
    const ArchiveEntry entry = archive.entry(index);
    ArchivePlace place = archivePlaceOf(entry.name);
    checkKind(entry, place);
    checkPacking(entry);
    totals.add(entry);
    taken.take(place, entry.name);
    if (place.path.isEmpty() && !place.isFolder) {
      refuseEntry(ArchiveErrorCode::BadName, Texts::tr("The archive has a file without a name: \"%1\"."),
                  entry.name);
    }
    if (isProtected && !place.isFolder && isProtected(place.path)) {
      plan.leftOut += entry.name;
      continue;
    }
    plan.bytes += entry.size;
    plan.entries.push_back({entry, place});
  }
  return plan;
}

}  // namespace quorvin
