// SPDX-License-Identifier: GPL-2.0-or-later

// How far a verification has come, so that it can go on there: a small file beside the checksums. Its format:
// docs/formats/checksum-manifest.md.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvin {

/// What was found of a file.
enum class FileVerdict : std::uint8_t {
  /// It holds what it held.
  Fine,
  /// Its size and date are as listed, and it holds something else: the medium has lost it.
  Rotten,
  /// Its size or date is another one, or the listing does not tell them, and it holds something else.
  Changed,
  /// It is not there.
  Lost,
  /// It has no checksum.
  Added,
  /// It is there and cannot be read.
  Unread
};

struct FileFinding {
  FileVerdict verdict;
  /// From the folder down, in the bytes of the file system.
  std::string path;
  /// Why, as a sentence; for Unread alone.
  QString why = {};
};

/// The word that stands for a verdict in files and in output for programs, such as "rotten".
std::string_view wordOf(FileVerdict verdict);

struct VerificationNotes {
  /// ChecksumManifest::identity().
  std::uint64_t manifest = 0;
  QString folder;
  /// So many files of the manifest have been judged.
  std::size_t done = 0;
  /// What was found among them, but for those that are fine.
  std::vector<FileFinding> findings = {};
};

/// Nothing where there are none, or none that can be read: then the verification begins again.
std::optional<VerificationNotes> readNotes(const QString& path);
/// Replaces them. Throws RuntimeFault as replaceFile() does.
void writeNotes(const QString& path, const VerificationNotes& notes);

}  // namespace quorvin
