#include "work/progress.h"

#include "work/archive_view.h"
#include "work/progress_layout.h"

#include <QCloseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kWidthInCharacters = 72;

QProgressBar* makeBar() {
  auto* bar = new QProgressBar;
  bar->setObjectName(QStringLiteral("bar"));
  bar->setAccessibleName(QStringLiteral("Progress"));
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

Progress::Progress(ProgramState& state, QWidget* parent)
    : QDialog(parent),
      state_(state),
      status_(new MiddleElidedLabel),
      detail_(new QLabel),
      bar_(makeBar()),
      cancelButton_(new QPushButton(QStringLiteral("Cancel"))) {
  setObjectName(QStringLiteral("Progress"));
  setWindowTitle(QStringLiteral("Progress"));
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
  setBar(0);
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
  const QString stopping = QStringLiteral("Stopping...");
  if (!isCancelled_) return detail_->setText(detailText_);
  detail_->setText(detailText_.isEmpty() ? stopping : stopping + u' ' + detailText_);
}

void Progress::setBar(int percent) {
  bar_->setRange(0, kFullBar);
  bar_->setValue(std::clamp(percent, 0, kFullBar));
}

void Progress::setBusy() {
  bar_->setRange(0, 0);
}

void Progress::leaveStanding() {
  isLeft_ = true;
  isCancelled_ = false;
  enableCancelButton();
  showDetail();
}

/// A button that was disabled has lost the keyboard to nobody.
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
