// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/job_controls.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QModelIndexList>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kHeightInLines = 30;
constexpr int kLeastListLines = 3;
constexpr int kWidestColumnCharacters = 40;

}  // namespace

QString stopCaption() {
  return Texts::tr("S&top");
}

QPushButton* makeStartButton(const QString& caption) {
  auto* button = new QPushButton(stopCaption());
  const int width = button->sizeHint().width();
  button->setText(caption);
  button->setMinimumWidth(std::max(width, button->sizeHint().width()));
  return button;
}

void sizeForRows(QWidget& window, int characters) {
  const QSize wanted(window.fontMetrics().averageCharWidth() * characters,
                     window.fontMetrics().lineSpacing() * kHeightInLines);
  window.resize(wanted.boundedTo(largestInside(*window.screen())));
}

QTreeView* makeTree(QAbstractItemModel* rows) {
  auto* tree = new QTreeView;
  tree->setModel(rows);
  tree->setUniformRowHeights(true);
  tree->setAllColumnsShowFocus(true);
  tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  tree->setTabKeyNavigation(false);
  tree->setMinimumHeight(tree->fontMetrics().lineSpacing() * kLeastListLines);
  tree->header()->setSectionsMovable(false);
  return tree;
}

QTreeView* makeSortedTree(QAbstractItemModel* rows) {
  QTreeView* tree = makeTree(rows);
  tree->header()->setSortIndicatorClearable(true);
  tree->header()->setSortIndicator(-1, Qt::AscendingOrder);
  tree->setSortingEnabled(true);
  return tree;
}

void fitTreeColumns(QTreeView& tree) {
  const int character = tree.fontMetrics().averageCharWidth();
  const int widest = character * kWidestColumnCharacters;
  QHeaderView& header = *tree.header();
  header.setStretchLastSection(false);
  for (int section = 0; section < tree.model()->columnCount(); ++section) {
    tree.resizeColumnToContents(section);
    tree.setColumnWidth(section, std::min(tree.columnWidth(section) + character, widest));
  }
  // The last one takes what the others leave, if that is enough for it.
  header.setStretchLastSection(header.length() < tree.viewport()->width());
}

void copySelectedRows(const QTreeView& tree) {
  QModelIndexList selected = tree.selectionModel()->selectedRows();
  if (selected.isEmpty()) return;
  const auto placeOf = [](const QModelIndex& index) {
    return index.parent().isValid() ? std::pair(index.parent().row(), index.row())
                                    : std::pair(index.row(), -1);
  };
  std::ranges::sort(selected, {}, placeOf);
  QStringList lines;
  for (const QModelIndex& row : selected) {
    QStringList cells;
    for (int column = 0; column < row.model()->columnCount(); ++column) {
      cells += row.siblingAtColumn(column).data().toString();
    }
    lines += cells.join(u'\t');
  }
  QGuiApplication::clipboard()->setText(lines.join(u'\n') + u'\n');
}

QLabel* captionOf(QWidget* control, const QString& text) {
  auto* caption = new QLabel(text);
  caption->setBuddy(control);
  return caption;
}

}  // namespace quorvin
