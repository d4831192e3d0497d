// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_status.h"

#include "app/status_texts.h"
#include "texts/texts.h"

#include <QStatusBar>

namespace quorvin {

SearchFormStatus::SearchFormStatus(QMainWindow& window, const QLocale& locale)
    : locale_(locale), label_(new MiddleElidedLabel) {
  QStatusBar* bar = window.statusBar();
  bar->setObjectName(QStringLiteral("StatusLine"));
  bar->setAccessibleName(Texts::tr("Status"));
  bar->setSizeGripEnabled(false);
  label_->setObjectName(QStringLiteral("StatusText"));
  label_->setTextFormat(Qt::PlainText);
  // As far from the edge as the texts above it.
  label_->setContentsMargins(label_->fontMetrics().height() / 2, 0, label_->fontMetrics().height() / 2, 0);
  bar->addWidget(label_, 1);
}

void SearchFormStatus::runStarted() {
  run_.clear();
  note_.clear();
  show();
}

void SearchFormStatus::setHits(std::int64_t count) {
  hits_ = count;
  show();
}

void SearchFormStatus::setSelected(std::int64_t count, std::optional<std::int64_t> bytes) {
  selection_ = selectionText(count, bytes, locale_);
  show();
}

void SearchFormStatus::setOrder(const QString& note) {
  order_ = note;
  show();
}

void SearchFormStatus::setRun(const QStringList& texts) {
  run_ = texts;
  show();
}

void SearchFormStatus::setNote(const QString& note) {
  note_ = note;
  show();
}

void SearchFormStatus::show() {
  QStringList parts;
  if (hits_) parts += hitCountText(*hits_, locale_);
  parts += selection_;
  parts += order_;
  parts += run_;
  parts += note_;
  label_->setText(statusLine(parts, label_->layoutDirection()));
}

}  // namespace quorvin
