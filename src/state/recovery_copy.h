// SPDX-License-Identifier: GPL-2.0-or-later

// What the user has changed since the program started, kept while it runs, so that a crash costs nothing.
#pragma once

#include "files/file_aside.h"
#include "platform/message_box.h"
#include "state/program_state.h"

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <memory>

namespace quorvin {

/// The recovery copy of a settings set: a file beside the settings with the source lists and settings that
/// the user has changed, and nothing without changes. Layout: docs/formats/recovery-copy.md. It stays when
/// the program ends in any other way than by close() with everything saved, and is offered at the next start.
/// As long as it lives, the object holds the file, so that another program with the same settings set neither
/// offers nor replaces it; that one has no copy then.
class RecoveryCopy {
 public:
  /// For the settings set that `state` names when the other functions are called. `settingsPath` is the
  /// settings file, whose folder is made when there is something to keep. `state` must outlive the object.
  RecoveryCopy(ProgramState& state, const QLocale& locale, const QString& settingsPath);

  /// To be called once start-up has read settings and lists; before, the other functions do nothing. Where an
  /// earlier run has left a copy that differs from what was read, asks whether to take it over. Yes puts it
  /// into the state, as if the user had made the changes again; No removes it. Where the program is closed
  /// before there is an answer, the copy stays.
  void offer(MessageBoxes& messages);

  /// Brings the copy up to date. Does nothing where nothing has changed since the last call. A copy that
  /// cannot be written is passed over: saving at the end reports what is wrong with the disk.
  void keep();

  /// The program is being closed: removes the copy where everything has been saved, and brings it up to date
  /// otherwise. What is changed later is not kept. A copy over which the user has not decided yet stays.
  void close(bool isSaved);

  /// Where the copy is.
  QString path() const;

 private:
  void takeOverIfWanted(MessageBoxes& messages);
  bool isAnothers() const;
  QByteArray changes() const;
  void write(const QByteArray& text);
  void remove();

  ProgramState& state_;
  QLocale locale_;
  QString settingsPath_;
  bool isReady_ = false;
  bool isClosed_ = false;
  QByteArray kept_;
  /// Holds the file that was written last.
  std::unique_ptr<FileAside> file_;
};

}  // namespace quorvin
