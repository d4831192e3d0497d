// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compare_model.h"

#include "catalogue/sum_texts.h"
#include "dates/general_date.h"
#include "platform/text_direction.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr std::array kKinds{ChangeKind::Added, ChangeKind::Removed, ChangeKind::Changed, ChangeKind::Moved};

bool isSize(CompareModel::Column column) {
  return column == CompareModel::Column::EarlierSize || column == CompareModel::Column::LaterSize;
}

bool isOfEarlier(CompareModel::Column column) {
  return column == CompareModel::Column::EarlierSize || column == CompareModel::Column::EarlierDate;
}

QString countOfKind(ChangeKind kind, const QString& count) {
  switch (kind) {
    case ChangeKind::Added:
      return Texts::tr("%1 added").arg(count);
    case ChangeKind::Removed:
      return Texts::tr("%1 removed").arg(count);
    case ChangeKind::Changed:
      return Texts::tr("%1 changed").arg(count);
    case ChangeKind::Moved:
      return Texts::tr("%1 moved").arg(count);
  }
  return {};
}

}  // namespace

QString textOfKind(ChangeKind kind) {
  switch (kind) {
    case ChangeKind::Added:
      return Texts::tr("added");
    case ChangeKind::Removed:
      return Texts::tr("removed");
    case ChangeKind::Changed:
      return Texts::tr("changed");
    case ChangeKind::Moved:
      return Texts::tr("moved");
  }
  return {};
}

void CompareModel::show(std::shared_ptr<const CompareJob> job, std::optional<ChangeKind> kind,
                        std::size_t mostRows) {
  beginResetModel();
  job_ = std::move(job);
  folders_.clear();
  changes_.clear();
  changesAltogether_ = 0;
  const std::size_t count = job_ ? job_->folders().size() : 0;
  for (std::size_t number = 0; number < count; ++number) {
    const FolderChanges& folder = job_->folders()[number];
    const std::size_t first = changes_.size();
    for (std::size_t i = folder.first; i < folder.first + folder.count; ++i) {
      if (kind && job_->comparison().changes()[i].kind != *kind) continue;
      ++changesAltogether_;
      if (changes_.size() < mostRows) changes_.push_back(static_cast<std::uint32_t>(i));
    }
    if (changes_.size() > first) folders_.push_back({number, first, changes_.size() - first});
  }
  endResetModel();
}

QModelIndex CompareModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column < 0 || row >= rowCount(parent) || column >= columnCount(parent)) return {};
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex CompareModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == 0) return {};
  return createIndex(static_cast<int>(index.internalId() - 1), 0, quintptr{0});
}

int CompareModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(folders_.size());
  if (parent.internalId() != 0 || parent.column() != 0) return 0;
  return static_cast<int>(folders_[static_cast<std::size_t>(parent.row())].count);
}

int CompareModel::columnCount(const QModelIndex&) const {
  return kColumns;
}

QVariant CompareModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::TextAlignmentRole && isSize(column)) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const FileChange* change = changeAt(index);
  const QString text =
      change != nullptr ? textOfChange(*change, column) : textOfFolder(folderAt(index), column);
  return englishWithin(QGuiApplication::layoutDirection(), text);
}

QVariant CompareModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) return {};
  const auto column = static_cast<Column>(section);
  if (role == Qt::TextAlignmentRole && isSize(column)) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  switch (column) {
    case Column::Name:
      return Texts::tr("Name");
    case Column::Change:
      return Texts::tr("Change");
    case Column::EarlierFolder:
      return Texts::tr("Moved from");
    case Column::EarlierSize:
      return Texts::tr("Size earlier");
    case Column::EarlierDate:
      return Texts::tr("Date earlier");
    case Column::LaterSize:
      return Texts::tr("Size later");
    case Column::LaterDate:
      return Texts::tr("Date later");
  }
  return {};
}

const FileChange* CompareModel::changeAt(const QModelIndex& index) const {
  if (index.internalId() == 0) return nullptr;
  const Folder& folder = folders_[index.internalId() - 1];
  return &job_->comparison().changes()[changes_[folder.first + static_cast<std::size_t>(index.row())]];
}

const FolderChanges& CompareModel::folderAt(const QModelIndex& index) const {
  const QModelIndex folder = index.internalId() == 0 ? index : index.parent();
  return job_->folders()[folders_[static_cast<std::size_t>(folder.row())].number];
}

QString CompareModel::textOfFolder(const FolderChanges& folder, Column column) const {
  switch (column) {
    case Column::Name:
      return pathOf(*folder.tree, folder.folder);
    case Column::Change: {
      QStringList counts;
      for (const ChangeKind kind : kKinds) {
        const std::int64_t files = folder.sums[static_cast<std::size_t>(kind)].files;
        if (files > 0) counts += countOfKind(kind, locale_.toString(qlonglong{files}));
      }
      return counts.join(QStringLiteral(", "));
    }
    case Column::EarlierSize:
    case Column::LaterSize:
      return sizeText(bytesOf(folder, isOfEarlier(column)), locale_);
    case Column::EarlierFolder:
    case Column::EarlierDate:
    case Column::LaterDate:
      break;
  }
  return {};
}

QString CompareModel::textOfChange(const FileChange& change, Column column) const {
  const ComparedFile* file = fileOf(change, isOfEarlier(column));
  switch (column) {
    case Column::Name:
      return textOfUtf8(job_->comparison().shownFile(change).name);
    case Column::Change:
      return textOfKind(change.kind);
    case Column::EarlierFolder:
      if (change.kind != ChangeKind::Moved) return {};
      return pathOf(job_->comparison().before().folders(), fileOf(change, true)->folder);
    case Column::EarlierSize:
    case Column::LaterSize:
      return file == nullptr || file->size < 0 ? QString() : sizeText(file->size, locale_);
    case Column::EarlierDate:
    case Column::LaterDate:
      return file == nullptr || !file->modified ? QString() : generalDateText(*file->modified, locale_);
  }
  return {};
}

/// Only where one of the listings has more than one volume is it said which.
QString CompareModel::pathOf(const FolderTree& tree, std::uint32_t folder) const {
  const QString path = textOfUtf8(tree.path(folder));
  if (!job_->comparison().rule().withVolume) return path;
  return textOfUtf8(tree.volumes()[tree.volumeOf(folder)].name) + QStringLiteral(": ") + path;
}

/// Of the files that have changed, as they were or as they are.
std::int64_t CompareModel::bytesOf(const FolderChanges& folder, bool isEarlier) const {
  std::int64_t bytes = 0;
  for (std::size_t i = folder.first; i < folder.first + folder.count; ++i) {
    const ComparedFile* file = fileOf(job_->comparison().changes()[i], isEarlier);
    if (file != nullptr && file->size > 0) bytes = sumOfBytes(bytes, file->size);
  }
  return bytes;
}

/// Null where it was not there.
const ComparedFile* CompareModel::fileOf(const FileChange& change, bool isEarlier) const {
  const std::uint32_t number = isEarlier ? change.before : change.after;
  if (number == FileChange::kNone) return nullptr;
  const ListingComparison& comparison = job_->comparison();
  return &(isEarlier ? comparison.before() : comparison.after()).files()[number];
}

HitRow CompareModel::fileOf(const QModelIndex& index) const {
  const FileChange* change = changeAt(index);
  const FolderChanges& folder = folderAt(index);
  const bool isLater = folder.tree == &job_->comparison().after().folders();
  HitRow row;
  row.kind = (isLater ? job_->after() : job_->before()).source.kind;
  const FolderTree& tree = change != nullptr ? job_->comparison().shownTree(*change) : *folder.tree;
  const std::uint32_t at = change != nullptr ? job_->comparison().shownFile(*change).folder : folder.folder;
  row.volume = textOfUtf8(tree.volumes()[tree.volumeOf(at)].name);
  row.folder = textOfUtf8(tree.path(at));
  if (change != nullptr) row.name = textOfUtf8(job_->comparison().shownFile(*change).name);
  return row;
}

}  // namespace quorvin
