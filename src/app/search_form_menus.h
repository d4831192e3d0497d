// The menu bar of the main window.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace quorvin {

/// The menus and their items; the menu bar owns them.
struct SearchFormMenus {
  QMenu* FileMenu;
  QAction* AddLocal;
  QAction* EditOffline;
  QAction* ReScan;
  QAction* OptionsMenu;
  QAction* MenuQuit;
  QMenu* PeersMenu;
  /// Can be checked; is checked while lists are shared.
  QAction* ShareLists;
  QAction* GetLists;
  QMenu* HlpMnu;
  QAction* HlpGen;
  QAction* RelInfo;
  QAction* AboutMenu;
};

/// Fills `bar`. Nothing is connected.
SearchFormMenus makeMenus(QMenuBar* bar);

}  // namespace quorvin
