// SPDX-License-Identifier: GPL-2.0-or-later

// Reading a folder again, to see whether its files still hold what they held when their checksums were taken.
#pragma once

#include "catalogue/checksums/checksum_manifest.h"
#include "catalogue/checksums/files_below.h"
#include "catalogue/checksums/listed_facts.h"
#include "catalogue/checksums/verification_notes.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

/// Holds the files of a folder against the checksums beside its listing. A file whose size or date is not the
/// listed one is not read: it has been changed. Where it is stopped, what it has come to is noted beside the
/// checksums, and the next verification of the same checksums in the same folder goes on there.
class Verification {
 public:
  struct Progress {
    std::int64_t files = 0;
    std::int64_t filesAll = 0;
    /// Of what has to be read, as far as the listing tells.
    std::int64_t bytes = 0;
    std::int64_t bytesAll = 0;
  };
  struct Parts {
    QString listing;
    /// Empty for the one that was listed.
    QString folder = {};
    QLocale locale = {};
    /// Earlier notes do not count.
    bool beginsAgain = false;
    /// Asked often.
    StopAsked stop = [] { return false; };
    std::function<void(const Progress&)> progress = [](const Progress&) {};
    /// After so many bytes it is noted how far it has come, in case there is no end.
    std::int64_t bytesBetweenNotes = std::int64_t{1} << 30;
  };

  explicit Verification(Parts parts) : parts_(std::move(parts)) {}

  /// To be called once. False where it was stopped. Throws RuntimeFault where the checksums, the listing or
  /// the folder cannot be read, or the notes not be written.
  bool run();

  /// The folder that is read.
  const QString& folder() const { return notes_.folder; }
  /// Files that were judged before this run.
  std::int64_t filesBefore() const { return filesBefore_; }
  /// All but those that are fine: those of the checksums in their order, then those that were added.
  const std::vector<FileFinding>& findings() const { return notes_.findings; }
  std::int64_t count(FileVerdict verdict) const;
  /// False where the listing was made after the checksums: it does not tell which files were changed between
  /// the two, so none is called rotten, and all are read.
  bool isOfListing() const { return isOfListing_; }
  /// Lines of the checksums that say nothing.
  std::int64_t notUnderstood() const { return manifest_.notUnderstood(); }

 private:
  bool prepare();
  void chooseFolder();
  void goOnFromNotes();
  bool judgeAll();
  FileFinding judge(const FileChecksum& file);
  FileVerdict verdictOf(const FileChecksum& file, const FileBelow& now);
  void addNewFiles();
  std::int64_t bytesToRead(const FileChecksum& file) const;
  std::optional<ListedFacts::Facts> factsOf(const FileChecksum& file) const;

  Parts parts_;
  ChecksumManifest manifest_;
  ListedFacts facts_;
  FilesBelow below_;
  std::unordered_map<std::string_view, const FileBelow*> belowByPath_;
  VerificationNotes notes_;
  Progress progress_;
  std::int64_t filesBefore_ = 0;
  bool isOfListing_ = true;
};

}  // namespace quorvin
