// SPDX-License-Identifier: GPL-2.0-or-later

// A real tree, indexed by the refresh, held against a plain walk and searched file by file. The tree is
// /usr/include, or the folder that the environment names in QUORVIN_REAL_TREE (with a slash at its end), of
// which then every file is searched for.
#include "index/refresh_fixture.h"
#include "platform/text_encoding.h"
#include "search/listing_scan.h"
#include "support/plain_walker.h"
#include "support/scan_of.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace quorvin {
namespace {

struct File {
  QString folder;
  /// As a hit shows it.
  QString name;
  std::string line;
};

class RealTree : public test::RefreshTest {
 protected:
  RealTree() {
    addSourceAt(u"Real"_qs, QString::fromStdString(top));
    refresh();
    expected = test::plainWalk(top);
    for (const auto& [folder, block] : expected) {
      for (const std::string& line : block.entries) {
        files.push_back({QString::fromStdString(folder), nameOf(line), line});
      }
    }
  }

  static QString nameOf(const std::string& line) {
    QString name = QString::fromStdString(line).left(69);
    while (name.endsWith(u' ')) name.chop(1);
    return name;
  }

  // The hits of a search for `words`, in the listing that the refresh has made.
  HitTable search(const QString& words) {
    test::TestScan scan(simpleLowerCase(words), 99);
    scan.runFile(data.pathOf(u"Real.txt"_qs), &segments_);
    EXPECT_EQ(scan.outcome.unreadableHits, 0);
    return std::move(scan.table);
  }

  // Midnight is a short line, and a name with "?" has neither: such hits show the values of the one before.
  static bool hasOwnSizeAndDate(const File& file) {
    return QString::fromStdString(file.line).size() > 100 && !file.name.contains(u'?');
  }

  using Shown = std::tuple<QString, QString, std::int64_t, QString>;

  static Shown shownOf(const File& file) {
    const QString line = QString::fromStdString(file.line);
    return {file.folder, file.name, line.mid(65, 16).remove(u',').trimmed().toLongLong(), line.mid(88)};
  }

  static Shown shownOf(const HitRow& row) {
    return {row.folder, row.name, row.size, generalDateText(row.date, QLocale::c())};
  }

  const bool chosen = qEnvironmentVariableIsSet("QUORVIN_REAL_TREE");
  const std::string top = chosen ? qgetenv("QUORVIN_REAL_TREE").toStdString() : "/usr/include/";
  test::PlainBlocks expected;
  std::vector<File> files;

 private:
  TemporaryFolder cache_;
  SegmentStore segments_{{cache_.path(), std::size_t{1} << 30, SegmentUse::Repeated}};
};

TEST_F(RealTree, ListingEqualsAPlainWalkBlockByBlock) {
  ASSERT_GT(files.size(), 100U);
  EXPECT_EQ(test::differenceOf(test::blocksOf(data.readFile(u"Real.txt"_qs), "Real"), expected), "");
  EXPECT_EQ(view.shown.folders, static_cast<std::int64_t>(expected.size()));
  EXPECT_EQ(view.shown.files, static_cast<std::int64_t>(files.size()));
  for (const QString& log : view.logs) {
    EXPECT_FALSE(log.contains(u"misreads"_qs)) << log.toStdString();
    if (chosen) std::printf("%s", log.toUtf8().constData());
  }
}

TEST_F(RealTree, EachFileIsFoundByItsName) {
  // A search each for some of the files, of every folder that has any.
  const std::size_t step = chosen ? 1 : std::max<std::size_t>(files.size() / 400, 1);
  std::size_t searches = 0;
  for (std::size_t i = 0; i < files.size(); i += step) {
    const File& file = files[i];
    const HitTable hits = search(file.name);
    std::int64_t row = 0;
    while (row < hits.rowCount() &&
           (hits.row(row).name != file.name || hits.row(row).folder != file.folder)) {
      ++row;
    }
    ASSERT_LT(row, hits.rowCount()) << file.line;
    EXPECT_EQ(hits.row(row).volume, u"Real"_qs);
    ++searches;
  }
  RecordProperty("searches", static_cast<int>(searches));
  if (chosen) std::printf("%zu searches, one for each of %zu files\n", searches, files.size());
}

TEST_F(RealTree, OneSearchForTheFolderFindsEveryFileWithSizeAndDate) {
  const HitTable hits = search(QString::fromStdString(expected.begin()->first).chopped(1).section(u'\\', -1));
  EXPECT_EQ(hits.rowCount(), static_cast<std::int64_t>(files.size()));
  std::set<Shown> shown;
  for (std::int64_t row = 0; row < hits.rowCount(); ++row) shown.insert(shownOf(hits.row(row)));
  for (const File& file : files) {
    EXPECT_TRUE(!hasOwnSizeAndDate(file) || shown.contains(shownOf(file))) << file.line;
  }
}

}  // namespace
}  // namespace quorvin
