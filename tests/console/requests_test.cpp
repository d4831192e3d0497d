// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/requests.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvin {
namespace {

/// What a command line has given.
class GivenOptions {
 public:
  GivenOptions() {
    given.askParser([this](const std::string& name) { return values_.contains(name); });
  }
  GivenOptions& flag(const std::string& name) {
    given.flag(name) = true;
    return *this;
  }
  GivenOptions& value(const std::string& name, const std::string& value) {
    given.value(name) = value;
    values_.insert(name);
    return *this;
  }

  Given given;

 private:
  std::set<std::string> values_;
};

TEST(CopiesRequestOf, HasTheDefaultsWithoutOptions) {
  const CopiesRequest request = copiesRequestOf(GivenOptions().given);
  EXPECT_EQ(request.searchText, QString());
  EXPECT_EQ(request.desiredMatch, u"50"_qs);
  EXPECT_EQ(request.format, TableFormat::Text);
  EXPECT_EQ(request.sumBy, CopiesRequest::SumBy::Nothing);
  EXPECT_FALSE(request.singleOnly || request.withEmpty || request.hasHeader || request.endsWithNul);
  EXPECT_FALSE(request.isQuiet || request.limit);
  EXPECT_TRUE(request.useCache && request.listings.empty());
}

TEST(CopiesRequestOf, TakesWordsFirstAndListingsBehindThem) {
  GivenOptions options;
  options.value("--format", "JSON").value("--limit", "7").value("--match", "99");
  options.flag("--single")
      .flag("--by-folder")
      .flag("--empty")
      .flag("--null")
      .flag("--header")
      .flag("--quiet");
  options.given.others = {"harbour live", "a.txt", "-"};
  const CopiesRequest request = copiesRequestOf(options.flag("--no-cache").given);
  EXPECT_EQ(request.searchText, u"harbour live"_qs);
  EXPECT_EQ(request.listings, (std::vector<QString>{u"a.txt"_qs, u"-"_qs}));
  EXPECT_EQ(request.desiredMatch, u"99"_qs);
  EXPECT_EQ(request.format, TableFormat::Json);
  EXPECT_EQ(request.sumBy, CopiesRequest::SumBy::Folder);
  EXPECT_TRUE(request.singleOnly && request.withEmpty && request.hasHeader && request.endsWithNul);
  EXPECT_EQ(request.limit, 7);
  EXPECT_TRUE(request.isQuiet);
  EXPECT_FALSE(request.useCache);
}

TEST(CopiesRequestOf, SaysWhatHasNoMeaning) {
  const auto mistakeOf = [](GivenOptions& options) {
    try {
      copiesRequestOf(options.given);
    } catch (const Mistake& mistake) {
      return mistake.sentence;
    }
    return QString();
  };
  EXPECT_EQ(mistakeOf(GivenOptions().value("--format", "xml")),
            u"there is no format \"xml\"; the formats are text, tsv, csv and json"_qs);
  EXPECT_EQ(mistakeOf(GivenOptions().flag("--by-volume").flag("--by-folder")),
            u"there are sums for volumes or for folders, not for both at once"_qs);
  EXPECT_EQ(mistakeOf(GivenOptions().value("--limit", "few")),
            u"the value of --limit is a number of hits, not \"few\""_qs);
}

TEST(VolumesRequestOf, TakesWordsAndListingsOrAVolumeAndItsNote) {
  GivenOptions options;
  options.value("--sort", "Newest").value("--match", "99");
  options.flag("--reverse").flag("--json").flag("--quiet").flag("--no-cache");
  options.given.others = {"harbour live", "a.txt"};
  const VolumesRequest request = volumesRequestOf(options.given);
  EXPECT_EQ(request.searchText, u"harbour live"_qs);
  EXPECT_EQ(request.listings, std::vector<QString>{u"a.txt"_qs});
  EXPECT_EQ(request.desiredMatch, u"99"_qs);
  EXPECT_EQ(request.sortedBy, VolumeColumn::Newest);
  EXPECT_TRUE(request.isDescending && request.isJson && request.isQuiet);
  EXPECT_FALSE(request.useCache || request.note);
  GivenOptions note;
  note.given.others = {"CD 7"};
  EXPECT_EQ(volumesRequestOf(note.value("--note", "").given).note, QString(u""_qs));
}

}  // namespace
}  // namespace quorvin
