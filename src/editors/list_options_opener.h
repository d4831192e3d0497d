// Opening the options dialog.
#pragma once

#include "editors/list_options.h"

#include <QPointer>

namespace quorvin {

/// What the main window's menu item `OptionsMenu` does. Lives as long as the main window, which owns the
/// dialogs that it opens.
class ListOptionsOpener {
 public:
  ListOptionsOpener(const OptionsEditing& editing, QWidget* owner);

  /// Shows the dialog modally; returns when it has been closed.
  void OptionsMenu_Click();

  /// Closes the dialog if it is open, without storing.
  void unload();

 private:
  OptionsEditing editing_;
  QWidget* owner_;
  QPointer<ListOptions> shown_;
};

}  // namespace quorvin
