// SPDX-License-Identifier: GPL-2.0-or-later

// What a start asks of the real main window.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QDialog>

namespace quorvin::test {

namespace {

using Kind = Errand::Kind;

class Errands : public SearchFormTest {
 protected:
  /// Two tunes, one of them in a sub-folder with a name that is hard to pass on.
  void addCataloguedFolder() {
    addOnlineFolder(QStringLiteral("Disk"), files_.path());
    const QByteArray listed = files_.path().replace(u'/', u'\\').toUtf8();
    const QByteArray below = listed + "Live 'n\" loud\\";
    folder_.writeFile(QStringLiteral("Disk.txt"), blockHead("Disk", listed) + entryLine("tune 1.mp3") +
                                                      blockHead("Disk", below) + entryLine("tune 2.mp3"));
    files_.makeFolder(QStringLiteral("Live 'n\" loud"));
  }
  QStringList names() {
    QStringList texts;
    for (int row = 0; row < rows(); ++row) texts.append(cell(row, HitColumn::Name));
    return texts;
  }

  TemporaryFolder files_;
};

TEST_F(Errands, ASearchIsDoneAsIfItWereTyped) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 3, "tune"));
  controls().DesMatch->setText(QStringLiteral("99"));
  form().runErrand({Kind::Search, QStringLiteral("tune 2")});
  EXPECT_EQ(controls().SearchStr->text(), QStringLiteral("tune 2"));
  EXPECT_EQ(names(), QStringList{QStringLiteral("tune 2.mp3")});
  EXPECT_EQ(focusName(), QStringLiteral("SearchStr"));
}

TEST_F(Errands, ASearchShowsHitsThatTheFilterOfAnEarlierOneWouldHide) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 3, "tune"));
  form().menus().FilterHits->trigger();
  controls().FilterStr->setText(QStringLiteral("nowhere"));
  form().runErrand({Kind::Search, QStringLiteral("tune")});
  EXPECT_EVENTUALLY(rows() == 3);
}

TEST_F(Errands, AFolderOfAnOwnSourceNarrowsTheHits) {
  addCataloguedFolder();
  form().runErrand({Kind::SearchFolder, files_.pathOf(QStringLiteral("Live 'n\" loud"))});
  EXPECT_TRUE(messages_.asked.empty());
  EXPECT_EQ(focusName(), QStringLiteral("SearchStr"));
  find(QStringLiteral("tune"));
  EXPECT_EVENTUALLY(names() == QStringList{QStringLiteral("tune 2.mp3")});
  form().runErrand({Kind::SearchFolder, files_.path()});
  EXPECT_EVENTUALLY(rows() == 2);
}

TEST_F(Errands, AFolderThatIsNotCataloguedIsCataloguedWhenTheUserAgrees) {
  files_.writeFile(QStringLiteral("Music/song.mp3"), "x");
  const QString music = files_.pathOf(QStringLiteral("Music"));
  messages_.answers = {true};
  form().runErrand({Kind::SearchFolder, music});
  EXPECT_EQ(messages_.asked,
            std::vector{music + QStringLiteral("/ is not catalogued yet.\r\n\r\n"
                                               "Add it to the local search folders, and rescan them?")});
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OnlineSources.path(1), music + u'/');
  find(QStringLiteral("song"));
  EXPECT_EVENTUALLY(names() == QStringList{QStringLiteral("song.mp3")});
}

TEST_F(Errands, WithoutTheUsersConsentNothingIsAdded) {
  messages_.answers = {false};
  form().runErrand({Kind::SearchFolder, files_.path()});
  EXPECT_EQ(messages_.asked.size(), 1U);
  EXPECT_EQ(state_.OnlineSourceCount, 0);
  EXPECT_FALSE(form().menus().FilterHits->isChecked());
}

TEST_F(Errands, WhatIsNoFolderIsNamed) {
  form().runErrand({Kind::SearchFolder, QStringLiteral("/no such folder")});
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("/no such folder is no folder that can be read.")});
  EXPECT_TRUE(messages_.asked.empty());
}

TEST_F(Errands, AFolderThatNoListOfSourcesCanKeepIsRefusedWithTheReason) {
  messages_.answers = {true};
  form().runErrand({Kind::SearchFolder, files_.makeFolder(QStringLiteral("7\" disk"))});
  EXPECT_EQ(state_.OnlineSourceCount, 0);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].contains(QStringLiteral("7\" disk")));
}

TEST_F(Errands, ARescanMakesTheListings) {
  files_.writeFile(QStringLiteral("song.mp3"), "x");
  addOnlineFolder(QStringLiteral("Disk"), files_.path());
  form().runErrand({Kind::Rescan, {}});
  EXPECT_TRUE(folder_.readFile(QStringLiteral("Disk.txt")).contains("song.mp3"));
}

TEST_F(Errands, AnOpenDialogIsNotDisturbed) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 3, "tune"));
  form();
  QDialog dialog(&form());
  QTimer::singleShot(0, &dialog, [&] {
    form().runErrand({Kind::Search, QStringLiteral("tune")});
    dialog.reject();
  });
  dialog.exec();
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(controls().SearchStr->text(), QString());
}

}  // namespace

}  // namespace quorvin::test
