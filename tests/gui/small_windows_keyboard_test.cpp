// SPDX-License-Identifier: GPL-2.0-or-later

// The small windows by keys alone: what they are for is done, and they are left.
#include "app/main_application.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "help/frm_splash.h"
#include "peers/client/peer_progress.h"
#include "preview/image_preview.h"
#include "preview/res_win.h"

#include <QClipboard>
#include <QInputDialog>
#include <QMessageBox>
#include <QThreadPool>

namespace quorvin::test {

namespace {

using SmallWindowKeys = SearchFormTest;

TEST_F(SmallWindowKeys, ProgressIsCancelledByItsButtonOrByEsc) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape}) {
    state_.AbortRequested = false;
    form().progress().begin();
    activate(form().progress());
    EXPECT_EQ(tabStops().toStdString(), "CancelButton");
    press(key);
    EXPECT_TRUE(state_.AbortRequested);
  }
}

TEST_F(SmallWindowKeys, ARefreshIsCancelledByKeysFromTheMainWindow) {
  TemporaryFolder files;
  for (int number = 0; number < 2000; ++number) files.writeFile(QString::number(number), "x");
  addOnlineFolder(QStringLiteral("Music"), files.path());
  form();
  QTimer cancel;
  QObject::connect(&cancel, &QTimer::timeout, &cancel, [&] {
    if (!form().progress().isVisible()) return;
    cancel.stop();
    activate(form().progress());
    press(Qt::Key_Space);
  });
  cancel.start(0);
  press(Qt::Key_F, Qt::AltModifier);
  press(Qt::Key_Down, {}, 2);
  press(Qt::Key_Return);
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_FALSE(form().progress().isVisible());
}

TEST_F(SmallWindowKeys, GettingListsIsCancelledByItsButtonOrByEsc) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape}) {
    PeerProgress window(QLocale::c());
    int cancelled = 0;
    QObject::connect(&window, &PeerProgress::cancelled, &window, [&cancelled] { ++cancelled; });
    window.begin(QStringLiteral("host"));
    activate(window);
    EXPECT_EQ(tabStops().toStdString(), "CancelButton");
    press(key);
    EXPECT_EQ(cancelled, 1);
  }
}

TEST_F(SmallWindowKeys, APeerIsTypedAndLeftByEsc) {
  form();
  inDialog<QInputDialog>(
      [] {
        press(Qt::Key_P, Qt::AltModifier);
        press(Qt::Key_G);
      },
      [](QInputDialog& dialog) {
        typeText(QStringLiteral("host:6060"));
        EXPECT_EQ(dialog.textValue(), QStringLiteral("host:6060"));
        EXPECT_EQ(tabStops().toStdString(), "Peer (host or host:port): OK Cancel");
        press(Qt::Key_Escape);
      });
}

TEST_F(SmallWindowKeys, ResultsAreReadCopiedAndClosed) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
    ResWin window;
    window.setText(QStringLiteral("/m/a File not found"));
    inDialog<ResWin>([&] { window.exec(); },
                     [key](ResWin&) {
                       EXPECT_EQ(tabStops().toStdString(), "ResultText close");
                       tabTo("ResultText");
                       press(Qt::Key_A, Qt::ControlModifier);
                       press(Qt::Key_C, Qt::ControlModifier);
                       tabTo("close");
                       press(key);
                     });
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("/m/a File not found"));
  }
}

TEST_F(SmallWindowKeys, ResultsAreClosedByTheLetterOfTheButton) {
  ResWin window;
  inDialog<ResWin>([&] { window.exec(); },
                   [](ResWin&) {
                     press(Qt::Key_C, Qt::AltModifier);
                     QTest::qWait(200);
                   });
}

TEST_F(SmallWindowKeys, TheAboutWindowIsOpenedAndClosed) {
  form();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
    inDialog<frmSplash>(
        [] {
          press(Qt::Key_H, Qt::AltModifier);
          press(Qt::Key_A);
        },
        [key](frmSplash&) {
          EXPECT_EQ(tabStops().toStdString(), "Command1");
          press(key);
        });
  }
}

TEST_F(SmallWindowKeys, MessagesAreAnsweredByTheirLettersAndByArrows) {
  WidgetMessageBoxes boxes;
  bool yes = false;
  inDialog<QMessageBox>([&] { yes = boxes.askYesNo(QStringLiteral("Rescan?")); },
                        [](QMessageBox&) {
                          press(Qt::Key_Y, Qt::AltModifier);
                          QTest::qWait(200);
                        });
  EXPECT_TRUE(yes);
  inDialog<QMessageBox>([&] { yes = boxes.askYesNo(QStringLiteral("Rescan?")); },
                        [](QMessageBox&) {
                          press(Qt::Key_Tab);
                          press(Qt::Key_Return);
                        });
  EXPECT_FALSE(yes);
  FaultAnswer answer = FaultAnswer::Closed;
  inDialog<QMessageBox>([&] { answer = boxes.askAbortRetryIgnore(QStringLiteral("Broken")); },
                        [](QMessageBox&) {
                          EXPECT_EQ(tabStops().count(u' '), 2) << "three buttons";
                          tabTo("Retry");
                          press(Qt::Key_Space);
                        });
  EXPECT_EQ(answer, FaultAnswer::Retry);
  inDialog<QMessageBox>([&] { boxes.inform(QStringLiteral("Done")); },
                        [](QMessageBox&) { press(Qt::Key_Escape); });
}

TEST_F(SmallWindowKeys, ThePreviewIsClosedByEsc) {
  QThreadPool pool;
  ImgPre window(pool, nullptr);
  activate(window);
  press(Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(SmallWindowKeys, LoadingAPictureIsCancelledByItsButtonOrByEsc) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape}) {
    ImgPreLoading box(QStringLiteral("/music/cover.bmp"), nullptr);
    activate(box);
    EXPECT_EQ(tabStops().toStdString(), "CancelButton");
    press(key);
    EXPECT_TRUE(box.wasCanceled()) << key;
  }
}

}  // namespace

}  // namespace quorvin::test
