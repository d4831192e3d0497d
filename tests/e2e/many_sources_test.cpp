// SPDX-License-Identifier: GPL-2.0-or-later

// As many sources as a list can hold, through a whole life of the program, and one more.
#include "e2e/source_records.h"
#include "e2e/whole_program.h"
#include "editors/dialog_driving.h"
#include "editors/local_loc.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QAction>

namespace quorvin::test {

namespace {

SourceRecords disks(int count) {
  SourceRecords records;
  for (int number = 1; number <= count; ++number) {
    records.push_back({QStringLiteral("Disk %1").arg(number), QStringLiteral("/disks/%1/").arg(number)});
  }
  return records;
}

const SourceRecord kMusic = {QStringLiteral("Music CDs"), QStringLiteral("/music/")};
const QString kTooMany = QStringLiteral(
    "A list can hold 2000 entries at most, and this one has 2001.\r\n\r\n"
    "Nothing has been saved. Please delete entries and save again.");

class ManySourcesLife : public testing::Test {
 protected:
  ManySourcesLife() {
    place_.writeFile(QStringLiteral("settings.ini"),
                     "[Ketta%20Quorvin/Settings]\nLocalFolder=" + data().toUtf8() + "\n");
    place_.makeFolder(QStringLiteral("data"));
  }

  QString data() const { return place_.pathOf(QStringLiteral("data/")); }
  QByteArray file(const QString& name) const { return place_.readFile(QStringLiteral("data/") + name); }
  void writeList(const QString& name, const SourceRecords& records) const {
    place_.writeFile(QStringLiteral("data/") + name, listFile(records));
  }
  /// A listing with one song, as a refresh of this source would have made it.
  void writeListing(const QString& description) const {
    const QByteArray volume = description.toUtf8();
    place_.writeFile(QStringLiteral("data/%1.txt").arg(description),
                     blockHead(volume, "\\songs\\") + entryLine("Song of " + volume + ".mp3"));
  }
  void writeListings(const SourceRecords& records) const {
    for (const SourceRecord& record : records) writeListing(record.first);
  }

  std::unique_ptr<WholeProgram> start() const {
    return std::make_unique<WholeProgram>(place_.pathOf(QStringLiteral("settings.ini")), place_.path());
  }

  static void edit(QAction* opener, const std::function<void(LocalLoc&)>& action) {
    EXPECT_TRUE(duringModal<LocalLoc>([&] { opener->trigger(); }, action));
  }
  static void select(LocalLoc& dialog, int row) {
    SourceListView* list = dialog.controls().Online;
    const QModelIndex index = list->model()->index(row - 1, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
  }
  static void add(LocalLoc& dialog, const SourceRecord& record) {
    if (dialog.controls().Desc->isVisible()) type(dialog.controls().Desc, record.first);
    type(dialog.controls().LocalDataFolder, record.second);
    click(dialog.controls().LocAdd);
  }

  /// The volumes of the hits are the descriptions of these sources, in their order.
  static void expectHits(const WholeProgram& program, const SourceRecords& records) {
    ASSERT_EQ(program.hitCount(), static_cast<int>(records.size()));
    for (int row = 0; row < program.hitCount(); ++row) {
      const QString& description = records[static_cast<std::size_t>(row)].first;
      ASSERT_EQ(program.hit(row, HitColumn::Volume), description);
      ASSERT_EQ(program.hit(row, HitColumn::Name), QStringLiteral("Song of %1.mp3").arg(description));
    }
  }

  TemporaryFolder place_;
};

const QString kOnlineList = QStringLiteral("Locations.txt");
const QString kOfflineList = QStringLiteral("OfflineLocations.txt");

TEST_F(ManySourcesLife, TwoThousandAreLoadedEditedSavedAndSearched) {
  SourceRecords expected = disks(2000);
  writeList(kOnlineList, expected);
  writeListings(expected);
  writeListing(kMusic.first);

  auto program = start();
  EXPECT_EQ(program->state.OnlineSourceCount, 2000);
  edit(program->form.menus().AddLocal, [](LocalLoc& dialog) {
    select(dialog, 2000);
    click(dialog.controls().MvUp);
    click(dialog.controls().LocDel);
    add(dialog, kMusic);
    click(dialog.controls().OK);
  });
  expected.pop_back();
  expected.push_back(kMusic);
  EXPECT_EQ(program->messages.asked, std::vector<QString>{QStringLiteral("Rescan Local Search Locations?")});
  program->find(QStringLiteral("song"));
  expectHits(*program, expected);
  EXPECT_TRUE(program->close());
  EXPECT_TRUE(program->messages.informed.empty());
  EXPECT_EQ(file(kOnlineList), listFile(expected));

  program = start();
  EXPECT_EQ(program->state.OnlineSourceCount, 2000);
  program->find(QStringLiteral("song"));
  expectHits(*program, expected);
  EXPECT_TRUE(program->close());
  EXPECT_TRUE(program->messages.informed.empty());
  EXPECT_EQ(file(kOnlineList), listFile(expected));
}

TEST_F(ManySourcesLife, TheNextFolderIsRefusedAndTheListStaysAsItWas) {
  writeList(kOnlineList, disks(2000));
  writeListings(disks(2000));
  const auto program = start();
  edit(program->form.menus().AddLocal, [&](LocalLoc& dialog) {
    add(dialog, kMusic);
    click(dialog.controls().OK);
    EXPECT_EQ(program->takeMessages(), std::vector{kTooMany});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.entries().entries().size(), 2001U);
  });
  EXPECT_TRUE(program->messages.asked.empty());
  program->find(QStringLiteral("song"));
  expectHits(*program, disks(2000));
  EXPECT_TRUE(program->close());
  EXPECT_EQ(file(kOnlineList), listFile(disks(2000)));
  EXPECT_TRUE(program->takeMessages().empty());
}

TEST_F(ManySourcesLife, TheNextOfflineListIsRefusedInTheSameWay) {
  writeList(kOfflineList, disks(2000));
  const auto program = start();
  edit(program->form.menus().EditOffline, [&](LocalLoc& dialog) {
    add(dialog, kMusic);
    click(dialog.controls().SaveOffLine);
    EXPECT_EQ(program->takeMessages(), std::vector{kTooMany});
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_TRUE(program->close());
  EXPECT_EQ(file(kOfflineList), listFile(disks(2000)));
  EXPECT_TRUE(program->takeMessages().empty());
}

TEST_F(ManySourcesLife, AFileWithOneTooManyIsToldAndKept) {
  const SourceRecords tooMany = disks(2001);
  writeList(kOnlineList, tooMany);
  writeList(kOfflineList, {kMusic});
  writeListings(disks(2000));
  const auto program = start();
  EXPECT_EQ(program->takeMessages(),
            std::vector<QString>{QStringLiteral("Statup error: 9 Subscript out of range: %1 holds more than "
                                                "2000 records")
                                     .arg(data() + kOnlineList)});
  EXPECT_EQ(program->state.OnlineSourceCount, 2000);
  program->find(QStringLiteral("song"));
  expectHits(*program, disks(2000));

  EXPECT_TRUE(program->close());
  const QString list = data() + kOnlineList;
  EXPECT_EQ(
      program->takeMessages(),
      std::vector<QString>{QStringLiteral("The list %1 was not read completely when the program started.\r\n"
                                          "It is kept as %1.kept, and the list as it is now is saved in "
                                          "its place.")
                               .arg(list)});
  EXPECT_EQ(file(kOnlineList), listFile(disks(2000)));
  EXPECT_EQ(file(kOnlineList + QStringLiteral(".kept")), listFile(tooMany));
  EXPECT_EQ(file(kOfflineList), listFile({kMusic}));
}

}  // namespace

}  // namespace quorvin::test
