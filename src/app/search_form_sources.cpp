// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_sources.h"

#include "app/fault_report.h"
#include "state/source_entries.h"
#include "texts/texts.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QEvent>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

QString foldersAdded(int count) {
  return (count == 1 ? Texts::tr("%1 folder was added.")
                     : Texts::tr("%1 folders were added.", nullptr, Texts::plural(count)))
      .arg(QLocale().toString(count));
}

QString listingsAdded(int count) {
  return (count == 1 ? Texts::tr("%1 listing was added.")
                     : Texts::tr("%1 listings were added.", nullptr, Texts::plural(count)))
      .arg(QLocale().toString(count));
}

/// A caption without the mark of its letter.
QString plainCaption(QString caption) {
  return caption.remove(u'&');
}

void join(QString& text, const QString& more) {
  if (more.isEmpty()) return;
  if (!text.isEmpty()) text += QStringLiteral("\r\n");
  text += more;
}

}  // namespace

SearchFormSources::SearchFormSources(ProgramState& state, MessageBoxes& messages, QWidget& window,
                                     const SearchFormControls& controls, const SearchFormMenus& menus,
                                     std::function<void()> rescan, std::function<void()> changed)
    : state_(state),
      messages_(messages),
      list_(*controls.HitList),
      searchText_(*controls.SearchStr),
      rescan_(std::move(rescan)),
      changed_(std::move(changed)),
      folders_(makeOffer(QStringLiteral("OfferFolders"), Texts::tr("&Catalogue folders of your own"),
                         *menus.AddLocal)),
      listings_(makeOffer(QStringLiteral("OfferListings"), Texts::tr("Search &listings that you have"),
                          *menus.EditOffline)) {
  list_.viewport()->installEventFilter(this);
  connect(list_.model(), &QAbstractItemModel::rowsInserted, this, &SearchFormSources::showOffers);
  connect(list_.model(), &QAbstractItemModel::modelReset, this, &SearchFormSources::showOffers);
  auto* drops = new SourceDrops(window, [this](const DroppedSources& dropped) {
    reportFaults(messages_, Texts::tr("adding what was dropped"), [&] { take(dropped); });
  });
  drops->watch(*controls.SearchStr);
  drops->watch(*controls.DesMatch);
}

QCommandLinkButton* SearchFormSources::makeOffer(const QString& name, const QString& caption, QAction& item) {
  const QString menuItem = Texts::tr("File, %1").arg(plainCaption(item.text()));
  auto* offer = new QCommandLinkButton(caption, menuItem, list_.viewport());
  offer->setObjectName(name);
  offer->setAccessibleName(plainCaption(caption));
  offer->setAccessibleDescription(menuItem);
  // Enter, too.
  offer->setAutoDefault(true);
  offer->hide();
  connect(offer, &QPushButton::clicked, &item, &QAction::trigger);
  return offer;
}

void SearchFormSources::showOffers() {
  const bool isEmpty = !state_.hasSources() && list_.model()->rowCount() == 0;
  for (QCommandLinkButton* offer : {folders_, listings_}) {
    // The keyboard would be nowhere; and what comes next is a search.
    if (!isEmpty && offer->window()->focusWidget() == offer) searchText_.setFocus();
    offer->setVisible(isEmpty);
  }
  if (isEmpty) placeOffers();
}

bool SearchFormSources::eventFilter(QObject* watched, QEvent* event) {
  const bool isResized = event->type() == QEvent::Resize || event->type() == QEvent::FontChange;
  if (isResized && folders_->isVisibleTo(&list_)) placeOffers();
  return QObject::eventFilter(watched, event);
}

/// Below the list's own text, which is in the middle.
void SearchFormSources::placeOffers() {
  const QWidget& area = *list_.viewport();
  // So wide that no line wraps.
  const int besideText = area.fontMetrics().height() * 4;
  int width = 0;
  for (const QCommandLinkButton* offer : {folders_, listings_}) {
    const int text = area.fontMetrics().horizontalAdvance(offer->description());
    width = std::max({width, offer->sizeHint().width(), text + besideText});
  }
  const int left = std::max(0, (area.width() - width) / 2);
  int top = area.height() / 2 + area.fontMetrics().height();
  for (QCommandLinkButton* offer : {folders_, listings_}) {
    offer->setGeometry(left, top, width, offer->sizeHint().height());
    top += offer->height();
  }
}

/// By their texts alone: the drives of other sources need not be there, or may be slow to answer.
std::optional<QString> SearchFormSources::listedFolderInSources(const QString& folder) const {
  for (const SourceEntry& entry : entriesOf(state_.OnlineSources, state_.OnlineSourceCount)) {
    const QString source = withTrailingSeparator(entry.path, nativePathStyle());
    if (folder.startsWith(source)) return listedFolder(folder, nativePathStyle());
  }
  return std::nullopt;
}

QString SearchFormSources::listedFolderOf(const QString& path) {
  const QString real = QDir(path).canonicalPath();
  if (real.isEmpty() || !QDir(real).isReadable()) {
    messages_.inform(Texts::tr("%1 is no folder that can be read.").arg(path));
    return {};
  }
  const QString given = withTrailingSeparator(QDir::cleanPath(path), nativePathStyle());
  const QString folder = withTrailingSeparator(real, nativePathStyle());
  for (const QString& way : {given, folder}) {
    if (const auto listed = listedFolderInSources(way)) return *listed;
  }
  const QString question = Texts::tr(
                               "%1 is not catalogued yet.\r\n\r\n"
                               "Add it to the local search folders, and rescan them?")
                               .arg(folder);
  if (!messages_.askYesNo(question)) return {};
  QString told;
  if (takeFolders({folder}, told) == 0) {
    messages_.inform(told);
    return {};
  }
  changed_();
  rescan_();
  return listedFolder(folder, nativePathStyle());
}

void SearchFormSources::take(const DroppedSources& dropped) {
  QString told;
  const int folders = takeFolders(dropped.folders, told);
  const int listings = takeListings(dropped.files, told);
  if (folders + listings > 0) changed_();
  QString added;
  if (folders > 0) join(added, foldersAdded(folders));
  if (listings > 0) join(added, listingsAdded(listings));
  join(added, told);
  if (folders == 0) return messages_.inform(added);
  const QString question = added + QStringLiteral("\r\n\r\n") + Texts::tr("Rescan Local Search Locations?");
  if (messages_.askYesNo(question)) rescan_();
}

QString SearchFormSources::addOfflineLists(const QStringList& listings) {
  QString told;
  if (takeListings(listings, told) > 0) changed_();
  return told;
}

/// How many were added.
int SearchFormSources::takeFolders(const QStringList& folders, QString& told) {
  std::vector<SourceEntry> entries = entriesOf(state_.OnlineSources, state_.OnlineSourceCount);
  const int before = state_.OnlineSourceCount;
  join(told, addFolders(folders, entries, nativePathStyle()));
  if (const auto refusal = storeEntries(entries, state_.OnlineSources, state_.OnlineSourceCount)) {
    join(told, *refusal);
  }
  return state_.OnlineSourceCount - before;
}

int SearchFormSources::takeListings(const QStringList& files, QString& told) {
  std::vector<SourceEntry> entries = entriesOf(state_.OfflineSources, state_.OfflineSourceCount);
  const int before = state_.OfflineSourceCount;
  join(told, addListings(files, entries));
  if (const auto refusal = storeEntries(entries, state_.OfflineSources, state_.OfflineSourceCount)) {
    join(told, *refusal);
  }
  return state_.OfflineSourceCount - before;
}

}  // namespace quorvin
