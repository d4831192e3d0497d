// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_text.h"

#include "state/search_history.h"
#include "texts/texts.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionFrame>

#include <algorithm>

namespace quorvin {

namespace {

/// Longer texts are cut in the menu.
constexpr int kWidestItemInCharacters = 80;
constexpr int kInsideFrame = 2;
constexpr int kMostEdits = 1000;

}  // namespace

SearchTextEdit::SearchTextEdit(QWidget* parent)
    : QLineEdit(parent), button_(new QToolButton(this)), menu_(new QMenu(this)) {
  button_->setObjectName(QStringLiteral("SearchHistoryButton"));
  button_->setAccessibleName(Texts::tr("Earlier searches"));
  button_->setToolTip(Texts::tr("Earlier searches (Down)"));
  button_->setArrowType(Qt::DownArrow);
  button_->setAutoRaise(true);
  button_->setCursor(Qt::ArrowCursor);
  // The keyboard has Down, and the order of the controls stays as it is.
  button_->setFocusPolicy(Qt::NoFocus);
  button_->hide();
  menu_->setObjectName(QStringLiteral("SearchHistory"));
  menu_->setAccessibleName(Texts::tr("Earlier searches"));
  connect(button_, &QToolButton::clicked, this, &SearchTextEdit::showHistory);
  connect(this, &QLineEdit::textEdited, this, &SearchTextEdit::forgetOldEdits);
  connect(this, &QLineEdit::textChanged, this, &SearchTextEdit::describeCompletion);
  connect(this, &QLineEdit::cursorPositionChanged, this, &SearchTextEdit::describeCompletion);
}

void SearchTextEdit::setEdgeMargin(int pixels) {
  edgeMargin_ = pixels;
  placeButton();
  update();
}

void SearchTextEdit::setHistory(const QStringList& texts) {
  history_ = texts;
  button_->setVisible(!texts.isEmpty());
  placeButton();
  update();
}

QString SearchTextEdit::completion() const {
  const bool isAtEnd = cursorPosition() == text().size() && !hasSelectedText();
  if (!hasFocus() || !isAtEnd || isComposing_ || isRightToLeft() || text().isRightToLeft()) return {};
  return completionOf(history_, text()).mid(text().size());
}

void SearchTextEdit::describeCompletion() {
  const QString rest = completion();
  setAccessibleDescription(rest.isEmpty() ? QString() : Texts::tr("Right adds \"%1\"").arg(rest));
}

void SearchTextEdit::forgetOldEdits() {
  if (++edits_ <= kMostEdits || isComposing_) return;
  edits_ = 0;
  const int cursor = cursorPosition();
  const QSignalBlocker nothingChanges(this);
  setText(text());
  setCursorPosition(cursor);
}

void SearchTextEdit::showHistory() {
  if (history_.isEmpty()) return;
  menu_->clear();
  const int widest = fontMetrics().averageCharWidth() * kWidestItemInCharacters;
  for (const QString& text : history_) {
    QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, widest);
    QAction* item = menu_->addAction(shown.replace(u'&', QStringLiteral("&&")));
    connect(item, &QAction::triggered, this, [this, text] { take(text); });
  }
  menu_->setMinimumWidth(std::max(0, frameRect().width()));
  menu_->setActiveAction(menu_->actions().constFirst());
  menu_->popup(mapToGlobal(rect().bottomLeft()));
}

void SearchTextEdit::take(const QString& text) {
  setFocus();
  setText(text);
  Q_EMIT textEdited(text);
}

void SearchTextEdit::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (isPlain && event->key() == Qt::Key_Down) return showHistory();
  const bool takes = isPlain && (event->key() == Qt::Key_Right || event->key() == Qt::Key_End);
  const QString rest = takes ? completion() : QString();
  // As it was written then.
  if (!rest.isEmpty()) return take(completionOf(history_, text()));
  QLineEdit::keyPressEvent(event);
}

void SearchTextEdit::inputMethodEvent(QInputMethodEvent* event) {
  isComposing_ = !event->preeditString().isEmpty();
  QLineEdit::inputMethodEvent(event);
}

void SearchTextEdit::initStyleOption(QStyleOptionFrame* option) const {
  QLineEdit::initStyleOption(option);
  if (option) option->rect = frameRect();
}

void SearchTextEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  const QString rest = completion();
  if (rest.isEmpty()) return;
  const QRect cursor = cursorRect();
  const int end = (button_->isHidden() ? frameRect().right() : button_->x()) - kInsideFrame;
  // Behind the cursor, which must stay visible.
  const int start = cursor.center().x() + kInsideFrame;
  const QRect place(start, cursor.y(), std::max(0, end - start), cursor.height());
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                   fontMetrics().elidedText(rest, Qt::ElideRight, place.width()));
}

void SearchTextEdit::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  placeButton();
}

void SearchTextEdit::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::LayoutDirectionChange) placeButton();
}

void SearchTextEdit::placeButton() {
  const QRect frame = frameRect();
  const int side = std::max(0, frame.height() - 2 * kInsideFrame);
  const bool isLeft = isRightToLeft();
  const int room = button_->isHidden() ? 0 : side;
  setTextMargins(isLeft ? room : 0, 0, isLeft ? 0 : room, 0);
  const int left = isLeft ? frame.left() + kInsideFrame : frame.right() + 1 - kInsideFrame - side;
  button_->setGeometry(left, frame.top() + kInsideFrame, side, side);
}

}  // namespace quorvin
