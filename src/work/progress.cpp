// SPDX-License-Identifier: GPL-2.0-or-later
#include "work/progress.h"

#include "platform/screen_room.h"
#include "platform/text_direction.h"
#include "texts/texts.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kWidthInCharacters = 72;
/// People see no more than some 60 pictures a second.
constexpr qint64 kMillisecondsBetweenShowings = 16;

QProgressBar* makeBar() {
  auto* bar = new QProgressBar;
  bar->setObjectName(QStringLiteral("bar"));
  bar->setAccessibleName(Texts::tr("Progress"));
  bar->setRange(0, kFullBar);
  bar->setValue(0);
  return bar;
}

}  // namespace

QSize MiddleElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

void MiddleElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                        palette(), isEnabled(), shown, foregroundRole());
}

void layOutProgress(QDialog& dialog, const QList<QWidget*>& rows, QLabel& detail, QPushButton& cancel,
                    int characters) {
  dialog.setAttribute(Qt::WA_ShowWithoutActivating);
  // Of a size that never changes: no button to make it larger.
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint);
  detail.setTextFormat(Qt::PlainText);
  detail.setForegroundRole(QPalette::PlaceholderText);
  cancel.setObjectName(QStringLiteral("CancelButton"));

  auto* lastRow = new QHBoxLayout;
  lastRow->addWidget(&detail, 1);
  lastRow->addWidget(&cancel);
  auto* layout = new QVBoxLayout(&dialog);
  for (QWidget* row : rows) layout->addWidget(row);
  layout->addLayout(lastRow);
  // The texts change all the time; the window must not change with them.
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  const int width =
      std::min(dialog.fontMetrics().averageCharWidth() * characters, largestInside(*dialog.screen()).width());
  dialog.setFixedSize(width, layout->sizeHint().height());
}

Progress::Progress(ProgramState& state, QWidget* parent)
    : QDialog(parent),
      state_(state),
      status_(new MiddleElidedLabel),
      detail_(new QLabel),
      bar_(makeBar()),
      cancelButton_(new QPushButton(Texts::tr("Cancel"))) {
  setObjectName(QStringLiteral("Progress"));
  setWindowTitle(Texts::tr("Progress"));
  status_->setObjectName(QStringLiteral("Status"));
  status_->setTextFormat(Qt::PlainText);
  detail_->setObjectName(QStringLiteral("Detail"));
  connect(cancelButton_, &QPushButton::clicked, this, &Progress::CancelButton_Click);
  layOutProgress(*this, {status_, bar_}, *detail_, *cancelButton_, kWidthInCharacters);
}

void Progress::begin() {
  isCancelled_ = false;
  isLeft_ = false;
  enableCancelButton();
  setDetail({});
  maximum_ = kFullBar;
  setBar(0);
  sinceDue_.invalidate();
  show();
}

void Progress::setStatus(const QString& text) {
  status_->setText(text);
}

void Progress::setDetail(const QString& text) {
  detailText_ = text;
  showDetail();
}

void Progress::showDetail() {
  const QString stopping = Texts::tr("Stopping...");
  QString shown = detailText_;
  if (isCancelled_) shown = detailText_.isEmpty() ? stopping : stopping + u' ' + detailText_;
  detail_->setText(englishWithin(layoutDirection(), shown));
}

void Progress::setBar(std::int32_t value) {
  const std::int64_t percent = maximum_ > 0 ? std::int64_t{value} * kFullBar / maximum_ : 0;
  bar_->setRange(0, kFullBar);
  bar_->setValue(static_cast<int>(std::clamp<std::int64_t>(percent, 0, kFullBar)));
}

void Progress::setBusy() {
  bar_->setRange(0, 0);
}

/// Whoever else has set a pointer keeps it.
void Progress::setBusyPointer(bool busy) {
  if (std::exchange(isPointerBusy_, busy) == busy) return;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

bool Progress::isDue() {
  if (sinceDue_.isValid() && !sinceDue_.hasExpired(kMillisecondsBetweenShowings)) return false;
  sinceDue_.start();
  return true;
}

void Progress::processEvents() {
  QCoreApplication::processEvents();
}

void Progress::waitForEvents() {
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Progress::leaveStanding() {
  isLeft_ = true;
  isCancelled_ = false;
  enableCancelButton();
  showDetail();
}

/// While it was disabled, nothing in the window had the keyboard.
void Progress::enableCancelButton() {
  cancelButton_->setEnabled(true);
  cancelButton_->setFocus();
}

void Progress::CancelButton_Click() {
  if (isLeft_) {
    hide();
    return;
  }
  state_.AbortRequested = true;
  isCancelled_ = true;
  cancelButton_->setEnabled(false);
  showDetail();
}

void Progress::reject() {
  if (cancelButton_->isEnabled()) cancelButton_->click();
}

void Progress::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

}  // namespace quorvin
