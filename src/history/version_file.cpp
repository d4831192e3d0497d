// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/version_file.h"

#include "files/file_reader.h"
#include "search/format/listing_line.h"
#include "texts/texts.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <xxhash.h>
#include <zstd.h>
#include <zstd_errors.h>

namespace quorvin {

namespace {

/// A text is packed in stretches of this size. One that differs from a base is compared with the same stretch
/// of it and with the ones before and behind: what has moved further is taken for new.
constexpr std::size_t kStretch = std::size_t{8} << 20;
/// Above the fastest ones this level takes hardly longer and packs a tenth better; the next ones take far
/// longer.
constexpr int kPackingLevel = 3;

constexpr std::string_view kMark = "QVLHIST1";
constexpr std::size_t kHeadSize = 64;
constexpr std::size_t kSummedHead = kHeadSize - sizeof(std::uint64_t);
constexpr std::uint32_t kIsDifference = 1;
constexpr std::uint32_t kIsIncomplete = 2;

[[noreturn]] void failDamaged(const QString& path) {
  throw DamagedVersion(Texts::tr("%1 is damaged").arg(path));
}

std::size_t checked(std::size_t result) {
  if (ZSTD_isError(result) == 0) return result;
  if (ZSTD_getErrorCode(result) == ZSTD_error_memory_allocation) throw std::bad_alloc();
  throw RuntimeFault(
      FaultNumber::PathFileAccess,
      Texts::tr("The listing could not be packed: %1").arg(QString::fromUtf8(ZSTD_getErrorName(result))));
}

/// As many bytes as there are, up to the buffer's size.
std::size_t readFull(ListingBytes& text, std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const std::size_t count = text.read(buffer.subspan(filled));
    if (count == 0) break;
    filled += count;
  }
  return filled;
}

/// The checksum of a text that comes piece by piece.
class RunningChecksum {
 public:
  RunningChecksum() : state_(XXH3_createState()) {
    if (!state_) throw std::bad_alloc();
    XXH3_64bits_reset(state_.get());
  }
  void add(std::string_view bytes) { XXH3_64bits_update(state_.get(), bytes.data(), bytes.size()); }
  std::uint64_t value() const { return XXH3_64bits_digest(state_.get()); }

 private:
  struct Free {
    void operator()(XXH3_state_t* state) const { XXH3_freeState(state); }
  };
  std::unique_ptr<XXH3_state_t, Free> state_;
};

/// Counts the entry lines of a text that comes piece by piece.
class EntryCount {
 public:
  void add(std::string_view bytes) {
    for (std::size_t end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n')) {
      takeLine(bytes.substr(0, end));
      bytes.remove_prefix(end + 1);
    }
    // What has no line ends is no listing, and need not be kept in memory to be counted as one line.
    if (begun_.size() < kLongestLine) begun_ += bytes;
  }
  std::uint64_t atTheEnd() {
    if (!begun_.empty()) takeLine({});
    return count_;
  }

 private:
  static constexpr std::size_t kLongestLine = std::size_t{1} << 20;

  void takeLine(std::string_view line) {
    if (!begun_.empty()) line = begun_ += line;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (classifyLine(line) == LineKind::Entry) ++count_;
    begun_.clear();
  }

  /// The line whose end has not come yet.
  std::string begun_;
  std::uint64_t count_ = 0;
};

/// The bytes around a place in a text, while that place moves on.
class TextAround {
 public:
  explicit TextAround(ListingBytes& text) : text_(text) {}

  /// The stretch of this number with the ones before and behind it, as far as the text goes. To be asked for
  /// in order.
  std::string_view at(std::uint64_t stretch) {
    for (; first_ + 1 < stretch; ++first_) {
      bytes_.erase(bytes_.begin(),
                   bytes_.begin() + static_cast<std::ptrdiff_t>(std::min(kStretch, bytes_.size())));
    }
    const std::size_t wanted = static_cast<std::size_t>(stretch + 2 - first_) * kStretch;
    while (!isAtEnd_ && bytes_.size() < wanted) readOn(std::min(kPiece, wanted - bytes_.size()));
    return {bytes_.data(), bytes_.size()};
  }

 private:
  static constexpr std::size_t kPiece = std::size_t{1} << 20;

  void readOn(std::size_t count) {
    const std::size_t before = bytes_.size();
    bytes_.resize(before + count);
    const std::size_t filled = readFull(text_, std::span(bytes_).subspan(before));
    bytes_.resize(before + filled);
    isAtEnd_ = filled < count;
  }

  ListingBytes& text_;
  std::vector<char> bytes_;
  std::uint64_t first_ = 0;
  bool isAtEnd_ = false;
};

class Packer {
 public:
  Packer() : context_(ZSTD_createCCtx()) {
    if (!context_) throw std::bad_alloc();
  }

  /// Valid until the next call.
  std::string_view pack(std::string_view stretch, std::string_view base) {
    ZSTD_CCtx* const context = context_.get();
    checked(ZSTD_CCtx_reset(context, ZSTD_reset_session_and_parameters));
    checked(ZSTD_CCtx_setParameter(context, ZSTD_c_compressionLevel, kPackingLevel));
    checked(ZSTD_CCtx_setParameter(context, ZSTD_c_checksumFlag, 1));
    if (!base.empty()) {
      // Long equal runs are what there is to be found, anywhere in the base.
      const int window = std::max(static_cast<int>(std::bit_width(stretch.size() + base.size())), 10);
      checked(ZSTD_CCtx_setParameter(context, ZSTD_c_windowLog, window));
      checked(ZSTD_CCtx_setParameter(context, ZSTD_c_enableLongDistanceMatching, 1));
      checked(ZSTD_CCtx_refPrefix(context, base.data(), base.size()));
    }
    packed_.resize(ZSTD_compressBound(stretch.size()));
    return {packed_.data(),
            checked(ZSTD_compress2(context, packed_.data(), packed_.size(), stretch.data(), stretch.size()))};
  }

 private:
  struct Free {
    void operator()(ZSTD_CCtx* context) const { ZSTD_freeCCtx(context); }
  };
  std::unique_ptr<ZSTD_CCtx, Free> context_;
  std::vector<char> packed_;
};

template <typename Number>
void put(std::string& bytes, Number number) {
  const Number little = qToLittleEndian(number);
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

template <typename Number>
Number take(std::string_view& bytes) {
  const Number number = qFromLittleEndian<Number>(bytes.data());
  bytes.remove_prefix(sizeof number);
  return number;
}

std::string bytesOf(const VersionHead& head) {
  std::string bytes(kMark);
  put(bytes, head.text.size);
  put(bytes, head.made);
  put(bytes, head.text.entries);
  put(bytes, head.text.checksum);
  put(bytes, head.base.value_or(0));
  put(bytes, (head.base ? kIsDifference : 0) | (head.isComplete ? 0 : kIsIncomplete));
  put(bytes, std::uint32_t{0});
  put(bytes, std::uint64_t{XXH3_64bits(bytes.data(), bytes.size())});
  return bytes;
}

std::optional<VersionHead> headIn(std::string_view bytes) {
  std::string_view sum = bytes.substr(kSummedHead);
  if (!bytes.starts_with(kMark) || take<std::uint64_t>(sum) != XXH3_64bits(bytes.data(), kSummedHead))
    return {};
  bytes.remove_prefix(kMark.size());
  VersionHead head;
  head.text.size = take<std::uint64_t>(bytes);
  head.made = take<std::int64_t>(bytes);
  head.text.entries = take<std::uint64_t>(bytes);
  head.text.checksum = take<std::uint64_t>(bytes);
  const auto base = take<std::uint64_t>(bytes);
  const auto flags = take<std::uint32_t>(bytes);
  if ((flags & kIsDifference) != 0) head.base = base;
  head.isComplete = (flags & kIsIncomplete) == 0;
  return head;
}

class ListingFile : public ListingBytes {
 public:
  explicit ListingFile(const QString& path) : file_(path) {}
  std::size_t read(std::span<char> buffer) override { return file_.read(buffer); }

 private:
  SequentialFile file_;
};

class Version : public ListingBytes {
 public:
  Version(const QString& path, std::unique_ptr<ListingBytes> base)
      : path_(path), file_(path), context_(ZSTD_createDCtx()), base_(std::move(base)) {
    if (!context_) throw std::bad_alloc();
    if (base_) around_.emplace(*base_);
    std::array<char, kHeadSize> bytes{};
    readAll(bytes);
    const std::optional<VersionHead> head = headIn({bytes.data(), bytes.size()});
    if (!head || head->base.has_value() != (base_ != nullptr)) failDamaged(path_);
    head_ = *head;
    if (head_.text.size == 0) checkSum();
  }

  std::size_t read(std::span<char> buffer) override {
    if (position_ == filled_ && unpacked_ < head_.text.size) unpackNext();
    const std::size_t count = std::min(buffer.size(), filled_ - position_);
    if (count == 0) return 0;
    std::memcpy(buffer.data(), stretch_.data() + position_, count);
    position_ += count;
    return count;
  }

 private:
  void readAll(std::span<char> buffer) {
    while (!buffer.empty()) {
      const std::size_t count = file_.read(buffer);
      if (count == 0) failDamaged(path_);
      buffer = buffer.subspan(count);
    }
  }

  void unpackNext() {
    const std::size_t size = std::min<std::uint64_t>(kStretch, head_.text.size - unpacked_);
    readPacked();
    stretch_.resize(size);
    if (around_) {
      const std::string_view base = around_->at(number_++);
      checked(ZSTD_DCtx_refPrefix(context_.get(), base.data(), base.size()));
    }
    const std::size_t result =
        ZSTD_decompressDCtx(context_.get(), stretch_.data(), size, packed_.data(), packed_.size());
    if (ZSTD_getErrorCode(result) == ZSTD_error_memory_allocation) throw std::bad_alloc();
    if (ZSTD_isError(result) != 0 || result != size) failDamaged(path_);
    sum_.add({stretch_.data(), size});
    unpacked_ += size;
    position_ = 0;
    filled_ = size;
    if (unpacked_ == head_.text.size) checkSum();
  }

  void checkSum() const {
    if (sum_.value() != head_.text.checksum) failDamaged(path_);
  }

  void readPacked() {
    std::array<char, sizeof(std::uint32_t)> bytes{};
    readAll(bytes);
    const auto size = qFromLittleEndian<std::uint32_t>(bytes.data());
    if (size > ZSTD_compressBound(kStretch)) failDamaged(path_);
    packed_.resize(size);
    readAll(packed_);
  }

  struct Free {
    void operator()(ZSTD_DCtx* context) const { ZSTD_freeDCtx(context); }
  };

  QString path_;
  SequentialFile file_;
  std::unique_ptr<ZSTD_DCtx, Free> context_;
  std::unique_ptr<ListingBytes> base_;
  std::optional<TextAround> around_;
  VersionHead head_;
  RunningChecksum sum_;
  std::uint64_t number_ = 0;
  std::uint64_t unpacked_ = 0;
  std::vector<char> packed_;
  std::vector<char> stretch_;
  std::size_t filled_ = 0;
  std::size_t position_ = 0;
};

}  // namespace

std::unique_ptr<ListingBytes> openListing(const QString& path) {
  return std::make_unique<ListingFile>(path);
}

ListingFacts factsOf(ListingBytes& text, const HistoryPause& pause) {
  constexpr std::size_t kPiece = std::size_t{1} << 20;
  std::vector<char> buffer(kPiece);
  ListingFacts facts;
  RunningChecksum sum;
  EntryCount entries;
  while (const std::size_t count = text.read(buffer)) {
    const std::string_view piece(buffer.data(), count);
    sum.add(piece);
    entries.add(piece);
    facts.size += count;
    if (pause) pause();
  }
  facts.entries = entries.atTheEnd();
  facts.checksum = sum.value();
  return facts;
}

std::optional<VersionHead> readVersionHead(const QString& path) {
  try {
    std::array<std::byte, kHeadSize> bytes{};
    RandomAccessFile(path).read(0, bytes);
    return headIn({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  } catch (const RuntimeFault& fault) {
    // There is no file, or one that is too short for a head.
    const bool isMissing =
        fault.faultNumber() == FaultNumber::FileNotFound || fault.faultNumber() == FaultNumber::PathNotFound;
    if (isMissing || fault.faultNumber() == FaultNumber::InputPastEnd) return std::nullopt;
    throw;
  }
}

std::unique_ptr<ListingBytes> openVersion(const QString& path, std::unique_ptr<ListingBytes> base) {
  return std::make_unique<Version>(path, std::move(base));
}

void writeVersion(FileWriter& writer, const VersionHead& head, ListingBytes& text, ListingBytes* base,
                  const HistoryPause& pause) {
  writer.write(bytesOf(head));
  std::vector<char> buffer(std::min<std::uint64_t>(kStretch, head.text.size));
  std::optional<TextAround> around;
  if (base) around.emplace(*base);
  Packer packer;
  RunningChecksum sum;
  std::uint64_t packedBytes = 0;
  for (std::uint64_t number = 0; packedBytes < head.text.size; ++number) {
    const std::size_t size = readFull(text, buffer);
    if (size == 0) break;
    const std::string_view stretch(buffer.data(), size);
    sum.add(stretch);
    const std::string_view packed = packer.pack(stretch, around ? around->at(number) : std::string_view());
    std::string length;
    put(length, static_cast<std::uint32_t>(packed.size()));
    writer.write(length);
    writer.write(packed);
    packedBytes += size;
    if (pause) pause();
  }
  if (packedBytes == head.text.size && sum.value() == head.text.checksum) return;
  throw RuntimeFault(FaultNumber::DeviceError, describe(FaultNumber::DeviceError) + QStringLiteral(": ") +
                                                   Texts::tr("the listing changed while it was read"));
}

}  // namespace quorvin
