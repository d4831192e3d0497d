#include "app/search_form_menus.h"

#include <QKeySequence>
#include <QString>

namespace quorvin {

namespace {

QMenu* addMenu(QMenuBar* bar, const QString& name, const QString& caption) {
  QMenu* menu = bar->addMenu(caption);
  menu->setObjectName(name);
  menu->setAccessibleName(QString(caption).remove(u'&'));
  return menu;
}

QAction* addItem(QMenu* menu, const QString& name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  return item;
}

}  // namespace

SearchFormMenus makeMenus(QMenuBar* bar) {
  SearchFormMenus made{};
  bar->setAccessibleName(QStringLiteral("Main menu"));
  made.FileMenu = addMenu(bar, QStringLiteral("FileMenu"), QStringLiteral("&File"));
  made.AddLocal = addItem(made.FileMenu, QStringLiteral("AddLocal"),
                          QStringLiteral("&Add/Edit Local Folder To Search List"));
  made.EditOffline =
      addItem(made.FileMenu, QStringLiteral("EditOffline"), QStringLiteral("Add/Edit Offline List files"));
  made.ReScan =
      addItem(made.FileMenu, QStringLiteral("ReScan"), QStringLiteral("Rescan Local Search Folders"));
  made.OptionsMenu = addItem(made.FileMenu, QStringLiteral("OptionsMenu"), QStringLiteral("&Options"));
  made.MenuQuit = addItem(made.FileMenu, QStringLiteral("MenuQuit"), QStringLiteral("&Quit"));
  // Spelled out: without a desktop environment the standard key for quitting is bound to nothing.
  made.MenuQuit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  made.PeersMenu = addMenu(bar, QStringLiteral("PeersMenu"), QStringLiteral("&Peers"));
  made.ShareLists = addItem(made.PeersMenu, QStringLiteral("ShareLists"), QStringLiteral("&Share My Lists"));
  made.ShareLists->setCheckable(true);
  made.GetLists =
      addItem(made.PeersMenu, QStringLiteral("GetLists"), QStringLiteral("&Get Lists From Peer..."));

  made.HlpMnu = addMenu(bar, QStringLiteral("HlpMnu"), QStringLiteral("&Help"));
  made.HlpGen = addItem(made.HlpMnu, QStringLiteral("HlpGen"), QStringLiteral("Program &Usage"));
  made.RelInfo = addItem(made.HlpMnu, QStringLiteral("RelInfo"), QStringLiteral("&Release Information"));
  made.AboutMenu = addItem(made.HlpMnu, QStringLiteral("AboutMenu"), QStringLiteral("&About"));
  return made;
}

}  // namespace quorvin
