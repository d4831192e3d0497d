// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/client/peer_progress.h"

#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QCloseEvent>
#include <QProgressBar>

namespace quorvin {

namespace {

constexpr int kWidthInCharacters = 64;

template <typename Label>
Label* makeLabel(const QString& name) {
  auto* label = new Label;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// Nobody knows how much is still to come.
QProgressBar* makeMovingBar() {
  auto* bar = new QProgressBar;
  bar->setAccessibleName(Texts::tr("Progress"));
  bar->setRange(0, 0);
  return bar;
}

}  // namespace

PeerProgress::PeerProgress(const QLocale& locale, QWidget* parent)
    : QDialog(parent),
      locale_(locale),
      peer_(makeLabel<MiddleElidedLabel>(QStringLiteral("Peer"))),
      list_(makeLabel<MiddleElidedLabel>(QStringLiteral("List"))),
      bytes_(makeLabel<QLabel>(QStringLiteral("Bytes"))),
      cancelButton_(new QPushButton(Texts::tr("Cancel"))) {
  setObjectName(QStringLiteral("PeerProgress"));
  setWindowTitle(Texts::tr("Getting Lists"));
  connect(cancelButton_, &QPushButton::clicked, this, &PeerProgress::cancelled);
  layOutProgress(*this, {peer_, list_, makeMovingBar()}, *bytes_, *cancelButton_, kWidthInCharacters);
}

void PeerProgress::begin(const QString& peer) {
  peer_->setText(Texts::tr("Peer: %1").arg(peer));
  list_->setText(Texts::tr("Connecting..."));
  bytes_->clear();
  show();
}

void PeerProgress::showFigures(const PeerFigures& figures) {
  if (figures.listNumber == 0) {
    list_->setText(Texts::tr("Asking for the lists..."));
    return;
  }
  list_->setText(
      Texts::tr("List %1 of %2: %3")
          .arg(QString::number(figures.listNumber), QString::number(figures.listCount), figures.list));
  bytes_->setText(englishWithin(
      layoutDirection(),
      Texts::tr("%1 bytes", nullptr, Texts::plural(figures.bytes)).arg(locale_.toString(figures.bytes))));
}

void PeerProgress::reject() {
  cancelButton_->click();
}

void PeerProgress::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

}  // namespace quorvin
