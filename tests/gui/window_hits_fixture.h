// SPDX-License-Identifier: GPL-2.0-or-later

// The real main window with files of the test's own among its hits, and what people do with them.
#pragma once

#include "gui/search_form_fixture.h"
#include "hits/hit_list.h"
#include "search/hit_path.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QWindow>

namespace quorvin::test {

class WindowHits : public SearchFormTest {
 protected:
  /// Makes these files, lists them as an online source and finds them all.
  void showFiles(const QStringList& names) {
    QByteArray listing = blockHead("Music", listed(files_.path()));
    for (const QString& name : names) {
      files_.writeFile(name, "x");
      listing += entryLine(name.toUtf8());
    }
    addOnlineSource(QStringLiteral("Music"), listing);
    state_.OnlineSources.set(1, QStringLiteral("Music"), files_.path());
    find(QStringLiteral("\\"));
    ASSERT_EQ(rows(), names.size());
  }
  static QByteArray listed(const QString& folder) { return listedFolder(folder, nativePathStyle()).toUtf8(); }

  HitListView* list() { return controls().HitList; }
  QPoint middleOf(int row) { return list()->visualRect(list()->model()->index(row, 1)).center(); }
  void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, middleOf(row));
  }
  void doubleClick(int row) {
    click(row);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, middleOf(row));
  }
  /// Through the window system's own way of events, which makes a request for a menu of it.
  void rightClick(int row) {
    const QPoint place = list()->viewport()->mapTo(&form(), middleOf(row));
    QTest::mouseClick(form().windowHandle(), Qt::RightButton, {}, place);
    QCoreApplication::processEvents();
  }
  void pressMenuKey() {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list(), &event);
  }
  QMenu* menu() { return form().itemMenu().menu; }
  QStringList visibleItems() {
    QStringList captions;
    for (const QAction* item : menu()->actions()) {
      if (item->isVisible() && !item->isSeparator()) captions.append(item->text());
    }
    return captions;
  }
  QStringList menuFor(const QString& name) {
    showFiles({name});
    rightClick(0);
    EXPECT_TRUE(menu()->isVisible());
    return visibleItems();
  }
  QString clipboard() { return QGuiApplication::clipboard()->text(); }
  QString openCall(const QString& name) {
    return QStringLiteral("open %1 in %2").arg(files_.pathOf(name), files_.path());
  }

  TemporaryFolder files_;
};

}  // namespace quorvin::test
