#include "peers/client/peer_progress.h"

#include "platform/text_direction.h"

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
  bar->setAccessibleName(QStringLiteral("Progress"));
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
      cancelButton_(new QPushButton(QStringLiteral("Cancel"))) {
  setObjectName(QStringLiteral("PeerProgress"));
  setWindowTitle(QStringLiteral("Getting Lists"));
  connect(cancelButton_, &QPushButton::clicked, this, &PeerProgress::cancelled);
  layOutProgress(*this, {peer_, list_, makeMovingBar()}, *bytes_, *cancelButton_, kWidthInCharacters);
}

void PeerProgress::begin(const QString& peer) {
  peer_->setText(QStringLiteral("Peer: ") + peer);
  list_->setText(QStringLiteral("Connecting..."));
  bytes_->clear();
  show();
}

void PeerProgress::showFigures(const PeerFigures& figures) {
  if (figures.listNumber == 0) {
    list_->setText(QStringLiteral("Asking for the lists..."));
    return;
  }
  list_->setText(QStringLiteral("List %1 of %2: ").arg(figures.listNumber).arg(figures.listCount) +
                 figures.list);
  bytes_->setText(
      englishWithin(layoutDirection(), locale_.toString(figures.bytes) + QStringLiteral(" bytes")));
}

void PeerProgress::reject() {
  cancelButton_->click();
}

void PeerProgress::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

}  // namespace quorvin
