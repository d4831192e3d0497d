// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment_file.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"

#include <QDataStream>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

/// Smaller segments and files are kept in memory whole: a search looks at most of them anyway, and a file
/// that stays open is one of few that the system allows.
constexpr std::uint64_t kSmall = std::uint64_t{1} << 20;

constexpr char kMagic[8] = {'Q', 'V', 'S', 'E', 'G', 'M', 'T', '9'};
/// Arrays start at multiples of this, the width of the widest vectors.
constexpr std::size_t kArrayAlignment = 64;

/// The end of the file: where the directory is, and its checksum.
struct Trailer {
  std::uint64_t directoryOffset;
  std::uint64_t directorySize;
  std::uint64_t directorySum;
  char magic[8];
};

QByteArray directoryBytes(const SegmentKey& key, const std::vector<SegmentRecord>& segments,
                          const std::vector<std::vector<std::uint64_t>>& sums) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(QDataStream::Qt_6_4);
  stream << key.listing << key.readingRules << qint64{key.identity.size} << qint64{key.identity.modified}
         << qint64{key.identity.changed} << quint64{key.identity.device} << quint64{key.identity.file}
         << static_cast<quint32>(segments.size());
  for (std::size_t i = 0; i < segments.size(); ++i) {
    stream << QByteArray(reinterpret_cast<const char*>(&segments[i]), sizeof(SegmentRecord))
           << QByteArray(reinterpret_cast<const char*>(sums[i].data()),
                         static_cast<qsizetype>(sums[i].size() * sizeof(std::uint64_t)));
  }
  return bytes;
}

struct Directory {
  SegmentKey key;
  std::vector<SegmentRecord> segments;
  std::vector<std::vector<std::uint64_t>> sums;
};

bool readDirectory(const QByteArray& bytes, Directory& directory) {
  QDataStream stream(bytes);
  stream.setVersion(QDataStream::Qt_6_4);
  qint64 size = 0;
  qint64 modified = 0;
  qint64 changed = 0;
  quint64 device = 0;
  quint64 file = 0;
  quint32 count = 0;
  stream >> directory.key.listing >> directory.key.readingRules >> size >> modified >> changed >> device >>
      file >> count;
  directory.key.identity = {size, modified, changed, device, file};
  for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
    QByteArray record;
    QByteArray sums;
    stream >> record >> sums;
    if (record.size() != sizeof(SegmentRecord)) return false;
    std::memcpy(&directory.segments.emplace_back(), record.constData(), sizeof(SegmentRecord));
    auto& own = directory.sums.emplace_back(static_cast<std::size_t>(sums.size()) / sizeof(std::uint64_t));
    std::memcpy(own.data(), sums.constData(), own.size() * sizeof(std::uint64_t));
  }
  return stream.status() == QDataStream::Ok;
}

template <typename Element>
std::span<std::byte> writableBytesOf(Element* first, std::size_t count) {
  return std::as_writable_bytes(std::span(first, count));
}

/// Throws RuntimeFault where the file cannot be read.
std::optional<Directory> directoryOf(const RandomAccessFile& file) {
  Trailer trailer;
  constexpr std::int64_t kTrailerSize = sizeof trailer;
  const std::int64_t end = file.sizeWhenOpened() - kTrailerSize;
  if (end < 0) return std::nullopt;
  file.read(end, writableBytesOf(&trailer, 1));
  if (std::memcmp(trailer.magic, kMagic, sizeof kMagic) != 0) return std::nullopt;
  const auto size = static_cast<std::uint64_t>(end);
  if (trailer.directoryOffset > size || trailer.directorySize != size - trailer.directoryOffset) {
    return std::nullopt;
  }
  QByteArray bytes(static_cast<qsizetype>(trailer.directorySize), Qt::Uninitialized);
  file.read(static_cast<std::int64_t>(trailer.directoryOffset),
            writableBytesOf(bytes.data(), trailer.directorySize));
  const auto read = std::as_bytes(std::span(bytes.constData(), trailer.directorySize));
  Directory directory;
  if (checksumOf(read) != trailer.directorySum || !readDirectory(bytes, directory)) return std::nullopt;
  return directory;
}

/// Lays the arrays of a segment out one behind another.
class SegmentLayout {
 public:
  explicit SegmentLayout(SegmentRecord& record) : record_(record) {}

  template <typename Element>
  void operator()(const CheckedSpan<Element>& array) {
    record_.arrays[next_++] = {size_, array.size()};
    const std::size_t bytes = array.sizeInBytes() + kPaddingBehind<Element>;
    size_ += (bytes + kArrayAlignment - 1) / kArrayAlignment * kArrayAlignment;
  }

  std::uint64_t size() const { return size_; }

 private:
  SegmentRecord& record_;
  std::size_t next_ = 0;
  std::uint64_t size_ = 0;
};

/// Hands the bytes of a segment to `write`, in pieces that stay in the processor's caches until they are
/// written, and keeps the checksums of their blocks.
template <typename Write>
class SegmentPieces {
 public:
  SegmentPieces(const SegmentRecord& record, Write write)
      : record_(record), write_(std::move(write)), piece_(std::min<std::uint64_t>(kPiece, record.size)) {}

  template <typename Element>
  void operator()(const CheckedSpan<Element>& array) {
    addZerosUpTo(record_.arrays[next_++].offset);
    add(std::as_bytes(array.all()));
  }

  /// To be called last. The checksums of all blocks.
  std::vector<std::uint64_t> finish() {
    addZerosUpTo(record_.size);
    writeOut();
    return std::move(sums_);
  }

 private:
  static constexpr std::size_t kPiece = std::size_t{1} << 20;
  static_assert(kPiece % ByteCheck::kBlockSize == 0);

  std::span<std::byte> room() { return std::span(piece_).subspan(filled_); }

  void add(std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
      const std::size_t count = std::min(bytes.size(), room().size());
      std::ranges::copy(bytes.first(count), room().begin());
      bytes = bytes.subspan(count);
      taken(count);
    }
  }

  void addZerosUpTo(std::uint64_t offset) {
    while (written_ + filled_ < offset) {
      const auto count = std::min<std::uint64_t>(offset - written_ - filled_, room().size());
      std::ranges::fill(room().first(count), std::byte{0});
      taken(count);
    }
  }

  void taken(std::size_t count) {
    filled_ += count;
    if (room().empty()) writeOut();
  }

  void writeOut() {
    const auto piece = std::span<const std::byte>(piece_).first(filled_);
    const std::vector<std::uint64_t> sums = checksumsOf(piece);
    sums_.insert(sums_.end(), sums.begin(), sums.end());
    write_(piece);
    written_ += filled_;
    filled_ = 0;
  }

  const SegmentRecord& record_;
  Write write_;
  std::vector<std::byte> piece_;
  std::size_t filled_ = 0;
  std::uint64_t written_ = 0;
  std::vector<std::uint64_t> sums_;
  std::size_t next_ = 0;
};

/// Gives `table` the trigrams that it lacks; it is not to be used longer than they are.
std::vector<std::uint64_t> missingTrigrams(TextTable& table) {
  if (!table.trigrams.empty()) return {};
  std::vector<std::uint64_t> trigrams = table.makeTrigrams();
  table.trigrams = trigrams;
  return trigrams;
}

QString inMadeFolder(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  return path;
}

}  // namespace

SegmentFileWriter::SegmentFileWriter(const QString& path)
    : file_(inMadeFolder(path), {.durability = Durability::None}) {}

void SegmentFileWriter::write(const void* data, std::size_t size) {
  file_.writeAt(static_cast<std::int64_t>(position_), {static_cast<const char*>(data), size});
  position_ += size;
}

void SegmentFileWriter::append(const Segment& segment) {
  // Where it can be mapped. What lies between is never written, and takes up no room on the disk.
  position_ = (position_ + kMappingAlignment - 1) / kMappingAlignment * kMappingAlignment;
  SegmentArrays arrays = segment.arrays();
  const std::vector<std::uint64_t> entries = missingTrigrams(arrays.entries);
  const std::vector<std::uint64_t> folders = missingTrigrams(arrays.folders);
  SegmentRecord record{};
  SegmentLayout layout(record);
  visitArrays(arrays, layout);
  record.offset = position_;
  record.size = layout.size();
  record.entryCount = arrays.entries.count;
  record.blockCount = arrays.folders.count;
  record.allOwn = arrays.allOwn ? 1 : 0;
  SegmentPieces pieces(record,
                       [this](std::span<const std::byte> piece) { write(piece.data(), piece.size()); });
  visitArrays(arrays, pieces);
  sums_.push_back(pieces.finish());
  segments_.push_back(record);
}

std::shared_ptr<const Segment> SegmentFileWriter::last() {
  const SegmentRecord& record = segments_.back();
  if (record.size <= kSmall) return nullptr;
  if (!readable_) readable_ = std::make_shared<RandomAccessFile>(file_.path());
  if (readable_->isOneOfMany()) return nullptr;
  return kept_.emplace_back(std::make_shared<KeptSegment>(readable_, record, sums_.back()));
}

void SegmentFileWriter::finish(const SegmentKey& key) {
  const QByteArray directory = directoryBytes(key, segments_, sums_);
  Trailer trailer{};
  trailer.directoryOffset = position_;
  trailer.directorySize = static_cast<std::uint64_t>(directory.size());
  trailer.directorySum = checksumOf(std::as_bytes(std::span(directory.constData(), trailer.directorySize)));
  std::memcpy(trailer.magic, kMagic, sizeof kMagic);
  write(directory.constData(), static_cast<std::size_t>(directory.size()));
  write(&trailer, sizeof trailer);
  file_.commit();
  for (const auto& segment : kept_) segment->searchInFile();
}

namespace {

using Segments = std::vector<std::shared_ptr<const Segment>>;

/// Both throw RuntimeFault, and std::bad_alloc, where the segments cannot be opened.
Segments passingSegments(const QString& path, Directory& directory,
                         const std::shared_ptr<PassingBuffers>& buffers) {
  Segments segments;
  for (std::size_t i = 0; i < directory.segments.size(); ++i) {
    segments.push_back(
        std::make_shared<PassingSegment>(path, directory.segments[i], std::move(directory.sums[i]), buffers));
  }
  return segments;
}

/// Whether the file has room for the segment where its record says that it is.
bool isInside(const SegmentRecord& record, const RandomAccessFile& file) {
  const auto size = static_cast<std::uint64_t>(file.sizeWhenOpened());
  return record.offset <= size && record.size <= size - record.offset;
}

Segments keptSegments(const std::shared_ptr<const RandomAccessFile>& file, Directory& directory) {
  const bool isSmall = static_cast<std::uint64_t>(file->sizeWhenOpened()) <= kSmall;
  Segments segments;
  for (std::size_t i = 0; i < directory.segments.size(); ++i) {
    if (!isInside(directory.segments[i], *file)) throw DamagedSegment();
    const auto segment =
        std::make_shared<KeptSegment>(file, directory.segments[i], std::move(directory.sums[i]));
    if (isSmall || file->isOneOfMany()) {
      segment->readWhole();
    } else {
      segment->searchInFile();
    }
    segments.push_back(segment);
  }
  return segments;
}

}  // namespace

std::vector<std::shared_ptr<const Segment>> openSegmentFile(const QString& path, const SegmentKey& key,
                                                            SegmentUse use,
                                                            std::shared_ptr<PassingBuffers> buffers) {
  try {
    const auto file = std::make_shared<const RandomAccessFile>(path);
    std::optional<Directory> directory = directoryOf(*file);
    if (!directory || directory->key != key) return {};
    if (use == SegmentUse::Repeated) return keptSegments(file, *directory);
    if (!buffers) buffers = std::make_shared<PassingBuffers>();
    return passingSegments(path, *directory, buffers);
  } catch (const RuntimeFault&) {
    return {};
  } catch (const std::bad_alloc&) {
    return {};
  }
}

std::optional<std::int64_t> entriesInSegmentFile(const QString& path, const SegmentKey& key) {
  try {
    const std::optional<Directory> directory = directoryOf(RandomAccessFile(path));
    if (!directory || directory->key != key) return std::nullopt;
    std::uint64_t entries = 0;
    for (const SegmentRecord& segment : directory->segments) entries += segment.entryCount;
    return static_cast<std::int64_t>(entries);
  } catch (const RuntimeFault&) {
    return std::nullopt;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

QString listingOfSegmentFile(const QString& path) {
  try {
    const std::optional<Directory> directory = directoryOf(RandomAccessFile(path));
    return directory ? directory->key.listing : QString();
  } catch (const RuntimeFault&) {
    return {};
  }
}

}  // namespace quorvin
