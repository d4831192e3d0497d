// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/source_list_model.h"

#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kColumnCount = 2;
constexpr int kDescriptionColumn = 0;

/// A text may be longer than its column is wide. It is shown as it is, though a path may look like
/// markup.
QString toolTipOf(const QString& text, const QString& status) {
  const QString whole = status.isEmpty() ? text : text + u'\n' + status;
  return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(whole.toHtmlEscaped());
}

}  // namespace

void SourceListModel::fill(std::vector<SourceEntry> entries) {
  beginResetModel();
  entries_ = std::move(entries);
  endResetModel();
}

void SourceListModel::setStatuses(std::function<SourceStatus(const SourceEntry&)> statusOf) {
  statusOf_ = std::move(statusOf);
  statusesChanged();
}

void SourceListModel::statusesChanged() {
  if (entries_.empty()) return;
  Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kColumnCount - 1),
                     {kSourceStatusRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
}

void SourceListModel::append(const SourceEntry& entry) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  entries_.push_back(entry);
  endInsertRows();
}

std::optional<int> SourceListModel::deleteEntries(const std::vector<int>& rows) {
  if (rows.empty() || !has(rows.front()) || !has(rows.back())) return std::nullopt;
  // Each run of neighbours at once, from the last one on, so that the numbers of those before it stay true.
  for (auto end = rows.end(); end != rows.begin();) {
    auto start = end - 1;
    while (start != rows.begin() && *(start - 1) == *start - 1) --start;
    const int last = *(end - 1);
    beginRemoveRows({}, *start, last);
    entries_.erase(entries_.begin() + *start, entries_.begin() + last + 1);
    endRemoveRows();
    end = start;
  }
  if (rows.front() == 0) return std::nullopt;
  return rows.front() - 1;
}

std::optional<int> SourceListModel::moveUp(int row) {
  if (!has(row) || !has(row - 1)) return std::nullopt;
  exchangeWithNext(row - 1);
  return row - 1;
}

std::optional<int> SourceListModel::moveDown(int row) {
  if (!has(row) || !has(row + 1)) return std::nullopt;
  exchangeWithNext(row);
  return row + 1;
}

bool SourceListModel::has(int row) const {
  return row >= 0 && row < rowCount();
}

void SourceListModel::exchangeWithNext(int row) {
  const auto place = static_cast<std::size_t>(row);
  std::swap(entries_[place], entries_[place + 1]);
  Q_EMIT dataChanged(index(row, 0), index(row + 1, kColumnCount - 1));
}

int SourceListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int SourceListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumnCount;
}

QVariant SourceListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const SourceEntry& entry = entries_[static_cast<std::size_t>(index.row())];
  const QString& text = index.column() == kDescriptionColumn ? entry.description : entry.path;
  const auto status = [&] { return statusOf_ ? statusOf_(entry) : SourceStatus(); };
  switch (role) {
    case Qt::DisplayRole:
      return text;
    case Qt::ToolTipRole:
      return toolTipOf(text, status().full);
    case Qt::AccessibleDescriptionRole:
      return QString(status().full).replace(u'\n', u' ');
    case kSourceStatusRole:
      return index.column() == kDescriptionColumn ? QString() : status().brief;
    default:
      return {};
  }
}

QVariant SourceListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == kDescriptionColumn ? Texts::tr("Description") : Texts::tr("Path");
}

}  // namespace quorvin
