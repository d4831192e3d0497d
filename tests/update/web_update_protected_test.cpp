// SPDX-License-Identifier: GPL-2.0-or-later

// An update replaces what it is for, and nothing of the user's own or of the program.
#include "archive/archive_maker.h"
#include "support/listing_lines.h"
#include "update/web_update_fixture.h"

#include <utility>

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString kLeftOut =
    u"These files of the archive were left out, since they would have replaced your source lists, your "
    u"settings, your listing history, or the program itself:"_qs;

class WebUpdateProtected : public WebUpdateTest {
 protected:
  WebUpdateProtected() {
    state_.resetFileNames();
    state_.TextFile = QStringLiteral("main.txt");
  }

  /// Every file in the archive holds "newer".
  void update(const QStringList& names) {
    std::vector<MadeEntry> entries;
    for (const QString& name : names) {
      MadeEntry entry;
      entry.name = name.toUtf8();
      entry.content = "newer";
      entries.push_back(entry);
    }
    serve(QStringLiteral("15 Nov 2004 10:20:30"), archiveOf(entries));
    boxes_.answers = {true};
    click();
  }
  void have(const QStringList& names) const {
    for (const QString& name : names) data_.writeFile(name, "earlier");
  }
  std::string content(const QString& name) const { return data_.readFile(name).toStdString(); }
};

TEST_F(WebUpdateProtected, ListsHistorySettingsAndLocksStayAsTheyAre) {
  places_.settingsPath = data_.pathOf(QStringLiteral("own/settings.ini"));
  places_.runtimeFolder = data_.pathOf(QStringLiteral("run"));
  const QStringList own{u"Locations.txt"_qs,       u"OfflineLocations.txt"_qs,
                        u"Locations.txt_music"_qs, u"history/Music.txt/00000001.version"_qs,
                        u"own/settings.ini"_qs,    u"run/0123456789abcdef.lock"_qs};
  have(own + QStringList{u"main.txt"_qs});
  update(own + QStringList{u"main.txt"_qs});
  for (const QString& name : own) EXPECT_EQ(content(name), "earlier") << name.toStdString();
  EXPECT_EQ(content(u"main.txt"_qs), "newer");
  EXPECT_THAT(boxes_.informed, ElementsAre(kLeftOut + u"\r\n"_qs + own.join(u"\r\n"_qs)));
}

TEST_F(WebUpdateProtected, ListsThatAreNotThereAreNotPlanted) {
  update({u"Locations.txt"_qs, u"history/main.txt/00000009.version"_qs, u"readme.txt"_qs});
  EXPECT_EQ(data_.names(), QStringList({u"main.zip"_qs, u"readme.txt"_qs}));
}

TEST_F(WebUpdateProtected, ListingsAndPagesOfTheManualAreReplaced) {
  const QStringList names{u"main.txt"_qs, u"genhelp.htm"_qs, u"pictures/back.gif"_qs};
  places_.executableFolder = data_.path();
  have(names);
  update(names);
  for (const QString& name : names) EXPECT_EQ(content(name), "newer") << name.toStdString();
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(WebUpdateProtected, AProgramThatSharesTheDataFolderStays) {
  places_.executableFolder = data_.path();
  have({u"quorvin"_qs});
  update({u"quorvin"_qs, u"imageformats/libnew.so"_qs, u"main.txt"_qs});
  EXPECT_EQ(content(u"quorvin"_qs), "earlier");
  EXPECT_FALSE(data_.has(u"imageformats"_qs));
  EXPECT_EQ(content(u"main.txt"_qs), "newer");
  EXPECT_THAT(boxes_.informed, ElementsAre(kLeftOut + u"\r\nquorvin\r\nimageformats/libnew.so"_qs));
}

class WebUpdateProtectedNames : public WebUpdateProtected,
                                public testing::WithParamInterface<std::pair<int, const char*>> {};

TEST_P(WebUpdateProtectedNames, TenAreShownAndTheOthersCounted) {
  const auto [count, end] = GetParam();
  QStringList names;
  for (int number = 1; number <= count; ++number) names += u"history/%1"_qs.arg(number);
  update(names);
  ASSERT_EQ(boxes_.informed.size(), 1U);
  EXPECT_TRUE(boxes_.informed[0].endsWith(QString::fromLatin1(end))) << boxes_.informed[0].toStdString();
}

INSTANTIATE_TEST_SUITE_P(Counts, WebUpdateProtectedNames,
                         testing::Values(std::pair(10, "history/9\r\nhistory/10"),
                                         std::pair(11, "history/10\r\nand 1 more"),
                                         std::pair(1234, "history/10\r\nand 1,224 more")));

TEST_F(WebUpdateProtected, WhatIsLeftOutDoesNotMakeTheUpdateBeOfferedAgain) {
  update({u"Locations.txt"_qs, u"main.txt"_qs});
  EXPECT_NE(modified(), k1980);
}

}  // namespace
}  // namespace quorvin::test
