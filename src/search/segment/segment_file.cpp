#include "search/segment/segment_file.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "search/segment/passing_bytes.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <concepts>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

/// The system keeps what is written at once in one piece of memory, and maps each piece whole when any of it
/// is touched: of larger ones a window would seem to use nearly all, whatever little it looked at.
constexpr std::size_t kLargestWrite = std::size_t{1} << 16;

constexpr char kMagic[8] = {'Q', 'V', 'S', 'E', 'G', 'M', 'T', '7'};
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

bool readDirectoryOf(const QString& path, Directory& directory) {
  QFile file(path);
  Trailer trailer;
  constexpr qint64 kTrailerSize = sizeof trailer;
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() < kTrailerSize) return false;
  if (!file.seek(file.size() - kTrailerSize)) return false;
  if (file.read(reinterpret_cast<char*>(&trailer), kTrailerSize) != kTrailerSize) return false;
  if (std::memcmp(trailer.magic, kMagic, sizeof kMagic) != 0) return false;
  const auto end = static_cast<std::uint64_t>(file.size() - kTrailerSize);
  if (trailer.directoryOffset > end || trailer.directorySize != end - trailer.directoryOffset) return false;
  if (!file.seek(static_cast<qint64>(trailer.directoryOffset))) return false;
  const QByteArray bytes = file.read(static_cast<qint64>(trailer.directorySize));
  if (static_cast<std::uint64_t>(bytes.size()) != trailer.directorySize) return false;
  if (checksumOf(std::as_bytes(std::span(bytes.constData(), trailer.directorySize))) != trailer.directorySum)
    return false;
  return readDirectory(bytes, directory);
}

/// Calls `visit(array)` for each array of `arrays`, in the order of the file; it can be assigned to.
template <typename Visit>
void visitArrays(SegmentArrays& arrays, Visit&& visit) {
  for (TextTable* table : {&arrays.entries, &arrays.folders}) {
    visit(table->trigrams);
    visit(table->marks);
    visit(table->folded);
    visit(table->hasUpper);
    visit(table->upperBits);
    visit(table->exceptions);
    visit(table->exceptionTexts);
  }
  visit(arrays.blockStarts);
  visit(arrays.volumes);
  visit(arrays.volumeTexts);
  visit(arrays.values);
  visit(arrays.notOwn);
  visit(arrays.wideValues);
  visit(arrays.unreadable);
}

/// Texts are searched beyond their end, so readable bytes follow them.
template <typename Element>
constexpr std::size_t kPaddingBehind = std::same_as<Element, char> ? kScanPadding : 0;

/// Points arrays into a mapped segment, one after another, each place checked against the segment's size.
class ArrayPlacer {
 public:
  ArrayPlacer(std::span<const std::byte> bytes, const SegmentRecord& record, const ByteCheck& check)
      : bytes_(bytes), record_(record), check_(check) {}

  template <typename Element>
  void operator()(CheckedSpan<Element>& array) {
    const auto [offset, count] = record_.arrays[next_++];
    const std::size_t padding = kPaddingBehind<Element>;
    const bool inside = offset <= bytes_.size() && padding <= bytes_.size() - offset &&
                        count <= (bytes_.size() - offset - padding) / sizeof(Element);
    if (!inside || offset % alignof(Element) != 0) throw DamagedSegment();
    array = CheckedSpan<Element>(bytes_, offset, count, check_);
  }

 private:
  std::span<const std::byte> bytes_;
  const SegmentRecord& record_;
  const ByteCheck& check_;
  std::size_t next_ = 0;
};

/// What segments that are searched only once share: their texts pass through it.
struct PassingBuffers {
  PassingBuffer entries;
  PassingBuffer folders;
};

/// A segment whose arrays lie in a mapped file.
class MappedSegment : public Segment {
 public:
  /// `sums` are the checksums of the segment's bytes. Throws RuntimeFault when the file cannot be mapped, and
  /// DamagedSegment when the record does not fit the segment. `buffers` may be null; else it is shared, since
  /// nobody knows which of the segments of a file lives longest.
  MappedSegment(const QString& path, const SegmentRecord& record, std::vector<std::uint64_t> sums,
                std::shared_ptr<PassingBuffers> buffers = nullptr)
      : file_(path, static_cast<std::int64_t>(record.offset), static_cast<std::size_t>(record.size)),
        sums_(std::move(sums)),
        check_(file_.bytes(), sums_),
        buffers_(std::move(buffers)) {
    visitArrays(arrays_, ArrayPlacer(file_.bytes(), record, check_));
    arrays_.entries.count = static_cast<std::uint32_t>(record.entryCount);
    arrays_.folders.count = static_cast<std::uint32_t>(record.blockCount);
    arrays_.allOwn = record.allOwn != 0;
    if (buffers_) readInPassing(path, static_cast<std::int64_t>(record.offset));
  }

  void searched() const override {
    if (!passing_) return;
    passing_->entries.rest();
    passing_->folders.rest();
  }

  bool foundDamage() const override { return check_.foundDamage(); }

 private:
  struct Passing {
    PassingBytes entries;
    PassingBytes folders;
  };

  void readInPassing(const QString& path, std::int64_t offset) {
    passing_.reset(
        new Passing{{path, offset, check_, buffers_->entries}, {path, offset, check_, buffers_->folders}});
    arrays_.entries.passing = &passing_->entries;
    arrays_.folders.passing = &passing_->folders;
  }

  MappedFile file_;
  std::vector<std::uint64_t> sums_;
  ByteCheck check_;
  std::shared_ptr<PassingBuffers> buffers_;
  /// Only where there are buffers.
  std::unique_ptr<Passing> passing_;
};

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

/// Copies the arrays to their places.
class SegmentCopier {
 public:
  SegmentCopier(std::vector<std::byte>& bytes, const SegmentRecord& record)
      : bytes_(bytes), record_(record) {}

  template <typename Element>
  void operator()(const CheckedSpan<Element>& array) {
    const auto from = std::as_bytes(array.all());
    if (!from.empty()) std::memcpy(bytes_.data() + record_.arrays[next_].offset, from.data(), from.size());
    ++next_;
  }

 private:
  std::vector<std::byte>& bytes_;
  const SegmentRecord& record_;
  std::size_t next_ = 0;
};

QString inMadeFolder(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  return path;
}

}  // namespace

SegmentFileWriter::SegmentFileWriter(const QString& path)
    : file_(inMadeFolder(path), {.durability = Durability::None}) {}

void SegmentFileWriter::write(const void* data, std::size_t size) {
  std::string_view bytes(static_cast<const char*>(data), size);
  while (!bytes.empty()) {
    const std::string_view piece = bytes.substr(0, kLargestWrite);
    file_.writeAt(static_cast<std::int64_t>(position_), piece);
    position_ += piece.size();
    bytes.remove_prefix(piece.size());
  }
}

void SegmentFileWriter::pad() {
  const std::size_t over = position_ % kMappingAlignment;
  if (over == 0) return;
  const std::vector<char> zeros(kMappingAlignment - over, 0);
  write(zeros.data(), zeros.size());
}

std::shared_ptr<const Segment> SegmentFileWriter::append(const Segment& segment) {
  pad();
  SegmentArrays arrays = segment.arrays();
  SegmentRecord record{};
  SegmentLayout layout(record);
  visitArrays(arrays, layout);
  record.offset = position_;
  record.size = layout.size();
  record.entryCount = arrays.entries.count;
  record.blockCount = arrays.folders.count;
  record.allOwn = arrays.allOwn ? 1 : 0;
  std::vector<std::byte> bytes(record.size);
  visitArrays(arrays, SegmentCopier(bytes, record));
  write(bytes.data(), bytes.size());
  sums_.push_back(checksumsOf(bytes));
  segments_.push_back(record);
  return std::make_shared<MappedSegment>(file_.path(), record, sums_.back());
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
}

std::vector<std::shared_ptr<const Segment>> openSegmentFile(const QString& path, const SegmentKey& key,
                                                            SegmentUse use) {
  Directory directory;
  if (!readDirectoryOf(path, directory) || directory.key != key) return {};
  const auto buffers = use == SegmentUse::Once ? std::make_shared<PassingBuffers>() : nullptr;
  std::vector<std::shared_ptr<const Segment>> segments;
  try {
    for (std::size_t i = 0; i < directory.segments.size(); ++i) {
      segments.push_back(std::make_shared<MappedSegment>(path, directory.segments[i],
                                                         std::move(directory.sums[i]), buffers));
    }
  } catch (const RuntimeFault&) {
    return {};
  }
  return segments;
}

QString listingOfSegmentFile(const QString& path) {
  Directory directory;
  return readDirectoryOf(path, directory) ? directory.key.listing : QString();
}

}  // namespace quorvin
