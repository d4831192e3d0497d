#include "app/search_form_item_menu.h"

#include <QKeySequence>
#include <QString>

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

}  // namespace quorvin
