// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_importer.h"

#include "faults/runtime_fault.h"
#include "history/history_fixture.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

class ListImporters : public testing::Test {
 protected:
  ListImporters() { folder_.makeFolder(u"out"_qs); }

  QString list(const QString& name, const QByteArray& bytes) const { return folder_.writeFile(name, bytes); }

  ImportedList import(const QString& list) const {
    const ListImporter importer(choices, {u"Format"_qs, u"Dates"_qs, u"Encoding"_qs, u"Made"_qs},
                                [this] { return isStopped; });
    return importer.import(list, [](std::int64_t) {});
  }

  /// The sentence with which the list is refused; empty where it is not.
  QString refusalOf(const QString& list) const {
    try {
      import(list);
    } catch (const RuntimeFault& fault) {
      EXPECT_EQ(fault.number(), 5);
      return fault.description();
    }
    return {};
  }

  QStringList namesMade() const {
    return QDir(folder_.pathOf(u"out"_qs)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  TemporaryFolder folder_;
  ImportChoices choices{{}, folder_.pathOf(u"out"_qs)};
  bool isStopped = false;
};

TEST_F(ListImporters, NameTheListingAfterTheListWithoutItsLastEnding) {
  const ImportedList made = import(list(u"disk.7.lst"_qs, "./a/x\n./a/y\n"));
  EXPECT_EQ(made.place, folder_.pathOf(u"out/disk.7.txt"_qs));
  EXPECT_EQ(namesMade(), QStringList{u"disk.7.txt"_qs});
  EXPECT_TRUE(folder_.readFile(u"out/disk.7.txt"_qs).contains("Directory: \\a\\\r\n\r\nx "));
  EXPECT_TRUE(made.isWhole());
  EXPECT_EQ(importSummary(u"disk.7.lst"_qs, u"disk.7.txt"_qs, made.report),
            u"disk.7.lst: read as paths; disk.7.txt has 2 files, 1 folders"_qs);
}

TEST_F(ListImporters, ASlashInTheNameOfTheVolumeLeadsToNoOtherFolder) {
  choices.label = u"../a/b"_qs;
  import(list(u"x.lst"_qs, "./a/x\n"));
  EXPECT_EQ(namesMade(), QStringList{u".._a_b.txt"_qs});
}

TEST_F(ListImporters, KeepAListingThatIsThereUnlessItMayBeReplaced) {
  const QString path = list(u"x.lst"_qs, "./a/x\n");
  folder_.writeFile(u"out/x.txt"_qs, "of a lost disk");
  EXPECT_EQ(refusalOf(path),
            folder_.pathOf(u"out/x.txt"_qs) + u" is there already; nothing was imported of "_qs + path);
  EXPECT_EQ(folder_.readFile(u"out/x.txt"_qs), "of a lost disk");

  choices.replaces = true;
  EXPECT_EQ(refusalOf(path), QString());
  EXPECT_TRUE(folder_.readFile(u"out/x.txt"_qs).contains("Directory: \\a\\\r\n\r\nx "));
}

TEST_F(ListImporters, KeepAReplacedListingInTheHistoryOfTheDataFolder) {
  folder_.writeFile(u"out/x.txt"_qs, "of a lost disk");
  choices.replaces = true;
  choices.dataFolder = choices.output + u'/';
  EXPECT_EQ(refusalOf(list(u"x.lst"_qs, "./a/x\n")), QString());
  const ListingHistory history(choices.dataFolder);
  ASSERT_EQ(history.versions(u"x.txt"_qs).size(), 1U);
  EXPECT_EQ(test::allOf(*history.text(u"x.txt"_qs, 1)), "of a lost disk");

  // The same text once more is no loss.
  EXPECT_EQ(refusalOf(list(u"x.lst"_qs, "./a/x\n")), QString());
  EXPECT_EQ(history.versions(u"x.txt"_qs).size(), 1U);
}

TEST_F(ListImporters, ReplaceNoListingThatCannotBeKept) {
  folder_.writeFile(u"out/x.txt"_qs, "of a lost disk");
  // There can be no folder of that name.
  folder_.writeFile(u"out/history"_qs, "");
  choices.replaces = true;
  choices.dataFolder = choices.output;
  EXPECT_THAT(refusalOf(list(u"x.lst"_qs, "./a/x\n")).toStdString(),
              testing::StartsWith(folder_.pathOf(u"out/x.txt"_qs).toStdString() +
                                  " was not replaced, since it could not be kept in the listing history: "));
  EXPECT_EQ(folder_.readFile(u"out/x.txt"_qs), "of a lost disk");
  EXPECT_EQ(namesMade(), (QStringList{u"history"_qs, u"x.txt"_qs}));
}

TEST_F(ListImporters, KeepNoHistoryOfListingsElsewhere) {
  folder_.writeFile(u"out/x.txt"_qs, "of a lost disk");
  choices.replaces = true;
  choices.dataFolder = folder_.makeFolder(u"data"_qs);
  EXPECT_EQ(refusalOf(list(u"x.lst"_qs, "./a/x\n")), QString());
  EXPECT_TRUE(QDir(choices.dataFolder).isEmpty());
}

TEST_F(ListImporters, NeverReplaceTheListItself) {
  choices.replaces = true;
  const QString path = list(u"out/x.txt"_qs, "./a/x\n");
  EXPECT_EQ(refusalOf(path), path + u" is there already; nothing was imported of "_qs + path);
  EXPECT_EQ(folder_.readFile(u"out/x.txt"_qs), "./a/x\n");
}

TEST_F(ListImporters, LeaveNothingWhenTheyAreStopped) {
  isStopped = true;
  EXPECT_TRUE(import(list(u"x.lst"_qs, "./a/x\n")).report.isStopped);
  EXPECT_EQ(namesMade(), QStringList());
}

TEST_F(ListImporters, NameTheControlThatSaysTheFormatOfAnUnknownList) {
  const QString path = list(u"x.lst"_qs, "Dear Ann,\n");
  EXPECT_EQ(refusalOf(path),
            path +
                u" is no list of a known format; Format says which of these it has: find-ls, rsync, tar, "
                "ls, ls-quoted, ls-escaped, unzip, rclone, dir, bagit, checksums, du, tree, csv, paths, "
                "find-printf"_qs);
  EXPECT_EQ(namesMade(), QStringList());
}

TEST_F(ListImporters, RefuseAListThatNamesNothing) {
  choices.request.format = listFormatNamed("checksums");
  const QString path = list(u"x.lst"_qs, "noise\n");
  EXPECT_EQ(refusalOf(path), path + u" names no file and no folder; no listing was made"_qs);
  EXPECT_EQ(namesMade(), QStringList());
}

}  // namespace
}  // namespace quorvin
