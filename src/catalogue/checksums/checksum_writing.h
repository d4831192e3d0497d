// SPDX-License-Identifier: GPL-2.0-or-later

// Writing the checksums of a folder beside its listing.
#pragma once

#include "catalogue/checksums/checksum_manifest.h"
#include "catalogue/checksums/files_below.h"
#include "catalogue/checksums/listed_facts.h"
#include "files/file_writer.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace quorvin {

/// Writes the checksum of each file of a folder. A file that had one, and has the size and date that the
/// listing told until now, keeps it unread: so what has gone bad since is not taken for good, and the next
/// time takes as long as what is new.
class ChecksumWriting {
 public:
  struct Progress {
    std::int64_t files = 0;
    std::int64_t filesAll = 0;
    /// Of those that have to be read.
    std::int64_t bytes = 0;
    std::int64_t bytesAll = 0;
  };
  struct Parts {
    QString folder;
    /// Where the listing is until now, if there is one, with its checksums beside it.
    QString listing;
    QLocale locale;
    /// Asked often.
    StopAsked stop = [] { return false; };
    std::function<void(const Progress&)> progress = [](const Progress&) {};
  };
  explicit ChecksumWriting(Parts parts) : parts_(std::move(parts)) {}

  /// Writes all lines to `manifest`; to be called once. A file that cannot be read keeps the checksum that it
  /// had, if any. False where it was stopped. Throws RuntimeFault where the folder cannot be read, the
  /// earlier checksums or the earlier listing are there and cannot be, or writing fails.
  bool write(FileWriter& manifest);

  /// What could not be read, and why: a sentence each.
  const QStringList& unread() const { return unread_; }
  /// Files that hold something else than their checksum said, where the earlier listing is not the one of the
  /// earlier checksums: nobody knows whether they were changed or have rotted.
  const QStringList& doubtful() const { return doubtful_; }
  /// Files that were read, and those that kept their checksum.
  std::int64_t filesRead() const { return filesRead_; }
  std::int64_t filesKept() const { return filesKept_; }

 private:
  bool readEarlier(const FilesBelow& now);
  const std::string* keptChecksum(const FileBelow& file) const;
  bool writeFile(FileWriter& manifest, const FileBelow& file);
  std::optional<std::string> read(const FileBelow& file);

  Parts parts_;
  ChecksumManifest earlier_;
  ListedFacts facts_;
  Progress progress_;
  QStringList unread_;
  QStringList doubtful_;
  bool isOfListing_ = true;
  std::int64_t filesRead_ = 0;
  std::int64_t filesKept_ = 0;
};

}  // namespace quorvin
