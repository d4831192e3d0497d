// SPDX-License-Identifier: GPL-2.0-or-later

// What the listings held that an update replaces is kept.
#include "archive/archive_maker.h"
#include "history/listing_history.h"
#include "support/listing_lines.h"
#include "update/web_update_fixture.h"

namespace quorvin::test {
namespace {

class WebUpdateHistory : public WebUpdateTest {
 protected:
  WebUpdateHistory() { state_.TextFile = QStringLiteral("main.txt"); }

  static QByteArray listingOf(int entries) {
    QByteArray listing = blockHead("DISK", "\\Music\\");
    for (int entry = 0; entry < entries; ++entry) listing += entryLine("song " + QByteArray::number(entry));
    return listing;
  }
  void update(const QByteArray& archive) {
    serve(QStringLiteral("15 Nov 2004 10:20:30"), archive);
    boxes_.answers = {true};
    click();
  }

  ListingHistory history_{data_.path()};
};

TEST_F(WebUpdateHistory, TheMainDataFileIsKeptBeforeItIsReplaced) {
  data_.writeFile(QStringLiteral("main.txt"), listingOf(3));
  update(archiveOf("main.txt", listingOf(5)));
  EXPECT_EQ(data_.readFile(QStringLiteral("main.txt")), listingOf(5));
  const std::vector<ListingVersion> versions = history_.versions(QStringLiteral("main.txt"));
  ASSERT_EQ(versions.size(), 1U);
  EXPECT_EQ(versions[0].entries, 3U);
  history_.restore(QStringLiteral("main.txt"), versions[0].number);
  EXPECT_EQ(data_.readFile(QStringLiteral("main.txt")), listingOf(3));
}

TEST_F(WebUpdateHistory, SoAreOwnAndOfflineListingsButNoOtherFiles) {
  state_.OnlineSources.set(++state_.OnlineSourceCount, QStringLiteral("Music"), QStringLiteral("/music/"));
  state_.OfflineSources.set(++state_.OfflineSourceCount, QStringLiteral("Offline"),
                            data_.pathOf(QStringLiteral("sub/cds.txt")));
  for (const QString& name :
       {QStringLiteral("Music.txt"), QStringLiteral("sub/cds.txt"), QStringLiteral("readme.txt")}) {
    data_.writeFile(name, listingOf(3));
  }
  std::vector<MadeEntry> entries(3);
  entries[0].name = "Music.txt";
  entries[0].content = listingOf(1);
  entries[1].name = "sub/cds.txt";
  entries[1].content = listingOf(2);
  entries[2].name = "readme.txt";
  entries[2].content = listingOf(4);
  update(archiveOf(entries));
  EXPECT_EQ(data_.readFile(QStringLiteral("readme.txt")), listingOf(4));
  EXPECT_EQ(history_.listings(), (QStringList{QStringLiteral("Music.txt"), QStringLiteral("sub/cds.txt")}));
}

TEST_F(WebUpdateHistory, AHistoryThatCannotBeWrittenIsReportedAndStopsNothing) {
  data_.writeFile(QStringLiteral("main.txt"), listingOf(3));
  data_.writeFile(QStringLiteral("history"), "a file in its place");
  update(archiveOf("main.txt", listingOf(5)));
  EXPECT_EQ(data_.readFile(QStringLiteral("main.txt")), listingOf(5));
  ASSERT_EQ(boxes_.informed.size(), 1U);
  EXPECT_TRUE(boxes_.informed[0].startsWith(
      QStringLiteral("The earlier main.txt could not be kept in the listing history: ")))
      << boxes_.informed[0].toStdString();
}

}  // namespace
}  // namespace quorvin::test
