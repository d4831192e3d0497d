// SPDX-License-Identifier: GPL-2.0-or-later

// The user's own notes on volumes, such as where a disk is kept. Their file: docs/formats/volume-notes.md.
#pragma once

#include "state/program_state.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>
#include <utility>

namespace quorvin {

/// The notes of one data folder. A volume is known by the path of its listing and its name as listed. Window
/// and console may change notes at the same time: a change is made of what the file holds at that moment.
/// For one thread, which may be any.
class VolumeNotes {
 public:
  /// The file's name in the data folder.
  static constexpr char16_t kFileName[] = u"volumes.notes";
  /// So many characters at most.
  static constexpr qsizetype kLongestNote = 1000;

  /// `dataFolder` ends with a separator. Nothing is read yet.
  explicit VolumeNotes(QString dataFolder);

  /// Reads the file if it is not the one that was read last. Without a file there are no notes. Throws
  /// RuntimeFault where it is there and cannot be read; what was known before stays.
  void refresh();

  /// Empty for none.
  QString of(const QString& listing, const QString& volume) const;

  /// Puts `note`, as cleanNote() has it, in the place of the volume's note; an empty one takes it away. Waits
  /// for other programs that are at the same. Throws RuntimeFault: 5 for a note that is too long, 75 when
  /// another program has the file for seconds, others when it cannot be read or replaced; what the file held
  /// then stays.
  void set(const QString& listing, const QString& volume, const QString& note);

  /// `note` as one line without blanks at its ends: each control character is a blank.
  static QString cleanNote(const QString& note);

 private:
  /// A listing as the file names it, and a volume.
  using Key = std::pair<QString, QString>;

  Key keyOf(const QString& listing, const QString& volume) const;
  void take(const QByteArray& content);

  QString dataFolder_;
  QString path_;
  /// When the file that was read last was written, and how long it is; nothing for no file.
  std::optional<std::pair<std::int64_t, std::int64_t>> read_;
  QHash<Key, QString> notes_;
};

/// The notes of the data folder that a state has at the moment, for those who only show them.
class NotesAtHand {
 public:
  /// `state` must outlive the object.
  explicit NotesAtHand(const ProgramState& state) : state_(state) {}

  /// As the file is now; empty for none, and where it cannot be read.
  QString of(const QString& listing, const QString& volume);

 private:
  const ProgramState& state_;
  QString dataFolder_;
  std::optional<VolumeNotes> notes_;
};

}  // namespace quorvin
