// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_copy.h"

#include "app/status_texts.h"
#include "hits/hit_list_model.h"
#include "hits/shown_rows.h"
#include "texts/texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QStringList>

#include <utility>

namespace quorvin {

SearchFormCopy::SearchFormCopy(const SearchFormCopyParts& parts, const ItemMenu& items)
    : parts_(parts), copy_(parts.table) {
  connect(items.CopyRows, &QAction::triggered, this, &SearchFormCopy::CopyRows_Click);
  connect(items.CopyNames, &QAction::triggered, this, &SearchFormCopy::CopyNames_Click);
  connect(items.CopyPaths, &QAction::triggered, this, &SearchFormCopy::CopyPaths_Click);
  connect(&copy_, &HitCopy::goesOn, this, &SearchFormCopy::tellProgress);
  connect(&copy_, &HitCopy::ended, this, &SearchFormCopy::end);
}

bool SearchFormCopy::stop() {
  const bool isRunning = copy_.isRunning();
  copy_.stop();
  return isRunning;
}

void SearchFormCopy::CopyRows_Click() {
  copy([this](int row) { return rowText(row); });
}

void SearchFormCopy::CopyNames_Click() {
  copy([this](int row) { return parts_.table.row(row).name; });
}

void SearchFormCopy::CopyPaths_Click() {
  copy([this](int row) { return pathText(row); });
}

void SearchFormCopy::copy(HitCopy::LineOf lineOf) {
  const QItemSelectionModel& selection = *parts_.list.selectionModel();
  const std::int64_t count = selectedRowCount(selection);
  if (count == 0) return;
  if (count > mostRows_) {
    return parts_.messages.inform(Texts::tr("%1 hits are selected. At most %2 can be copied at once.")
                                      .arg(parts_.locale.toString(count), parts_.locale.toString(mostRows_)));
  }
  missing_ = 0;
  isTold_ = false;
  paths_.emplace(parts_.state);
  copy_.start(selectedRows(selection), std::move(lineOf));
}

QString SearchFormCopy::rowText(int tableRow) const {
  const HitRow hit = parts_.table.row(tableRow);
  QStringList columns;
  for (int column = 0; column < kHitColumnCount; ++column) {
    columns.append(hitText(hit, static_cast<HitColumn>(column), parts_.locale));
  }
  return columns.join(u'\t');
}

QString SearchFormCopy::pathText(int tableRow) {
  const HitRow hit = parts_.table.row(tableRow);
  const HitPath path = paths_->of(hit);
  if (!path.isEmpty()) return path.fullPath();
  ++missing_;
  return cataloguePath(hit);
}

void SearchFormCopy::tellProgress() {
  isTold_ = true;
  parts_.status.setNote(copyingText(copy_.done(), copy_.all(), parts_.locale));
}

void SearchFormCopy::end(CopyEnd end, const QString& text) {
  // The folder that it has open may be on a drive that is to be taken out.
  paths_.reset();
  switch (end) {
    case CopyEnd::Whole:
      QGuiApplication::clipboard()->setText(text);
      return tellCopied();
    case CopyEnd::Stopped:
      return parts_.status.setNote(
          Texts::tr("Copying was stopped. The clipboard holds what it held before."));
    case CopyEnd::HitsGone:
      return parts_.status.setNote(
          Texts::tr("Copying was given up, since a new search has replaced the hits. The clipboard "
                    "holds what it held before."));
  }
}

void SearchFormCopy::tellCopied() {
  QStringList told;
  if (isTold_) told += copiedText(copy_.all(), parts_.locale);
  if (missing_ > 0) {
    told += notFoundText(missing_, copy_.all(), parts_.locale);
    told += Texts::tr("For these, the path in the catalogue was copied.");
  }
  const QString text = told.join(u' ');
  // Where the line has told of it so far, a message would come in the middle of something else.
  if (isTold_) return parts_.status.setNote(text);
  if (!text.isEmpty()) parts_.messages.inform(text);
}

}  // namespace quorvin
