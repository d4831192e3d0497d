// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_hits.h"

#include "app/fault_report.h"
#include "app/search_form_controls.h"
#include "app/status_texts.h"
#include "hits/hit_list_model.h"
#include "hits/hit_paths.h"
#include "hits/hit_properties.h"
#include "hits/shown_rows.h"
#include "texts/texts.h"

#include <QApplication>
#include <QDrag>
#include <QKeySequence>
#include <QString>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

QAction* addItemWithKeys(QMenu* menu, const QString& name, const QString& caption, const QKeySequence& keys) {
  QAction* item = addItem(menu, name, caption);
  item->setShortcut(keys);
  item->setShortcutContext(Qt::WidgetShortcut);
  return item;
}

/// More is rather a mistake than a wish, and another program that takes them would be busy for minutes.
constexpr std::int64_t kMostRowsToDrag = 100'000;
/// What is planned for is kept in memory.
constexpr std::int64_t kMostRowsToFetch = 1'000'000;
/// Each is a program that starts, or at least a window that opens.
constexpr std::int64_t kMostHitsToOpen = 1'000;
constexpr std::int64_t kHitsOpenedUnasked = 10;

}  // namespace

ItemMenu makeItemMenu(QWidget* parent) {
  ItemMenu made{};
  made.menu = new QMenu(QStringLiteral("PopUP"), parent);
  made.menu->setObjectName(QStringLiteral("ItemMenu"));
  made.menu->setAccessibleName(Texts::tr("Hit"));
  made.CtLaunch = addItem(made.menu, QStringLiteral("CtLaunch"), Texts::tr("O&pen"));
  made.CTOpFolder = addItem(made.menu, QStringLiteral("CTOpFolder"), Texts::tr("Open Containing &Folder"));
  made.ShowPreview = addItem(made.menu, QStringLiteral("ShowPreview"), Texts::tr("Preview Image"));
  made.CTQueue = addItem(made.menu, QStringLiteral("CTQueue"), Texts::tr("Enqueue (Winamp)"));
  made.menu->setDefaultAction(made.CtLaunch);

  made.menu->addSeparator();
  made.CopyRows = addItemWithKeys(made.menu, QStringLiteral("CopyRows"), Texts::tr("&Copy"),
                                  QKeySequence(Qt::CTRL | Qt::Key_C));
  made.CopyNames = addItemWithKeys(made.menu, QStringLiteral("CopyNames"), Texts::tr("Copy &Names"),
                                   QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_C));
  made.CopyPaths = addItemWithKeys(made.menu, QStringLiteral("CopyPaths"), Texts::tr("Copy Full P&ath"),
                                   QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
  made.ExportSelected =
      addItem(made.menu, QStringLiteral("ExportSelected"), Texts::tr("&Export Selected..."));
  made.menu->addSeparator();
  made.WhichDisk = addItem(made.menu, QStringLiteral("WhichDisk"), Texts::tr("&Which Disk?"));
  made.FetchPlan = addItem(made.menu, QStringLiteral("FetchPlan"), Texts::tr("Fetch P&lan..."));
  made.HitProperties = addItemWithKeys(made.menu, QStringLiteral("HitProperties"), Texts::tr("P&roperties"),
                                       QKeySequence(Qt::ALT | Qt::Key_Return));
  return made;
}

SearchFormHits::SearchFormHits(HitListView& list, QMenu& hitsMenu, const HitListModel& rows,
                               const ProgramState& state, Shell& shell, MessageBoxes& messages,
                               const QLocale& locale)
    : list_(list),
      rows_(rows),
      table_(rows.table()),
      state_(state),
      messages_(messages),
      locale_(locale),
      actions_(state, shell, messages),
      menu_(makeItemMenu(&list)),
      startDrag_([this](std::unique_ptr<QMimeData> data) {
        // The drag belongs to the list, and the data to the drag.
        auto* drag = new QDrag(&list_);
        drag->setMimeData(data.release());
        drag->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
      }) {
  fillHitsMenu(hitsMenu);
  connectItems();
  connect(&list_, &HitListView::openRequested, this, &SearchFormHits::HitList_DblClick);
  connect(&list_, &HitListView::menuRequested, this, &SearchFormHits::HitList_MouseDown);
  list_.viewport()->installEventFilter(this);
  // On the list they work without the menus, too.
  list_.addActions({menu_.CopyRows, menu_.CopyNames, menu_.CopyPaths, menu_.HitProperties});
}

void SearchFormHits::fillHitsMenu(QMenu& menu) {
  QAction* open = addItem(&menu, QStringLiteral("OpenHits"), Texts::tr("&Open"));
  QAction* showInFolder = addItem(&menu, QStringLiteral("ShowInFolder"), Texts::tr("Show in &Folder"));
  connect(open, &QAction::triggered, this, &SearchFormHits::OpenHits_Click);
  connect(showInFolder, &QAction::triggered, this, &SearchFormHits::ShowInFolder_Click);
  menu.addActions({menu_.WhichDisk, menu_.FetchPlan});
  menu.addSeparator();
  menu.addActions({menu_.CopyRows, menu_.CopyNames, menu_.CopyPaths, menu_.ExportSelected});
  menu.addSeparator();
  menu.addAction(menu_.HitProperties);

  const auto enableAll = [&menu](bool enabled) {
    for (QAction* item : menu.actions()) item->setEnabled(enabled);
  };
  connect(&menu, &QMenu::aboutToShow, this, [this, enableAll] {
    if (list_.hasFocus()) selectCurrentIfNone();
    enableAll(list_.selectionModel()->hasSelection());
  });
  // The keys of the items do not wait for the menu.
  connect(&menu, &QMenu::aboutToHide, this, [enableAll] { enableAll(true); });
}

void SearchFormHits::connectItems() {
  const auto handle = [this](const QAction* item, void (SearchFormHits::*handler)()) {
    connect(item, &QAction::triggered, this, handler);
  };
  handle(menu_.CtLaunch, &SearchFormHits::CtLaunch_Click);
  handle(menu_.CTOpFolder, &SearchFormHits::CTOpFolder_Click);
  handle(menu_.ShowPreview, &SearchFormHits::ShowPreview_Click);
  handle(menu_.CTQueue, &SearchFormHits::CTQueue_Click);
  handle(menu_.WhichDisk, &SearchFormHits::WhichDisk_Click);
  handle(menu_.HitProperties, &SearchFormHits::HitProperties_Click);
}

void SearchFormHits::HitList_DblClick() {
  openSelected();
}

void SearchFormHits::HitList_MouseDown(const QPoint& place) {
  const auto hit = currentHit();
  if (!hit || menu_.menu->isVisible()) return;
  const HitPath path = actions_.resolve(*hit);
  if (path.isEmpty()) return;
  const ItemMenuContent content = itemMenuContent(path.name);
  menu_.ShowPreview->setVisible(content.showPreview);
  menu_.CTQueue->setVisible(content.queue);
  menu_.menu->popup(place);
}

bool SearchFormHits::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) noteDragStart(*static_cast<QMouseEvent*>(event));
  if (event->type() == QEvent::MouseMove && isDragged(*static_cast<QMouseEvent*>(event))) return true;
  if (event->type() == QEvent::MouseButtonRelease && std::exchange(isDragged_, false)) return true;
  return QObject::eventFilter(watched, event);
}

/// Elsewhere than on a selected row the same movement selects rows.
void SearchFormHits::noteDragStart(const QMouseEvent& press) {
  const QModelIndex index = list_.indexAt(press.pos());
  const bool isOnSelected = index.isValid() && list_.selectionModel()->isSelected(index);
  const bool mayDrag =
      isOnSelected && press.button() == Qt::LeftButton && press.modifiers() == Qt::NoModifier;
  dragStart_ = mayDrag ? std::optional(press.pos()) : std::nullopt;
  isDragged_ = false;
}

/// Whether the list has nothing to do with this movement.
bool SearchFormHits::isDragged(const QMouseEvent& move) {
  if (!dragStart_ || !move.buttons().testFlag(Qt::LeftButton)) return false;
  if (isDragged_) return true;
  if ((move.pos() - *dragStart_).manhattanLength() < QApplication::startDragDistance()) return true;
  isDragged_ = true;
  HitList_Drag();
  return true;
}

void SearchFormHits::HitList_Drag() {
  if (selectedRowCount(*list_.selectionModel()) > kMostRowsToDrag) {
    Q_EMIT noted(Texts::tr("At most %1 hits can be dragged at once. Nothing was dragged.")
                     .arg(locale_.toString(static_cast<qlonglong>(kMostRowsToDrag))));
    return;
  }
  std::vector<int> rows = selectedRows(*list_.selectionModel());
  if (!rows.empty()) startDrag_(std::make_unique<HitDragData>(table_, state_, std::move(rows)));
}

void SearchFormHits::CtLaunch_Click() {
  HitList_DblClick();
}

void SearchFormHits::CTOpFolder_Click() {
  if (const auto hit = currentHit()) actions_.openFolder(*hit);
}

void SearchFormHits::ShowPreview_Click() {
  const auto hit = currentHit();
  if (!hit) return;
  const HitPath path = actions_.resolve(*hit);
  if (path.isEmpty()) return;
  if (!openPreview_) return messages_.inform(Texts::tr("The picture preview is not available."));
  reportFaults(messages_, Texts::tr("showing \"%1\"").arg(path.fullPath()),
               [&] { openPreview_(path.folder, path.name); });
}

void SearchFormHits::CTQueue_Click() {
  if (const auto hit = currentHit()) actions_.enqueue(*hit);
}

void SearchFormHits::OpenHits_Click() {
  const std::int64_t missing = openSelected();
  if (missing > 0) tellMissing(missing, selectedRowCount(*list_.selectionModel()));
}

void SearchFormHits::ShowInFolder_Click() {
  const auto hit = currentHit();
  if (hit && actions_.openFolder(*hit) == LaunchOutcome::NotFound) tellMissing(1, 1);
}

bool SearchFormHits::mayOpen(std::int64_t count) const {
  if (count <= kHitsOpenedUnasked) return true;
  const int plural = Texts::plural(count);
  if (count <= kMostHitsToOpen) {
    return messages_.askYesNo(
        Texts::tr("%1 hits are selected. Open all of them?", nullptr, plural).arg(locale_.toString(count)));
  }
  messages_.inform(Texts::tr("%1 hits are selected. At most %2 can be opened at once.", nullptr, plural)
                       .arg(locale_.toString(count), locale_.toString(kMostHitsToOpen)));
  return false;
}

/// How many of the selected hits have no file on a connected drive. A fault ends it.
std::int64_t SearchFormHits::openSelected() const {
  if (!mayOpen(selectedRowCount(*list_.selectionModel()))) return 0;
  std::int64_t missing = 0;
  for (const int row : selectedRows(*list_.selectionModel())) {
    const LaunchOutcome outcome = actions_.launch(table_.row(row));
    if (outcome == LaunchOutcome::Failed) return 0;
    if (outcome == LaunchOutcome::NotFound) ++missing;
  }
  return missing;
}

void SearchFormHits::tellMissing(std::int64_t missing, std::int64_t all) const {
  messages_.inform(notFoundText(missing, all, locale_));
}

void SearchFormHits::WhichDisk_Click() {
  if (const auto row = currentTableRow()) messages_.inform(whichDiskText(known(*row)));
}

std::vector<int> SearchFormHits::rowsToFetch() {
  selectCurrentIfNone();
  if (selectedRowCount(*list_.selectionModel()) > kMostRowsToFetch) {
    Q_EMIT noted(
        Texts::tr("A plan can be made for at most %1 hits.").arg(locale_.toString(kMostRowsToFetch)));
    return {};
  }
  std::vector<int> rows = selectedRows(*list_.selectionModel());
  std::ranges::sort(rows);
  return rows;
}

/// A list that has just got the focus has a current row that is not selected; keys mean that row.
void SearchFormHits::selectCurrentIfNone() const {
  QItemSelectionModel& selection = *list_.selectionModel();
  if (!selection.currentIndex().isValid() || selection.hasSelection()) return;
  selection.select(selection.currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void SearchFormHits::HitProperties_Click() {
  selectCurrentIfNone();
  const auto row = currentTableRow();
  if (!row) return;
  HitProperties window(known(*row), locale_, list_.window());
  window.exec();
}

std::optional<int> SearchFormHits::currentTableRow() const {
  const int row = list_.currentSelectedRow();
  return row < 0 ? std::nullopt : std::optional(row);
}

std::optional<HitRow> SearchFormHits::currentHit() const {
  const auto row = currentTableRow();
  return row ? std::optional(table_.row(*row)) : std::nullopt;
}

KnownHit SearchFormHits::known(int tableRow) const {
  KnownHit hit;
  hit.row = table_.row(tableRow);
  hit.listing = table_.listing(tableRow);
  hit.words = rows_.words().explanation(hit.row.folder, hit.row.name);
  hit.note = rows_.note(tableRow);
  hit.file = actions_.resolveQuietly(hit.row, findOrdinaryFile);
  hit.expectedPath = actions_.expectedPath(hit.row);
  hit.sourceFolder = sourceFolderOf(state_, hit.row);
  return hit;
}

}  // namespace quorvin
