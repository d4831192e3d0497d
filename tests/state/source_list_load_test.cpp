// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "state/source_list_file.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvin {
namespace {

struct Record {
  QString description;
  QString path;
  bool operator==(const Record&) const = default;
};

void PrintTo(const Record& record, std::ostream* out) {
  *out << record.description.toStdString() << " | " << record.path.toStdString();
}

class SourceListLoad : public testing::Test {
 protected:
  /// Loads a list of these bytes into the table; gives the fault's number, 0 for none.
  int load(const QByteArray& bytes) {
    const QString path = folder_.writeFile(QStringLiteral("Locations.txt"), bytes);
    try {
      loadSourceList(path, table_, count_);
    } catch (const RuntimeFault& fault) {
      description_ = fault.description();
      return fault.number();
    }
    return 0;
  }

  std::vector<Record> records() const {
    std::vector<Record> result;
    for (int row = 1; row <= count_; ++row) result.push_back({table_.description(row), table_.path(row)});
    return result;
  }

  static std::vector<Record> one(const QString& description, const QString& path) {
    return {{description, path}};
  }

  static QByteArray manyRecords(int count) {
    QByteArray bytes;
    for (int i = 1; i <= count; ++i) {
      const QByteArray number = QByteArray::number(i);
      bytes += "\"source " + number + "\",\"D:\\Music\\" + number + "\\\"\r\n";
    }
    return bytes;
  }

  TemporaryFolder folder_;
  SourceTable table_;
  int count_ = 0;
  QString description_;
};

TEST_F(SourceListLoad, PutsTheFirstRecordIntoRow1) {
  EXPECT_EQ(load("\"My music\",\"D:\\Music\\\"\r\n"), 0);
  EXPECT_EQ(count_, 1);
  EXPECT_EQ(table_.description(1), QStringLiteral("My music"));
  EXPECT_EQ(table_.path(1), QStringLiteral("D:\\Music\\"));
}

TEST_F(SourceListLoad, TakesUnixPaths) {
  EXPECT_EQ(load("\"My music\",\"/home/ann/Music/\"\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("My music"), QStringLiteral("/home/ann/Music/")));
}

TEST_F(SourceListLoad, KeepsFileOrder) {
  EXPECT_EQ(load("\"b\",\"2\"\r\n\"a\",\"1\"\r\n\"c\",\"3\"\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("b"), QStringLiteral("2")},
                                        {QStringLiteral("a"), QStringLiteral("1")},
                                        {QStringLiteral("c"), QStringLiteral("3")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, AppendsToWhatTheTableHolds) {
  EXPECT_EQ(load("\"a\",\"1\"\r\n"), 0);
  EXPECT_EQ(load("\"b\",\"2\"\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("1")},
                                        {QStringLiteral("b"), QStringLiteral("2")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, LeavesTheTableEmptyForAnEmptyFile) {
  EXPECT_EQ(load(""), 0);
  EXPECT_EQ(count_, 0);
}

TEST_F(SourceListLoad, KeepsACommaInsideQuotes) {
  EXPECT_EQ(load("\"a,b\",\"c\"\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("a,b"), QStringLiteral("c")));
}

TEST_F(SourceListLoad, KeepsBlanksInsideQuotes) {
  EXPECT_EQ(load("\"  a  \",\" c \"\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("  a  "), QStringLiteral(" c ")));
}

TEST_F(SourceListLoad, TakesUnquotedFields) {
  EXPECT_EQ(load("My music,D:\\Music\\\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("My music"), QStringLiteral("D:\\Music\\")));
}

TEST_F(SourceListLoad, DropsBlanksAroundUnquotedFields) {
  EXPECT_EQ(load("   My music   ,  D:\\Music\\  \r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("My music"), QStringLiteral("D:\\Music\\")));
}

TEST_F(SourceListLoad, SkipsBlanksAroundQuotedFields) {
  EXPECT_EQ(load("  \"a\"  ,  \"b\"  \r\n\"c\",\"d\"\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, MixesQuotedAndUnquotedFields) {
  EXPECT_EQ(load("My music,\"D:\\a, b\\\"\r\n\"x\",y\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("My music"), QStringLiteral("D:\\a, b\\")},
                                        {QStringLiteral("x"), QStringLiteral("y")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, KeepsAQuoteInsideAnUnquotedField) {
  EXPECT_EQ(load("12\" records,D:\\Vinyl\\\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("12\" records"), QStringLiteral("D:\\Vinyl\\")));
}

TEST_F(SourceListLoad, StartsANewFieldWhereAQuoteIsClosedEarly) {
  // What a description with quotes in it becomes, since the writer does not escape them.
  EXPECT_EQ(load("\"say \"hi\" now\",\"x\"\r\n"), 62);
  const std::vector<Record> expected = {{QStringLiteral("say "), QStringLiteral("hi\" now\"")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, TakesEmptyFields) {
  EXPECT_EQ(load("\"\",\"\"\r\n,\r\n"), 0);
  const std::vector<Record> expected = {{QString(), QString()}, {QString(), QString()}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, TakesTheTwoFieldsFromTwoLines) {
  EXPECT_EQ(load("\"a\"\r\n\"b\"\r\nc\r\nd\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, TakesThreeFieldsOfALineAsOneRecordAndABit) {
  EXPECT_EQ(load("\"a\",\"b\",\"c\"\r\n\"d\"\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, RunsAQuotedFieldOverLineEndsToItsClosingQuote) {
  EXPECT_EQ(load("\"a\r\nb\nc\",\"d\"\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("a\r\nb\nc"), QStringLiteral("d")));
}

TEST_F(SourceListLoad, EndsAnUnclosedFieldAtTheEndOfTheFile) {
  EXPECT_EQ(load("\"a\",\"D:\\Music\\\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("D:\\Music\\")));
}

TEST_F(SourceListLoad, FaultsOnAnUnclosedDescription) {
  EXPECT_EQ(load("\"a\",\"b\"\r\n\"c,d\r\n"), 62);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("b")));
}

TEST_F(SourceListLoad, TakesLineFeedAloneAsLineEnd) {
  EXPECT_EQ(load("\"a\",\"b\"\nc,d\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, NeedsNoLineEndAfterTheLastRecord) {
  EXPECT_EQ(load("\"a\",\"b\"\r\nc,d"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, TakesAFileThatWasCutInsideItsLastLineEnd) {
  EXPECT_EQ(load("\"a\",\"b\"\r"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("b")));
}

TEST_F(SourceListLoad, FaultsOnADescriptionWithoutItsPath) {
  EXPECT_EQ(load("\"a\",\"b\"\r\n\"c\"\r\n"), 62);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("b")));
  EXPECT_EQ(description_,
            QStringLiteral("Input past end of file: ") + folder_.pathOf(QStringLiteral("Locations.txt")));
}

TEST_F(SourceListLoad, FaultsWhenTheFileEndsAfterTheComma) {
  EXPECT_EQ(load("\"a\","), 62);
  EXPECT_EQ(count_, 0);
}

TEST_F(SourceListLoad, TakesAnEmptyPathBeforeALineEnd) {
  EXPECT_EQ(load("\"a\",\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QString()));
}

TEST_F(SourceListLoad, FaultsOnAnEmptyLineAtTheEnd) {
  // An empty line is an empty field, and this one has no pair.
  EXPECT_EQ(load("\"a\",\"b\"\r\n\r\n"), 62);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("b")));
}

TEST_F(SourceListLoad, FaultsOnBlanksAtTheEnd) {
  EXPECT_EQ(load("\"a\",\"b\"\r\n   "), 62);
  EXPECT_EQ(records(), one(QStringLiteral("a"), QStringLiteral("b")));
}

TEST_F(SourceListLoad, Takes2000Records) {
  EXPECT_EQ(load(manyRecords(2000)), 0);
  EXPECT_EQ(count_, 2000);
  EXPECT_EQ(table_.description(1), QStringLiteral("source 1"));
  EXPECT_EQ(table_.path(2000), QStringLiteral("D:\\Music\\2000\\"));
}

TEST_F(SourceListLoad, FaultsAtRecord2001AndKeeps2000) {
  EXPECT_EQ(load(manyRecords(2001)), 9);
  EXPECT_EQ(count_, 2000);
  EXPECT_EQ(table_.description(2000), QStringLiteral("source 2000"));
  EXPECT_EQ(description_, QStringLiteral("Subscript out of range: ") +
                              folder_.pathOf(QStringLiteral("Locations.txt")) +
                              QStringLiteral(" holds more than 2000 records"));
}

TEST_F(SourceListLoad, ReadsCharactersOfTheSystemCodePage) {
  EXPECT_EQ(load("\"M\xC3\xBCnchen\",\"/M\xC3\xBCnchen/\"\r\n"), 0);
  EXPECT_EQ(records(), one(QStringLiteral(u"M\u00FCnchen"), QStringLiteral(u"/M\u00FCnchen/")));
}

TEST_F(SourceListLoad, ReadsALineThatIsNotValidAsWindows1252ThatLineAlone) {
  EXPECT_EQ(load("\"M\xFCnchen\",\"\x80\"\r\n\"M\xC3\xBCnchen\",b\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral(u"M\u00FCnchen"), QStringLiteral(u"\u20AC")},
                                        {QStringLiteral(u"M\u00FCnchen"), QStringLiteral("b")}};
  EXPECT_EQ(records(), expected);
}

TEST_F(SourceListLoad, TakesAFieldThatIsLongerThanOneReadOfTheFile) {
  const QByteArray longPath(100'000, 'x');
  EXPECT_EQ(load("\"a\",\"" + longPath + "\"\r\nb,c\r\n"), 0);
  ASSERT_EQ(count_, 2);
  EXPECT_EQ(table_.path(1), QString::fromLatin1(longPath));
  EXPECT_EQ(table_.path(2), QStringLiteral("c"));
}

TEST_F(SourceListLoad, FaultsOnAMissingFile) {
  try {
    loadSourceList(folder_.pathOf(QStringLiteral("none.txt")), table_, count_);
    FAIL() << "a missing file was loaded";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 53);
  }
}

TEST_F(SourceListLoad, AByteOrderMarkShiftsNothing) {
  EXPECT_EQ(load("\xEF\xBB\xBF\"a\",\"b\"\r\n\"c\",\"d\"\r\n"), 0);
  const std::vector<Record> expected = {{QStringLiteral("a"), QStringLiteral("b")},
                                        {QStringLiteral("c"), QStringLiteral("d")}};
  EXPECT_EQ(records(), expected);
}

}  // namespace
}  // namespace quorvin
