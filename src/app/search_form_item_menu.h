// The pop-up menu of a hit.
#pragma once

#include <QAction>
#include <QMenu>

namespace quorvin {

/// The menu and its items.
struct ItemMenu {
  QMenu* menu;
  QAction* CtLaunch;
  QAction* CTOpFolder;
  QAction* ShowPreview;
  QAction* CTQueue;
  /// The selected rows as text, and the full paths of their files.
  QAction* CopyRows;
  QAction* CopyPaths;
};

/// Makes the menu as a child of `parent`; nothing is connected. Its shortcuts work only where the actions are
/// added to a widget.
ItemMenu makeItemMenu(QWidget* parent);

}  // namespace quorvin
