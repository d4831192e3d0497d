// SPDX-License-Identifier: GPL-2.0-or-later

// The box in which the search text is typed.
#pragma once

#include <QLineEdit>
#include <QMenu>
#include <QString>
#include <QStringList>
#include <QToolButton>

namespace quorvin {

/// A line edit that knows earlier texts. Down, or the small button at its end, shows them in a menu, and the
/// one that is chosen takes the place of the text. Behind the text that is being typed, the rest of the
/// newest one that begins with it is shown in a quiet colour; Right or End at the end of the text takes it.
/// Until then it is no part of the text, so that nobody searches for more than was typed; screen readers
/// find it in the description.
///
/// After a thousand changes of the text the next one starts undo anew: a line edit would remember each key of
/// a window that is open for months.
///
/// The frame is a little away from the control's right edge, so that the control itself can reach to the edge
/// of the window.
class SearchTextEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit SearchTextEdit(QWidget* parent);

  void setEdgeMargin(int pixels);

  /// The earlier texts, newest first.
  void setHistory(const QStringList& texts);
  /// What is shown behind the text now; may be empty.
  QString completion() const;
  /// Is empty until it is shown.
  QMenu* historyMenu() const { return menu_; }
  QToolButton* historyButton() const { return button_; }

  /// Shows the earlier texts below the box; does nothing where there are none.
  void showHistory();

 protected:
  void initStyleOption(QStyleOptionFrame* option) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Makes `text` the text as if it had been typed.
  void take(const QString& text);
  void describeCompletion();
  void forgetOldEdits();
  void placeButton();
  QRect frameRect() const { return rect().adjusted(0, 0, -edgeMargin_, 0); }

  int edgeMargin_ = 0;
  QStringList history_;
  QToolButton* button_;
  QMenu* menu_;
  /// An input method is in the middle of a character.
  bool isComposing_ = false;
  /// Since the line edit last forgot its undo history.
  int edits_ = 0;
};

}  // namespace quorvin
