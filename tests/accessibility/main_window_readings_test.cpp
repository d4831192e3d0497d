// SPDX-License-Identifier: GPL-2.0-or-later

// The main window as a screen reader finds it.
#include "accessibility/readings.h"
#include "gui/search_form_fixture.h"

namespace quorvin::test {

namespace {

class AccessibleMainWindow : public SearchFormTest {
 protected:
  static void expectReadings(QWidget& window, const QString& lines) {
    const std::vector<Reading> readings = readingsOf(window);
    EXPECT_EQ(asLines(readings).toStdString(), lines.toStdString());
    EXPECT_EQ(faultsOf(readings).join(u'\n').toStdString(), "");
  }
};

TEST_F(AccessibleMainWindow, SearchForm) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(form().objectName(), QStringLiteral("SearchForm"));
  expectReadings(
      form(),
      QStringLiteral("Border MenuLine: Line below the menu\n"
                     "EditableText SearchStr: Search text\n"
                     "Button SearchHistoryButton: Earlier searches\n"
                     "EditableText DesMatch: Desired match in percent\n"
                     "Button Find: Find\n"
                     "Button WebUpdate: Web Update?\n"
                     "List HitList: Hits\n"
                     "ListItem : Match 100%, Volume DISK, Folder \\Music\\, Name tune 1.mp3, Size 0.00mb, "
                     "Date Jan, 15 04\n"
                     "ListItem : Match 100%, Volume DISK, Folder \\Music\\, Name tune 2.mp3, Size 0.00mb, "
                     "Date Jan, 15 04\n"
                     "EditableText FilterStr: Filter (hidden)\n"
                     "StaticText : Search for:\n"
                     "StaticText : Match %:\n"
                     "StaticText lblFound: 2\n"
                     "StaticText lblSearched: 2\n"
                     "StaticText : Found:\n"
                     "StaticText : Searched:\n"
                     "StaticText lblVer: Ver:2.5(64)\n"
                     "StaticText : Filter: (hidden)\n"
                     "StaticText lblShown: 2 of 2 shown (hidden)\n"
                     "MenuBar : Main menu\n"
                     "MenuItem : File\nPopupMenu FileMenu: File (hidden)\n"
                     "MenuItem AddLocal: Add/Edit Local Folder To Search List (hidden)\n"
                     "MenuItem EditOffline: Add/Edit Offline List files (hidden)\n"
                     "MenuItem ReScan: Rescan Local Search Folders (hidden)\n"
                     "MenuItem ListingHistory: Listing History... (hidden)\n"
                     "MenuItem Copies: Copies... (hidden)\n"
                     "MenuItem Compare: Compare... (hidden)\n"
                     "MenuItem Volumes: Volumes... (hidden)\n"
                     "MenuItem Import: Import... (hidden)\n"
                     "MenuItem ExportHits: Export Hits... (hidden)\n"
                     "MenuItem OptionsMenu: Options (hidden)\n"
                     "MenuItem MenuQuit: Quit (hidden)\n"
                     "MenuItem : View\nPopupMenu ViewMenu: View (hidden)\n"
                     "MenuItem FilterHits: Filter Hits (hidden)\n"
                     "MenuItem FoundOrder: Found Order (hidden)\n"
                     "MenuItem SortByMatch: Sort by Match (hidden)\n"
                     "MenuItem SortByVolume: Sort by Volume (hidden)\n"
                     "MenuItem SortByFolder: Sort by Folder (hidden)\n"
                     "MenuItem SortByName: Sort by Name (hidden)\n"
                     "MenuItem SortBySize: Sort by Size (hidden)\n"
                     "MenuItem SortByDate: Sort by Date (hidden)\n"
                     "MenuItem ColumnsMenu: Columns (hidden)\n"
                     "PopupMenu ColumnsMenu: Columns (hidden)\n"
                     "MenuItem ShowMatch: Match (hidden)\n"
                     "MenuItem ShowVolume: Volume (hidden)\n"
                     "MenuItem ShowFolder: Folder (hidden)\n"
                     "MenuItem ShowName: Name (hidden)\n"
                     "MenuItem ShowSize: Size (hidden)\n"
                     "MenuItem ShowDate: Date (hidden)\n"
                     "MenuItem ResetColumns: Reset Columns (hidden)\n"
                     "MenuItem SearchWhileTyping: Search While Typing (hidden)\n"
                     "MenuItem KeepSearchHistory: Keep Search History (hidden)\n"
                     "MenuItem ClearSearchHistory: Clear Search History (hidden)\n"
                     "MenuItem : Hits\nPopupMenu HitsMenu: Hits (hidden)\n"
                     "MenuItem OpenHits: Open (hidden)\nMenuItem ShowInFolder: Show in Folder (hidden)\n"
                     "MenuItem WhichDisk: Which Disk? (hidden)\nMenuItem FetchPlan: Fetch Plan... "
                     "(hidden)\nMenuItem CopyRows: Copy (hidden)\n"
                     "MenuItem CopyNames: Copy Names (hidden)\nMenuItem CopyPaths: Copy Full Path (hidden)\n"
                     "MenuItem ExportSelected: Export Selected... (hidden)\n"
                     "MenuItem HitProperties: Properties (hidden)\n"
                     "MenuItem : Peers\nPopupMenu PeersMenu: Peers (hidden)\n"
                     "MenuItem ShareLists: Share My Lists (hidden)\n"
                     "MenuItem GetLists: Get Lists From Peer... (hidden)\n"
                     "MenuItem : Help\nPopupMenu HlpMnu: Help (hidden)\n"
                     "MenuItem HlpGen: Program Usage (hidden)\n"
                     "MenuItem RelInfo: Release Information (hidden)\n"
                     "MenuItem AboutMenu: About (hidden)\n"
                     "StatusBar StatusLine: Status\n"
                     "StaticText StatusText: 2 hits"));
}

TEST_F(AccessibleMainWindow, TheCountsAreReadAfterTheirCaptions) {
  QStringList captions;
  for (const Reading& reading : readingsOf(form())) {
    const bool isCount = reading.objectName == u"lblFound" || reading.objectName == u"lblSearched";
    if (isCount) captions.append(reading.label);
  }
  EXPECT_EQ(captions, QStringList({QStringLiteral("Found:"), QStringLiteral("Searched:")}));
}

TEST_F(AccessibleMainWindow, AnEmptyHitListReadsWhatToDoFirst) {
  EXPECT_TRUE(controls().HitList->accessibleDescription().startsWith(
      QStringLiteral("There is nothing to search yet.")));
  addMissingOnlineSource(QStringLiteral("Music"));
  form().sourcesChanged();
  EXPECT_EQ(controls().HitList->accessibleDescription(), QString());
}

TEST_F(AccessibleMainWindow, ItemMenu) {
  QMenu& menu = *form().itemMenu().menu;
  EXPECT_EQ(menu.objectName(), QStringLiteral("ItemMenu"));
  EXPECT_EQ(menu.accessibleName(), QStringLiteral("Hit"));
  menu.popup({});
  expectReadings(menu, QStringLiteral("MenuItem CtLaunch: Open\n"
                                      "MenuItem CTOpFolder: Open Containing Folder\n"
                                      "MenuItem ShowPreview: Preview Image\n"
                                      "MenuItem CTQueue: Enqueue (Winamp)\n"
                                      "MenuItem CopyRows: Copy\n"
                                      "MenuItem CopyNames: Copy Names\n"
                                      "MenuItem CopyPaths: Copy Full Path\n"
                                      "MenuItem ExportSelected: Export Selected...\n"
                                      "MenuItem WhichDisk: Which Disk?\nMenuItem FetchPlan: Fetch "
                                      "Plan...\nMenuItem HitProperties: Properties"));
  menu.hide();
}

}  // namespace

}  // namespace quorvin::test
