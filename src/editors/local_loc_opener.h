// The two ways to open the source editor.
#pragma once

#include "editors/local_loc.h"

#include <QPointer>

namespace quorvin {

/// What the main window's menu items `AddLocal` and `EditOffline` do. Lives as long as the main window, which
/// owns the dialogs that it opens.
class LocalLocOpener {
 public:
  LocalLocOpener(const SourceEditing& editing, QWidget* owner);

  /// Edits the online sources, with both menu items disabled meanwhile. Returns when the dialog has been
  /// closed and the rescan, if one was wanted, has ended.
  void AddLocal_Click();

  /// Edits the offline sources. Returns when the dialog has been closed.
  void EditOffline_Click();

  /// Closes the dialog if one is open, without saving. The call that opened it returns once its own events
  /// have ended.
  void unload();

  /// The mode of the last opening; empty before the first.
  const QString& LocMode() const { return LocMode_; }

 private:
  void showModally(LocalLoc& dialog);
  void arrangeForOffline(LocalLoc& dialog);

  SourceEditing editing_;
  QWidget* owner_;
  QString LocMode_;
  QPointer<LocalLoc> shown_;
};

}  // namespace quorvin
