// The web update: asking a web server for a newer archive of the main data file, downloading and unpacking
// it.
#pragma once

#include "files/file_writer.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "update/http_transfer.h"
#include "work/archive_view.h"

#include <QLocale>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <optional>

namespace quorvin {

/// What the update shows besides the `Progress` window.
class WebUpdateView : public ArchiveView {
 public:
  /// Enables or disables the `WebUpdate` button.
  virtual void setWebUpdateEnabled(bool enabled) = 0;
  /// Tells by the mouse pointer that the program works, or does not any more.
  virtual void setBusyPointer(bool busy) = 0;
  /// Waits until there are window events, and lets them run.
  virtual void waitForEvents() = 0;
  /// The update has failed and leaves `Progress` standing: from now on the user can close it.
  virtual void leaveProgress() = 0;
};

/// Runs in the window's thread, inside WebUpdate_Click(), and lets window events run meanwhile.
class WebUpdate {
 public:
  /// All must outlive the object; `locale` is the one in which dates are read.
  WebUpdate(ProgramState& state, WebUpdateView& view, MessageBoxes& boxes, HttpTransfer& web,
            const QLocale& locale);

  /// Asks `WebServer` for the date of `ArchiveFile` and, when it is newer than the copy in `LocalFolder` and
  /// the user agrees, downloads it over that copy and unpacks it. `WebUpdate` is disabled meanwhile. After a
  /// cancelled download the copy is deleted and `WebUpdate` stays disabled. Whatever fails is reported as
  /// "NUMBER: Could not get an update."; what has been written of the archive then stays, and so does
  /// `Progress`. The earlier archive is written over from its start and not cut: the rest of a longer one
  /// stays behind the new one.
  void WebUpdate_Click();

 private:
  /// Whether the click handler goes on with the next step, ends, or ends with the command left disabled.
  enum class Step { GoOn, Done, Cancelled };

  Step run();
  /// Asks for the headers and tells whether there is an update and the user wants it.
  Step check();
  Step download();
  Step receive(QByteArray next);
  void unpack();
  Step cancelDownload();

  bool waitForHeaders();
  std::optional<QByteArray> nextChunk();
  void count(qsizetype bytes);
  DateValue localDate() const;
  QString archivePath() const;
  bool isCancelled() const;
  bool isClosing() const;

  ProgramState& state_;
  WebUpdateView& view_;
  MessageBoxes& boxes_;
  HttpTransfer& web_;
  QLocale locale_;

  // Of the update that is running.
  QString archiveFile_;
  QString localFolder_;
  QUrl address_;
  std::int32_t remoteSize_ = 0;
  std::int32_t bytesCounted_ = 0;
  /// As long as the archive has become; what follows is of the earlier one.
  std::int64_t archiveLength_ = 0;
};

}  // namespace quorvin
