// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list_model.h"

#include "texts/texts.h"

#include <QColor>
#include <QStringList>

#include <array>
#include <cstdint>

namespace quorvin {

namespace {

constexpr std::array<const char*, kHitColumnCount> kColumnTitles = {
    QT_TRANSLATE_NOOP("Texts", "Match"),  QT_TRANSLATE_NOOP("Texts", "Volume"),
    QT_TRANSLATE_NOOP("Texts", "Folder"), QT_TRANSLATE_NOOP("Texts", "Name"),
    QT_TRANSLATE_NOOP("Texts", "Size"),   QT_TRANSLATE_NOOP("Texts", "Date")};

/// Numbers that are compared down the column are aligned to the right.
Qt::Alignment columnAlignment(int column) {
  const auto hitColumn = static_cast<HitColumn>(column);
  const bool isNumber = hitColumn == HitColumn::Match || hitColumn == HitColumn::Size;
  return (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

QString sourceKindText(SourceKind kind) {
  switch (kind) {
    case SourceKind::Online:
      return Texts::tr("From the listing of an online source");
    case SourceKind::MainDataFile:
      return Texts::tr("From the main data file");
    case SourceKind::Offline:
      return Texts::tr("From an offline listing");
  }
  return {};
}

HitListModel::HitListModel(HitTable& table, const QLocale& locale, QObject* parent)
    : QAbstractTableModel(parent), table_(table), locale_(locale), order_(table, locale) {
  connect(&order_, &RowOrder::aboutToInsert, this,
          [this](int first, int last) { beginInsertRows({}, first, last); });
  connect(&order_, &RowOrder::inserted, this, [this] { endInsertRows(); });
  connect(&order_, &RowOrder::aboutToChange, this, [this] { beginResetModel(); });
  connect(&order_, &RowOrder::changed, this, [this] { endResetModel(); });
}

void HitListModel::hitsArrived() {
  order_.rowsArrived(table_.rowCount());
}

void HitListModel::clear(const SearchQuery& query) {
  beginResetModel();
  table_.clear();
  words_ = WordPlaces(query);
  order_.clear();
  readRowNumber_ = -1;
  endResetModel();
}

int HitListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : order_.count();
}

int HitListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kHitColumnCount;
}

QVariant HitListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
  switch (role) {
    case Qt::DisplayRole:
      return hitText(hitRow(index.row()), static_cast<HitColumn>(index.column()), locale_);
    case Qt::ForegroundRole:
      return QColor(QRgb{rowColour(table_.kind(order_.tableRow(index.row())))});
    case kSourceKindRole:
      return static_cast<int>(table_.kind(order_.tableRow(index.row())));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columnAlignment(index.column()));
    case kWordPlacesRole:
      return wordPlaces(index);
    case Qt::ToolTipRole:
      return explanation(index.row(), QStringLiteral("\n"));
    case Qt::AccessibleDescriptionRole:
      return explanation(index.row(), QStringLiteral(". "));
    default:
      return {};
  }
}

QVariant HitListModel::wordPlaces(const QModelIndex& index) const {
  switch (static_cast<HitColumn>(index.column())) {
    case HitColumn::Folder:
      return QVariant::fromValue(words_.in(hitRow(index.row()).folder));
    case HitColumn::Name:
      return QVariant::fromValue(words_.in(hitRow(index.row()).name));
    default:
      return {};
  }
}

QString HitListModel::explanation(int row, const QString& separator) const {
  const HitRow& hit = hitRow(row);
  QStringList sentences{sourceKindText(hit.kind), words_.explanation(hit.folder, hit.name)};
  const QString noted = note(order_.tableRow(row));
  if (!noted.isEmpty()) sentences += Texts::tr("Note: %1").arg(noted);
  sentences.removeAll(QString());
  return sentences.join(separator);
}

QString HitListModel::note(std::int64_t tableRow) const {
  return notes_ == nullptr ? QString() : notes_->of(table_.listing(tableRow), table_.row(tableRow).volume);
}

QVariant HitListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kHitColumnCount) return {};
  switch (role) {
    case Qt::DisplayRole:
      return Texts::tr(kColumnTitles[static_cast<std::size_t>(section)]);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columnAlignment(section));
    default:
      return {};
  }
}

const HitRow& HitListModel::hitRow(int shown) const {
  const std::int64_t row = order_.tableRow(shown);
  if (row != readRowNumber_) {
    readRow_ = table_.row(row);
    readRowNumber_ = row;
  }
  return readRow_;
}

std::int64_t selectedRowCount(const QItemSelectionModel& selection) {
  std::int64_t count = 0;
  for (const QItemSelectionRange& range : selection.selection()) count += range.height();
  return count;
}

int hitAt(const QModelIndex& index) {
  const auto* hits = qobject_cast<const HitListModel*>(index.model());
  return hits ? static_cast<int>(hits->order().tableRow(index.row())) : index.row();
}

}  // namespace quorvin
