// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/job_window.h"

#include "catalogue/job_controls.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace quorvin {

namespace {

bool hasRowsBelow(const QModelIndex& index) {
  return index.model()->hasChildren(index.siblingAtColumn(0));
}

}  // namespace

JobWindow::JobWindow(const QString& startCaption, const QString& closeCaption, QThreadPool& threads,
                     QWidget* owner)
    : QDialog(owner),
      threads_(threads),
      startCaption_(startCaption),
      status_(new QLabel),
      start_(makeStartButton(startCaption)),
      close_(new QPushButton(closeCaption)) {
  close_->setObjectName(QStringLiteral("close"));
  status_->setObjectName(QStringLiteral("Status"));
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  close_->setAutoDefault(false);
  connect(start_, &QPushButton::clicked, this, &JobWindow::Start_Click);
  connect(close_, &QPushButton::clicked, this, &JobWindow::reject);
  connect(&watch_, &QTimer::timeout, this, &JobWindow::look);
}

JobWindow::~JobWindow() {
  letGo();
}

void JobWindow::layOut(QLayout* fields, QTreeView* list, int characters) {
  list_ = list;
  list_->setObjectName(QStringLiteral("Rows"));
  list_->installEventFilter(this);
  connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
    // Others unfold by themselves.
    if (!hasRowsBelow(index)) openRow(index);
  });
  layOut(fields, static_cast<QWidget*>(list), characters);
}

void JobWindow::layOut(QLayout* fields, QWidget* view, int characters) {
  auto* buttons = new QDialogButtonBox;
  buttons->addButton(start_, QDialogButtonBox::ActionRole);
  buttons->addButton(close_, QDialogButtonBox::RejectRole);
  auto* all = new QVBoxLayout(this);
  all->addLayout(fields);
  all->addWidget(view, 1);
  all->addWidget(status_);
  all->addWidget(buttons);
  // Only now does the window know it, and makes it the default again when another button loses the focus.
  start_->setDefault(true);
  sizeForRows(*this, characters);
}

void JobWindow::Start_Click() {
  if (!job_) {
    start();
    return;
  }
  letGo();
  setStatus(stoppedText());
}

void JobWindow::startJob(std::shared_ptr<CatalogueJob> job) {
  job_ = std::move(job);
  threads_.start([running = job_] { running->run(); });
  start_->setText(stopCaption());
  setStatus(progressText());
  watch_.start(kBetweenLooks);
}

void JobWindow::letGo() {
  watch_.stop();
  if (job_) job_->stop();
  job_.reset();
  start_->setText(startCaption_);
}

void JobWindow::look() {
  if (!job_->hasEnded()) {
    setStatus(progressText());
    return;
  }
  const std::shared_ptr<CatalogueJob> job = job_;
  letGo();
  jobEnded(job);
}

bool JobWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  return takeKey(static_cast<const QKeyEvent&>(*event)) || QDialog::eventFilter(watched, event);
}

/// Keys of the list. Enter must not go on to the default button, which would start all over.
bool JobWindow::takeKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Copy)) {
    copySelectedRows(*list_);
    return true;
  }
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  // An editor in the list has done with it what it means there.
  if (isEnter && !list_->hasFocus()) return true;
  const QModelIndex current = list_->currentIndex();
  if (!isEnter || !current.isValid()) return false;
  const QModelIndex row = current.siblingAtColumn(0);
  if (hasRowsBelow(row)) {
    list_->setExpanded(row, !list_->isExpanded(row));
  } else {
    openRow(row);
  }
  return true;
}

void JobWindow::done(int result) {
  letGo();
  QDialog::done(result);
}

}  // namespace quorvin
