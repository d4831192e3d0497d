#include "help/frm_browser_find.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>

namespace quorvin {

namespace {

constexpr int kTextCharacters = 30;

QTextDocument::FindFlags direction(bool backwards) {
  return backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
}

}  // namespace

FindBar::FindBar(QTextBrowser& page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)), outcome_(new QLabel(this)) {
  setObjectName(QStringLiteral("FindBar"));
  text_->setObjectName(QStringLiteral("FindText"));
  text_->setAccessibleName(QStringLiteral("Find on this page"));
  text_->setClearButtonEnabled(true);
  if (auto* clear = text_->findChild<QToolButton*>()) clear->setAccessibleName(QStringLiteral("Clear"));
  text_->setMinimumWidth(fontMetrics().averageCharWidth() * kTextCharacters);
  text_->installEventFilter(this);
  outcome_->setObjectName(QStringLiteral("FindOutcome"));
  auto* label = new QLabel(QStringLiteral("Find on this &page:"), this);
  label->setBuddy(text_);

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 2, 4, 2);
  row->addWidget(label);
  row->addWidget(text_);
  QToolButton* previous = addButton(QStringLiteral("P&revious"), QStringLiteral("Previous place (Shift+F3)"));
  QToolButton* next = addButton(QStringLiteral("&Next"), QStringLiteral("Next place (F3)"));
  row->addWidget(previous);
  row->addWidget(next);
  row->addWidget(outcome_, 1);
  QToolButton* close = addButton(QStringLiteral("Close"), QStringLiteral("Close this row (Esc)"));
  row->addWidget(close);

  connect(text_, &QLineEdit::textEdited, this, &FindBar::findFromHere);
  connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
  connect(next, &QToolButton::clicked, this, &FindBar::findNext);
  connect(close, &QToolButton::clicked, this, &FindBar::dismiss);
  hide();
}

QToolButton* FindBar::addButton(const QString& caption, const QString& toolTip) {
  auto* button = new QToolButton(this);
  button->setText(caption);
  button->setToolTip(toolTip);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void FindBar::open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::dismiss() {
  hide();
  page_.setFocus();
}

void FindBar::findNext() {
  find(false);
}

void FindBar::findPrevious() {
  find(true);
}

/// A longer text may stand where the shorter one was found.
void FindBar::findFromHere() {
  QTextCursor cursor = page_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  page_.setTextCursor(cursor);
  find(false);
}

void FindBar::find(bool backwards) {
  outcome_->clear();
  if (text_->text().isEmpty()) return;
  if (page_.find(text_->text(), direction(backwards))) return;
  const QTextCursor before = page_.textCursor();
  page_.moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
  if (page_.find(text_->text(), direction(backwards))) {
    outcome_->setText(backwards ? QStringLiteral("Went on from the bottom")
                                : QStringLiteral("Went on from the top"));
    return;
  }
  page_.setTextCursor(before);
  outcome_->setText(QStringLiteral("Not on this page"));
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched != text_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
  find(key->modifiers().testFlag(Qt::ShiftModifier));
  return true;
}

}  // namespace quorvin
