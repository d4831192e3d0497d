// SPDX-License-Identifier: GPL-2.0-or-later

// Copies in generated catalogues, against a plain reference.
#include "catalogue/found_copies.h"
#include "catalogue/plain_copies.h"
#include "platform/text_encoding.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <random>

namespace quorvin {
namespace {

using test::PlainFile;

/// Makes listings with copies and equal folders among them.
class CatalogueMaker {
 public:
  explicit CatalogueMaker(unsigned seed) : random_(seed) {}

  std::vector<PlainFile> files(int listings, std::size_t count) {
    std::vector<PlainFile> files;
    for (int listing = 0; listing < listings; ++listing) {
      const std::size_t end =
          count * static_cast<std::size_t>(listing + 1) / static_cast<std::size_t>(listings);
      while (files.size() < end) {
        const QString volume = u"Disk "_qs + QString::number(below(3));
        if (below(3) == 0 && !files.empty()) {
          plantCopy(files, listing, volume);
        } else {
          addFolder(files, listing, volume);
        }
      }
    }
    return files;
  }

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

 private:
  QString name() {
    static const QStringList names = {
        u"a"_qs,    u"Film.avi"_qs, u"film.AVI"_qs,   u"\u00C4rger.txt"_qs, u"\u00E4RGER.TXT"_qs,
        u"x\ty"_qs, u" blank"_qs,   u"\"q\", 'r'"_qs, u"\u212A"_qs,         u"\u4E2D\u6587.mp3"_qs};
    const QString one = names[below(static_cast<int>(names.size()))];
    if (below(20) == 0) return (one + u'-').repeated(40).left(65).trimmed();
    return below(2) == 0 ? one : one + QString::number(below(2000));
  }

  std::optional<std::int64_t> size() {
    if (below(60) == 0) return std::nullopt;
    static const std::vector<std::int64_t> sizes = {
        0, 1, 999, 1'000, 4'294'967'296, 1'000'000'000, 9'999'999'999'999};
    return below(4) == 0 ? sizes[static_cast<std::size_t>(below(static_cast<int>(sizes.size())))] : below(50);
  }

  QString folder() {
    QString path = u"\\"_qs;
    for (int depth = below(5); depth > 0; --depth)
      path += names_[below(4)] + QString::number(below(6)) + u'\\';
    return path;
  }

  void addFolder(std::vector<PlainFile>& files, int listing, const QString& volume) {
    const QString path = folder();
    for (int i = below(9); i >= 0; --i) files.push_back({listing, volume, path, name(), size()});
  }

  /// A folder that is there already, with all below it, under another path.
  void plantCopy(std::vector<PlainFile>& files, int listing, const QString& volume) {
    const PlainFile model = files[static_cast<std::size_t>(below(static_cast<int>(files.size())))];
    if (model.folder.size() < 2) return;
    const QString path = folder() + u"copy"_qs + QString::number(below(100000)) + u'\\';
    const bool isWhole = below(4) != 0;
    std::vector<PlainFile> copies;
    for (const PlainFile& file : files) {
      const bool isBelow = file.listing == model.listing && file.volume == model.volume &&
                           file.folder.startsWith(model.folder) && copies.size() < 500;
      if (!isBelow || (!isWhole && below(10) == 0)) continue;
      copies.push_back({listing, volume, path + file.folder.mid(model.folder.size()),
                        below(3) == 0 ? file.name.toUpper().toLower() : file.name, file.size});
    }
    files.insert(files.end(), copies.begin(), copies.end());
  }

  std::mt19937 random_;
  const QStringList names_ = {u"Music"_qs, u"MUSIC"_qs, u"\u00DCbung"_qs, u"b c"_qs};
};

/// Contents of every other file or so, of few different ones. Each file gets its kind: one that nobody could
/// look into is of that of the first of its name and size that somebody could.
std::vector<PlacedContent> lookInto(std::vector<PlainFile>& files, CatalogueMaker& maker) {
  std::vector<PlacedContent> contents;
  std::map<std::pair<QString, std::int64_t>, std::uint64_t> first;
  for (std::size_t place = 0; place < files.size(); ++place) {
    PlainFile& file = files[place];
    if (!file.size || maker.below(2) == 0) continue;
    const auto content = static_cast<std::uint64_t>(maker.below(8) == 0 ? 1 + maker.below(2) : 3);
    // Hashes that are the same in half of their bits.
    contents.push_back({static_cast<std::uint32_t>(place), {content / 2, content % 2}});
    const auto [known, isNew] = first.try_emplace({simpleLowerCase(file.name), *file.size}, content);
    file.kind = known->second == content ? 0 : content;
  }
  return contents;
}

QByteArray grouped(std::int64_t size) {
  return QLocale::c().toString(qlonglong{size}).toUtf8();
}

/// The listings of the files, which come in their order.
std::vector<QByteArray> listingsOf(const std::vector<PlainFile>& files, int count) {
  std::vector<QByteArray> listings(static_cast<std::size_t>(count));
  const PlainFile* before = nullptr;
  for (const PlainFile& file : files) {
    QByteArray& listing = listings[static_cast<std::size_t>(file.listing)];
    const bool isNew = before == nullptr || before->listing != file.listing ||
                       before->volume != file.volume || before->folder != file.folder;
    if (isNew) {
      listing +=
          "\r\nVolume:    " + file.volume.toUtf8() + "\r\nDirectory: " + file.folder.toUtf8() + "\r\n\r\n";
    }
    before = &file;
    if (file.size) {
      // What is above the columns is written without groups.
      const QByteArray size =
          *file.size > 9'999'999'999 ? QByteArray::number(qlonglong{*file.size}) : grouped(*file.size);
      listing +=
          file.name.leftJustified(65).toUtf8() + size.rightJustified(16) + " bytes 15 Jan 2004 10:20:30\r\n";
    } else {
      listing += file.name.toUtf8() + "\r\n";
    }
  }
  return listings;
}

void expectAgreement(unsigned seed, std::size_t count, const test::CopiesSetting& setting) {
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  constexpr int kListings = 4;
  CatalogueMaker maker(seed);
  const std::vector<PlainFile> files = maker.files(kListings, count);
  const test::FoundCopies found(listingsOf(files, kListings), setting);
  ASSERT_EQ(found.files.placeCount(), files.size());
  std::vector<std::string> lines = test::linesOf(found);
  std::vector<std::string> expected = test::plainLines(files);
  // There is something to agree about; a small catalogue may have no equal folders.
  const auto sets = std::ranges::count_if(
      expected, [](const std::string& line) { return line.find(" files, ") != line.npos; });
  EXPECT_GE(sets, count >= 1000 ? 5 : 0);
  std::ranges::sort(lines);
  std::ranges::sort(expected);
  EXPECT_EQ(lines, expected);
  EXPECT_EQ(test::singlesOf(found), test::plainSingles(files));
  const auto unknown = std::ranges::count_if(files, [](const PlainFile& file) { return !file.size; });
  EXPECT_EQ(found.files.withoutSize(), unknown);
}

/// Many segments, and a listing that is read in pieces.
ScanLimits smallSegments() {
  ScanLimits limits;
  limits.chunkSize = 4096;
  limits.keptSegment = std::size_t{1} << 16;
  limits.passingSegment = std::size_t{1} << 14;
  return limits;
}

TEST(CopiesAgreement, WithAPlainReferenceOverALargeCatalogue) {
  expectAgreement(1, 20'000, {});
}

TEST(CopiesAgreement, WhereSomeHoldDifferentThings) {
  for (const unsigned seed : {5U, 6U, 7U}) {
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    CatalogueMaker maker(seed);
    std::vector<PlainFile> files = maker.files(4, 4'000);
    test::CopiesSetting setting;
    setting.hashBits = seed == 7 ? 7 : 64;
    setting.contents = lookInto(files, maker);
    const test::FoundCopies found(listingsOf(files, 4), setting);
    ASSERT_EQ(found.files.placeCount(), files.size());
    EXPECT_EQ(found.differing, std::ranges::count_if(files, [](const PlainFile& f) { return f.kind != 0; }));
    EXPECT_GE(found.differing, 50);
    std::vector<std::string> lines = test::linesOf(found);
    std::vector<std::string> expected = test::plainLines(files);
    std::ranges::sort(lines);
    std::ranges::sort(expected);
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(test::singlesOf(found), test::plainSingles(files));
  }
}

TEST(CopiesAgreement, WhereSegmentsEndAnywhere) {
  test::CopiesSetting setting;
  setting.limits = smallSegments();
  expectAgreement(2, 4'000, setting);
  setting.areKept = false;
  expectAgreement(3, 4'000, setting);
}

TEST(CopiesAgreement, WhereDifferentFilesHaveTheSameHash) {
  test::CopiesSetting setting;
  for (const int bits : {0, 2, 7}) {
    setting.hashBits = bits;
    expectAgreement(4, 1'500, setting);
  }
}

TEST(CopiesAgreement, OverManySmallCatalogues) {
  for (unsigned seed = 100; seed < 140; ++seed) expectAgreement(seed, 60, {});
}

}  // namespace
}  // namespace quorvin
