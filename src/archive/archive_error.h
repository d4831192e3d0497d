// What can be wrong with an archive.
#pragma once

#include <QString>

#include <stdexcept>

namespace quorvin {

/// The kinds of trouble; the values are the codes that an error event carries.
enum class ArchiveErrorCode : int {
  CannotRead = 1,
  NotAnArchive = 2,
  Contradictory = 3,
  DuplicateName = 4,
  BadName = 5,
  NotAFile = 6,
  Encrypted = 7,
  UnknownMethod = 8,
  TooManyEntries = 9,
  TooLarge = 10,
  TooDeep = 11,
  Overlapping = 12,
  DamagedEntry = 13,
};

/// Thrown where an archive, or an entry of it, is not to be unpacked. `description` is one or two sentences
/// for the user and names the archive or the entry.
class ArchiveError : public std::runtime_error {
 public:
  ArchiveError(ArchiveErrorCode code, const QString& description)
      : std::runtime_error(description.toStdString()), code_(code), description_(description) {}

  ArchiveErrorCode code() const noexcept { return code_; }
  const QString& description() const noexcept { return description_; }

 private:
  ArchiveErrorCode code_;
  QString description_;
};

/// Thrown where looking at an archive was ended by the one who asked for it.
struct ArchiveStopped {};

/// A name from an archive as a message can show it: what cannot be printed is a "?", and the middle of a long
/// one is left out.
QString shownEntryName(const QString& name);

}  // namespace quorvin
