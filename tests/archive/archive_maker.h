// SPDX-License-Identifier: GPL-2.0-or-later

// Zip archives made byte by byte, honest ones and others.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvin::test {

inline constexpr std::uint16_t kStored = 0;
inline constexpr std::uint16_t kDeflated = 8;

/// File types as Unix has them, with rights.
inline constexpr std::uint32_t kPlainFileMode = 0100644;
inline constexpr std::uint32_t kFolderMode = 0040755;
inline constexpr std::uint32_t kLinkMode = 0120777;
inline constexpr std::uint32_t kPipeMode = 0010644;
inline constexpr std::uint32_t kCharacterDeviceMode = 0020644;
inline constexpr std::uint32_t kBlockDeviceMode = 0060644;
inline constexpr std::uint32_t kSocketMode = 0140644;

/// One entry. What is not set is as it ought to be for the content.
struct MadeEntry {
  QByteArray name;
  QByteArray content;
  std::uint16_t method = kStored;
  std::uint16_t flags = 0;
  std::uint32_t mode = kPlainFileMode;
  /// The packed bytes as they stand, instead of the content packed.
  std::optional<QByteArray> packed;
  /// The sizes and the checksum that are told.
  std::optional<std::uint64_t> toldSize;
  std::optional<std::uint64_t> toldPackedSize;
  std::optional<std::uint32_t> toldChecksum;
  /// Sizes and place as zip64 writes them.
  bool isLarge = false;
  /// The name before the content, where it differs from the one in the directory.
  std::optional<QByteArray> innerName;
  /// Written in one go: checksum and packed size follow the content, and before it they are 0. `headerSize`
  /// is what is told there of the size, which some programs know beforehand.
  bool isStreamed = false;
  std::uint32_t headerSize = 0;
  /// What is told of the packed size before the content, where it differs from the one in the directory.
  std::optional<std::uint32_t> headerPackedSize;
  /// A further name in UTF-8, with the checksum of the plain one before it, as other programs write it.
  std::optional<QByteArray> unicodeName;
  /// Further extra fields, and a comment; both are in the directory only.
  QByteArray directoryExtra;
  QByteArray comment;
  /// No bytes of its own: it shares those of the entry with this number.
  std::optional<std::size_t> sharesBytesOf;
};

/// The archive of `entries`. `largeEnd` gives it an end record as zip64 has it; `toldCount` is the number of
/// entries that the end record tells.
struct ArchiveForm {
  bool largeEnd = false;
  std::optional<std::uint64_t> toldCount;
};
QByteArray archiveOf(const std::vector<MadeEntry>& entries, const ArchiveForm& form = {});

/// An archive of one file.
QByteArray archiveOf(const QByteArray& name, const QByteArray& content);

/// An archive of `count` stored entries, each of which holds all that follow it, headers and all; the last
/// one holds `kernel`.
QByteArray nestedOverlapOf(int count, const QByteArray& kernel);

/// A raw deflate stream.
QByteArray deflated(const QByteArray& content);

/// So many bytes that packing makes no smaller, the same in each run.
QByteArray madeNoise(qsizetype size);

std::uint32_t checksumOf(const QByteArray& content);

}  // namespace quorvin::test
