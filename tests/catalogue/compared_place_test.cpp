// SPDX-License-Identifier: GPL-2.0-or-later

// What can be compared, and folders as they are now.
#include "catalogue/compared_place.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

using testing::ElementsAre;

const std::function<bool()> kNeverStop = [] { return false; };
const FolderAsItIs::Progress kSilent = [](const QString&) {};

TEST(ComparedSources, AreThoseOfASearchWithTheirHistoriesAndFolders) {
  ProgramState state;
  state.LocalFolder = u"/data/"_qs;
  state.TextFile = u"main.lst"_qs;
  state.OnlineSources.set(1, u" Music "_qs, u"/home/me/music"_qs);
  state.OnlineSourceCount = 1;
  state.OfflineSources.set(1, u"Disk 7"_qs, u"/elsewhere/disk7.txt"_qs);
  state.OfflineSources.set(2, u"Disk 8"_qs, u"/data/disk8.txt"_qs);
  state.OfflineSourceCount = 2;
  std::vector<std::string> texts;
  for (const ComparedSource& source : comparedSources(state)) {
    texts.push_back((source.title + u'|' + source.listing + u'|' + source.inHistory + u'|' + source.folder)
                        .toStdString() +
                    '|' + std::to_string(static_cast<int>(source.kind)));
  }
  const auto number = [](SourceKind kind) { return std::to_string(static_cast<int>(kind)); };
  EXPECT_THAT(texts,
              ElementsAre(" Music |/data/Music.txt|Music.txt|/home/me/music|" + number(SourceKind::Online),
                          "main.lst|/data/main.lst|main.lst||" + number(SourceKind::MainDataFile),
                          "Disk 7|/elsewhere/disk7.txt|||" + number(SourceKind::Offline),
                          "Disk 8|/data/disk8.txt|disk8.txt||" + number(SourceKind::Offline)));
}

TEST(FolderAsItIs, HasAListingThatGoesWithIt) {
  const TemporaryFolder folder;
  folder.makeFolder(u"music/live"_qs);
  folder.writeFile(u"music/live/song.mp3"_qs, "song");
  QString path;
  {
    const FolderAsItIs listed(folder.pathOf(u"music"_qs), u"Music"_qs, QLocale::c(), kNeverStop, kSilent);
    EXPECT_TRUE(listed.isWhole());
    EXPECT_EQ(listed.leftOut(), 0);
    path = listed.path();
    const QByteArray listing = contentOfFile(path);
    EXPECT_TRUE(listing.contains("Volume:    Music")) << listing.toStdString();
    EXPECT_TRUE(listing.contains("\\music\\live")) << listing.toStdString();
    EXPECT_TRUE(listing.contains("song.mp3 ")) << listing.toStdString();
  }
  EXPECT_FALSE(QFile::exists(path));
}

TEST(FolderAsItIs, AFolderThatIsNotThereIsAFault) {
  const TemporaryFolder folder;
  EXPECT_THROW(FolderAsItIs(folder.pathOf(u"gone"_qs), u"x"_qs, QLocale::c(), kNeverStop, kSilent),
               RuntimeFault);
}

TEST(FolderAsItIs, EndsEarlyWhenItIsStopped) {
  const TemporaryFolder folder;
  for (int i = 0; i < 50; ++i) folder.makeFolder(u"top/folder"_qs + QString::number(i));
  int asked = 0;
  const FolderAsItIs listed(
      folder.pathOf(u"top"_qs), u"x"_qs, QLocale::c(), [&asked] { return ++asked > 3; }, kSilent);
  EXPECT_FALSE(listed.isWhole());
  EXPECT_GT(asked, 3);
}

}  // namespace
}  // namespace quorvin
