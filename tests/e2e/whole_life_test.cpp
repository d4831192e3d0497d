// SPDX-License-Identifier: GPL-2.0-or-later

// Whole lives of the real program: what was set, added and found is there again after a new start.
#include "e2e/running_program.h"
#include "e2e/source_records.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QUrl>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const QString kEdit = QStringLiteral("Local File Search Locations");
const QString kEditOffline = QStringLiteral("Offline Search List files");
const QString kOptions = QStringLiteral("Options");

const QStringList kAltF4 = {QStringLiteral("alt+F4")};
const QStringList kQuitInMenu = {QStringLiteral("alt+f"), QStringLiteral("q")};

class WholeLife : public testing::Test {
 protected:
  void writeSong(const QString& path) const {
    QFile file(home_.folder.writeFile(path, QByteArray(1'048'576, 'x')));
    const QDateTime made = QDateTime::fromString(QStringLiteral("2004-01-15T10:20:30Z"), Qt::ISODate);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(made, QFileDevice::FileModificationTime));
  }
  QString folder(const QString& name) const { return home_.folder.pathOf(name); }
  void writeList(const QString& name, const QByteArray& volume, const QByteArray& entry) const {
    home_.folder.writeFile(QStringLiteral("lists/") + name, blockHead(volume, "\\far\\") + entryLine(entry));
  }
  /// A folder as a listing and so a hit tells it: with backslashes.
  QString listed(const QString& name) const { return folder(name).replace(u'/', u'\\'); }

  static void expectCleanEnd(const ProgramEnd& end) {
    EXPECT_TRUE(end.isExit);
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.errors, u"");
  }

  ProgramHome home_;
  Desktop desktop_;
};

TEST_F(WholeLife, EverythingIsAsItWasLeft) {
  writeSong(QStringLiteral("music/first song.mp3"));
  writeSong(QStringLiteral("music/album/second song.mp3"));
  writeSong(QStringLiteral("films/a film.avi"));
  writeSong(QStringLiteral("films/song of the film.avi"));
  writeList(QStringLiteral("cds.txt"), "Far CD", "far song.mp3");
  const QStringList hits = {QStringLiteral("100%\tMusic\t%1\tfirst song.mp3\t1.00mb\tJan, 15 04")
                                .arg(listed(QStringLiteral("music/"))),
                            QStringLiteral("100%\tMusic\t%1\tsecond song.mp3\t1.00mb\tJan, 15 04")
                                .arg(listed(QStringLiteral("music/album/"))),
                            QStringLiteral("100%\tFilms\t%1\tsong of the film.avi\t1.00mb\tJan, 15 04")
                                .arg(listed(QStringLiteral("films/"))),
                            QStringLiteral("100%\tMain\t\\main\\\tmain song.mp3\t0.00mb\tJan, 15 04"),
                            QStringLiteral("100%\tFar CD\t\\far\\\tfar song.mp3\t0.00mb\tJan, 15 04")};

  // The first run begins with nothing.
  ASSERT_FALSE(home_.folder.has(QStringLiteral("settings.ini")));
  QString place;
  {
    RunningProgram program(desktop_, home_);
    program.openFromFileMenu({QStringLiteral("o")}, kOptions);
    // Without the separator at its end, which the program adds.
    program.typeAfterTabs(0, home_.data().chopped(1));
    program.typeAfterTabs(2, QStringLiteral("main.txt"));
    program.typeAfterTabs(2, QStringLiteral("main.zip"));
    program.typeAfterTabs(1, QStringLiteral("lists.example"));
    program.typeAfterTabs(1, QStringLiteral("15 Jan 2004 10:20:30"));
    program.typeAfterTabs(1, QStringLiteral("ann"));
    program.press({QStringLiteral("Return")});
    program.waitForMainWindow();

    program.openFromFileMenu({QStringLiteral("a")}, kEdit);
    program.addFolder(QStringLiteral("Music"), folder(QStringLiteral("music/")));
    program.addFolder(QStringLiteral("Films"), folder(QStringLiteral("films/")));
    program.saveFolders(true);
    waitUntil(QStringLiteral("for the listings"), [this] {
      return home_.hasData(QStringLiteral("Music.txt")) && home_.hasData(QStringLiteral("Films.txt"));
    });

    program.openFromFileMenu({QStringLiteral("Down"), QStringLiteral("Return")}, kEditOffline);
    program.addOfflineList(home_.list(QStringLiteral("cds.txt")));
    program.saveOfflineLists();

    desktop_.move(program.mainWindow(), 120, 90);
    desktop_.resize(program.mainWindow(), 1000, 520);
    waitUntil(QStringLiteral("for the new size"), [&] {
      return desktop_.placeOf(program.mainWindow()).contains(QStringLiteral("WIDTH=1000 HEIGHT=520"));
    });
    program.find(QStringLiteral("song"));
    program.waitForHits(hits);
    place = desktop_.placeOf(program.mainWindow());
    expectCleanEnd(program.endBy(kAltF4));
  }

  const QByteArray online = listFile({{QStringLiteral("Music"), folder(QStringLiteral("music/"))},
                                      {QStringLiteral("Films"), folder(QStringLiteral("films/"))}});
  const QByteArray offline = listFile({{QStringLiteral("Offline"), home_.list(QStringLiteral("cds.txt"))}});
  const QString settings = home_.settings();
  const auto expectSaved = [&] {
    EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt")), online);
    EXPECT_EQ(home_.dataFile(QStringLiteral("OfflineLocations.txt")), offline);
    EXPECT_EQ(home_.settings(), settings);
  };
  expectSaved();
  const QString head = QStringLiteral(
                           "[Ketta%20Quorvin/Searches]\nTexts=song\n\n"
                           "[Ketta%20Quorvin/Settings]\nLocalFolder=%1\nTextFile=main.txt\n"
                           "ArchiveFile=main.zip\nWebServer=lists.example\nJoinDate=15 Jan 2004 10:20:30\n"
                           "NickName=ann\n")
                           .arg(home_.data());
  EXPECT_EQ(settings.left(head.size()), head);
  EXPECT_TRUE(QRegularExpression(QStringLiteral("^Top=\\d+\nLeft=\\d+\nWidth=\\d+\nHeight=\\d+\n$"))
                  .match(settings.mid(head.size()))
                  .hasMatch())
      << settings.toStdString();

  // Later runs find everything as it was left, and leave it so, by whichever way they are left.
  for (const QStringList& way : {kCtrlQ, kQuitInMenu}) {
    RunningProgram program(desktop_, home_);
    waitUntil(QStringLiteral("for the window at %1").arg(place),
              [&] { return desktop_.placeOf(program.mainWindow()) == place; });
    program.find(QStringLiteral("song"));
    program.waitForHits(hits);
    EXPECT_EQ(desktop_.placeOf(program.mainWindow()), place);
    expectCleanEnd(program.endBy(way));
    expectSaved();
  }
}

TEST_F(WholeLife, AListingOnTheCommandLineHasSettingsAndFoldersOfItsOwn) {
  writeSong(QStringLiteral("books/song book.pdf"));
  writeList(QStringLiteral("music.txt"), "Named", "named song.mp3");
  writeList(QStringLiteral("cds.txt"), "Far CD", "far song.mp3");
  writeList(QStringLiteral("dvds.txt"), "Far DVD", "dvd song.mp3");
  const QString named = home_.list(QStringLiteral("music.txt"));
  const QByteArray online = listFile({{QStringLiteral("Anns"), QStringLiteral("/anns/")}});
  const QByteArray oneOffline =
      listFile({{QStringLiteral("Offline"), home_.list(QStringLiteral("cds.txt"))}});
  const QByteArray twoOffline =
      oneOffline + listFile({{QStringLiteral("Offline"), home_.list(QStringLiteral("dvds.txt"))}});
  home_.writeSettings();
  const QString annsSettings = home_.settings();
  home_.folder.writeFile(QStringLiteral("data/Locations.txt"), online);
  home_.folder.writeFile(QStringLiteral("data/OfflineLocations.txt"), oneOffline);
  home_.folder.writeFile(QStringLiteral("data/Anns.txt"),
                         blockHead("Anns", "\\anns\\") + entryLine("anns song.mp3"));

  // The set of the listing begins with nothing; it is given the same data folder.
  {
    RunningProgram program(desktop_, home_, {named});
    program.openFromFileMenu({QStringLiteral("o")}, kOptions);
    program.typeAfterTabs(0, home_.data());
    program.typeAfterTabs(7, QStringLiteral("bob"));
    program.press({QStringLiteral("Return")});
    program.waitForMainWindow();
    program.openFromFileMenu({QStringLiteral("a")}, kEdit);
    program.addFolder(QStringLiteral("Books"), folder(QStringLiteral("books/")));
    program.saveFolders(true);
    waitUntil(QStringLiteral("for the listing"),
              [this] { return home_.hasData(QStringLiteral("Books.txt")); });
    expectCleanEnd(program.endBy(kCtrlQ));
  }
  const QByteArray books = listFile({{QStringLiteral("Books"), folder(QStringLiteral("books/"))}});
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt_music")), books);
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt")), online);
  EXPECT_EQ(home_.dataFile(QStringLiteral("OfflineLocations.txt")), oneOffline);
  // What stood there is untouched, the other set stands behind it.
  EXPECT_TRUE(home_.settings().startsWith(annsSettings)) << home_.settings().toStdString();
  const QString encodedName = QString::fromLatin1(QUrl::toPercentEncoding(named));
  EXPECT_TRUE(home_.settings().contains(
      QStringLiteral("[%1/Settings]\nLocalFolder=%2\nTextFile=%3\n").arg(encodedName, home_.data(), named)))
      << home_.settings().toStdString();
  EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nNickName=bob\n")));

  // Its next run has its own folders, and the offline list that all sets share.
  {
    RunningProgram program(desktop_, home_, {named});
    program.openFromFileMenu({QStringLiteral("Down"), QStringLiteral("Return")}, kEditOffline);
    program.addOfflineList(home_.list(QStringLiteral("dvds.txt")));
    program.saveOfflineLists();
    program.find(QStringLiteral("song"));
    program.waitForHits({QStringLiteral("100%\tBooks\t%1\tsong book.pdf\t1.00mb\tJan, 15 04")
                             .arg(listed(QStringLiteral("books/"))),
                         QStringLiteral("100%\tNamed\t\\far\\\tnamed song.mp3\t0.00mb\tJan, 15 04"),
                         QStringLiteral("100%\tFar CD\t\\far\\\tfar song.mp3\t0.00mb\tJan, 15 04"),
                         QStringLiteral("100%\tFar DVD\t\\far\\\tdvd song.mp3\t0.00mb\tJan, 15 04")});
    expectCleanEnd(program.endBy(kCtrlQ));
  }
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt_music")), books);
  EXPECT_EQ(home_.dataFile(QStringLiteral("OfflineLocations.txt")), twoOffline);
  EXPECT_TRUE(home_.settings().startsWith(annsSettings));

  // A run without it has the folders and settings from before, and the new offline list.
  {
    RunningProgram program(desktop_, home_);
    program.find(QStringLiteral("song"));
    program.waitForHits({QStringLiteral("100%\tAnns\t\\anns\\\tanns song.mp3\t0.00mb\tJan, 15 04"),
                         QStringLiteral("100%\tMain\t\\main\\\tmain song.mp3\t0.00mb\tJan, 15 04"),
                         QStringLiteral("100%\tFar CD\t\\far\\\tfar song.mp3\t0.00mb\tJan, 15 04"),
                         QStringLiteral("100%\tFar DVD\t\\far\\\tdvd song.mp3\t0.00mb\tJan, 15 04")});
    expectCleanEnd(program.endBy(kCtrlQ));
  }
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt")), online);
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt_music")), books);
  EXPECT_EQ(home_.dataFile(QStringLiteral("OfflineLocations.txt")), twoOffline);
}

}  // namespace

}  // namespace quorvin::test
