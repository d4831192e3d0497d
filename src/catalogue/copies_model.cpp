// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copies_model.h"

#include "catalogue/sum_texts.h"
#include "platform/text_direction.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

using Column = CopiesModel::Column;
using Row = CopiesJob::Row;
using RowKind = CopiesJob::RowKind;

/// More volumes of one group are not named.
constexpr qsizetype kMostVolumes = 3;

std::vector<Column> columnsFor(const CopyWish& wish) {
  switch (wish.sumBy) {
    case CopyWish::SumBy::Volume:
      return {Column::Volume, Column::Count, Column::Size, Column::Listing};
    case CopyWish::SumBy::Folder:
      return {Column::Folder, Column::Count, Column::Size, Column::Volume, Column::Listing};
    case CopyWish::SumBy::Nothing:
      break;
  }
  if (wish.singleOnly) return {Column::Name, Column::Size, Column::Volume, Column::Folder, Column::Listing};
  return {Column::Name,   Column::Count,  Column::Size,   Column::Wasted,
          Column::Volume, Column::Folder, Column::Listing};
}

bool isNumber(Column column) {
  return column == Column::Count || column == Column::Size || column == Column::Wasted;
}

bool isGroup(RowKind kind) {
  return kind == RowKind::Group || kind == RowKind::FolderSet;
}

std::int64_t numberOf(const Row& row, Column column) {
  if (column == Column::Count) return row.count;
  return column == Column::Size ? row.size : row.wasted;
}

}  // namespace

void CopiesModel::show(std::shared_ptr<const CopiesJob> job) {
  beginResetModel();
  job_ = std::move(job);
  columns_ = job_ ? columnsFor(job_->wish()) : std::vector<Column>();
  order_.resize(job_ ? job_->rows().size() : 0);
  std::iota(order_.begin(), order_.end(), 0U);
  position_ = order_;
  endResetModel();
}

QModelIndex CopiesModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column < 0 || row >= rowCount(parent) || column >= columnCount(parent)) return {};
  // A place knows its group by the number that does not change with the order.
  const quintptr group =
      parent.isValid() ? quintptr{order_[static_cast<std::size_t>(parent.row())]} + 1 : quintptr{0};
  return createIndex(row, column, group);
}

QModelIndex CopiesModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == 0) return {};
  return createIndex(static_cast<int>(position_[index.internalId() - 1]), 0, quintptr{0});
}

int CopiesModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(order_.size());
  if (parent.internalId() != 0 || parent.column() != 0) return 0;
  return static_cast<int>(placeCount(job_->rows()[itemOf(parent).row]));
}

int CopiesModel::columnCount(const QModelIndex&) const {
  return static_cast<int>(columns_.size());
}

QVariant CopiesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Column column = columnAt(index.column());
  if (role == Qt::DisplayRole) {
    return englishWithin(QGuiApplication::layoutDirection(), text(itemOf(index), column));
  }
  if (role == Qt::TextAlignmentRole && isNumber(column)) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant CopiesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const Column column = columnAt(section);
  if (role == Qt::TextAlignmentRole && isNumber(column)) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  switch (column) {
    case Column::Name:
      return Texts::tr("Name");
    case Column::Count:
      return job_->wish().sumBy == CopyWish::SumBy::Nothing ? Texts::tr("Copies") : Texts::tr("Files");
    case Column::Size:
      return Texts::tr("Size");
    case Column::Wasted:
      return Texts::tr("Wasted");
    case Column::Volume:
      return Texts::tr("Volume");
    case Column::Folder:
      return Texts::tr("Folder");
    case Column::Listing:
      return Texts::tr("Listing");
  }
  return {};
}

CopiesModel::Item CopiesModel::itemOf(const QModelIndex& index) const {
  if (index.internalId() == 0) return {order_[static_cast<std::size_t>(index.row())], std::nullopt};
  return {index.internalId() - 1, static_cast<std::uint32_t>(index.row())};
}

std::uint32_t CopiesModel::placeCount(const Row& row) const {
  return isGroup(row.kind) ? static_cast<std::uint32_t>(row.count) : 0;
}

std::uint32_t CopiesModel::folderOfPlace(const Row& row, std::uint32_t place) const {
  const CopyFinder& finder = job_->finder();
  if (row.kind == RowKind::FolderSet) return finder.equalFolders().sets()[row.number].folders[place];
  const Copies& copies = finder.copies();
  return copies.files().folderOf(copies.placesOf(row.number)[place]);
}

std::optional<std::uint32_t> CopiesModel::folderOf(const Item& item) const {
  const Row& row = job_->rows()[item.row];
  if (item.place) return folderOfPlace(row, *item.place);
  if (row.kind == RowKind::SingleFile || row.kind == RowKind::FolderSum) return row.number;
  return std::nullopt;
}

/// The first one of a group.
std::uint32_t CopiesModel::volumeOf(const Row& row) const {
  if (row.kind == RowKind::VolumeSum) return row.number;
  return job_->finder().folders().volumeOf(isGroup(row.kind) ? folderOfPlace(row, 0) : row.number);
}

QString CopiesModel::text(const Item& item, Column column) const {
  const Row& row = job_->rows()[item.row];
  const bool isPlace = item.place.has_value();
  switch (column) {
    case Column::Name:
      return nameOf(item);
    case Column::Count:
      return isPlace ? QString() : locale_.toString(qlonglong{row.count});
    case Column::Size:
      return isPlace ? QString() : sizeText(row.size);
    case Column::Wasted:
      return isPlace ? QString() : sizeText(row.wasted);
    case Column::Folder: {
      const std::optional<std::uint32_t> folder = folderOf(item);
      return folder ? folderText(*folder) : QString();
    }
    case Column::Volume:
    case Column::Listing:
      break;
  }
  if (!isPlace && isGroup(row.kind)) return column == Column::Volume ? volumesOf(row) : QString();
  const FolderTree& folders = job_->finder().folders();
  const std::uint32_t volume = isPlace ? folders.volumeOf(*folderOf(item)) : volumeOf(row);
  return column == Column::Volume ? textOfUtf8(folders.volumes()[volume].name) : listingOf(volume);
}

QString CopiesModel::nameOf(const Item& item) const {
  const Row& row = job_->rows()[item.row];
  const CopyFinder& finder = job_->finder();
  switch (row.kind) {
    case RowKind::Group:
      return textOfUtf8(finder.copies().groups()[row.number].name);
    case RowKind::FolderSet: {
      const QString folder = textOfUtf8(finder.folders().title(folderOfPlace(row, item.place.value_or(0))));
      return item.place ? folder : setName(folder, finder.equalFolders().sets()[row.number].holds.files);
    }
    case RowKind::SingleFile:
    case RowKind::VolumeSum:
    case RowKind::FolderSum:
      break;
  }
  return row.name;
}

QString CopiesModel::setName(const QString& folder, std::int64_t files) const {
  return Texts::tr("%1 (equal folders, %2 files)", nullptr, Texts::plural(files))
      .arg(folder, locale_.toString(qlonglong{files}));
}

/// The names of the volumes of a group, as many as are worth showing.
QString CopiesModel::volumesOf(const Row& row) const {
  const FolderTree& folders = job_->finder().folders();
  const auto nameOfVolume = [&](std::uint32_t volume) { return textOfUtf8(folders.volumes()[volume].name); };
  const bool isOnOne =
      row.kind == RowKind::Group && !job_->finder().copies().groups()[row.number].isOnManyVolumes;
  const std::uint32_t places = isOnOne ? 1 : placeCount(row);
  std::vector<std::uint32_t> volumes;
  for (std::uint32_t place = 0; place < places; ++place) {
    const std::uint32_t volume = folders.volumeOf(folderOfPlace(row, place));
    if (std::ranges::find(volumes, volume) != volumes.end()) continue;
    volumes.push_back(volume);
    if (volumes.size() > kMostVolumes) break;
  }
  QStringList names;
  for (const std::uint32_t volume : volumes) {
    names += names.size() < kMostVolumes ? nameOfVolume(volume) : QString(QChar(0x2026));
  }
  return names.join(QStringLiteral(", "));
}

QString CopiesModel::listingOf(std::uint32_t volume) const {
  const std::uint32_t listing = job_->finder().folders().volumes()[volume].listing;
  return QFileInfo(job_->finder().listings()[listing]).fileName();
}

QString CopiesModel::folderText(std::uint32_t folder) const {
  return textOfUtf8(job_->finder().folders().path(folder));
}

QString CopiesModel::sizeText(std::int64_t bytes) const {
  return quorvin::sizeText(bytes, locale_);
}

std::optional<HitRow> CopiesModel::fileOf(const QModelIndex& index) const {
  if (!index.isValid()) return std::nullopt;
  const Item item = itemOf(index);
  const std::optional<std::uint32_t> folder = folderOf(item);
  if (!folder) return std::nullopt;
  const Row& row = job_->rows()[item.row];
  const FolderTree& folders = job_->finder().folders();
  const FolderTree::Volume& volume = folders.volumes()[folders.volumeOf(*folder)];
  HitRow hit;
  hit.kind = job_->kindOf(volume.listing);
  hit.volume = textOfUtf8(volume.name);
  hit.folder = folderText(*folder);
  if (row.kind == RowKind::Group || row.kind == RowKind::SingleFile) hit.name = nameOf(item);
  hit.size = row.size;
  return hit;
}

void CopiesModel::sort(int column, Qt::SortOrder order) {
  if (!job_) return;
  Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
  const bool isOrdered = column >= 0 && column < columnCount();
  std::vector<std::uint32_t> wanted;
  if (isOrdered) {
    wanted = sorted(columnAt(column), order);
  } else {
    wanted.resize(order_.size());
    std::iota(wanted.begin(), wanted.end(), 0U);
  }
  takeOrder(std::move(wanted));
  Q_EMIT layoutChanged({}, VerticalSortHint);
}

std::vector<std::uint32_t> CopiesModel::sorted(Column column, Qt::SortOrder order) const {
  std::vector<std::uint32_t> wanted(order_.size());
  std::iota(wanted.begin(), wanted.end(), 0U);
  const bool isDown = order == Qt::DescendingOrder;
  const std::vector<Row>& rows = job_->rows();
  if (isNumber(column)) {
    std::ranges::stable_sort(wanted, [&](std::uint32_t a, std::uint32_t b) {
      const std::int64_t one = numberOf(rows[a], column);
      const std::int64_t other = numberOf(rows[b], column);
      return isDown ? one > other : one < other;
    });
    return wanted;
  }
  QStringList keys;
  keys.reserve(static_cast<qsizetype>(rows.size()));
  for (std::size_t row = 0; row < rows.size(); ++row)
    keys += text({row, std::nullopt}, column).toCaseFolded();
  std::ranges::stable_sort(wanted, [&](std::uint32_t a, std::uint32_t b) {
    return isDown ? keys[b] < keys[a] : keys[a] < keys[b];
  });
  return wanted;
}

/// What a view keeps of a row, such as that it is unfolded, goes with it.
void CopiesModel::takeOrder(std::vector<std::uint32_t> order) {
  const std::vector<std::uint32_t> before = std::exchange(order_, std::move(order));
  for (std::size_t at = 0; at < order_.size(); ++at) position_[order_[at]] = static_cast<std::uint32_t>(at);
  QModelIndexList from;
  QModelIndexList to;
  for (const QModelIndex& index : persistentIndexList()) {
    if (index.internalId() != 0) continue;
    from += index;
    to += createIndex(static_cast<int>(position_[before[static_cast<std::size_t>(index.row())]]),
                      index.column(), quintptr{0});
  }
  changePersistentIndexList(from, to);
}

}  // namespace quorvin
