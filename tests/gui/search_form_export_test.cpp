// Exporting hits from the real window.
#include "app/search_form_export.h"

#include "editors/recording_file_picker.h"
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
  showHits(400'000);
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
