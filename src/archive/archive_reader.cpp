// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_reader.h"

#include "archive/archive_end.h"
#include "archive/zip_record.h"
#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <zlib.h>

namespace quorvin {
namespace {

constexpr std::int64_t kBlockSize = std::int64_t{1} << 16;
// A directory is read in one piece. That of 50,000 entries takes 5 megabytes when their names are of usual
// length.
constexpr std::uint64_t kMostDirectoryBytes = std::uint64_t{64} << 20;
constexpr int kEntriesPerPause = 256;

// The flags of an entry.
constexpr quint16 kIsEncrypted = 1U | 1U << 6U | 1U << 13U;
constexpr quint16 kSizesFollow = 1U << 3U;
constexpr quint16 kNameIsUtf8 = 1U << 11U;

// The extra fields that are read: large numbers, and the name in UTF-8.
constexpr quint16 kLargeNumbers = 0x0001;
constexpr quint16 kUnicodeName = 0x7075;

constexpr quint16 kStored = 0;
constexpr quint16 kDeflated = 8;

// What the upper half of the older code page of DOS stands for.
constexpr char16_t kDosCharacters[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00a0";

/// Why an archive is not opened; `text` is one sentence, with "%1" for the name of its file.
struct Refusal {
  ArchiveErrorCode code;
  QString text;
};

[[noreturn]] void contradicts() {
  throw Refusal{ArchiveErrorCode::Contradictory,
                Texts::tr("The archive \"%1\" is damaged: its parts contradict each other.")};
}

std::uint32_t addToChecksum(std::uint32_t checksum, QByteArrayView bytes) {
  return static_cast<std::uint32_t>(
      crc32_z(checksum, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<z_size_t>(bytes.size())));
}

/// The data of the extra field `wanted`; empty when there is none. Some programs leave bytes behind the
/// fields that are none.
QByteArrayView extraField(QByteArrayView extras, quint16 wanted) {
  constexpr qsizetype kHead = 4;
  while (extras.size() >= kHead) {
    const auto id = ZipBytes(extras).number<quint16>(0);
    const auto size = ZipBytes(extras).number<quint16>(2);
    if (size > extras.size() - kHead) return {};
    if (id == wanted) return extras.sliced(kHead, size);
    extras = extras.sliced(kHead + size);
  }
  return {};
}

/// The numbers of an entry that may be too large for their places. In the extra field only those are given,
/// one behind the other.
class LargeNumbers {
 public:
  explicit LargeNumbers(QByteArrayView extras) : field_(extraField(extras, kLargeNumbers)) {}

  /// The number meant by `plain`. To be called in the order of the field: size, packed size, place.
  std::uint64_t next(quint32 plain) {
    if (plain != kZipSeeLarge) return plain;
    const auto number = ZipBytes(field_).number<quint64>(taken_);
    taken_ += qsizetype{sizeof number};
    return number;
  }

 private:
  QByteArrayView field_;
  qsizetype taken_ = 0;
};

std::optional<QString> utf8Text(QByteArrayView bytes) {
  using Decoder = QStringDecoder;
  Decoder decode(Decoder::Utf8, Decoder::Flag::Stateless | Decoder::Flag::ConvertInitialBom);
  QString text = decode(bytes);
  if (decode.hasError()) return std::nullopt;
  return text;
}

QString dosText(QByteArrayView bytes) {
  constexpr unsigned char kFirst = 0x80;
  QString text;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text += code < kFirst ? QChar(char16_t{code}) : QChar(kDosCharacters[code - kFirst]);
  }
  return text;
}

/// A name is in UTF-8 when a flag says so, when an extra field gives it so, or when it can be read so.
QString nameText(QByteArrayView name, QByteArrayView extras, quint16 flags) {
  constexpr qsizetype kBeforeName = 5;
  const QByteArrayView unicode = extraField(extras, kUnicodeName);
  const bool isForThisName = unicode.size() > kBeforeName && unicode.front() == 1 &&
                             ZipBytes(unicode).number<quint32>(1) == addToChecksum(0, name);
  if (isForThisName && (flags & kNameIsUtf8) == 0) {
    if (const auto text = utf8Text(unicode.sliced(kBeforeName))) return *text;
  }
  if (const auto text = utf8Text(name)) return *text;
  return dosText(name);
}

/// An entry as the directory describes it.
struct Described {
  ArchiveEntry entry;
  QByteArrayView name;
  quint16 flags = 0;
  quint16 method = 0;
  /// Where its header is, counted from the start of the archive.
  std::uint64_t header = 0;
};

/// Reads the directory, and holds it against the headers that stand before the packed bytes.
class DirectoryReading {
 public:
  DirectoryReading(const RandomAccessFile& file, const EndRecord& end, const ArchivePause& pause)
      : file_(file), end_(end), pause_(pause) {
    const auto place = static_cast<std::uint64_t>(end.place);
    if (end.directorySize > place) contradicts();
    start_ = place - end.directorySize;
    if (end.directoryOffset > start_ || end.directorySize > kMostDirectoryBytes) contradicts();
    before_ = start_ - end.directoryOffset;
    directory_ = file.read(static_cast<std::int64_t>(start_), static_cast<std::int64_t>(end.directorySize));
  }

  std::vector<ArchiveEntry> entries() {
    std::vector<ArchiveEntry> entries;
    for (std::uint64_t index = 0; index < end_.entries; ++index) {
      const bool isDue = (index + 1) % kEntriesPerPause == 0;
      if (isDue && pause_ && pause_(0)) throw ArchiveStopped();
      Described described = next();
      if (names_.contains(described.name)) {
        throw Refusal{ArchiveErrorCode::DuplicateName,
                      Texts::tr("The archive \"%1\" holds two entries of the same name.")};
      }
      names_.insert(described.name);
      checkHeader(described);
      entries.push_back(std::move(described.entry));
    }
    if (at_ != directory_.size()) contradicts();
    return entries;
  }

 private:
  Described next() {
    const ZipBytes record(QByteArrayView(directory_).sliced(at_));
    if (!record.has(kZipDirectoryEntry)) contradicts();
    const qsizetype nameSize = record.number<quint16>(28);
    const qsizetype extrasSize = record.number<quint16>(30);
    const QByteArrayView extras = record.part(kZipDirectoryEntrySize + nameSize, extrasSize);
    Described it;
    it.name = record.part(kZipDirectoryEntrySize, nameSize);
    it.flags = record.number<quint16>(8);
    it.method = record.number<quint16>(10);
    LargeNumbers large(extras);
    it.entry.size = large.next(record.number<quint32>(24));
    it.entry.packedSize = large.next(record.number<quint32>(20));
    it.header = large.next(record.number<quint32>(42));
    it.entry.name = nameText(it.name, extras, it.flags);
    it.entry.checksum = record.number<quint32>(16);
    it.entry.isEncrypted = (it.flags & kIsEncrypted) != 0;
    it.entry.isDeflated = it.method == kDeflated;
    it.entry.hasKnownMethod = it.method == kStored || it.method == kDeflated;
    it.entry.mode = record.number<quint32>(38) >> 16U;
    const qsizetype length = kZipDirectoryEntrySize + nameSize + extrasSize + record.number<quint16>(32);
    static_cast<void>(record.part(0, length));
    at_ += length;
    return it;
  }

  /// The header must be that of this entry, and the packed bytes must lie before the directory. Sizes and
  /// checksum may be missing from a header when they follow the packed bytes, as they do where an archive was
  /// written in one go; then some programs tell one of them and some none.
  void checkHeader(Described& it) const {
    const qsizetype size = kZipFileHeaderSize + it.name.size();
    const std::uint64_t room = end_.directoryOffset;
    if (it.header > room || room - it.header < static_cast<std::uint64_t>(size)) contradicts();
    const auto place = static_cast<std::int64_t>(before_ + it.header);
    const QByteArray bytes = file_.read(place, size);
    const ZipBytes header(bytes);
    const auto flags = header.number<quint16>(6);
    const bool isSame = header.has(kZipFileHeader) && ((flags ^ it.flags) & kIsEncrypted) == 0 &&
                        header.number<quint16>(8) == it.method &&
                        header.number<quint16>(26) == it.name.size() &&
                        header.part(kZipFileHeaderSize, it.name.size()) == it.name;
    if (!isSame) contradicts();
    const qsizetype extrasSize = header.number<quint16>(28);
    if (((flags | it.flags) & kSizesFollow) == 0) checkSizes(it.entry, header, place + size, extrasSize);
    it.entry.place = place + size + extrasSize;
    const auto content = static_cast<std::uint64_t>(it.entry.place);
    if (content > start_ || it.entry.packedSize > start_ - content) contradicts();
  }

  void checkSizes(const ArchiveEntry& entry, const ZipBytes& header, std::int64_t extrasPlace,
                  qsizetype extrasSize) const {
    const auto packedSize = header.number<quint32>(18);
    const auto size = header.number<quint32>(22);
    const bool isLarge = packedSize == kZipSeeLarge || size == kZipSeeLarge;
    const QByteArray extras = isLarge ? file_.read(extrasPlace, extrasSize) : QByteArray();
    LargeNumbers large(extras);
    const bool isSame = large.next(size) == entry.size && large.next(packedSize) == entry.packedSize &&
                        header.number<quint32>(14) == entry.checksum;
    if (!isSame) contradicts();
  }

  const RandomAccessFile& file_;
  const EndRecord& end_;
  const ArchivePause& pause_;
  /// Where the directory starts in the file, and how many bytes there come before the archive.
  std::uint64_t start_ = 0;
  std::uint64_t before_ = 0;
  QByteArray directory_;
  qsizetype at_ = 0;
  QSet<QByteArrayView> names_;
};

std::vector<ArchiveEntry> entriesIn(const RandomAccessFile& file, std::int64_t length,
                                    std::uint64_t mostEntries, const ArchivePause& pause) {
  const std::optional<EndRecord> end = endRecordOf(file, length);
  if (!end) {
    throw Refusal{ArchiveErrorCode::NotAnArchive,
                  Texts::tr("\"%1\" is no zip archive, or its end is missing.")};
  }
  if (end->entries > mostEntries) {
    throw Refusal{ArchiveErrorCode::TooManyEntries,
                  Texts::tr("The archive \"%1\" holds more than %2 entries.")
                      .replace(QStringLiteral("%2"), QString::number(mostEntries))};
  }
  if (end->isOfSeveralFiles) {
    throw Refusal{ArchiveErrorCode::NotAnArchive,
                  Texts::tr("\"%1\" is only a part of an archive of several files.")};
  }
  try {
    return DirectoryReading(file, *end, pause).entries();
  } catch (const RuntimeFault& fault) {
    if (fault.number() == static_cast<int>(FaultNumber::InputPastEnd)) contradicts();
    throw;
  }
}

// The length of the archive at the front of the file, when it ends before `length`: a shorter archive that
// was written over a longer one. The whole file may have to be read.
std::optional<std::int64_t> lengthOfArchiveAtFront(const RandomAccessFile& file, std::int64_t length,
                                                   const ArchivePause& pause) {
  ArchiveEnd end;
  for (std::int64_t position = 0; position < length; position += kBlockSize) {
    const QByteArray block = file.read(position, std::min(kBlockSize, length - position));
    if (position == 0 && ArchiveEnd::canStartWith(block) != true) return std::nullopt;
    const std::optional<qsizetype> last = end.feed(block);
    if (!last) {
      if (pause && pause(0)) throw ArchiveStopped();
      continue;
    }
    const std::int64_t found = position + *last;
    if (found < length) return found;
    return std::nullopt;
  }
  return std::nullopt;
}

/// The entries of the archive in the first `length` bytes, which are made fewer when it ends before: an
/// archive that was written over a longer one is followed by the rest of that, with an end record of its own
/// that no longer fits anything.
std::vector<ArchiveEntry> entriesOf(const RandomAccessFile& file, std::int64_t& length,
                                    std::uint64_t mostEntries, const ArchivePause& pause) {
  try {
    return entriesIn(file, length, mostEntries, pause);
  } catch (const Refusal& refusal) {
    const bool mayHaveLeftovers =
        refusal.code == ArchiveErrorCode::NotAnArchive || refusal.code == ArchiveErrorCode::Contradictory;
    if (!mayHaveLeftovers) throw;
    const std::optional<std::int64_t> front = lengthOfArchiveAtFront(file, length, pause);
    if (!front) throw;
    length = *front;
    return entriesIn(file, length, mostEntries, pause);
  }
}

ArchiveError openingError(const QString& path, const Refusal& refusal) {
  return {refusal.code, refusal.text.arg(shownEntryName(QFileInfo(path).fileName())) + u' ' +
                            Texts::tr("Nothing was unpacked.")};
}

Refusal cannotBeRead() {
  return {ArchiveErrorCode::CannotRead, Texts::tr("The archive \"%1\" cannot be read.")};
}

}  // namespace

QString shownEntryName(const QString& name) {
  constexpr qsizetype kMostShown = 120;
  constexpr qsizetype kEndShown = 40;
  QString shown = name;
  for (QChar& character : shown) {
    if (!character.isPrint() && !character.isSurrogate()) character = u'?';
  }
  if (shown.size() <= kMostShown) return shown;
  return shown.left(kMostShown - kEndShown) + QStringLiteral("...") + shown.right(kEndShown);
}

ArchiveReader::ArchiveReader(const QString& path, std::int64_t length, std::uint64_t mostEntries,
                             const ArchivePause& pause) {
  const QFileInfo file(path);
  if (!file.isFile()) throw openingError(path, cannotBeRead());
  length_ = length < 0 ? file.size() : std::min<std::int64_t>(length, file.size());
  try {
    file_ = std::make_unique<RandomAccessFile>(path);
    entries_ = entriesOf(*file_, length_, mostEntries, pause);
  } catch (const Refusal& refusal) {
    throw openingError(path, refusal);
  } catch (const RuntimeFault&) {
    throw openingError(path, cannotBeRead());
  }
}

ArchiveReader::~ArchiveReader() = default;

}  // namespace quorvin
