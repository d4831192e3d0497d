// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_help.h"

#include "editors/local_loc.h"
#include "help/help_files.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMessageBox>

namespace quorvin {

namespace {

/// By the names of the windows.
const QHash<QString, QString>& manualPages() {
  static const QHash<QString, QString> pages = {
      {QStringLiteral("SearchForm"), QStringLiteral("manual/searching.htm")},
      {QStringLiteral("ListOptions"), QStringLiteral("manual/options.htm")},
      {QStringLiteral("ListingHistory"), QStringLiteral("manual/cataloguing.htm#history")},
      {QStringLiteral("CopiesWindow"), QStringLiteral("manual/copies.htm#window")},
      {QStringLiteral("CompareWindow"), QStringLiteral("manual/compare.htm#window")},
      {QStringLiteral("FetchWindow"), QStringLiteral("manual/plan.htm#window")},
      {QStringLiteral("VolumesWindow"), QStringLiteral("manual/volumes.htm#window")},
      {QStringLiteral("SpaceWindow"), QStringLiteral("manual/volumes.htm#map")},
      {QStringLiteral("ImportWindow"), QStringLiteral("manual/imports.htm#window")},
      {QStringLiteral("frmSplash"), QStringLiteral("relinfo.htm")},
      {QStringLiteral("Progress"), QStringLiteral("manual/cataloguing.htm#rescan")},
      {QStringLiteral("ResWin"), QStringLiteral("manual/messages.htm#results")},
      {QStringLiteral("HitProperties"), QStringLiteral("manual/hits.htm")},
      {QStringLiteral("ImgPre"), QStringLiteral("manual/hits.htm#preview")},
      {QStringLiteral("ImgPreLoading"), QStringLiteral("manual/hits.htm#preview")},
      {QStringLiteral("PeerProgress"), QStringLiteral("manual/peers.htm#get")},
  };
  return pages;
}

}  // namespace

QString manualPageFor(const QWidget& widget) {
  // The list of hits has a page of its own.
  if (widget.objectName() == QStringLiteral("HitList")) return QStringLiteral("manual/hits.htm");
  const QWidget* window = widget.window();
  if (const auto* editor = qobject_cast<const LocalLoc*>(window)) {
    const bool isOffline = editor->LocMode() == kOfflineMode;
    return isOffline ? QStringLiteral("manual/offline.htm#offline")
                     : QStringLiteral("manual/cataloguing.htm#add");
  }
  if (qobject_cast<const QMessageBox*>(window)) return QStringLiteral("manual/messages.htm");
  return manualPages().value(window->objectName());
}

SearchFormHelp::SearchFormHelp() {
  qApp->installEventFilter(this);
}

SearchFormHelp::~SearchFormHelp() {
  unload();
}

/// At once: what is deleted later would outlive the transfer that it uses.
void SearchFormHelp::unload() {
  delete browser_;
}

bool SearchFormHelp::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
  auto* widget = static_cast<QWidget*>(watched);
  const QString page = manualPageFor(*widget);
  if (page.isEmpty()) return false;
  open(page, *widget->window());
  return true;
}

void SearchFormHelp::open(const QString& page, QWidget& window) {
  unload();
  // A modal dialog keeps the keys and the mouse from every window that is not its own.
  browser_ = new frmBrowser(helpFolder(), transfer_, window.isModal() ? &window : nullptr);
  browser_->setAttribute(Qt::WA_DeleteOnClose);
  browser_->showHelp(helpPageAddress(page));
}

}  // namespace quorvin
