// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list_columns.h"

#include <QScopedValueRollback>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace quorvin {

namespace {

/// As wide as no screen is.
constexpr int kWidestColumn = 20'000;

QStringList columnNames() {
  return {QStringLiteral("Match"), QStringLiteral("Volume"), QStringLiteral("Folder"),
          QStringLiteral("Name"),  QStringLiteral("Size"),   QStringLiteral("Date")};
}

struct ColumnSetting {
  int section;
  bool isVisible;
  std::optional<int> width;
};

/// Nothing where `text` is no column.
std::optional<ColumnSetting> columnSetting(QString text) {
  const bool isHidden = text.startsWith(u'-');
  if (isHidden) text.remove(0, 1);
  const QStringList parts = text.split(u' ');
  const auto section = static_cast<int>(columnNames().indexOf(parts.front()));
  if (section < 0 || parts.size() > 2) return std::nullopt;
  if (parts.size() == 1) return ColumnSetting{section, !isHidden, std::nullopt};
  bool isNumber = false;
  const int width = parts[1].toInt(&isNumber);
  if (!isNumber || width < 1 || width > kWidestColumn) return std::nullopt;
  return ColumnSetting{section, !isHidden, width};
}

/// From left to right; none where `text` does not name each column once, or only hidden ones.
std::vector<ColumnSetting> columnSettings(const QString& text) {
  std::vector<ColumnSetting> settings;
  unsigned seen = 0;
  bool isAnyVisible = false;
  for (const QString& item : text.split(u',')) {
    const std::optional<ColumnSetting> setting = columnSetting(item);
    if (!setting || (seen >> setting->section & 1U) != 0) return {};
    seen |= 1U << setting->section;
    isAnyVisible = isAnyVisible || setting->isVisible;
    settings.push_back(*setting);
  }
  const bool isWhole = settings.size() == static_cast<std::size_t>(kHitColumnCount);
  return isWhole && isAnyVisible ? settings : std::vector<ColumnSetting>();
}

}  // namespace

HitListColumns::HitListColumns(QHeaderView* header) : QObject(header), header_(header) {
  connect(header_, &QHeaderView::sectionResized, this,
          [this](int section, int, int width) { noteWidth(section, width); });
  connect(header_, &QHeaderView::sectionMoved, this, &HitListColumns::noteMove);
}

void HitListColumns::setUsualWidth(HitColumn column, int pixels) {
  if (!hasUsualWidth(column)) return;
  const QScopedValueRollback setting(isSetting_, true);
  header_->resizeSection(static_cast<int>(column), pixels);
}

void HitListColumns::setVisible(HitColumn column, bool isVisible) {
  if (isVisible == this->isVisible(column) || (!isVisible && visibleCount() == 1)) return;
  {
    const QScopedValueRollback setting(isSetting_, true);
    header_->setSectionHidden(static_cast<int>(column), !isVisible);
  }
  Q_EMIT divisionNeeded();
  Q_EMIT changed();
}

int HitListColumns::visibleCount() const {
  return header_->count() - header_->hiddenSectionCount();
}

int HitListColumns::first() const {
  int place = 0;
  while (place < header_->count() - 1 && header_->isSectionHidden(header_->logicalIndex(place))) ++place;
  return header_->logicalIndex(place);
}

QString HitListColumns::text() const {
  QStringList items;
  for (int place = 0; place < kHitColumnCount; ++place) {
    const int section = header_->logicalIndex(place);
    const std::optional<int> width = userWidths_[static_cast<std::size_t>(section)];
    QString item = header_->isSectionHidden(section) ? QStringLiteral("-") : QString();
    item += columnNames()[section];
    if (width) item += u' ' + QString::number(*width);
    items.append(item);
  }
  return items == columnNames() ? QString() : items.join(u',');
}

void HitListColumns::take(const QString& text) {
  std::vector<ColumnSetting> settings = columnSettings(text);
  if (settings.empty()) settings = columnSettings(columnNames().join(u','));
  {
    const QScopedValueRollback setting(isSetting_, true);
    for (std::size_t place = 0; place < settings.size(); ++place) {
      const auto& [section, isVisible, width] = settings[place];
      header_->moveSection(header_->visualIndex(section), static_cast<int>(place));
      header_->setSectionHidden(section, !isVisible);
      if (width) header_->resizeSection(section, *width);
      userWidths_[static_cast<std::size_t>(section)] = width;
    }
  }
  Q_EMIT divisionNeeded();
}

void HitListColumns::noteWidth(int section, int width) {
  if (isSetting_ || section >= kHitColumnCount || header_->isSectionHidden(section)) return;
  userWidths_[static_cast<std::size_t>(section)] = width;
  Q_EMIT changed();
}

void HitListColumns::noteMove() {
  if (!isSetting_) Q_EMIT changed();
}

}  // namespace quorvin
