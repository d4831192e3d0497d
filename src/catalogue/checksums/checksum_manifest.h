// SPDX-License-Identifier: GPL-2.0-or-later

// The checksums of the files of a folder, in a file beside its listing. The format is that of sha256sum:
// docs/formats/checksum-manifest.md.
#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

/// Where the checksums of the files of a listing are.
QString manifestOf(const QString& listing);

/// Where is noted how far a verification of these checksums has come.
QString verifyingNotesOf(const QString& manifest);

/// Whether `path`, from `folder` down, is the listing or one of the files beside it, which change whenever
/// they are made.
class OwnFilesBelow {
 public:
  OwnFilesBelow(const QString& folder, const QString& listing);
  bool contains(std::string_view path) const { return std::ranges::find(paths_, path) != paths_.end(); }

 private:
  std::vector<std::string> paths_;
};

/// A file as a manifest names it.
struct FileChecksum {
  /// From the folder down, with slashes between.
  std::string path;
  /// 64 hexadecimal digits in lower case.
  std::string checksum;
};

/// The line of a file, with its line end.
std::string manifestLine(const FileChecksum& file);

/// The remark, with its line end, that says which listing stands beside the checksums.
std::string listingRemark(std::uint64_t listing);
/// Tells one content of the listing at `path` from another. Throws RuntimeFault where it cannot be read.
std::uint64_t listingIdentity(const QString& path);

class ChecksumManifest {
 public:
  /// No files.
  ChecksumManifest() = default;
  /// Reads the file at `path`. Throws RuntimeFault as contentOfFile() does.
  explicit ChecksumManifest(const QString& path);
  ChecksumManifest(ChecksumManifest&&) = default;
  ChecksumManifest& operator=(ChecksumManifest&&) = default;

  /// In the order of the file.
  const std::vector<FileChecksum>& files() const { return files_; }
  /// Null where it names no such file.
  const FileChecksum* find(std::string_view path) const;
  /// Lines that are neither empty nor remarks, and are no SHA-256 of a file.
  std::int64_t notUnderstood() const { return notUnderstood_; }
  /// Tells one content of the file from another.
  std::uint64_t identity() const { return identity_; }
  /// Whether the listing at `path` is the one of these checksums, so that its sizes and dates are those that
  /// files had when the checksums were taken. True where that is not said, as by other programs. Throws as
  /// listingIdentity() does.
  bool isOfListing(const QString& path) const { return !listing_ || *listing_ == listingIdentity(path); }

 private:
  void take(std::string_view line);

  std::vector<FileChecksum> files_;
  std::unordered_map<std::string_view, std::size_t> byPath_;
  std::int64_t notUnderstood_ = 0;
  std::uint64_t identity_ = 0;
  /// What the remark says.
  std::optional<std::uint64_t> listing_;
};

}  // namespace quorvin
