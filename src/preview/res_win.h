// The window that shows results as text.
#pragma once

#include <QDialog>
#include <QString>

class QPlainTextEdit;

namespace quorvin {

/// The result window `ResWin`: a text to read and copy, and the button `close`, which hides it, as Esc does.
class ResWin : public QDialog {
  Q_OBJECT

 public:
  explicit ResWin(QWidget* parent = nullptr);

  /// `text` has lines ended by CR LF or LF; there may be very many.
  void setText(const QString& text);

 private:
  void close_Click();

  QPlainTextEdit* text_;
};

}  // namespace quorvin
