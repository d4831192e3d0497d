// SPDX-License-Identifier: GPL-2.0-or-later

// The hit list by keys alone, read over the accessibility bus, with as many hits as large catalogues have.
#include "accessibility/keyboard_points.h"
#include "files/path_style.h"
#include "support/sweep.h"

#include <QLocale>

namespace quorvin::test {

namespace {

/// Enough to be sorted in slices and by lower case, or a million.
const int kHits = sweep(1'000'000, 110'000);

QString song(int number) {
  return QStringLiteral("song %1.mp3").arg(number, 7, 10, QChar(u'0'));
}

/// Songs of a disk that is not here, the last one first, in line 5 of their listing; and a file that is here.
class ManyHitsByKeys : public KeyboardPoints {
 protected:
  void SetUp() override {
    folder_.writeFile(text("defaults.txt"),
                      folder_.path().toLocal8Bit() + "\r\nmain.lst\r\nmain.zip\r\nhost.invalid\r\n");
    QByteArray listing = blockHead("DISK", "\\Music\\Rock\\");
    for (int number = kHits; number > 0; --number) {
      listing += entryLine(song(number).toLatin1(), number == kSmallest ? "7" : "1,024");
    }
    folder_.writeFile(text("main.lst"), listing);
    folder_.writeFile(text("files/here.txt"), "x");
    const QString files = folder_.pathOf(text("files/"));
    folder_.writeFile(
        text("Files.txt"),
        blockHead("Files", listedFolder(files, nativePathStyle()).toLocal8Bit()) + entryLine("here.txt"));
    folder_.writeFile(text("Locations.txt"), "\"Files\",\"" + files.toLocal8Bit() + "\"\r\n");
    start(environmentThatNotesOpening());
  }

  static constexpr int kSmallest = 77;
  static QString rowOf(int number) {
    return QStringLiteral(
               "Match 075%, Volume DISK, Folder \\Music\\Rock\\, Name %1, Size 0.00mb, "
               "Date Jan, 15 04")
        .arg(song(number));
  }
  /// As the program writes them.
  const QLocale english_{QLocale::English, QLocale::UnitedStates};
  const QString hits_ = english_.toString(kHits);
};

TEST_F(ManyHitsByKeys, AreFoundExplainedSortedFilteredAndSelected) {
  const QString size =
      english_.formattedDataSize((kHits - 1) * qint64{1024} + 7, 2, QLocale::DataSizeTraditionalFormat);
  expectAll({
      {"hits are counted in the status line",
       {text("ctrl+f"), text("'song mp3 rock live"), text("Return")},
       &KeyboardPoints::status,
       hits_ + text(" hits")},
      {"a row is read with its columns", {}, &KeyboardPoints::firstRow, rowOf(kHits)},
      {"its description says which words it has",
       {},
       &KeyboardPoints::aboutFirstRow,
       text("From the main data file. 3 of 4 words; missing: live")},
      {"the last row can be read, too", {}, &KeyboardPoints::lastRow, rowOf(1)},
      {"Shift+Tab leads from the search text to the list",
       {text("shift+Tab")},
       &KeyboardPoints::focused,
       text("list item: ") + rowOf(kHits)},
      {"Ctrl+4 sorts by name", {text("ctrl+4")}, &KeyboardPoints::firstRow, rowOf(1)},
      {"the list says so", {}, &KeyboardPoints::aboutList, text("Sorted by Name, ascending")},
      {"the menu says so", {}, &KeyboardPoints::checked, text("Sort by Name (ascending)")},
      {"the status line says how",
       {},
       &KeyboardPoints::status,
       hits_ + QStringLiteral(" hits  \u00B7  More than 100,000 hits: sorted by their text in lower case")},
      {"once more is the other way round",
       {text("ctrl+4")},
       &KeyboardPoints::aboutList,
       text("Sorted by Name, descending")},
      {"the last one comes first", {}, &KeyboardPoints::firstRow, rowOf(kHits)},
      {"Ctrl+5 sorts by size", {text("ctrl+5")}, &KeyboardPoints::firstRow, rowOf(kSmallest)},
      {"Ctrl+0 is the order in which they were found",
       {text("ctrl+0")},
       &KeyboardPoints::checked,
       text("Found Order")},
      {"which needs no word", {}, &KeyboardPoints::aboutList, QString()},
      {"selected hits are counted with their sizes",
       {text("Home"), text("shift+Down")},
       &KeyboardPoints::status,
       hits_ + QStringLiteral(" hits  \u00B7  2 selected, 2.00 kB")},
      {"Ctrl+A selects them all",
       {text("ctrl+a")},
       &KeyboardPoints::status,
       QStringLiteral("%1 hits  \u00B7  %1 selected, %2").arg(hits_, size)},
      {"the filter counts what it leaves",
       {text("ctrl+shift+f"), text("'0000012")},
       &KeyboardPoints::shownCount,
       QStringLiteral("1 of %1 shown").arg(hits_)},
      {"it has the keys", {}, &KeyboardPoints::focused, text("text: Filter: Filter")},
      {"the list has what it leaves", {}, &KeyboardPoints::firstRow, rowOf(12)},
      {"Esc closes it", {text("Escape")}, &KeyboardPoints::rowCount, QString::number(kHits)},
      {"the columns can be hidden",
       {text("alt+v"), text("c"), text("v")},
       &KeyboardPoints::firstRow,
       rowOf(kHits).remove(text("Volume DISK, "))},
      {"and come back", {text("alt+v"), text("c"), text("r")}, &KeyboardPoints::firstRow, rowOf(kHits)},
  });
}

TEST_F(ManyHitsByKeys, AreFoundWhileTypingCopiedAndExported) {
  expectAll({
      {"searching while typing is turned on in the View menu",
       {text("alt+v"), text("t")},
       &KeyboardPoints::checked,
       text("Found Order, Search While Typing")},
      {"it finds without Enter",
       {text("ctrl+f"), text("'song 0000012")},
       &KeyboardPoints::status,
       text("1 hit")},
      {"and is turned off", {text("alt+v"), text("t")}, &KeyboardPoints::checked, text("Found Order")},
      {"Enter finds, too",
       {text("ctrl+f"), text("'song rock mp3 live"), text("Return")},
       &KeyboardPoints::status,
       hits_ + text(" hits")},
      {"Down in the search text brings earlier ones back",
       {text("ctrl+f"), text("'something"), text("Down"), text("Return")},
       &KeyboardPoints::searchText,
       text("song rock mp3 live")},
      {"names are copied",
       {text("shift+Tab"), text("Home"), text("ctrl+a"), text("ctrl+alt+c")},
       &KeyboardPoints::copied,
       QStringLiteral("%1: %2 ... %3").arg(kHits).arg(song(kHits), song(1))},
      {"rows are copied",
       {text("Home"), text("shift+Down"), text("ctrl+c")},
       &KeyboardPoints::copied,
       QStringLiteral("2: 075%\tDISK\t\\Music\\Rock\\\t%1\t0.00mb\tJan, 15 04 ... 075%\tDISK\t\\Music\\Rock\\"
                      "\t%2\t0.00mb\tJan, 15 04")
           .arg(song(kHits), song(kHits - 1))},
      {"the dialog for exporting comes up",
       {text("alt+f"), text("e")},
       &KeyboardPoints::frontWindow,
       text("Export Hits")},
      {"the file has all hits",
       {text("'") + folder_.pathOf(text("out.csv")), text("Return")},
       &KeyboardPoints::exported,
       QStringLiteral("%1: Match,Volume,Folder,Name,Size,Date ... 075%,DISK,\\Music\\Rock\\,%2,0.00mb,\"Jan, "
                      "15 04\"")
           .arg(kHits + 1)
           .arg(song(1))},
      {"the status line says where it is",
       {},
       &KeyboardPoints::status,
       QStringLiteral("%1 hits  \u00B7  2 selected, 2.00 kB  \u00B7  %1 hits were written to %2.")
           .arg(hits_, folder_.pathOf(text("out.csv")))},
  });
}

TEST_F(ManyHitsByKeys, AreOpenedLookedForAndDescribed) {
  const QString file = QStringLiteral("file://") + folder_.pathOf(text("files/here.txt"));
  const QString filesFolder = QStringLiteral("file://") + folder_.pathOf(text("files"));
  expectAll({
      {"hits of a disk that is not here",
       {text("ctrl+f"), text("'song rock mp3 live"), text("Return")},
       &KeyboardPoints::status,
       hits_ + text(" hits")},
      {"Which Disk? names the disk",
       {text("shift+Tab"), text("Home"), text("alt+i"), text("w")},
       &KeyboardPoints::frontLines,
       QStringLiteral("graphic: Information\nlabel: The file is on the volume \"DISK\". Insert that disk to "
                      "get at it.\n\nIn the catalogue: \\Music\\Rock\\%1\nListing: %2\npush button: OK")
           .arg(song(kHits), folder_.pathOf(text("main.lst")))},
      {"Enter closes it", {text("Return")}, &KeyboardPoints::focused, text("list item: ") + rowOf(kHits)},
      {"Alt+Enter shows all values",
       {text("alt+Return")},
       &KeyboardPoints::frontWindow,
       text("Properties of ") + song(kHits)},
      {"the words and the line among them",
       {},
       &KeyboardPoints::wordsAndLine,
       text("3 of 4 words; missing: live, 5")},
      {"Esc closes them", {text("Escape")}, &KeyboardPoints::frontWindow, text("Quorvin Utility")},
      {"opening says that the file is not here",
       {text("alt+i"), text("o")},
       &KeyboardPoints::frontLines,
       text("graphic: Information\nlabel: 1 of 1 could not be found on a connected drive.\npush button: OK")},
      {"Enter closes that, too",
       {text("Return")},
       &KeyboardPoints::focused,
       text("list item: ") + rowOf(kHits)},
      {"a file that is here is found",
       {text("ctrl+f"), text("'here"), text("Return")},
       &KeyboardPoints::status,
       text("1 hit")},
      {"it is opened",
       {text("shift+Tab"), text("Home"), text("alt+i"), text("o")},
       &KeyboardPoints::opened,
       file},
      {"its path is copied",
       {text("ctrl+shift+c")},
       &KeyboardPoints::copied,
       QStringLiteral("1: %1 ... %1").arg(folder_.pathOf(text("files/here.txt")))},
      {"its folder is shown",
       {text("alt+i"), text("f")},
       &KeyboardPoints::opened,
       file + u'\n' + filesFolder},
      {"many that are not here are found again",
       {text("ctrl+f"), text("'song rock mp3 live"), text("Return")},
       &KeyboardPoints::status,
       hits_ + text(" hits")},
      {"their paths in the catalogue are copied, all of them",
       {text("shift+Tab"), text("Home"), text("ctrl+a"), text("ctrl+shift+c")},
       &KeyboardPoints::copied,
       QStringLiteral("%1: DISK:\\Music\\Rock\\%2 ... DISK:\\Music\\Rock\\%3")
           .arg(kHits)
           .arg(song(kHits), song(1))},
  });
}

}  // namespace

}  // namespace quorvin::test
