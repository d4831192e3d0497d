#include "app/search_form_hits.h"

#include "app/fault_report.h"
#include "hits/hit_list_model.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <QString>
#include <QStringList>

namespace quorvin {

namespace {

QAction* addItem(QMenu* menu, const QString& name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  return item;
}

QAction* addItem(QMenu* menu, const QString& name, const QString& caption, const QKeySequence& keys) {
  QAction* item = addItem(menu, name, caption);
  item->setShortcut(keys);
  item->setShortcutContext(Qt::WidgetShortcut);
  return item;
}

/// Some 10 MB of text; more is rather a mistake than a wish, and would hold the window up.
constexpr std::int64_t kMostRowsToCopy = 100'000;

void copyLines(const QStringList& lines) {
  if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

}  // namespace

ItemMenu makeItemMenu(QWidget* parent) {
  ItemMenu made{};
  made.menu = new QMenu(QStringLiteral("PopUP"), parent);
  made.menu->setObjectName(QStringLiteral("ItemMenu"));
  made.menu->setAccessibleName(QStringLiteral("Hit"));
  made.CtLaunch = addItem(made.menu, QStringLiteral("CtLaunch"), QStringLiteral("O&pen"));
  made.CTOpFolder =
      addItem(made.menu, QStringLiteral("CTOpFolder"), QStringLiteral("Open Containing &Folder"));
  made.ShowPreview = addItem(made.menu, QStringLiteral("ShowPreview"), QStringLiteral("Preview Image"));
  made.CTQueue = addItem(made.menu, QStringLiteral("CTQueue"), QStringLiteral("Enqueue (Winamp)"));
  made.menu->setDefaultAction(made.CtLaunch);

  made.menu->addSeparator();
  made.CopyRows = addItem(made.menu, QStringLiteral("CopyRows"), QStringLiteral("&Copy"),
                          QKeySequence(Qt::CTRL | Qt::Key_C));
  made.CopyPaths = addItem(made.menu, QStringLiteral("CopyPaths"), QStringLiteral("Copy Full P&ath"),
                           QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
  return made;
}

SearchFormHits::SearchFormHits(HitListView& list, const HitTable& table, const ProgramState& state,
                               Shell& shell, MessageBoxes& messages, const QLocale& locale)
    : list_(list),
      table_(table),
      messages_(messages),
      locale_(locale),
      actions_(state, shell, messages),
      menu_(makeItemMenu(&list)) {
  connect(&list_, &HitListView::openRequested, this, &SearchFormHits::HitList_DblClick);
  connect(&list_, &HitListView::menuRequested, this, &SearchFormHits::HitList_MouseDown);
  connect(menu_.CtLaunch, &QAction::triggered, this, &SearchFormHits::CtLaunch_Click);
  connect(menu_.CTOpFolder, &QAction::triggered, this, &SearchFormHits::CTOpFolder_Click);
  connect(menu_.ShowPreview, &QAction::triggered, this, &SearchFormHits::ShowPreview_Click);
  connect(menu_.CTQueue, &QAction::triggered, this, &SearchFormHits::CTQueue_Click);
  connect(menu_.CopyRows, &QAction::triggered, this, &SearchFormHits::CopyRows_Click);
  connect(menu_.CopyPaths, &QAction::triggered, this, &SearchFormHits::CopyPaths_Click);
  // On the list they work without the menu, too.
  list_.addActions({menu_.CopyRows, menu_.CopyPaths});
}

void SearchFormHits::HitList_DblClick() {
  if (const auto hit = currentHit()) actions_.launch(*hit);
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
  if (!openPreview_) return messages_.inform(QStringLiteral("The picture preview is not available."));
  reportFaults(messages_, QStringLiteral("showing \"%1\"").arg(path.fullPath()),
               [&] { openPreview_(path.folder, path.name); });
}

void SearchFormHits::CTQueue_Click() {
  if (const auto hit = currentHit()) actions_.enqueue(*hit);
}

void SearchFormHits::CopyRows_Click() {
  QStringList lines;
  for (const int row : rowsToCopy()) lines.append(rowText(row));
  copyLines(lines);
}

void SearchFormHits::CopyPaths_Click() {
  FoldersReadOnce folders;
  const FileLookUp lookUp = [&folders](const QString& pattern) { return folders.find(pattern); };
  QStringList lines;
  for (const int row : rowsToCopy()) {
    const HitPath path = actions_.resolveQuietly(table_.row(row), lookUp);
    if (!path.isEmpty()) lines.append(path.fullPath());
  }
  copyLines(lines);
}

std::optional<HitRow> SearchFormHits::currentHit() const {
  const int row = list_.currentSelectedRow();
  if (row < 0) return std::nullopt;
  return table_.row(row);
}

std::vector<int> SearchFormHits::rowsToCopy() const {
  const QItemSelectionModel& selection = *list_.selectionModel();
  const std::int64_t count = selectedRowCount(selection);
  if (count <= kMostRowsToCopy) return selectedRows(selection);
  messages_.inform(QStringLiteral("%1 hits are selected. At most %2 can be copied at once.")
                       .arg(locale_.toString(count), locale_.toString(kMostRowsToCopy)));
  return {};
}

QString SearchFormHits::rowText(int row) const {
  const HitRow hit = table_.row(row);
  QStringList columns;
  for (int column = 0; column < kHitColumnCount; ++column) {
    columns.append(hitText(hit, static_cast<HitColumn>(column), locale_));
  }
  return columns.join(u'\t');
}

}  // namespace quorvin
