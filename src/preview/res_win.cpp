// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/res_win.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kWidthInCharacters = 120;
constexpr int kHeightInLines = 26;

QPlainTextEdit* makeText() {
  auto* text = new QPlainTextEdit;
  text->setObjectName(QStringLiteral("ResultText"));
  text->setAccessibleName(Texts::tr("Results"));
  text->setReadOnly(true);
  // A read-only text can be walked through and copied with the keyboard, too.
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // Each line says at its end what happened, after a path of any length.
  text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  text->setTabChangesFocus(true);
  text->verticalScrollBar()->setAccessibleName(Texts::tr("Scroll the results down"));
  text->horizontalScrollBar()->setAccessibleName(Texts::tr("Scroll the results sideways"));
  return text;
}

}  // namespace

ResWin::ResWin(QWidget* parent) : QDialog(parent), text_(makeText()) {
  setObjectName(QStringLiteral("ResWin"));
  setWindowTitle(Texts::tr("Results"));
  auto* buttons = new QDialogButtonBox;
  QPushButton* close = buttons->addButton(Texts::tr("&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("close"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &ResWin::close_Click);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(text_);
  rows->addWidget(buttons);
  // The window comes up unasked, perhaps while somebody types: a blank must not close it.
  text_->setFocus();
  const QSize wanted(fontMetrics().averageCharWidth() * kWidthInCharacters,
                     fontMetrics().lineSpacing() * kHeightInLines);
  resize(wanted.boundedTo(largestInside(*screen())));
}

void ResWin::setText(const QString& text) {
  text_->setPlainText(text);
}

void ResWin::close_Click() {
  hide();
}

}  // namespace quorvin
