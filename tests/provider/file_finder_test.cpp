// SPDX-License-Identifier: GPL-2.0-or-later
#include "provider/file_finder.h"

#include "provider/provider_home.h"
#include "search/listing_scan.h"
#include "support/qt_printing.h"

#include <gmock/gmock.h>

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The user's environment is this process's while a test runs.
class FileFinderTest : public testing::Test {
 protected:
  FileFinderTest() {
    for (const char* name : {"QUORVIN_SETTINGS", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
      qputenv(name, home_.environment.value(QString::fromLatin1(name)).toUtf8());
    }
    finder_.emplace(QLocale::c());
  }
  ~FileFinderTest() override {
    for (const char* name : {"QUORVIN_SETTINGS", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  }

  /// Reads a listing as a search does, and keeps what was read.
  void keep(const QString& name) const {
    SegmentStore store(SegmentStore::defaultOptions());
    const SearchQuery query(u"x", 1);
    const ScanRequest request{query, QLocale::c(), nullptr, [](std::int64_t) { return false; }};
    RunCounts counts;
    ScanOutcome outcome;
    scanListingFile(home_.folder.pathOf(u"data/"_qs + name), &store, request, counts, outcome);
  }
  void keepAll() const {
    for (const QString& name : {u"Music.txt"_qs, u"Gone.txt"_qs, u"main.txt"_qs}) keep(name);
  }

  std::vector<FoundFile> find(const QString& text) {
    return finder_->find(text, [] { return false; });
  }
  std::vector<QString> namesFor(const QString& text) {
    std::vector<QString> names;
    for (const FoundFile& file : find(text)) names.push_back(file.name);
    return names;
  }

  ProviderHome home_;
  std::optional<FileFinder> finder_;
};

TEST_F(FileFinderTest, FindsWhatHoldsAllWordsThoseByTheirNamesFirst) {
  keepAll();
  EXPECT_THAT(namesFor(u"Northern HARBOUR"_qs), ElementsAre(u"northern harbour.ogg"_qs, u"northern.jpg"_qs));
  EXPECT_THAT(namesFor(u" star "_qs), ElementsAre(u"northern star.txt"_qs));
  EXPECT_THAT(namesFor(u"northern nowhere"_qs), IsEmpty());
}

TEST_F(FileFinderTest, SaysWhereAFileIsAndWhatKindItIs) {
  keepAll();
  const std::vector<FoundFile> files = find(u"northern"_qs);
  ASSERT_THAT(files, SizeIs(3));
  EXPECT_EQ(files[1].name, u"northern.jpg"_qs);
  EXPECT_EQ(files[1].place, u"Gone: \\gone\\harbour\\"_qs);
  EXPECT_EQ(files[1].icon, u"image-jpeg"_qs);
  EXPECT_TRUE(files[1].isFoundByName);
  EXPECT_FALSE(find(u"harbour northern.jpg"_qs).at(0).isFoundByName);
}

TEST_F(FileFinderTest, ReadsNoListingThatWasNotReadBefore) {
  EXPECT_THAT(namesFor(u"northern"_qs), IsEmpty());
  keep(u"Gone.txt"_qs);
  EXPECT_THAT(namesFor(u"northern"_qs), ElementsAre(u"northern.jpg"_qs));
  EXPECT_FALSE(home_.folder.has(u"data/Music.txt.tmp"_qs));
}

TEST_F(FileFinderTest, AListingThatHasChangedSinceIsNotAnsweredFrom) {
  keepAll();
  ASSERT_THAT(namesFor(u"star"_qs), SizeIs(1));
  home_.folder.writeFile(u"data/main.txt"_qs, blockHead("Main", "\\far\\") + entryLine("another.txt"));
  EXPECT_THAT(namesFor(u"star"_qs), IsEmpty());
}

TEST_F(FileFinderTest, StopsWhereItIsTold) {
  keepAll();
  int looks = 0;
  const auto afterTheFirstListing = [&] { return ++looks > 3; };
  const std::vector<FoundFile> files = finder_->find(u"northern"_qs, afterTheFirstListing);
  ASSERT_THAT(files, SizeIs(1));
  EXPECT_EQ(files[0].name, u"northern harbour.ogg"_qs);
  EXPECT_THAT(finder_->find(u"northern"_qs, [] { return true; }), IsEmpty());
  EXPECT_THAT(find(u"northern"_qs), SizeIs(3));
}

TEST_F(FileFinderTest, AnAnswerHasTwentyFilesAtMost) {
  QByteArray listing = blockHead("Main", "\\far\\tune\\");
  for (int number = 1; number <= 30; ++number) listing += entryLine("other " + QByteArray::number(number));
  for (int number = 1; number <= 15; ++number) listing += entryLine("tune " + QByteArray::number(number));
  home_.folder.writeFile(u"data/main.txt"_qs, listing);
  keep(u"main.txt"_qs);
  const std::vector<QString> names = namesFor(u"tune"_qs);
  ASSERT_THAT(names, SizeIs(20));
  EXPECT_EQ(names[0], u"tune 1"_qs);
  EXPECT_EQ(names[14], u"tune 15"_qs);
  EXPECT_EQ(names[15], u"other 1"_qs);
}

TEST_F(FileFinderTest, TheSameEntryTwiceIsOneFile) {
  home_.folder.writeFile(u"data/main.txt"_qs,
                         blockHead("Main", "\\far\\") + entryLine("tune") + entryLine("tune"));
  keep(u"main.txt"_qs);
  EXPECT_THAT(namesFor(u"tune"_qs), SizeIs(1));
}

TEST_F(FileFinderTest, NothingIsFoundWithoutWordsAndForTooMany) {
  keepAll();
  EXPECT_THAT(namesFor({}), IsEmpty());
  EXPECT_THAT(namesFor(u"  \t "_qs), IsEmpty());
  EXPECT_THAT(namesFor(u"a "_qs.repeated(102)), IsEmpty());
}

TEST_F(FileFinderTest, WithoutReadableSettingsNothingIsFound) {
  keepAll();
  home_.folder.writeFile(u"data/Locations.txt"_qs, "\"Music\"");
  EXPECT_THAT(namesFor(u"star"_qs), IsEmpty());
}

TEST_F(FileFinderTest, ControlCharactersAreNotShown) {
  keepAll();
  EXPECT_THAT(namesFor(u"31m"_qs), ElementsAre(u"[31m.txt"_qs));
}

TEST_F(FileFinderTest, AnIdentifierLeadsToTheFileWhereThatIsThere) {
  keepAll();
  const QString here = find(u"northern harbour.ogg"_qs).at(0).id;
  const QString gone = find(u"northern.jpg"_qs).at(0).id;
  EXPECT_EQ(finder_->pathOf(here), home_.music + u"northern harbour.ogg"_qs);
  EXPECT_EQ(finder_->pathOf(gone), QString());
  EXPECT_EQ(FileFinder(QLocale::c()).pathOf(here), home_.music + u"northern harbour.ogg"_qs)
      << "after a new start";
  EXPECT_EQ(FileFinder::fileOf(gone)->place, u"Gone: \\gone\\harbour\\"_qs);
}

TEST_F(FileFinderTest, WhatIsNoIdentifierLeadsNowhere) {
  for (const QString& text :
       {u""_qs, u"x"_qs, u"0\nMusic\n\\a\\"_qs, u"9\nMusic\n\\a\\\nb"_qs, u"0\na\nb\nc\nd"_qs}) {
    EXPECT_FALSE(FileFinder::fileOf(text)) << text.toStdString();
    EXPECT_EQ(finder_->pathOf(text), QString()) << text.toStdString();
  }
  // Out of the folder, and a listing from elsewhere that names a folder of the user's own.
  EXPECT_EQ(finder_->pathOf(u"0\nMusic\n"_qs + home_.music + u"\n../settings.ini"_qs), QString());
  EXPECT_EQ(finder_->pathOf(u"2\nMusic\n"_qs + home_.music + u"\nnorthern harbour.ogg"_qs), QString());
}

}  // namespace
}  // namespace quorvin::test
