#include "files/overwritten_file.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvin {
namespace {

class OverwrittenFileTest : public testing::Test {
 protected:
  void overwrite(std::string_view bytes) const {
    OverwrittenFile file(path());
    file.write(bytes);
    file.flush();
  }

  int faultOf(std::string_view bytes) const {
    try {
      overwrite(bytes);
    } catch (const RuntimeFault& fault) {
      return fault.number();
    }
    return 0;
  }

  QString path() const { return folder_.pathOf(u"a.zip"_qs); }
  QByteArray content() const { return folder_.readFile(u"a.zip"_qs); }

  TemporaryFolder folder_;
};

TEST_F(OverwrittenFileTest, IsMadeWhenItIsNotThere) {
  overwrite("new");
  EXPECT_EQ(content(), QByteArray("new"));
}

TEST_F(OverwrittenFileTest, KeepsWhatIsNotWrittenOver) {
  folder_.writeFile(u"a.zip"_qs, "0123456789");
  overwrite("abc");
  EXPECT_EQ(content(), QByteArray("abc3456789"));
  overwrite("");
  EXPECT_EQ(content(), QByteArray("abc3456789"));
  overwrite("a longer content");
  EXPECT_EQ(content(), QByteArray("a longer content"));
}

TEST_F(OverwrittenFileTest, RefusesFoldersAndPipes) {
  folder_.makeFolder(u"a.zip"_qs);
  EXPECT_EQ(faultOf("x"), 75);
  ASSERT_TRUE(QDir().rmdir(path()));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
  EXPECT_NE(faultOf("x"), 0);
}

TEST_F(OverwrittenFileTest, OnAFullDiskIsAFault) {
  const FullDisk full(100);
  EXPECT_EQ(faultOf(std::string(1000, 'x')), 61);
}

}  // namespace
}  // namespace quorvin
