// Many look-ups in the same folders, with no folder read twice.
#include "files/file_lookup.h"
#include "hits/hit_actions.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class FoldersReadOnceTest : public testing::Test {
 protected:
  FoldersReadOnce folders_{[this](const QString& folder) {
    foldersRead_ += folder;
    return names_;
  }};
  QStringList names_{QStringLiteral("b2.txt"), QStringLiteral("a.txt"), QStringLiteral("b1.txt")};
  QStringList foldersRead_;
};

TEST_F(FoldersReadOnceTest, ReadsAFolderOnceForAllItsPatterns) {
  EXPECT_EQ(folders_.find(QStringLiteral("/music/a?txt")), QStringLiteral("a.txt"));
  EXPECT_EQ(folders_.find(QStringLiteral("/music/c*")), QString());
  EXPECT_EQ(folders_.find(QStringLiteral("/talk/a*")), QStringLiteral("a.txt"));
  EXPECT_EQ(foldersRead_, (QStringList{QStringLiteral("/music/"), QStringLiteral("/talk/")}));
}

TEST_F(FoldersReadOnceTest, OfSeveralThatFitTheFirstInTheFileSystemsOrderWins) {
  EXPECT_EQ(folders_.find(QStringLiteral("/music/b?.txt")), QStringLiteral("b2.txt"));
  EXPECT_EQ(folders_.find(QStringLiteral("/music/?.txt")), QStringLiteral("a.txt"));
}

TEST_F(FoldersReadOnceTest, TheExactNameWinsOverAnEarlierOneThatFits) {
  names_ = {QStringLiteral("b2.txt"), QStringLiteral("b?.txt")};
  EXPECT_EQ(folders_.find(QStringLiteral("/music/b?.txt")), QStringLiteral("b?.txt"));
}

TEST_F(FoldersReadOnceTest, ANameWithoutWildcardsReadsNoFolder) {
  EXPECT_EQ(folders_.find(QStringLiteral("/no/such/folder/a.txt")), QString());
  EXPECT_TRUE(foldersRead_.isEmpty());
}

TEST(FoldersReadOnceOnDisk, FindsWhatTheSingleLookUpFinds) {
  const TemporaryFolder folder;
  for (const char* name : {"one.txt", "two.txt", ".hidden.txt", "three"}) {
    folder.writeFile(QString::fromLatin1(name), "x");
  }
  FoldersReadOnce folders;
  for (const char* name : {"*", "t*", "*.txt", ".h*", "one.txt", "o?e.txt", "four*"}) {
    const QString pattern = folder.path() + QString::fromLatin1(name);
    EXPECT_EQ(folders.find(pattern), findOrdinaryFile(pattern)) << name;
  }
}

}  // namespace

}  // namespace quorvin::test
