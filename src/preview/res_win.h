// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows results as text.
#pragma once

#include <QDialog>
#include <QString>

class QPlainTextEdit;

namespace quorvin {

/// The result window `ResWin`: a text to read and copy, and the button `close`, which hides the window, as
/// Esc does. So far only the refresh uses it, for its error log. It belongs beside the preview window all the
/// same: both show what they are given, whoever gives it.
class ResWin : public QDialog {
  Q_OBJECT

 public:
  explicit ResWin(QWidget* parent = nullptr);

  /// The lines of `text` end with CR LF or LF; there may be very many.
  void setText(const QString& text);

 private:
  void close_Click();

  QPlainTextEdit* text_;
};

}  // namespace quorvin
