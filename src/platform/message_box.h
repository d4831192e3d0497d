// SPDX-License-Identifier: GPL-2.0-or-later

// Asking and telling the user, without knowing how: the window shows boxes, the console writes lines, a test
// records.
#pragma once

#include <QString>

namespace quorvin {

/// How the user answered a fault in a long piece of work. Closed is any other way out of the box.
enum class FaultAnswer { Abort, Retry, Ignore, Closed };

/// The message boxes of the program. All carry the application title.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows `text` with an OK button only and returns when the user has confirmed it.
  virtual void inform(const QString& text) = 0;

  /// The same for a text that may be one of very many: false when the user wants to see no more of its kind.
  virtual bool informOneOfMany(const QString& text) {
    inform(text);
    return true;
  }

  /// Shows `text` with a Yes and a No button; true for Yes.
  virtual bool askYesNo(const QString& text) = 0;

  /// Shows `text` with an Abort, a Retry and an Ignore button.
  virtual FaultAnswer askAbortRetryIgnore(const QString& text) = 0;
};

}  // namespace quorvin
