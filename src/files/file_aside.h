// SPDX-License-Identifier: GPL-2.0-or-later

// Replacing a file as a whole. Everything in the program that makes or replaces a file does it in this way;
// the one exception is OverwrittenFile.
#pragma once

#include "files/descriptor.h"
#include "files/file_writer.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvin {

/// What has to outlive a machine that fails: the power goes, or the system stops.
enum class Durability : std::uint8_t {
  /// Nothing: what is at the place afterwards may be short. For what the program can make again.
  None,
  /// The old file or the new one, whole.
  OldOrNew,
  /// The same, and once commit() has returned it is the new one.
  New,
};

struct AsideOptions {
  Durability durability = Durability::OldOrNew;
  /// Where a link is at the place, the file that it leads to is replaced, not the link.
  bool followsLink = false;
  /// False for a file that replaces nothing and so takes over no rights: it is put in place with
  /// commitUnlessTaken().
  bool mayReplace = true;
  /// The name in the folder of the place under which the file is written, where the rules give it one. A file
  /// of that name is removed first. Such a file stays without commit(); errors in writing it name it.
  QString nameAside = {};
  /// Stands for the place in messages; empty for the path itself.
  QString shownPath = {};
};

/// A file that is written beside its place and gets its name in one step when it is whole.
///
/// It is always a new file (inode): nothing that has the same content under another name changes, and nobody
/// can lead the writing elsewhere by a link. It takes over the rights to read and write of a file that it
/// replaces and, where the system allows, its owner and group; the right to execute is never handed on. What
/// replaces nothing has the rights that the user's umask leaves. A folder is never replaced.
///
/// What is there when the program is killed, or a step fails, at each moment:
///   made, partly written, written  - the old file at the place, and a part of the new one beside it;
///   synced                         - the old file at the place, and the whole new one beside it, which also
///                                    outlives a failing machine;
///   renamed                        - the new file at the place, nothing beside it;
///   folder synced                  - the same, also when the machine fails.
/// The object holds the file, also in its place, until it is destroyed or its program ends: see isHeld().
/// After a failed step the file beside the place vanishes with the object. A killed program leaves it behind;
/// removeLeftovers() finds it.
class FileAside {
 public:
  /// Starts the file that is going to stand at `path`; its folder must exist. Throws RuntimeFault as
  /// faultOfSystemError maps the error: 53 without the folder, 52 for a path with a NUL, 75 for a path that
  /// ends in no name.
  explicit FileAside(const QString& path, const AsideOptions& options = {});
  /// Starts the file that is going to stand under `name` in an open folder, whatever the path to that folder
  /// leads to meanwhile. `folderPath` is that path, with a separator at its end. Links are not followed.
  FileAside(Descriptor folder, const QString& folderPath, const QString& name,
            const AsideOptions& options = {});
  ~FileAside();
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  /// Writes from front to back through a buffer. Its errors are those of FileWriter.
  FileWriter& writer() { return *writer_; }
  void write(std::string_view bytes) { writer_->write(bytes); }
  /// Writes at any place, past the buffer. Throws as FileWriter::write does.
  void writeAt(std::int64_t position, std::string_view bytes);

  /// Brings everything that was written into the file, so that it can be read under path(). Throws as
  /// FileWriter::write does.
  void finish();
  /// Where the file is until it is put in place.
  QString path() const;

  /// Puts the file in place, in one step, after finish(). Throws RuntimeFault: what is at the place then
  /// stays. Only when it is the last step that fails, with Durability::New, is the new file in place already.
  void commit();
  /// Puts the file in place under `name` in the folder of the place, unless that name is taken: false then,
  /// and another may be tried. Throws as commit() does.
  bool commitUnlessTaken(const QString& name);
  /// Gives the file up and removes it, also one that stays otherwise.
  void discard();

 private:
  struct Place {
    Descriptor folder;
    QString folderPath;
    QByteArray name;
    QString shownPath;
  };
  FileAside(Place place, const AsideOptions& options);
  static Place placeOf(const QString& path, const AsideOptions& options);

  void start();
  void make();
  bool tryToMake(const QByteArray& name);
  void lookAtPlace();
  void takeOverRights();
  void bringFolderToMedium() const;
  QString shownWhileWritten() const;
  [[noreturn]] void failWriting(int errorNumber) const;
  [[noreturn]] void fail(int errorNumber) const;

  Place place_;
  AsideOptions options_;
  QByteArray nameAside_;
  Descriptor file_;
  std::optional<FileWriter> writer_;
  /// The file that is replaced, as it was when it was last looked at.
  struct Replaced {
    std::uint32_t rights = 0;
    std::uint32_t user = 0;
    std::uint32_t group = 0;
  };
  std::optional<Replaced> replaced_;
  bool isFinished_ = false;
  /// Whether the name aside is this file's and to be removed.
  bool vanishes_ = false;
};

/// Replaces the file of the user's at `path`, or the one that it is a link to, by one that holds `contents`;
/// its folder must exist. Durability::New. A file that is protected from writing is not replaced. Throws
/// RuntimeFault when anything fails: 70 for a protected file or folder, 75 for anything else than a file in
/// its place (a folder, a pipe) or when its own folder is not there, and others as FileAside does; what was
/// there stays.
void replaceFile(const QString& path, QByteArrayView contents);

/// The paths of the files aside in `folder`, those that are being written and those of killed programs. Files
/// with a nameAside are not among them. None where the folder cannot be read.
QStringList filesAside(const QString& folder);

/// Whether the program that made the file at `path`, one of filesAside(), does not run any more: none of this
/// machine's processes has its number, and nobody holds the lock on the file. False in doubt, as on a network
/// drive without locks, where it may be another machine's.
bool isOfDeadProcess(const QString& path);

/// Whether a running program holds the file at `path`: it has put it there with a FileAside that it has not
/// destroyed yet. True in doubt, as on a network drive without locks.
bool isHeld(const QString& path);

/// Removes the files aside in `folder` whose program does not run any more, and those that nobody holds and
/// to which nobody has written for a day. Errors are passed over: the next call may have more luck.
void removeLeftovers(const QString& folder);

/// Removes what earlier versions left beside the file at `path` when they were killed while they replaced it:
/// its name, a dot and six random letters. Only those to which nobody has written for a day, since they do
/// not say whose they are. Errors are passed over.
void removeEarlierLeftovers(const QString& path);

}  // namespace quorvin
