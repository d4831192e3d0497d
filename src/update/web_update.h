// SPDX-License-Identifier: GPL-2.0-or-later

// The archive of the main data file: getting a newer one from a web server, and unpacking it.
#pragma once

#include "dates/general_date.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "state/protected_files.h"
#include "update/http_transfer.h"
#include "work/work.h"

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// One web update, which is a job of the kind Update. It runs in the window's thread, inside
/// WebUpdate_Click(), and lets window events run meanwhile.
class WebUpdate {
 public:
  /// What enables or disables the `WebUpdate` button.
  using EnableCommand = std::function<void(bool enabled)>;

  /// All but `places` must outlive the object; `locale` is the one in which dates are read.
  WebUpdate(const ProgramState& state, Job& job, MessageBoxes& boxes, HttpTransfer& web,
            const QLocale& locale, EnableCommand enableCommand, OwnPlaces places);

  /// Asks `WebServer` for the date of `ArchiveFile` and, when it is newer than the copy in `LocalFolder` and
  /// the user agrees, downloads it over that copy and unpacks it. `WebUpdate` is disabled meanwhile. After a
  /// cancelled download `WebUpdate` stays disabled, and what has been written of the archive is deleted; an
  /// earlier copy stays when the download was cancelled before anything was written over it. Whatever fails
  /// is reported as "NUMBER: Could not get an update."; what has been written of the archive then stays, and
  /// so does `Progress`. The earlier archive is written over from its start and not cut: the rest of a longer
  /// one stays behind the new one. An archive that was not unpacked whole dates from 1980, so that the next
  /// update is offered again. ProtectedFiles are left out, which is reported. To be called once.
  void WebUpdate_Click();

 private:
  /// Whether the click handler goes on with the next step, ends, or ends with the command left disabled.
  enum class Step { GoOn, Done, Cancelled };

  Step run();
  /// Asks for the headers, then the user whether an update is wanted.
  Step check();
  Step download();
  Step receive(QByteArray next);
  void unpackReceived();
  void unpack();
  Step cancelDownload();

  bool waitForHeaders();
  std::optional<QByteArray> nextChunk();
  void count(qsizetype bytes);
  DateValue localDate() const;
  QString archivePath() const;

  const ProgramState& state_;
  Job& job_;
  WorkDisplay& display_;
  MessageBoxes& boxes_;
  HttpTransfer& web_;
  QLocale locale_;
  EnableCommand enableCommand_;
  OwnPlaces places_;

  // The settings may change meanwhile.
  QString archiveFile_;
  QString localFolder_;
  QUrl address_;
  std::int32_t remoteSize_ = 0;
  std::int32_t bytesCounted_ = 0;
  /// The length of the new archive; what follows it in the file is left of the earlier one.
  std::int64_t archiveLength_ = 0;
  /// When its last byte had come.
  QDateTime received_;
  /// The file is no earlier archive any more: it was made for this one, or has been written over.
  bool isPartial_ = false;
};

/// Unpacks the archive of the main data file at start-up, as a job of the kind Extraction, which is shown
/// meanwhile: every entry of the archive at `archivePath` into `targetFolder` (which ends in a separator),
/// replacing files of the same names, but for `files`; those that are left out are reported. What is wrong
/// with the archive is shown in a message box before fault 75 is thrown; a file that cannot be written is a
/// fault as unpackArchive() throws it. The user may cancel; that is no fault.
void extractDataFile(Job& job, const QString& archivePath, const QString& targetFolder, MessageBoxes& boxes,
                     const ProtectedFiles& files);

}  // namespace quorvin
