// SPDX-License-Identifier: GPL-2.0-or-later

// Which file it is, and whether it has changed.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace quorvin {

/// What tells a file, and its content at a time, from others: any change of the content changes at least one
/// of these.
struct FileIdentity {
  std::int64_t size = 0;
  /// Nanoseconds since 1970.
  std::int64_t modified = 0;
  /// The same, of the last change of any kind: it cannot be set, as the modification time can.
  std::int64_t changed = 0;
  std::uint64_t device = 0;
  std::uint64_t file = 0;

  bool operator==(const FileIdentity&) const = default;
};

/// The identity of the file at `path`; nothing when there is none.
std::optional<FileIdentity> fileIdentity(const QString& path);

/// Whether a file is at `path`. For what must not be taken for missing because a look at it failed, as on a
/// disk with errors: then it throws RuntimeFault.
bool fileIsThere(const QString& path);

/// Whether both paths lead to one file: they are equal, or the file system takes one for a way of writing the
/// other (a link, "./", capital letters). False where neither leads to a file and they differ.
bool isSameFile(const QString& path, const QString& other);

}  // namespace quorvin
