// SPDX-License-Identifier: GPL-2.0-or-later

// Exporting hits from the real window.
#include "app/search_form_export.h"

#include "editors/recording_file_picker.h"
#include "files/full_disk.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QLabel>
#include <QStatusBar>

namespace quorvin::test {

namespace {

class ExportedHits : public SearchFormTest {
 protected:
  ExportedHits() { picker_ = &files_; }

  void showHits(int count) {
    addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD 12", count, "tune"));
    find(QStringLiteral("tune"));
    ASSERT_EQ(rows(), count);
  }
  void exportAllTo(const QString& name) {
    files_.pick = out_.pathOf(name);
    form().menus().ExportHits->trigger();
  }
  QString statusLine() { return form().findChild<QLabel*>(QStringLiteral("StatusText"))->text(); }
  QByteArray exported(const QString& name) { return out_.readFile(name); }
  void waitForRows() {
    const RowOrder& order = static_cast<HitListModel*>(controls().HitList->model())->order();
    EXPECT_EVENTUALLY(!order.isSorting() && !order.isFiltering());
  }
  void sortByNameDownwards() {
    press(Qt::Key_4, Qt::ControlModifier);
    press(Qt::Key_4, Qt::ControlModifier);
    waitForRows();
  }
  /// Those of a table, each with a blank behind it.
  std::string namesIn(const QString& table) {
    std::string names;
    const QList<QByteArray> lines = exported(table).split('\n').mid(1);
    for (const QByteArray& line : lines) {
      if (!line.isEmpty()) names += line.split(',').value(3).toStdString() + ' ';
    }
    return names;
  }
  /// Does `action` once when the export lets events run.
  static void duringTheExport(const std::function<void()>& action) { QTimer::singleShot(0, action); }

  RecordingFilePicker files_;
  TemporaryFolder out_;
};

TEST_F(ExportedHits, AreAllWrittenFromTheFileMenu) {
  showHits(2);
  files_.pick = out_.pathOf(QStringLiteral("all.csv"));
  activate(form());
  press(Qt::Key_F, Qt::AltModifier);
  press(Qt::Key_E);
  EXPECT_EQ(exported(QStringLiteral("all.csv")),
            "Match,Volume,Folder,Name,Size,Date\r\n"
            "100%,CD 12,\\Music\\,tune 1.mp3,0.00mb,\"Jan, 15 04\"\r\n"
            "100%,CD 12,\\Music\\,tune 2.mp3,0.00mb,\"Jan, 15 04\"\r\n");
  EXPECT_TRUE(statusLine().endsWith(
      QStringLiteral("2 hits were written to %1.").arg(out_.pathOf(QStringLiteral("all.csv")))))
      << statusLine().toStdString();
  EXPECT_TRUE(messages_.informed.empty());
  ASSERT_EQ(files_.askedToSave.size(), 1U);
  EXPECT_EQ(files_.askedToSave[0].title, QStringLiteral("Export Hits"));
  EXPECT_EQ(files_.askedToSave[0].fileName, QStringLiteral("hits"));
  EXPECT_EQ(files_.askedToSave[0].forms.join(u'|'),
            QStringLiteral("Table (*.csv)|Page with its own search box (*.html)|Listing that can be searched "
                           "(*.txt)"));
}

TEST_F(ExportedHits, OnlyTheSelectedOnesFromTheHitsMenu) {
  showHits(3);
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_End);
  files_.pick = out_.pathOf(QStringLiteral("one.csv"));
  activate(form());
  press(Qt::Key_I, Qt::AltModifier);
  press(Qt::Key_E);
  EXPECT_EQ(exported(QStringLiteral("one.csv")),
            "Match,Volume,Folder,Name,Size,Date\r\n"
            "100%,CD 12,\\Music\\,tune 3.mp3,0.00mb,\"Jan, 15 04\"\r\n");
}

TEST_F(ExportedHits, AsAListingAreFoundAgainByTheProgramItself) {
  showHits(30);
  const QStringList before = rowTexts(29);
  exportAllTo(QStringLiteral("again.txt"));
  state_.OfflineSources.set(1, QStringLiteral("Offline"), out_.pathOf(QStringLiteral("again.txt")));
  find(QStringLiteral("tune 30"));
  EXPECT_EQ(rowTexts(0).mid(1), before.mid(1)) << "the first is the best match";
  find(QStringLiteral("tune"));
  EXPECT_EQ(rows(), 30);
}

TEST_F(ExportedHits, GoOutInTheOrderInWhichTheyAreShown) {
  showHits(3);
  activate(form());
  sortByNameDownwards();
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_EQ(namesIn(QStringLiteral("all.csv")), "tune 3.mp3 tune 2.mp3 tune 1.mp3 ");
}

TEST_F(ExportedHits, AreThoseThatTheFilterLeaves) {
  showHits(30);
  activate(form());
  press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  typeText(QStringLiteral("2."));
  waitForRows();
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_EQ(namesIn(QStringLiteral("all.csv")), "tune 2.mp3 tune 12.mp3 tune 22.mp3 ");
}

TEST_F(ExportedHits, ThatAreSelectedGoOutInTheOrderInWhichTheyAreShownToo) {
  showHits(30);
  activate(form());
  controls().HitList->setFocus();
  sortByNameDownwards();
  press(Qt::Key_Home);
  press(Qt::Key_Down, Qt::ShiftModifier, 2);
  files_.pick = out_.pathOf(QStringLiteral("three.csv"));
  form().itemMenu().ExportSelected->trigger();
  EXPECT_EQ(namesIn(QStringLiteral("three.csv")), "tune 30.mp3 tune 29.mp3 tune 28.mp3 ");
}

TEST_F(ExportedHits, ThatAreSortedWhileTheFileIsChosenGoOutSorted) {
  showHits(3);
  files_.duringSave = [this] {
    activate(form());
    sortByNameDownwards();
  };
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_EQ(namesIn(QStringLiteral("all.csv")), "tune 3.mp3 tune 2.mp3 tune 1.mp3 ");
}

TEST_F(ExportedHits, ThatDoNotFitOnTheDiskLeaveTheEarlierFileAndNothingElse) {
  showHits(5000);
  out_.writeFile(QStringLiteral("all.csv"), "the earlier file");
  {
    const FullDisk disk(100'000);
    exportAllTo(QStringLiteral("all.csv"));
  }
  EXPECT_EQ(exported(QStringLiteral("all.csv")), "the earlier file");
  EXPECT_EQ(out_.names(), QStringList(QStringLiteral("all.csv")));
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Run-time error '61'")))
      << messages_.informed[0].toStdString();
  EXPECT_FALSE(statusLine().contains(QStringLiteral("written")));
}

TEST_F(ExportedHits, EscStopsTheExportAndTheEarlierFileStays) {
  showHits(50'000);
  out_.writeFile(QStringLiteral("all.csv"), "the earlier file");
  activate(form());
  duringTheExport([] { press(Qt::Key_Escape); });
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_EQ(exported(QStringLiteral("all.csv")), "the earlier file");
  EXPECT_EQ(out_.names(), QStringList(QStringLiteral("all.csv")));
  EXPECT_TRUE(statusLine().endsWith(QStringLiteral("The export was stopped. Nothing was written.")))
      << statusLine().toStdString();
  EXPECT_TRUE(messages_.informed.empty());
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_TRUE(statusLine().contains(QStringLiteral("50,000 hits were written"))) << "the next one goes on";
}

TEST_F(ExportedHits, AsAPageAreOneFileWithAllOfThem) {
  showHits(3);
  exportAllTo(QStringLiteral("page.html"));
  EXPECT_TRUE(exported(QStringLiteral("page.html")).contains("[2,100,\"tune 3.mp3\",1024,"));
}

TEST_F(ExportedHits, WithoutAnyAMessageSaysSoAndNothingIsAsked) {
  form().menus().ExportHits->trigger();
  EXPECT_EQ(messages_.informed, std::vector{QStringLiteral("There are no hits to export.")});
  EXPECT_TRUE(files_.askedToSave.empty());
}

TEST_F(ExportedHits, CancelInTheDialogWritesNothing) {
  showHits(1);
  files_.pick = std::nullopt;
  form().menus().ExportHits->trigger();
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(ExportedHits, AnEndingThatSaysNothingIsRefused) {
  showHits(1);
  exportAllTo(QStringLiteral("hits.doc"));
  EXPECT_EQ(
      messages_.informed,
      std::vector{QStringLiteral("The ending of the name says what is written: .csv, .html or .txt. %1 has "
                                 "none of these.")
                      .arg(out_.pathOf(QStringLiteral("hits.doc")))});
}

TEST_F(ExportedHits, NeverTakeThePlaceOfAListingThatIsSearched) {
  showHits(1);
  const QString listing = folder_.writeFile(QStringLiteral("other.txt"), "a listing");
  state_.OfflineSources.set(++state_.OfflineSourceCount, QStringLiteral("Offline"), listing);
  files_.pick = listing;
  form().menus().ExportHits->trigger();
  EXPECT_EQ(folder_.readFile(QStringLiteral("other.txt")), "a listing");
  EXPECT_EQ(messages_.informed,
            std::vector{
                QStringLiteral("%1 belongs to what is searched. Please choose another name.").arg(listing)});
}

TEST_F(ExportedHits, AFolderThatIsGoneIsReported) {
  showHits(1);
  exportAllTo(QStringLiteral("gone/hits.csv"));
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Run-time error '53'")))
      << messages_.informed[0].toStdString();
}

TEST_F(ExportedHits, ANewSearchEndsTheExportAndNothingIsWritten) {
  showHits(50'000);
  duringTheExport([this] { find(QStringLiteral("tune 7")); });
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_FALSE(out_.has(QStringLiteral("all.csv")));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("The export was given up, since a new search has replaced the hits. "
                                       "Nothing was written.")});
}

TEST_F(ExportedHits, ASearchWhileTheFileIsChosenEndsItToo) {
  showHits(5);
  files_.duringSave = [this] { find(QStringLiteral("nothing like that")); };
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_FALSE(out_.has(QStringLiteral("all.csv")));
  EXPECT_EQ(messages_.informed.size(), 1U);
}

TEST_F(ExportedHits, ClosingTheWindowEndsTheExportAndNothingIsWritten) {
  showHits(50'000);
  duringTheExport([this] { form().close(); });
  exportAllTo(QStringLiteral("all.csv"));
  EXPECT_FALSE(out_.has(QStringLiteral("all.csv")));
  EXPECT_FALSE(form().isVisible());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(ExportedHits, CancelInTheProgressWindowEndsTheExportAndNothingElse) {
  showHits(100'000);
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [this] {
    if (!form().progress().isVisible()) return;
    EXPECT_EQ(form().progress().windowTitle(), QStringLiteral("Export Hits"));
    form().progress().reject();
  });
  watch.start(0);
  exportAllTo(QStringLiteral("all.html"));
  watch.stop();
  EXPECT_FALSE(out_.has(QStringLiteral("all.html")));
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_EQ(form().progress().windowTitle(), QStringLiteral("Progress"));
  EXPECT_FALSE(state_.AbortRequested) << "the next search must not end by it";
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(ExportedHits, DuringASearchTheExportIsRefused) {
  showHits(20'000);
  type(controls().SearchStr, QStringLiteral("tune"));
  duringTheRun([this] { form().menus().ExportHits->trigger(); });
  pressFind();
  EXPECT_EQ(
      messages_.informed,
      std::vector{QStringLiteral("A search is running. The export can be started when that has ended.")});
  EXPECT_TRUE(files_.askedToSave.empty());
}

}  // namespace

}  // namespace quorvin::test
