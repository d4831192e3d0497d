// SPDX-License-Identifier: GPL-2.0-or-later

// The windows about listings as a screen reader finds them.
#include "accessibility/read_windows.h"
#include "history/listing_history.h"

#include <QDateTime>

namespace quorvin::test {

namespace {

class AccessibleCatalogueWindows : public ReadWindows {};

TEST_F(AccessibleCatalogueWindows, Copies) {
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

TEST_F(AccessibleCatalogueWindows, Volumes) {
  expectReadingsOfDialog([this] { form().menus().Volumes->trigger(); }, QStringLiteral("VolumesWindow"),
                         QStringLiteral("Volumes"),
                         QStringLiteral("StaticText : Words:\n"
                                        "EditableText Words: Words that limit what is counted\n"
                                        "Button SpaceMap: Space Map\n"
                                        "Tree Rows: Volumes\n"
                                        "ColumnHeader : Volume\nColumnHeader : Files\nColumnHeader : Size\n"
                                        "ColumnHeader : Newest\nColumnHeader : Listed\nColumnHeader : Free\n"
                                        "ColumnHeader : Listing\nColumnHeader : Note\n"
                                        "StaticText Status: There is nothing to search yet.\n"
                                        "Button Show: Show\n"
                                        "Button close: Close"));
}

TEST_F(AccessibleCatalogueWindows, Import) {
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
          "ListItem : cp866\n"
          "ListItem : windows-1250\n"
          "ListItem : windows-1251\n"
          "ListItem : windows-1253\n"
          "ListItem : cp932\n"
          "ListItem : cp936\n"
          "ListItem : cp949\n"
          "ListItem : cp950\n"
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

TEST_F(AccessibleCatalogueWindows, Compare) {
  addOfflineSource(QStringLiteral("disk.txt"), listingOf("DISK", 1, "tune"));
  expectReadingsOfDialog([this] { form().menus().Compare->trigger(); }, QStringLiteral("CompareWindow"),
                         QStringLiteral("Compare"),
                         QStringLiteral("StaticText : Earlier:\n"
                                        "ComboBox EarlierSource: Earlier:\n"
                                        "List : What can be chosen (hidden)\n"
                                        "ListItem : disk.txt\n"
                                        "StaticText : State earlier:\n"
                                        "ComboBox EarlierState: State earlier:\n"
                                        "List : What can be chosen (hidden)\n"
                                        "ListItem : the listing as it is\n"
                                        "StaticText : Later:\n"
                                        "ComboBox LaterSource: Later:\n"
                                        "List : What can be chosen (hidden)\n"
                                        "ListItem : disk.txt\n"
                                        "StaticText : State later:\n"
                                        "ComboBox LaterState: State later:\n"
                                        "List : What can be chosen (hidden)\n"
                                        "ListItem : the listing as it is\n"
                                        "StaticText : Show:\n"
                                        "ComboBox What: Show:\n"
                                        "List : What can be chosen (hidden)\n"
                                        "ListItem : All changes\n"
                                        "ListItem : What was added\n"
                                        "ListItem : What was removed\n"
                                        "ListItem : What has changed\n"
                                        "ListItem : What was moved\n"
                                        "Tree Rows: Changes\n"
                                        "ColumnHeader : Name\n"
                                        "ColumnHeader : Change\n"
                                        "ColumnHeader : Size earlier\n"
                                        "ColumnHeader : Date earlier\n"
                                        "ColumnHeader : Size later\n"
                                        "ColumnHeader : Date later\n"
                                        "ColumnHeader : Moved from\n"
                                        "StaticText Status: What came, went, changed and was moved from the "
                                        "earlier to the later one. Nothing is deleted or changed.\n"
                                        "Button Compare: Compare\n"
                                        "Button close: Close"));
}

TEST_F(AccessibleCatalogueWindows, ListingHistory) {
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
                                        "Button Compare: Compare...\n"
                                        "Button close: Close")
                             .arg(now, then));
}

}  // namespace

}  // namespace quorvin::test
