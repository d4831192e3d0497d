// SPDX-License-Identifier: GPL-2.0-or-later

// A kept version of a listing. An input is a byte, whose bits say what is done; two bytes with the length of
// a text; this text; and the rest.
//
// 1: the version differs from the text; else it is whole
// 2: the rest is the version's file; else it is a listing, of which a version is made
// 4: a file gets the head's mark, kind and checksum that it has to have; a made one has a bit turned, at the
//    place that the last four bytes give
#include "faults/runtime_fault.h"
#include "fuzz/choices.h"
#include "fuzz/require.h"
#include "history/version_file.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <QtEndian>

#include <array>
#include <cstring>
#include <optional>
#include <unistd.h>
#include <xxhash.h>

namespace quorvin::fuzz {
namespace {

constexpr qsizetype kHeadSize = 64;
constexpr qsizetype kSummedHead = 56;
constexpr qsizetype kFlags = 48;
/// What a few bytes may be unpacked to before it is given up.
constexpr qsizetype kMostRead = qsizetype{32} << 20;

const QString kVersion = QStringLiteral("00000001.version");

class Workshop {
 public:
  explicit Workshop(const QByteArray& base) { base_ = folder_.writeFile(QStringLiteral("base"), base); }

  std::unique_ptr<ListingBytes> base() const { return openListing(base_); }

  void putVersion(const QByteArray& bytes) const { folder_.writeFile(kVersion, bytes); }

  QByteArray madeVersion(const QByteArray& listing, bool differs) const {
    const QString path = folder_.writeFile(QStringLiteral("listing"), listing);
    VersionHead head;
    head.text = factsOf(*openListing(path), {});
    head.made = 1'000'000'000'000;
    if (differs) head.base = factsOf(*base(), {}).checksum;
    QFile file(folder_.pathOf(kVersion));
    require(file.open(QIODevice::WriteOnly), "a file can be made");
    FileWriter writer(file.handle(), file.fileName());
    writeVersion(writer, head, *openListing(path), differs ? base().get() : nullptr, {});
    writer.flush();
    file.close();
    const std::optional<VersionHead> read = readVersionHead(file.fileName());
    require(read && read->text == head.text && read->made == head.made && read->base == head.base,
            "a head is read as it was written");
    return folder_.readFile(kVersion);
  }

  /// Nothing for a version that is damaged; that is not seen before its last byte.
  std::optional<QByteArray> text(bool differs) const {
    const QString path = folder_.pathOf(kVersion);
    const std::optional<VersionHead> head = readVersionHead(path);
    try {
      const std::unique_ptr<ListingBytes> version = openVersion(path, differs ? base() : nullptr);
      require(head && head->base.has_value() == differs, "what is opened has a head, of its kind");
      return contentOf(*version, *head);
    } catch (const RuntimeFault& fault) {
      require(fault.number() == 57, "a damaged version is a damaged version");
      return std::nullopt;
    }
  }

 private:
  static std::optional<QByteArray> contentOf(ListingBytes& version, const VersionHead& head) {
    QByteArray bytes;
    std::array<char, 50'000> buffer{};
    while (const std::size_t count = version.read(buffer)) {
      bytes.append(buffer.data(), static_cast<qsizetype>(count));
      if (bytes.size() > kMostRead) return std::nullopt;
    }
    require(static_cast<std::uint64_t>(bytes.size()) == head.text.size, "a text is as long as its head says");
    require(XXH3_64bits(bytes.constData(), static_cast<std::size_t>(bytes.size())) == head.text.checksum,
            "a text that is read to its end has the checksum of its head");
    return bytes;
  }

  TemporaryFolder folder_;
  QString base_;
};

/// No mutation would ever meet the checksum.
void mendHead(QByteArray& file, bool differs) {
  if (file.size() < kHeadSize) return;
  std::memcpy(file.data(), "QVLHIST1", 8);
  file[kFlags] = static_cast<char>((file[kFlags] & ~1) | (differs ? 1 : 0));
  qToLittleEndian<quint64>(XXH3_64bits(file.constData(), kSummedHead), file.data() + kSummedHead);
}

void checkFile(const Workshop& workshop, QByteArray file, bool differs, bool isMended) {
  if (isMended) mendHead(file, differs);
  workshop.putVersion(file);
  workshop.text(differs);
}

void checkMade(const Workshop& workshop, QByteArray listing, bool differs, bool isDamaged) {
  std::uint32_t place = 0;
  if (isDamaged && listing.size() >= 4) {
    place = qFromLittleEndian<std::uint32_t>(listing.constData() + listing.size() - 4);
    listing.chop(4);
  }
  QByteArray file = workshop.madeVersion(listing, differs);
  require(workshop.text(differs) == listing, "a version is read as it was written");
  if (!isDamaged) return;
  const qsizetype at = static_cast<qsizetype>(place / 8) % file.size();
  file[at] = static_cast<char>(file[at] ^ (1 << (place % 8)));
  workshop.putVersion(file);
  const std::optional<QByteArray> text = workshop.text(differs);
  require(!text || *text == listing, "a damaged version is never another text");
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  Choices choices(data, size);
  const int wishes = choices.byte();
  const int low = choices.byte();
  const Workshop workshop(choices.bytes(low | choices.byte() << 8));
  const QByteArray rest = choices.bytes(static_cast<int>(size));
  const bool differs = (wishes & 1) != 0;
  if ((wishes & 2) != 0) {
    checkFile(workshop, rest, differs, (wishes & 4) != 0);
  } else {
    checkMade(workshop, rest, differs, (wishes & 4) != 0);
  }
  return 0;
}
