// SPDX-License-Identifier: GPL-2.0-or-later

// What the walk writes, the scan reads back, in every locale tried.
#include "dates/general_date.h"
#include "index/walk_fixture.h"
#include "support/scan_of.h"

namespace quorvin {
namespace {

struct Case {
  const char* name;
  NameStatus status;
};

// Moments without a midnight in the test's zone, some of them round the changes of its clocks.
const std::vector<Case> kFiles = {
    {"empty", {NameKind::File, 0, 1'074'162'030}},
    {"three digits", {NameKind::File, 999, 1'100'513'999}},
    {"grouped", {NameKind::File, 1'000, 1'080'435'599}},
    {"grouped twice.tar.gz", {NameKind::File, 1'234'567, 1'080'435'600}},
    {"Grüße 写真", {NameKind::File, 999'999'999, 1'099'184'399}},
    {"not grouped", {NameKind::File, 10'000'000'000, 946'684'800}},
    {"twelve digits", {NameKind::File, 999'999'999'999, 4'102'444'799}},
    {"noon", {NameKind::File, 12, 1'074'164'400}},
    {"before 1970", {NameKind::File, 13, -86'401}},
};

// The one place where writer and reader differ: a size of 13 columns ends the name.
const std::vector<Case> kLargeFiles = {
    {"one billion", {NameKind::File, 1'000'000'000, 1'074'162'030}},
    {"largest grouped", {NameKind::File, 9'999'999'999, 1'074'162'031}},
    {"largest of all", {NameKind::File, 9'999'999'999'999, 1'074'162'032}},
};

class RoundTrip : public testing::TestWithParam<const char*> {
 protected:
  test::ReferenceResult readBack(const std::vector<Case>& files) {
    test::FakeFolders folders('/');
    folders.addFolder("/Müsic/");
    for (const Case& file : files) {
      folders.addName("/Müsic/", file.name, NameKind::File);
      folders.targets[std::string("/Müsic/") + file.name] = file.status;
    }
    ProgramState state;
    test::RecordingIndexDisplay view;
    Work work(state, view);
    std::optional<Job> job = work.start(JobKind::Refresh);
    IndexProgress progress(*job, locale);
    RecordingMessageBoxes messages;
    TemporaryFolder out;
    FileAside listing(out.pathOf(u"listing"_qs));
    DirIO dirIO(state, folders, progress, messages, locale, kUnixPaths);
    QString path = u"/Müsic/"_qs;
    dirIO.walk(path, u"*.*"_qs, {&listing.writer(), nullptr}, u"DATA 1"_qs, kToOutput1);
    listing.commit();
    return test::scanOf(out.readFile(u"listing"_qs), u"müsic"_qs, 50, {}, locale);
  }

  static QDateTime localTime(const Case& file) { return QDateTime::fromSecsSinceEpoch(file.status.modified); }

  const test::TimeZone zone{test::kCentralEurope};
  const QLocale locale{QString::fromLatin1(GetParam())};
};

TEST_P(RoundTrip, NamesFoldersSizesAndDatesComeBack) {
  const test::ReferenceResult found = readBack(kFiles);
  ASSERT_EQ(found.hits.size(), kFiles.size());
  EXPECT_EQ(found.unreadable, 0);
  for (std::size_t i = 0; i < kFiles.size(); ++i) {
    const test::ReferenceHit& hit = found.hits[i];
    EXPECT_EQ(hit.volume, u"DATA 1"_qs);
    EXPECT_EQ(hit.folder, u"\\Müsic\\"_qs);
    EXPECT_EQ(hit.name, QString::fromUtf8(kFiles[i].name));
    EXPECT_EQ(hit.size, kFiles[i].status.size);
    EXPECT_EQ(splitDateValue(hit.date), splitDateValue(dateValueOf(localTime(kFiles[i])))) << kFiles[i].name;
  }
}

TEST_P(RoundTrip, ASizeOf13ColumnsEndsTheNameToo) {
  const test::ReferenceResult found = readBack(kLargeFiles);
  ASSERT_EQ(found.hits.size(), kLargeFiles.size());
  EXPECT_EQ(found.unreadable, 0);
  for (std::size_t i = 0; i < kLargeFiles.size(); ++i) {
    const QString name = QString::fromUtf8(kLargeFiles[i].name);
    const QString firstDigit = QString::number(kLargeFiles[i].status.size).left(1);
    EXPECT_EQ(found.hits[i].name, name.leftJustified(68) + firstDigit);
    EXPECT_EQ(found.hits[i].size, kLargeFiles[i].status.size);
    EXPECT_EQ(splitDateValue(found.hits[i].date), splitDateValue(dateValueOf(localTime(kLargeFiles[i]))));
  }
}

TEST_P(RoundTrip, AShortLineShowsSizeAndDateOfTheOneBeforeIt) {
  // Midnight of 15 January 2004: the date alone.
  const std::vector<Case> files = {{"before", {NameKind::File, 123'456, 1'074'162'030}},
                                   {"midnight", {NameKind::File, 7, 1'074'121'200}}};
  const test::ReferenceResult found = readBack(files);
  ASSERT_EQ(found.hits.size(), 2U);
  EXPECT_EQ(found.hits[1].name, u"midnight"_qs);
  EXPECT_EQ(found.hits[1].size, 123'456);
  EXPECT_EQ(found.hits[1].date, found.hits[0].date);
}

INSTANTIATE_TEST_SUITE_P(Locales, RoundTrip,
                         testing::Values("en_US", "de_DE", "fr_FR", "ja_JP", "sv_SE", "C"),
                         [](const auto& locale) { return std::string(locale.param); });

}  // namespace
}  // namespace quorvin
