#include "editors/source_list_model.h"

#include "support/qt_printing.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace quorvin {

namespace {

SourceEntry entry(const char* name) {
  return {QString::fromLatin1(name), QString::fromLatin1(name) + u'\\'};
}

class SourceList : public testing::Test {
 protected:
  SourceList() { list_.fill({entry("one"), entry("two"), entry("three")}); }

  QStringList descriptions() const {
    QStringList texts;
    for (const SourceEntry& each : list_.entries()) texts.append(each.description);
    return texts;
  }
  static QStringList words(const char* text) { return QString::fromLatin1(text).split(u' '); }

  SourceListModel list_;
  QAbstractItemModelTester tester_{&list_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST(DescriptionOfFolder, IsItsNameWithoutWhatNoDescriptionMayHold) {
  EXPECT_EQ(descriptionOfFolder(u"D:\\Data\\Music\\"_qs, kWindowsPaths), u"Music"_qs);
  EXPECT_EQ(descriptionOfFolder(u"D:\\"_qs, kWindowsPaths), QString());
  EXPECT_EQ(descriptionOfFolder(u"/home/ann/Music 1:2*\\x/"_qs, kUnixPaths), u"Music 1_2__x"_qs);
  EXPECT_EQ(descriptionOfFolder(u"/home"_qs, kUnixPaths), u"home"_qs);
  EXPECT_EQ(descriptionOfFolder(u"/"_qs, kUnixPaths), QString());
}

TEST_F(SourceList, HasTheColumnsDescriptionAndPath) {
  EXPECT_EQ(list_.columnCount(), 2);
  EXPECT_EQ(list_.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Description"));
  EXPECT_EQ(list_.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Path"));
  EXPECT_EQ(list_.index(1, 0).data().toString(), QStringLiteral("two"));
  EXPECT_EQ(list_.index(1, 1).data().toString(), QStringLiteral("two\\"));
}

TEST_F(SourceList, AnEntryThatLooksLikeMarkupIsShownAsItStands) {
  list_.fill({{QStringLiteral("<b>"), QStringLiteral("D:\\a  &amp; b\\")}});
  EXPECT_EQ(list_.index(0, 0).data().toString(), QStringLiteral("<b>"));
  EXPECT_EQ(list_.index(0, 1).data(Qt::ToolTipRole).toString(),
            QStringLiteral("<p style='white-space:pre'>D:\\a  &amp;amp; b\\</p>"));
}

TEST_F(SourceList, AppendsAtTheEndAndTakesDuplicates) {
  list_.append(entry("two"));
  EXPECT_EQ(descriptions(), words("one two three two"));
}

TEST_F(SourceList, DeletingTheThirdRowSelectsTheSecond) {
  EXPECT_EQ(list_.deleteEntries({2}), 1);
  EXPECT_EQ(descriptions(), words("one two"));
}

TEST_F(SourceList, DeletingTheFirstRowSelectsNothing) {
  EXPECT_EQ(list_.deleteEntries({0}), std::nullopt);
  EXPECT_EQ(descriptions(), words("two three"));
}

TEST_F(SourceList, DeletesAnyRowsAtOnceAndSelectsTheOneAboveThem) {
  list_.fill({entry("0"), entry("1"), entry("2"), entry("3"), entry("4"), entry("5"), entry("6")});
  EXPECT_EQ(list_.deleteEntries({1, 2, 4, 6}), 0);
  EXPECT_EQ(descriptions(), words("0 3 5"));
  EXPECT_EQ(list_.deleteEntries({0, 1, 2}), std::nullopt);
  EXPECT_EQ(list_.rowCount(), 0);
}

TEST_F(SourceList, MovingExchangesBothTextsAndFollowsTheEntry) {
  EXPECT_EQ(list_.moveUp(2), 1);
  EXPECT_EQ(descriptions(), words("one three two"));
  EXPECT_EQ(list_.entries()[1].path, QStringLiteral("three\\"));
  EXPECT_EQ(list_.moveDown(0), 1);
  EXPECT_EQ(descriptions(), words("three one two"));
}

TEST_F(SourceList, MovingBeyondAnEndDoesNothing) {
  EXPECT_EQ(list_.moveUp(0), std::nullopt);
  EXPECT_EQ(list_.moveDown(2), std::nullopt);
  EXPECT_EQ(descriptions(), words("one two three"));
}

TEST_F(SourceList, WithoutASelectionNothingHappens) {
  EXPECT_EQ(list_.deleteEntries({}), std::nullopt);
  EXPECT_EQ(list_.deleteEntries({-1}), std::nullopt);
  EXPECT_EQ(list_.deleteEntries({3}), std::nullopt);
  EXPECT_EQ(list_.moveUp(-1), std::nullopt);
  EXPECT_EQ(list_.moveDown(-1), std::nullopt);
  EXPECT_EQ(descriptions(), words("one two three"));
}

// What may be added, and how a list is stored.

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

}  // namespace

}  // namespace quorvin
