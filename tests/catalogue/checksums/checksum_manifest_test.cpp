// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/checksum_manifest.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

const std::string kSum(64, 'a');
const std::string kOther(64, 'b');

ChecksumManifest manifestWith(const std::string& text) {
  const TemporaryFolder folder;
  return ChecksumManifest(folder.writeFile(u"x.sha256"_qs, QByteArray::fromStdString(text)));
}

std::vector<std::string> pathsOf(const ChecksumManifest& manifest) {
  std::vector<std::string> paths;
  for (const FileChecksum& file : manifest.files()) paths.push_back(file.path);
  return paths;
}

TEST(ChecksumManifests, LieBesideTheirListing) {
  EXPECT_EQ(manifestOf(u"/lists/cd7.txt"_qs), u"/lists/cd7.txt.sha256"_qs);
}

TEST(ChecksumManifests, HaveALineForEachFile) {
  EXPECT_EQ(manifestLine({"a b/x.txt", kSum}), kSum + "  a b/x.txt\n");
}

TEST(ChecksumManifests, EscapeWhatWouldEndALine) {
  EXPECT_EQ(manifestLine({"new\nline", kSum}), "\\" + kSum + "  new\\nline\n");
  EXPECT_EQ(manifestLine({"back\\slash\r", kSum}), "\\" + kSum + "  back\\\\slash\\r\n");
  EXPECT_EQ(manifestLine({"tab\there", kSum}), kSum + "  tab\there\n");
}

TEST(ChecksumManifests, ADashAloneIsNoStandardInput) {
  EXPECT_EQ(manifestLine({"-", kSum}), kSum + "  ./-\n");
  EXPECT_EQ(manifestLine({"-x", kSum}), kSum + "  -x\n");
  EXPECT_EQ(manifestLine({"a/-", kSum}), kSum + "  a/-\n");
}

TEST(ChecksumManifests, AreReadAsTheyWereWritten) {
  std::string text;
  const std::vector<std::string> paths{"x",           "-",       "a b/y", "new\nline",
                                       "back\\slash", "bad\xE4", " lead", "tab\t"};
  for (const std::string& path : paths) text += manifestLine({path, kSum});
  const ChecksumManifest manifest = manifestWith(text);
  EXPECT_EQ(pathsOf(manifest), paths);
  EXPECT_EQ(manifest.notUnderstood(), 0);
}

TEST(ChecksumManifests, KnowTheListingThatTheyWereMadeWith) {
  const TemporaryFolder folder;
  const QString listing = folder.pathOf(u"cd.txt"_qs);
  folder.writeFile(u"cd.txt"_qs, QByteArray(3'000'000, 'x'));
  const std::string text = kSum + "  x\n" + listingRemark(listingIdentity(listing));
  EXPECT_TRUE(manifestWith(text).isOfListing(listing));
  EXPECT_EQ(manifestWith(text).notUnderstood(), 0);
  EXPECT_EQ(manifestWith(text).files().size(), 1U);
  folder.writeFile(u"cd.txt"_qs, 'y' + QByteArray(2'999'999, 'x'));
  EXPECT_FALSE(manifestWith(text).isOfListing(listing));
  folder.writeFile(u"cd.txt"_qs, QByteArray(2'999'999, 'x') + 'y');
  EXPECT_FALSE(manifestWith(text).isOfListing(listing));
  EXPECT_TRUE(manifestWith(kSum + "  x\n# of another kind\n").isOfListing(listing));
  EXPECT_FALSE(manifestWith(kSum + "  x\n# of the listing 12x\n").isOfListing(listing));
  EXPECT_EQ(listingRemark(0x1F), "# of the listing 1f\n");
}

TEST(ChecksumManifests, FindAFileByItsPath) {
  const ChecksumManifest manifest = manifestWith(kSum + "  x\n" + kOther + "  a/x\n");
  ASSERT_NE(manifest.find("a/x"), nullptr);
  EXPECT_EQ(manifest.find("a/x")->checksum, kOther);
  EXPECT_EQ(manifest.find("a"), nullptr);
  EXPECT_EQ(ChecksumManifest().find("x"), nullptr);
}

TEST(ChecksumManifests, OfOtherProgramsAreReadToo) {
  const ChecksumManifest manifest =
      manifestWith("# remark\n\n" + std::string(64, 'A') + " *./x\nSHA256 (y) = " + kOther + "\nnoise\n" +
                   std::string(32, 'a') + "  md5\n");
  EXPECT_THAT(pathsOf(manifest), testing::ElementsAre("x", "y"));
  EXPECT_EQ(manifest.files()[0].checksum, kSum);
  EXPECT_EQ(manifest.notUnderstood(), 2);
}

TEST(ChecksumManifests, AreToldApartByTheirContent) {
  EXPECT_EQ(manifestWith(kSum + "  x\n").identity(), manifestWith(kSum + "  x\n").identity());
  EXPECT_NE(manifestWith(kSum + "  x\n").identity(), manifestWith(kSum + "  y\n").identity());
}

TEST(ChecksumManifests, KnowTheFilesThatChangeWithThem) {
  const TemporaryFolder folder;
  folder.makeFolder(u"lists"_qs);
  const OwnFilesBelow own(folder.path(), folder.pathOf(u"lists/cd.txt"_qs));
  EXPECT_TRUE(own.contains("lists/cd.txt"));
  EXPECT_TRUE(own.contains("lists/cd.txt.sha256"));
  EXPECT_TRUE(own.contains("lists/cd.txt.sha256.verifying"));
  EXPECT_FALSE(own.contains("lists/cd.txt.sha256.old"));
  EXPECT_FALSE(OwnFilesBelow(folder.pathOf(u"lists"_qs), folder.pathOf(u"cd.txt"_qs)).contains("cd.txt"));
}

}  // namespace
}  // namespace quorvin
