// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/main_application.h"
#include "gui/search_form_fixture.h"
#include "state/source_list_file.h"
#include "support/eventually.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

#include <algorithm>

namespace quorvin::test {

namespace {

const QString kSettingsOf = QStringLiteral("Ketta Quorvin");

class WindowClose : public SearchFormTest {
 protected:
  WindowClose() {
    readSettings(settings_, state_, 0, QLocale(QLocale::English, QLocale::UnitedStates));
    loadSourceLists(state_);
    folder_.writeFile(QStringLiteral("any.txt"), "x");
  }

  bool SndQTimeIsEnabled() { return form().SndQTime().isEnabled(); }

  void expectSavedAndLeaving() {
    EXPECT_FALSE(form().isVisible());
    EXPECT_TRUE(settings_.has(kSettingsOf, QStringLiteral("Top")));
    EXPECT_TRUE(folder_.has(QStringLiteral("Locations.txt")));
    EXPECT_TRUE(folder_.has(QStringLiteral("OfflineLocations.txt")));
    EXPECT_TRUE(state_.ShuttingDown);
    EXPECT_TRUE(state_.QuitPending);
    EXPECT_TRUE(SndQTimeIsEnabled());
  }
};

TEST_F(WindowClose, TheCloseBoxSavesAndLeaves) {
  form().close();
  expectSavedAndLeaving();
}

TEST_F(WindowClose, QuitInTheMenuDoesTheSame) {
  form().menus().MenuQuit->trigger();
  expectSavedAndLeaving();
}

TEST_F(WindowClose, TheTimerEndsTheProgram) {
  QSignalSpy quitting(qApp, &QCoreApplication::aboutToQuit);
  form().close();
  EXPECT_EVENTUALLY(!SndQTimeIsEnabled());
}

TEST_F(WindowClose, TheTimerWaitsForARunningRefresh) {
  state_.RescanRunning = true;
  form().close();
  EXPECT_TRUE(state_.RescanAbort);
  QTest::qWait(350);
  EXPECT_TRUE(SndQTimeIsEnabled());
  state_.RescanRunning = false;
  EXPECT_EVENTUALLY(!SndQTimeIsEnabled());
}

/// A window of its own that no user can close.
class StubbornWindow : public QWidget {
 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(WindowClose, NoWindowThatRefusesToCloseKeepsTheProgram) {
  StubbornWindow stubborn;
  stubborn.show();
  form();
  QTimer::singleShot(0, &form(), [this] { form().close(); });
  // Some ticks later only where the event loop goes on.
  QTimer stillRunning;
  int ticks = 0;
  QObject::connect(&stillRunning, &QTimer::timeout, [this, &ticks] {
    if (form().hasLeft() && ++ticks > 3) QCoreApplication::exit(1);
  });
  stillRunning.start(1);
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_TRUE(form().hasLeft());
}

TEST_F(WindowClose, TheKeysForQuittingWorkWhileProgressHasTheKeyboard) {
  form();
  form().progress().show();
  form().progress().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form().progress()));
  QTest::keyClick(&form().progress(), Qt::Key_Q, Qt::ControlModifier);
  expectSavedAndLeaving();
  EXPECT_FALSE(form().progress().isVisible());
}

TEST_F(WindowClose, WhatCannotBeSavedIsToldAndTheWindowStays) {
  form();
  settings_.refusesWrites = true;
  form().close();
  EXPECT_TRUE(form().isVisible());
  EXPECT_FALSE(state_.ShuttingDown);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(
      messages_.informed.front(),
      QStringLiteral("Run-time error '75': Path/File access error\r\n\r\nThis happened while saving. The "
                     "program stays open; close it again to leave."));
}

TEST_F(WindowClose, AWindowThatStayedCanStillSearch) {
  addOnlineSource(QStringLiteral("Music"), listingOf("Music", 3, "song"));
  form();
  settings_.refusesWrites = true;
  form().close();
  find(QStringLiteral("song"));
  EXPECT_EQ(rows(), 3);
}

TEST_F(WindowClose, TheSecondCloseLeavesInAnyCase) {
  form();
  settings_.refusesWrites = true;
  form().close();
  form().close();
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(folder_.has(QStringLiteral("Locations.txt")));
}

TEST_F(WindowClose, ARunningSearchEndsAtItsNextYield) {
  addOnlineSource(QStringLiteral("Music"), listingOf("Music", 9000, "song"));
  form();
  duringTheRun([this] { form().close(); });
  find(QStringLiteral("song"));
  EXPECT_LE(rows(), 2000);
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(messages_.informed.empty());
}

// Closing because the system wants it.

TEST_F(WindowClose, WithoutTheUserItSavesAndLeavesToo) {
  form().closeUnasked();
  expectSavedAndLeaving();
}

TEST_F(WindowClose, WithoutTheUserItLeavesEvenWhatCannotBeSaved) {
  form();
  settings_.refusesWrites = true;
  form().closeUnasked();
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(folder_.has(QStringLiteral("Locations.txt")));
}

TEST_F(WindowClose, WithoutTheUserNoQuestionStaysOpen) {
  form();
  WidgetMessageBoxes boxes;
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, [&] {
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      boxes.fallSilent();
      form().closeUnasked();
    });
    EXPECT_FALSE(boxes.askYesNo(QStringLiteral("Really?")));
  });
  form().menus().OptionsMenu->trigger();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(state_.ShuttingDown);
}

// Coming to the front.

TEST_F(WindowClose, AMinimizedWindowComesForward) {
  form().showMinimized();
  QTest::qWait(0);
  form().comeForward({});
  EXPECT_FALSE(form().isMinimized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
}

TEST_F(WindowClose, TheOpenDialogComesForward) {
  form();
  bool isInFront = false;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    form().comeForward({});
    isInFront = QTest::qWaitForWindowActive(dialog);
    qobject_cast<QDialog*>(dialog)->reject();
  });
  form().menus().OptionsMenu->trigger();
  EXPECT_TRUE(isInFront);
}

// What the menus open.

class WindowMenus : public WindowClose {
 protected:
  /// Triggers `item` and does `look` at the dialog that it opens.
  void open(QAction* item, const std::function<void(QDialog&)>& look) {
    form();
    bool seen = false;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      seen = true;
      look(*dialog);
      dialog->reject();
    });
    item->trigger();
    EXPECT_TRUE(seen);
  }
};

TEST_F(WindowMenus, EveryItemCanBeChosen) {
  for (const QMenu* menu :
       {form().menus().FileMenu, form().menus().ViewMenu, form().menus().PeersMenu, form().menus().HlpMnu}) {
    for (const QAction* item : menu->actions()) {
      EXPECT_TRUE(item->isEnabled() || item->isSeparator()) << item->objectName().toStdString();
    }
  }
}

TEST_F(WindowMenus, TheLocalFoldersAreEdited) {
  addOnlineFolder(QStringLiteral("Music"), QStringLiteral("/music/"));
  open(form().menus().AddLocal, [this](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), QStringLiteral("LocalLoc"));
    EXPECT_FALSE(form().menus().AddLocal->isEnabled());
    EXPECT_FALSE(form().menus().EditOffline->isEnabled());
  });
  EXPECT_TRUE(form().menus().AddLocal->isEnabled());
  EXPECT_TRUE(form().menus().EditOffline->isEnabled());
}

TEST_F(WindowMenus, TheOfflineListsAreEdited) {
  open(form().menus().EditOffline, [this](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Offline Search List files"));
    EXPECT_TRUE(form().menus().AddLocal->isEnabled());
    EXPECT_TRUE(form().menus().EditOffline->isEnabled());
  });
}

TEST_F(WindowMenus, TheOptionsAreEdited) {
  open(form().menus().OptionsMenu, [](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), QStringLiteral("ListOptions"));
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Options"));
  });
}

TEST_F(WindowMenus, TheAboutWindowTellsTheVersion) {
  open(form().menus().AboutMenu, [](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
              QStringLiteral("Version 2.5.64"));
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblProductName"))->text(),
              QStringLiteral("Quorvin Utility"));
  });
}

TEST_F(WindowMenus, TheHelpIsAWindowOfItsOwn) {
  form().menus().HlpGen->trigger();
  QWidget* browser = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QStringLiteral("frmBrowser")) browser = window;
  }
  ASSERT_NE(browser, nullptr);
  EXPECT_TRUE(browser->isVisible());
  EXPECT_EQ(browser->windowTitle(), QStringLiteral("Quorvin Utility Help"));
  form().close();
  EXPECT_FALSE(browser->isVisible());
}

/// The named windows in the order in which they vanish.
class VanishingWindows : public QObject {
 public:
  VanishingWindows() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const QString name = object->objectName();
    const bool isOurs = object->isWidgetType() && kOthers.contains(name);
    if (isOurs && event->type() == QEvent::Hide && !seen.contains(name)) seen.append(name);
    return false;
  }

  const QStringList kOthers{QStringLiteral("frmSplash"), QStringLiteral("ListOptions"),
                            QStringLiteral("LocalLoc"),  QStringLiteral("Progress"),
                            QStringLiteral("ImgPre"),    QStringLiteral("frmBrowser")};
  QStringList seen;
};

bool isShown(const QString& name) {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [&](const QWidget* window) {
    return window->objectName() == name && window->isVisible();
  });
}

TEST_F(WindowMenus, ClosingUnloadsTheOtherWindowsInTheirOrder) {
  TemporaryFolder pictures;
  ASSERT_TRUE(QImage(20, 20, QImage::Format_RGB32).save(pictures.pathOf(QStringLiteral("a.bmp"))));
  addOnlineSource(
      QStringLiteral("Pictures"),
      blockHead("Pictures", listedFolder(pictures.path(), nativePathStyle()).toUtf8()) + entryLine("a.bmp"));
  state_.OnlineSources.set(1, QStringLiteral("Pictures"), pictures.path());
  find(QStringLiteral("bmp"));
  ASSERT_EQ(rows(), 1);
  controls().HitList->setCurrentIndex(controls().HitList->model()->index(0, 0));
  form().itemMenu().ShowPreview->trigger();
  ASSERT_TRUE(eventually([] { return isShown(QStringLiteral("ImgPre")); }));
  form().menus().HlpGen->trigger();
  form().progress().show();

  VanishingWindows vanishing;
  // Each dialog waits in its own event loop for the next one.
  QTimer::singleShot(0, [this, &vanishing] {
    QTimer::singleShot(0, [this, &vanishing] {
      QTimer::singleShot(0, [this, &vanishing] {
        for (const QString& name : vanishing.kOthers) EXPECT_TRUE(isShown(name)) << name.toStdString();
        form().close();
      });
      form().menus().AboutMenu->trigger();
    });
    form().menus().OptionsMenu->trigger();
  });
  form().menus().AddLocal->trigger();
  EXPECT_EQ(vanishing.seen.join(u' '), vanishing.kOthers.join(u' '));
}

TEST_F(WindowMenus, ClosingUnloadsAnOpenDialog) {
  form();
  bool seen = false;
  QTimer::singleShot(0, [&] {
    seen = QApplication::activeModalWidget() != nullptr;
    form().close();
  });
  form().menus().OptionsMenu->trigger();
  EXPECT_TRUE(seen);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(state_.ShuttingDown);
}

}  // namespace

}  // namespace quorvin::test
