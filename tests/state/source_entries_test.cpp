// SPDX-License-Identifier: GPL-2.0-or-later

// What may be added to a list of sources, and how the list is stored.
#include "state/source_entries.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using Entries = std::vector<SourceEntry>;

TEST(DescriptionOfFolder, IsItsNameWithoutWhatNoDescriptionMayHold) {
  EXPECT_EQ(descriptionOfFolder(u"D:\\Data\\Music\\"_qs, kWindowsPaths), u"Music"_qs);
  EXPECT_EQ(descriptionOfFolder(u"D:\\"_qs, kWindowsPaths), QString());
  EXPECT_EQ(descriptionOfFolder(u"/home/ann/Music 1:2*\\x/"_qs, kUnixPaths), u"Music 1_2__x"_qs);
  EXPECT_EQ(descriptionOfFolder(u"/home"_qs, kUnixPaths), u"home"_qs);
  EXPECT_EQ(descriptionOfFolder(u"/"_qs, kUnixPaths), QString());
}

const QString kPathMessage = QStringLiteral("The Path must be at lease 3 characters long. (ex: C:\\)");
const QString kDescriptionMessage =
    QStringLiteral("Description must not be left blank or contain the characters /?\\:|*");

std::optional<QString> refusalOf(const QString& description, const QString& path) {
  return whyNotAdded({description, path});
}

TEST(SourceEntry, APathOfThreeCharactersIsAccepted) {
  EXPECT_EQ(refusalOf(QStringLiteral("Online"), QStringLiteral("C:\\")), std::nullopt);
}

TEST(SourceEntry, APathOfTwoCharactersIsRefusedBeforeTheDescriptionIsLookedAt) {
  EXPECT_EQ(refusalOf(QStringLiteral("a/b"), QStringLiteral("C:")), kPathMessage);
  EXPECT_EQ(refusalOf(QString(), QString()), kPathMessage);
}

TEST(SourceEntry, ADescriptionThatNoFileNameCanHoldIsRefused) {
  for (const QString& description :
       {QStringLiteral("a/b"), QStringLiteral("x:y"), QStringLiteral("*"), QStringLiteral("?"),
        QStringLiteral("\\"), QStringLiteral("a|b"), QStringLiteral("ends with:"), QString()}) {
    EXPECT_EQ(refusalOf(description, QStringLiteral("C:\\")), kDescriptionMessage)
        << description.toStdString();
  }
}

TEST(SourceEntry, AnyOtherDescriptionIsAcceptedAsItStands) {
  for (const QString& description :
       {QStringLiteral("Music CDs"), QStringLiteral("Online"), QStringLiteral("   "), QStringLiteral("<a>"),
        QStringLiteral("\"quoted\"")}) {
    EXPECT_EQ(refusalOf(description, QStringLiteral("C:\\")), std::nullopt) << description.toStdString();
  }
}

TEST(StoreEntries, AnEmptyListMakesTheCountZeroAndLeavesTheRows) {
  SourceTable table;
  int count = 0;
  ASSERT_EQ(storeEntries({{QStringLiteral("Music"), QStringLiteral("D:\\")}}, table, count), std::nullopt);
  ASSERT_EQ(storeEntries({}, table, count), std::nullopt);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(table.description(1), QStringLiteral("Music"));
  EXPECT_EQ(table.path(1), QStringLiteral("D:\\"));
}

TEST(StoreEntries, NeitherRowZeroNorColumnZeroIsWritten) {
  SourceTable table;
  int count = 0;
  table.at(0, SourceTable::kDescription) = QStringLiteral("row 0");
  table.at(1, 0) = QStringLiteral("column 0");
  ASSERT_EQ(storeEntries({{QStringLiteral("Music"), QStringLiteral("D:\\")}}, table, count), std::nullopt);
  EXPECT_EQ(table.at(0, SourceTable::kDescription), QStringLiteral("row 0"));
  EXPECT_EQ(table.at(1, 0), QStringLiteral("column 0"));
}

TEST(StoreEntries, TwoThousandEntriesFit) {
  SourceTable table;
  int count = 0;
  EXPECT_EQ(storeEntries(std::vector<SourceEntry>(2000), table, count), std::nullopt);
  EXPECT_EQ(count, 2000);
}

TEST(StoreEntries, OneMoreIsRefusedWithNothingStored) {
  SourceTable table;
  int count = 0;
  ASSERT_EQ(storeEntries({{QStringLiteral("Music"), QStringLiteral("D:\\")}}, table, count), std::nullopt);
  const std::vector<SourceEntry> tooMany(2001, {QStringLiteral("New"), QStringLiteral("E:\\")});
  EXPECT_EQ(storeEntries(tooMany, table, count),
            QStringLiteral("A list can hold 2000 entries at most, and this one has 2001.\r\n\r\n"
                           "Nothing has been saved. Please delete entries and save again."));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(table.description(1), QStringLiteral("Music"));
  EXPECT_EQ(table.description(2), QString());
}

TEST(AddedFolders, AreDescribedByTheirNamesAndTakenOnce) {
  Entries entries{{QStringLiteral("Music"), QStringLiteral("/mnt/a/Music/")}};
  const QString told = addFolders({QStringLiteral("/mnt/b/Music/"), QStringLiteral("/mnt/a/Music"),
                                   QStringLiteral("/mnt/c/a:b/"), QStringLiteral("/")},
                                  entries, kUnixPaths);
  EXPECT_EQ(entries, (Entries{{QStringLiteral("Music"), QStringLiteral("/mnt/a/Music/")},
                              {QStringLiteral("Music 2"), QStringLiteral("/mnt/b/Music/")},
                              {QStringLiteral("a_b"), QStringLiteral("/mnt/c/a:b/")}}));
  EXPECT_EQ(told, QStringLiteral("/mnt/a/Music is in the list already.\r\n/: The Path must be at lease 3 "
                                 "characters long. (ex: C:\\)"));
}

TEST(AddedListings, AreDescribedAsOfflineAndTakenOnce) {
  Entries entries;
  const QString told = addListings({QStringLiteral("/l/a.txt"), QStringLiteral("/l/a.txt"),
                                    QStringLiteral("/l/\"b\".txt"), QStringLiteral("/l/c.txt")},
                                   entries);
  EXPECT_EQ(entries, (Entries{{QStringLiteral("Offline"), QStringLiteral("/l/a.txt")},
                              {QStringLiteral("Offline"), QStringLiteral("/l/c.txt")}}));
  EXPECT_EQ(told, QStringLiteral(
                      "/l/a.txt is in the list already.\r\n/l/\"b\".txt: The Path must not contain a double "
                      "quote, since a list of sources cannot keep one. Please give the folder another "
                      "name, or use a link to it."));
}

}  // namespace

}  // namespace quorvin
