// Every window but the main one as a screen reader finds it: which controls there are, by which names the
// program knows them and by which names they are read.
#include "accessibility/readings.h"
#include "app/main_application.h"
#include "editors/dialog_driving.h"
#include "gui/search_form_fixture.h"
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

class AccessibleWindows : public SearchFormTest {
 protected:
  static void expectReadings(QWidget& window, const QString& lines) {
    const std::vector<Reading> readings = readingsOf(window);
    EXPECT_EQ(asLines(readings).toStdString(), lines.toStdString());
    EXPECT_EQ(faultsOf(readings).join(u'\n').toStdString(), "");
  }
  static QAccessible::Role roleOf(QWidget& window) {
    return QAccessible::queryAccessibleInterface(&window)->role();
  }
  /// Shows a dialog by `open` and looks at it.
  void expectReadingsOfDialog(const std::function<void()>& open, const QString& objectName,
                              const QString& title, const QString& lines) {
    // Showing the main window lets events run, which would be taken for those of the dialog.
    form();
    EXPECT_TRUE(duringModal<QDialog>(open, [&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), objectName);
      EXPECT_EQ(dialog.windowTitle(), title);
      expectReadings(dialog, lines);
    }));
  }
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

TEST_F(AccessibleWindows, Copies) {
  expectReadingsOfDialog(
      [this] { form().menus().Copies->trigger(); }, QStringLiteral("CopiesWindow"), QStringLiteral("Copies"),
      QStringLiteral("StaticText : Words:\n"
                     "EditableText Words: Words that limit what is shown\n"
                     "StaticText : Show:\n"
                     "ComboBox What: Show:\n"
                     "List : What can be shown (hidden)\n"
                     "ListItem : What wastes space\n"
                     "ListItem : What wastes space, by volume\n"
                     "ListItem : What wastes space, by folder\n"
                     "ListItem : On one volume only\n"
                     "ListItem : On one volume only, by volume\n"
                     "ListItem : On one volume only, by folder\n"
                     "StaticText : Match %:\n"
                     "EditableText Match: Desired match in percent\n"
                     "CheckBox Empty: Empty files, too\n"
                     "CheckBox Content: Look into files at hand\n"
                     "Tree Rows: Copies\n"
                     "StaticText Status: Files that have the same name and the same size to the byte, in all "
                     "listings together. Nothing is deleted or changed.\n"
                     "Button Find: Find\n"
                     "Button close: Close"));
}

TEST_F(AccessibleWindows, Import) {
  expectReadingsOfDialog(
      [this] { form().menus().Import->trigger(); }, QStringLiteral("ImportWindow"), QStringLiteral("Import"),
      QStringLiteral(
          "List Lists: Lists to import\nButton Add: Add...\nButton Remove: Remove\n"
          "StaticText : Made by:\nComboBox Format: Made by:\n"
          "List : Programs that make lists (hidden)\nListItem : As recognised\n"
          "ListItem : find-ls\nListItem : rsync\nListItem : tar\nListItem : ls\n"
          "ListItem : ls-quoted\nListItem : ls-escaped\nListItem : unzip\nListItem : rclone\n"
          "ListItem : dir\nListItem : bagit\nListItem : checksums\nListItem : du\n"
          "ListItem : tree\nListItem : csv\nListItem : paths\nListItem : find-printf\n"
          "StaticText : Pattern:\n"
          "EditableText Columns: Pattern of find -printf, or columns of a table\n"
          "StaticText : Encoding:\nComboBox Encoding: Encoding:\nList : Encodings (hidden)\n"
          "ListItem : utf-8\nListItem : windows-1252\nListItem : cp437\nListItem : cp850\n"
          "ListItem : cp852\n"
          "StaticText : Dates:\nComboBox Dates: Dates:\nList : Orders of day and month (hidden)\n"
          "ListItem : As the list tells\nListItem : Day first\nListItem : Month first\n"
          "StaticText : Made on:\nEditableText Made: The day on which the lists were made\n"
          "StaticText : Paths in:\n"
          "EditableText Folder: Where paths start that do not start with /\n"
          "StaticText : Volume:\nEditableText Volume: Name of the volume and of its listing\n"
          "CheckBox Bytes: du told bytes\n"
          "StaticText : Listings to:\nEditableText Output: Folder for the listings\n"
          "Button Browse: Browse for a folder\nCheckBox Replace: Replace listings of the same name\n"
          "CheckBox Search: Search in the listings from now on\n"
          "EditableText Report: What has come of it\n"
          "ScrollBar : Scroll the results sideways (hidden)\nScrollBar : Scroll the results down (hidden)\n"
          "Button Import: Import\nButton close: Close"));
}

TEST_F(AccessibleWindows, ListingHistory) {
  ListingHistory history(folder_.path());
  folder_.writeFile(QStringLiteral("disk.txt"), listingOf("DISK", 2, "tune"));
  const QString made = folder_.writeFile(QStringLiteral("made"), listingOf("DISK", 1, "tune"));
  history.keep(QStringLiteral("disk.txt"), made, true);
  const auto date = [](qint64 moment) {
    return QLocale(QLocale::English, QLocale::UnitedStates)
        .toString(QDateTime::fromMSecsSinceEpoch(moment), QLocale::ShortFormat);
  };
  const QString now = date(history.present(QStringLiteral("disk.txt"))->made);
  const QString then = date(history.versions(QStringLiteral("disk.txt"))[0].made);
  expectReadingsOfDialog([this] { form().menus().ListingHistory->trigger(); },
                         QStringLiteral("ListingHistory"), QStringLiteral("Listing History"),
                         QStringLiteral("StaticText : Listing:\n"
                                        "ComboBox Listing: Listing:\n"
                                        "List : Listings that have earlier versions (hidden)\n"
                                        "ListItem : disk.txt\n"
                                        "StaticText Present: Now: %1, 2 entries, 261 bytes, complete\n"
                                        "Tree Versions: Earlier versions\n"
                                        "ColumnHeader : Date\n"
                                        "ColumnHeader : Entries\n"
                                        "ColumnHeader : Size\n"
                                        "ColumnHeader : Complete\n"
                                        "TreeItem : %2\n"
                                        "TreeItem : 2\n"
                                        "TreeItem : 261 bytes\n"
                                        "TreeItem : yes\n"
                                        "Button Restore: Restore\n"
                                        "Button close: Close")
                             .arg(now, then));
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
