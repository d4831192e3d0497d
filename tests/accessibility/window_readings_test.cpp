// SPDX-License-Identifier: GPL-2.0-or-later

// Every window but the main one as a screen reader finds it: which controls there are, by which names the
// program knows them and by which names they are read.
#include "accessibility/read_windows.h"
#include "app/main_application.h"
#include "editors/dialog_driving.h"
#include "help/frm_browser.h"
#include "peers/client/peer_progress.h"
#include "preview/image_preview.h"
#include "preview/res_win.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QThreadPool>
#include <QUrl>

namespace quorvin::test {

namespace {

class AccessibleWindows : public ReadWindows {
 protected:
  static void drop(QWidget& target, const QUrl& url) {
    QMimeData data;
    data.setUrls({url});
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    QCoreApplication::processEvents();
  }
  static frmBrowser* shownBrowser() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* browser = qobject_cast<frmBrowser*>(window);
      if (browser && browser->isVisible()) return browser;
    }
    return nullptr;
  }
};

TEST_F(AccessibleWindows, LocalLocForFolders) {
  addMissingOnlineSource(QStringLiteral("disk"));
  expectReadingsOfDialog([this] { form().menus().AddLocal->trigger(); }, QStringLiteral("LocalLoc"),
                         QStringLiteral("Local File Search Locations"),
                         QStringLiteral("Tree Online: Search locations\n"
                                        "ColumnHeader : Description\n"
                                        "ColumnHeader : Path\n"
                                        "TreeItem : disk\n"
                                        "TreeItem : /music\n"
                                        "Button MvUp: Move Selected Up\n"
                                        "Button MvDn: Move Selected Down\n"
                                        "Button LocDel: Delete Selected\n"
                                        "EditableText Desc: Description\n"
                                        "EditableText LocalDataFolder: Path\n"
                                        "Button GetListName: Browse for a File Location Path\n"
                                        "Button LocAdd: Add\n"
                                        "Button AddSources: Add Folders...\n"
                                        "StaticText Notice:  (hidden)\n"
                                        "Button OK: Save\n"
                                        "Button SaveOffLine: Save (hidden)\n"
                                        "Button Cancel: Cancel\n"
                                        "StaticText Label1: Description\n"
                                        "StaticText Label2: Path"));
}

TEST_F(AccessibleWindows, FoldersThatAreDroppedOntoTheEditorAreReadInItsList) {
  const QString music = folder_.makeFolder(QStringLiteral("Music"));
  form();
  EXPECT_TRUE(duringModal<QDialog>(
      [this] { form().menus().AddLocal->trigger(); },
      [&](QDialog& dialog) {
        drop(dialog, QUrl::fromLocalFile(music.chopped(1)));
        const QString lines = asLines(readingsOf(dialog));
        EXPECT_TRUE(lines.contains(QStringLiteral("TreeItem : Music\nTreeItem : %1\n").arg(music)))
            << lines.toStdString();
      }));
}

TEST_F(AccessibleWindows, LocalLocForOfflineLists) {
  expectReadingsOfDialog([this] { form().menus().EditOffline->trigger(); }, QStringLiteral("LocalLoc"),
                         QStringLiteral("Offline Search List files"),
                         QStringLiteral("Tree Online: Search locations\n"
                                        "ColumnHeader : Description\n"
                                        "ColumnHeader : Path\n"
                                        "Button MvUp: Move Selected Up\n"
                                        "Button MvDn: Move Selected Down\n"
                                        "Button LocDel: Delete Selected\n"
                                        "EditableText Desc: Description (hidden)\n"
                                        "EditableText LocalDataFolder: Path to List file\n"
                                        "Button GetListName: Browse for a File Location Path\n"
                                        "Button LocAdd: Add\n"
                                        "Button AddSources: Add Files...\n"
                                        "StaticText Notice:  (hidden)\n"
                                        "Button OK: Save (hidden)\n"
                                        "Button SaveOffLine: Save\n"
                                        "Button Cancel: Cancel\n"
                                        "StaticText Label1: Description (hidden)\n"
                                        "StaticText Label2: Path to List file"));
}

TEST_F(AccessibleWindows, ListOptions) {
  expectReadingsOfDialog([this] { form().menus().OptionsMenu->trigger(); }, QStringLiteral("ListOptions"),
                         QStringLiteral("Options"),
                         QStringLiteral("EditableText LocalDataFolder: Local Data Folder\n"
                                        "StaticText : Local Data Folder:\n"
                                        "Button GetLocalFolder: Browse for the local data folder\n"
                                        "EditableText LocalFile: List File\n"
                                        "StaticText : List File:\n"
                                        "Button GetListName: Browse for the list file\n"
                                        "EditableText RemoteFile: Update Archive Name\n"
                                        "StaticText : Update Archive Name:\n"
                                        "EditableText Server: Update Server\n"
                                        "StaticText : Update Server:\n"
                                        "EditableText JoinD: First Run Date\n"
                                        "StaticText : First Run Date:\n"
                                        "EditableText Nic: Nickname\n"
                                        "StaticText : Nickname:\n"
                                        "Button OKButton: OK\n"
                                        "Button CancelButton: Cancel"));
}

TEST_F(AccessibleWindows, FrmSplash) {
  expectReadingsOfDialog(
      [this] { form().menus().AboutMenu->trigger(); }, QStringLiteral("frmSplash"),
      QStringLiteral("About Quorvin Utility"),
      QStringLiteral("StaticText lblProductName: Quorvin Utility\n"
                     "StaticText lblVersion: Version 2.5.64\n"
                     "StaticText AppDesc: Text file / folder list searching utility\n"
                     "StaticText lblPlatform: Windows 9x, NT, 2000, XP, Vista\n"
                     "StaticText lblSystem: Runs on %1, with Qt %2\n"
                     "StaticText lblLicence: Free software under the GNU General Public License, version 2 "
                     "or later\n"
                     "Client imgLogo: Logo: a lens over a list\nButton Command1: Close")
          .arg(QSysInfo::prettyProductName(), QString::fromLatin1(qVersion())));
}

TEST_F(AccessibleWindows, FrmBrowser) {
  form().menus().HlpGen->trigger();
  frmBrowser* browser = shownBrowser();
  ASSERT_NE(browser, nullptr);
  browser->controls().findBar->open();
  const QString page = browser->controls().cboAddress->currentText();
  EXPECT_TRUE(page.endsWith(QStringLiteral("/genhelp.htm")));
  EXPECT_EQ(browser->objectName(), QStringLiteral("frmBrowser"));
  EXPECT_EQ(roleOf(*browser), QAccessible::Window);
  EXPECT_EQ(browser->windowTitle(), QStringLiteral("Quorvin Utility Help"));
  EXPECT_EQ(browser->timTimer().objectName(), QStringLiteral("timTimer"));
  expectReadings(*browser, QStringLiteral("ToolBar tbToolBar: Help toolbar\n"
                                          "ButtonMenu qt_toolbar_ext_button: More buttons (hidden)\n"
                                          "Button Back: Back\nButton Forward: Forward\n"
                                          "Button Refresh: Refresh\n"
                                          "Button Home: Home\n"
                                          "Button Search: Search\n"
                                          "Button Stop: Stop\n"
                                          "Client picAddress: \n"
                                          "ComboBox cboAddress: Address:\n"
                                          "List : Visited addresses (hidden)\n"
                                          "ListItem : %1\n"
                                          "EditableText : Address\n"
                                          "StaticText lblAddress: Address:\n"
                                          "StaticText brwWebBrowser: Page\n"
                                          "ScrollBar : Scroll the page sideways (hidden)\n"
                                          "ScrollBar : Scroll the page down\n"
                                          "Client FindBar: \n"
                                          "EditableText FindText: Find on this page\n"
                                          "Button : Clear (hidden)\n"
                                          "StaticText FindOutcome: \n"
                                          "StaticText : Find on this page:\n"
                                          "Button : Previous\n"
                                          "Button : Next\n"
                                          "Button : Close\n"
                                          "StaticText lblStatus: \nButton OpenNow: Open it now (hidden)\n"
                                          "ProgressBar loadBar: Loading (hidden)")
                               .arg(page));
  browser->close();
}

TEST_F(AccessibleWindows, Progress) {
  quorvin::Progress& progress = form().progress();
  progress.begin();
  progress.setStatus(QStringLiteral("Indexing: /music/"));
  progress.setDetail(QStringLiteral("3 files in 1 folder"));
  EXPECT_EQ(progress.objectName(), QStringLiteral("Progress"));
  expectReadings(progress, QStringLiteral("StaticText Status: Indexing: /music/\n"
                                          "ProgressBar bar: Progress\n"
                                          "StaticText Detail: 3 files in 1 folder\n"
                                          "Button CancelButton: Cancel"));
}

TEST_F(AccessibleWindows, PeerProgress) {
  quorvin::PeerProgress progress(QLocale::c());
  progress.begin(QStringLiteral("host:6060"));
  EXPECT_EQ(progress.objectName(), QStringLiteral("PeerProgress"));
  expectReadings(progress, QStringLiteral("StaticText Peer: Peer: host:6060\n"
                                          "StaticText List: Connecting...\n"
                                          "ProgressBar : Progress\n"
                                          "StaticText Bytes: \n"
                                          "Button CancelButton: Cancel"));
}

TEST_F(AccessibleWindows, TheQuestionForAPeer) {
  expectReadingsOfDialog([this] { form().menus().GetLists->trigger(); }, QString(),
                         QStringLiteral("Get Lists From Peer"),
                         QStringLiteral("StaticText : Peer (host or host:port):\n"
                                        "EditableText : Peer (host or host:port):\n"
                                        "Button : OK\n"
                                        "Button : Cancel"));
}

TEST_F(AccessibleWindows, ResWin) {
  quorvin::ResWin window;
  window.setText(QStringLiteral("/music/ Path not found"));
  window.show();
  EXPECT_EQ(window.objectName(), QStringLiteral("ResWin"));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Results"));
  expectReadings(window, QStringLiteral("EditableText ResultText: Results\n"
                                        "ScrollBar : Scroll the results sideways (hidden)\n"
                                        "ScrollBar : Scroll the results down (hidden)\n"
                                        "Button close: Close"));
}

TEST_F(AccessibleWindows, ImgPre) {
  QThreadPool pool;
  quorvin::ImgPre window(pool, nullptr);
  window.show();
  EXPECT_EQ(window.objectName(), QStringLiteral("ImgPre"));
  EXPECT_EQ(roleOf(window), QAccessible::Window);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Image Preview"));
  expectReadings(window, QStringLiteral("Client PicBox: Picture frame\n"
                                        "Client Pic: Picture\n"
                                        "StaticText Note:  (hidden)\nStaticText PicName:  (hidden)"));
}

TEST_F(AccessibleWindows, TheBoxOfAPictureThatLoads) {
  ImgPreLoading box(QStringLiteral("/music/cover.bmp"), nullptr);
  box.show();
  expectReadings(box, QStringLiteral("StaticText Status: Loading cover.bmp...\n"
                                     "ProgressBar bar: Progress\n"
                                     "Button CancelButton: Cancel"));
}

TEST_F(AccessibleWindows, MessageBoxes) {
  WidgetMessageBoxes boxes;
  const QString title = QStringLiteral("Quorvin Utility");
  expectReadingsOfDialog([&] { boxes.inform(QStringLiteral("Listing file not found")); }, {}, title,
                         QStringLiteral("Graphic qt_msgboxex_icon_label: Information\n"
                                        "StaticText qt_msgbox_label: Listing file not found\n"
                                        "Button : OK"));
  expectReadingsOfDialog([&] { boxes.askYesNo(QStringLiteral("Rescan?")); }, {}, title,
                         QStringLiteral("Graphic qt_msgboxex_icon_label: Question\n"
                                        "StaticText qt_msgbox_label: Rescan?\n"
                                        "Button : Yes\n"
                                        "Button : No"));
  expectReadingsOfDialog([&] { boxes.askAbortRetryIgnore(QStringLiteral("Broken")); }, {}, title,
                         QStringLiteral("Graphic qt_msgboxex_icon_label: Warning\n"
                                        "StaticText qt_msgbox_label: Broken\n"
                                        "Button : Abort\n"
                                        "Button : Retry\n"
                                        "Button : Ignore"));
}

/// The check itself: what it is for is found.
TEST(ReadingFaults, AreFound) {
  QWidget window;
  window.setObjectName(QStringLiteral("window"));
  const auto add = [&window](const char* objectName, const char* caption, const char* name) {
    auto* button = new QPushButton(QString::fromLatin1(caption), &window);
    button->setObjectName(QString::fromLatin1(objectName));
    button->setAccessibleName(QString::fromLatin1(name));
  };
  add("Nameless", "", "");
  add("Browse", "...", "");
  add("LocDel", "Delete", "LocDel");
  add("Cancel", "&Cancel", "");
  add("Abort", "Abort", "Cancel");
  window.show();
  EXPECT_EQ(faultsOf(readingsOf(window)).join(u'\n').toStdString(),
            "Button Nameless:  has no name\n"
            "Button Browse: ... has a name without a word\n"
            "Button LocDel: LocDel is called as in the program's text\n"
            "Button Abort: Cancel is read like another control");
}

}  // namespace

}  // namespace quorvin::test
