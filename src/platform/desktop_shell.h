// SPDX-License-Identifier: GPL-2.0-or-later

// The shell of the desktop that the program runs on.
#pragma once

#include "platform/shell.h"

#include <QObject>

#include <functional>

namespace quorvin {

/// Opens by the desktop's file associations, shows files by its file manager over the session bus, and starts
/// players as processes of their own. Needs an application object with a window system.
class DesktopShell : public QObject, public Shell {
  Q_OBJECT

 public:
  /// `enqueueCommand` gives the user's setting each time that it is needed; empty text when there is none.
  explicit DesktopShell(std::function<QString()> enqueueCommand, QObject* parent = nullptr);

  void open(const QString& file, const QString& workingFolder) override;
  /// Where no file manager answers on the session bus, the folder itself is opened.
  void openFolder(const QString& folder, const QString& name) override;
  EnqueueOutcome enqueue(const QString& file, const QString& workingFolder) override;
  void notify(const QString& title, const QString& text) override;

 private:
  std::function<QString()> enqueueCommand_;
};

}  // namespace quorvin
