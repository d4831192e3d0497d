// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_controls.h"

#include "app/search_form_view.h"
#include "texts/texts.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QString>
#include <QStyle>

#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kInitialMatch[] = u"50";

/// Labels take the direction of their text, which is English, for their alignment, too.
Qt::Alignment mirrored(Qt::Alignment alignment) {
  return QStyle::visualAlignment(QGuiApplication::layoutDirection(), alignment);
}

QLabel* makeCaption(QWidget* parent, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, parent);
  label->setAlignment(mirrored(Qt::AlignLeft) | Qt::AlignVCenter);
  label->setBuddy(buddy);
  return label;
}

/// A label that is written often: plain text needs no look at what it holds.
QLabel* makeValue(QWidget* parent, const QString& name, const QString& text, const QString& meaning) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setAlignment(mirrored(Qt::AlignLeft) | Qt::AlignVCenter);
  label->setAccessibleDescription(meaning);
  return label;
}

SearchTextEdit* makeSearchStr(QWidget* parent) {
  auto* edit = new SearchTextEdit(parent);
  edit->setObjectName(QStringLiteral("SearchStr"));
  edit->setAccessibleName(Texts::tr("Search text"));
  edit->setPlaceholderText(Texts::tr("Words from the name or folder, for example: rock live"));
  edit->setToolTip(edit->placeholderText());
  return edit;
}

QLineEdit* makeDesMatch(QWidget* parent) {
  const QString meaning = Texts::tr("Entries that contain more than this share of the words are shown");
  auto* edit = new QLineEdit(QString::fromUtf16(kInitialMatch), parent);
  edit->setObjectName(QStringLiteral("DesMatch"));
  edit->setAccessibleName(Texts::tr("Desired match in percent"));
  edit->setAccessibleDescription(meaning);
  edit->setToolTip(meaning);
  return edit;
}

QPushButton* makeButton(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

QMenu* addMenu(QMenuBar* bar, const QString& name, const QString& caption) {
  QMenu* menu = bar->addMenu(caption);
  menu->setObjectName(name);
  menu->setAccessibleName(QString(caption).remove(u'&'));
  return menu;
}

/// Those of the View menu that concern the search text.
void addSearchItems(SearchFormMenus& menus) {
  menus.ViewMenu->addSeparator();
  menus.SearchWhileTyping =
      addItem(menus.ViewMenu, QStringLiteral("SearchWhileTyping"), Texts::tr("Search While &Typing"));
  menus.SearchWhileTyping->setCheckable(true);
  menus.KeepSearchHistory =
      addItem(menus.ViewMenu, QStringLiteral("KeepSearchHistory"), Texts::tr("&Keep Search History"));
  menus.KeepSearchHistory->setCheckable(true);
  menus.ClearSearchHistory =
      addItem(menus.ViewMenu, QStringLiteral("ClearSearchHistory"), Texts::tr("Clear Search &History"));
}

}  // namespace

SearchFormControls makeControls(QWidget* parent, QAbstractItemModel& rows) {
  SearchFormControls made{};
  made.MenuLine = new QFrame(parent);
  made.MenuLine->setObjectName(QStringLiteral("MenuLine"));
  made.MenuLine->setAccessibleName(Texts::tr("Line below the menu"));
  made.MenuLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);

  // In tab order.
  made.SearchStr = makeSearchStr(parent);
  made.DesMatch = makeDesMatch(parent);
  made.Find = makeButton(parent, QStringLiteral("Find"), Texts::tr("Find"));
  made.Find->setDefault(true);
  made.WebUpdate = makeButton(parent, QStringLiteral("WebUpdate"), Texts::tr("Web Update?"));
  made.WebUpdate->setEnabled(false);
  made.HitList = new HitListView(parent);
  made.HitList->setModel(&rows);
  made.HitList->setObjectName(QStringLiteral("HitList"));
  made.HitList->setAccessibleName(Texts::tr("Hits"));
  made.FilterStr = new QLineEdit(parent);
  made.FilterStr->setObjectName(QStringLiteral("FilterStr"));
  made.FilterStr->setAccessibleName(Texts::tr("Filter"));
  made.FilterStr->setAccessibleDescription(
      Texts::tr("Only hits with all of these words in the name or folder are shown"));
  made.FilterStr->setPlaceholderText(Texts::tr("Words that the name or folder must have"));

  made.searchLabel = makeCaption(parent, Texts::tr("&Search for:"), made.SearchStr);
  made.matchLabel = makeCaption(parent, Texts::tr("&Match %:"), made.DesMatch);
  made.lblFound = makeValue(parent, QStringLiteral("lblFound"), QStringLiteral("0"),
                            Texts::tr("Number of entries found"));
  made.lblSearched = makeValue(parent, QStringLiteral("lblSearched"), QStringLiteral("0"),
                               Texts::tr("Number of entries searched"));
  // Screen readers read a caption before what it belongs to, a bare number otherwise.
  made.foundLabel = makeCaption(parent, Texts::tr("Found:"), made.lblFound);
  made.searchedLabel = makeCaption(parent, Texts::tr("Searched:"), made.lblSearched);
  made.lblVer = makeValue(parent, QStringLiteral("lblVer"), QString(), Texts::tr("Program version"));
  made.lblVer->setAlignment(mirrored(Qt::AlignRight) | Qt::AlignVCenter);
  made.lblVer->setForegroundRole(QPalette::PlaceholderText);
  made.filterLabel = makeCaption(parent, Texts::tr("Fi&lter:"), made.FilterStr);
  made.lblShown = makeValue(parent, QStringLiteral("lblShown"), QString(), Texts::tr("Number of hits shown"));
  for (QWidget* widget : {static_cast<QWidget*>(made.filterLabel), static_cast<QWidget*>(made.FilterStr),
                          static_cast<QWidget*>(made.lblShown)}) {
    widget->hide();
  }
  return made;
}

QAction* addItem(QMenu* menu, const QString& name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  return item;
}

SearchFormMenus makeMenus(QMenuBar* bar) {
  SearchFormMenus made{};
  bar->setAccessibleName(Texts::tr("Main menu"));
  made.FileMenu = addMenu(bar, QStringLiteral("FileMenu"), Texts::tr("&File"));
  made.AddLocal =
      addItem(made.FileMenu, QStringLiteral("AddLocal"), Texts::tr("&Add/Edit Local Folder To Search List"));
  made.EditOffline =
      addItem(made.FileMenu, QStringLiteral("EditOffline"), Texts::tr("Add/Edit Offline List files"));
  made.ReScan = addItem(made.FileMenu, QStringLiteral("ReScan"), Texts::tr("Rescan Local Search Folders"));
  made.ListingHistory =
      addItem(made.FileMenu, QStringLiteral("ListingHistory"), Texts::tr("Listing &History..."));
  made.Copies = addItem(made.FileMenu, QStringLiteral("Copies"), Texts::tr("&Copies..."));
  made.Compare = addItem(made.FileMenu, QStringLiteral("Compare"), Texts::tr("Co&mpare..."));
  made.Volumes = addItem(made.FileMenu, QStringLiteral("Volumes"), Texts::tr("&Volumes..."));
  made.Import = addItem(made.FileMenu, QStringLiteral("Import"), Texts::tr("&Import..."));
  made.ExportHits = addItem(made.FileMenu, QStringLiteral("ExportHits"), Texts::tr("&Export Hits..."));
  made.OptionsMenu = addItem(made.FileMenu, QStringLiteral("OptionsMenu"), Texts::tr("&Options"));
  made.MenuQuit = addItem(made.FileMenu, QStringLiteral("MenuQuit"), Texts::tr("&Quit"));
  // Spelled out: without a desktop environment the standard key for quitting is bound to nothing.
  made.MenuQuit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  // From every window: while the program works, Progress may be the one that has the keys.
  made.MenuQuit->setShortcutContext(Qt::ApplicationShortcut);

  made.ViewMenu = addMenu(bar, QStringLiteral("ViewMenu"), Texts::tr("&View"));
  addViewItems(made);
  made.HitsMenu = addMenu(bar, QStringLiteral("HitsMenu"), Texts::tr("H&its"));
  addSearchItems(made);

  made.PeersMenu = addMenu(bar, QStringLiteral("PeersMenu"), Texts::tr("&Peers"));
  made.ShareLists = addItem(made.PeersMenu, QStringLiteral("ShareLists"), Texts::tr("&Share My Lists"));
  made.ShareLists->setCheckable(true);
  made.GetLists = addItem(made.PeersMenu, QStringLiteral("GetLists"), Texts::tr("&Get Lists From Peer..."));

  made.HlpMnu = addMenu(bar, QStringLiteral("HlpMnu"), Texts::tr("&Help"));
  made.HlpGen = addItem(made.HlpMnu, QStringLiteral("HlpGen"), Texts::tr("Program &Usage"));
  made.RelInfo = addItem(made.HlpMnu, QStringLiteral("RelInfo"), Texts::tr("&Release Information"));
  made.AboutMenu = addItem(made.HlpMnu, QStringLiteral("AboutMenu"), Texts::tr("&About"));
  return made;
}

}  // namespace quorvin
