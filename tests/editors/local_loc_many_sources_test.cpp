// SPDX-License-Identifier: GPL-2.0-or-later

// As many sources as a list can hold, and one more.
#include "editors/local_loc_fixture.h"
#include "state/source_list_file.h"
#include "support/temporary_folder.h"

namespace quorvin::test {

namespace {

SourceEntry source(int number) {
  return {QStringLiteral("Disk %1").arg(number), QStringLiteral("D:\\Disk %1\\").arg(number)};
}

Entries sources(int count) {
  Entries all;
  for (int number = 1; number <= count; ++number) all.push_back(source(number));
  return all;
}

const QString kTooMany = QStringLiteral(
    "A list can hold 2000 entries at most, and this one has 2001.\r\n\r\n"
    "Nothing has been saved. Please delete entries and save again.");

using ManySources = LocalLocTest;

TEST_F(ManySources, TwoThousandAreLoadedEditedAndSaved) {
  const TemporaryFolder folder;
  haveOnline(sources(2000));
  const QString file = folder.pathOf(QStringLiteral("Locations.txt"));
  saveSourceList(file, state_.OnlineSources, state_.OnlineSourceCount);
  state_ = ProgramState();
  loadSourceList(file, state_.OnlineSources, state_.OnlineSourceCount);
  ASSERT_EQ(edited(), sources(2000));

  select(2000);
  click(controls().MvUp);
  click(controls().LocDel);
  EXPECT_EQ(selected(), 1998);
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  click(controls().OK);

  Entries expected = sources(2000);
  expected.erase(expected.end() - 1);
  expected.push_back({QStringLiteral("Music CDs"), QStringLiteral("C:\\")});
  EXPECT_EQ(online(), expected);
  saveSourceList(file, state_.OnlineSources, state_.OnlineSourceCount);
  ProgramState next;
  loadSourceList(file, next.OnlineSources, next.OnlineSourceCount);
  EXPECT_EQ(entriesOf(next.OnlineSources, next.OnlineSourceCount), expected);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(ManySources, TheNextOneIsRefusedBeforeAnythingIsLost) {
  haveOnline(sources(2000));
  select(1);
  click(controls().MvDn);
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  const Entries typed = edited();
  ASSERT_EQ(typed.size(), 2001U);
  click(controls().OK);
  EXPECT_EQ(messages_.informed, std::vector{kTooMany});
  EXPECT_TRUE(messages_.asked.empty());
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_EQ(edited(), typed);
  EXPECT_EQ(online(), sources(2000));

  select(2001);
  click(controls().LocDel);
  click(controls().OK);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(online(), Entries(typed.begin(), typed.end() - 1));
}

TEST_F(ManySources, TheOfflineListIsRefusedInTheSameWay) {
  haveOffline(sources(2000));
  inOfflineEditor([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({0});
    click(dialog.controls().MvDn);
    type(dialog.controls().LocalDataFolder, QStringLiteral("C:\\"));
    click(dialog.controls().LocAdd);
    click(dialog.controls().SaveOffLine);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.entries().entries().size(), 2001U);
  });
  EXPECT_EQ(messages_.informed, std::vector{kTooMany});
  EXPECT_EQ(offline(), sources(2000));
}

}  // namespace

}  // namespace quorvin::test
