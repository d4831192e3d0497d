// SPDX-License-Identifier: GPL-2.0-or-later

// Damaged versions are known as such; they cost neither the listing nor what is
// kept later.
#include "history/version_file.h"

#include "files/file_aside.h"
#include "history/history_fixture.h"
#include "support/fault_number.h"

#include <QtEndian>

#include <xxhash.h>

namespace quorvin {
namespace {

using test::listingOf;

class DamagedVersions : public test::HistoryTest {
 protected:
  DamagedVersions() {
    for (const int entries : {20, 21, 22}) put(listingOf(entries));
  }

  /// The text of a version, or nothing where it is damaged.
  std::optional<QByteArray> readable(int number) {
    try {
      return textOf(number);
    } catch (const RuntimeFault& fault) {
      EXPECT_TRUE(fault.number() == 57 || fault.number() == 53) << fault.description().toStdString();
      return std::nullopt;
    }
  }
};

TEST_F(DamagedVersions, AByteThatIsWrongAnywhereIsNoticed) {
  for (const int number : {1, 2}) {
    const QByteArray whole = data.readFile(fileOf(number));
    for (qsizetype place = 0; place < whole.size(); ++place) {
      for (const int bit : {1, 16, 128}) {
        QByteArray damaged = whole;
        damaged[place] = static_cast<char>(damaged[place] ^ bit);
        data.writeFile(fileOf(number), damaged);
        // What zstd does not read of its own frames may be anything.
        const std::optional<QByteArray> text = readable(number);
        EXPECT_TRUE(!text || text == listingOf(19 + number)) << number << ' ' << place;
        if (place < 64) {
          EXPECT_FALSE(text) << number << ' ' << place;
        }
      }
    }
    data.writeFile(fileOf(number), whole);
    EXPECT_EQ(textOf(number), listingOf(19 + number));
  }
}

TEST_F(DamagedVersions, AFileThatWasCutAnywhereIsNoticed) {
  for (const int number : {1, 2}) {
    const QByteArray whole = data.readFile(fileOf(number));
    for (qsizetype size = 0; size < whole.size(); ++size) {
      data.writeFile(fileOf(number), whole.first(size));
      EXPECT_FALSE(readable(number)) << number << ' ' << size;
    }
    data.writeFile(fileOf(number), whole);
  }
}

TEST_F(DamagedVersions, AVersionThatDiffersFromAMissingOneIsNotReadable) {
  QFile::remove(data.pathOf(fileOf(2)));
  const std::vector<ListingVersion> versions = history.versions(kMusic);
  ASSERT_EQ(versions.size(), 1U);
  EXPECT_EQ(versions[0].number, 1);
  EXPECT_FALSE(versions[0].isReadable);
  EXPECT_FALSE(readable(1));
  EXPECT_FALSE(history.newestComplete(kMusic));
}

TEST_F(DamagedVersions, AreNeverPutInThePlaceOfTheListing) {
  QByteArray bytes = data.readFile(fileOf(2));
  bytes[bytes.size() - 1] = static_cast<char>(bytes[bytes.size() - 1] ^ 1);
  data.writeFile(fileOf(2), bytes);
  EXPECT_FAULT(history.restore(kMusic, 2), 57);
  EXPECT_EQ(data.readFile(kMusic), listingOf(22));
  EXPECT_EQ(data.names(), (QStringList{kMusic, u"history"_qs}));
}

TEST_F(DamagedVersions, HinderNoLaterOne) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray("what is this"), QByteArray(5000, 'x')}) {
    data.writeFile(fileOf(2), bytes);
    EXPECT_EQ(put(listingOf(static_cast<int>(30 + bytes.size()))).fault, QString());
    const int newest = numbers().front();
    EXPECT_GT(newest, 2);
    EXPECT_EQ(test::allOf(*history.text(kMusic, newest)).count(" bytes "),
              history.versions(kMusic).front().entries);
  }
}

TEST_F(DamagedVersions, AreNoReasonNotToKeepTheirTextAgain) {
  QByteArray bytes = data.readFile(fileOf(2));
  bytes[bytes.size() - 1] = static_cast<char>(bytes[bytes.size() - 1] ^ 1);
  data.writeFile(fileOf(2), bytes);
  data.writeFile(kMusic, listingOf(21));
  put(listingOf(40));
  EXPECT_EQ(numbers().front(), 3);
  EXPECT_EQ(textOf(3), listingOf(21));
}

TEST_F(DamagedVersions, OtherFilesInTheFolderAreNoVersions) {
  data.writeFile(u"history/Music.txt/notes.txt"_qs, "mine");
  data.writeFile(u"history/Music.txt/1.version"_qs, data.readFile(fileOf(1)));
  data.writeFile(u"history/other/empty"_qs, "");
  put(listingOf(30));
  EXPECT_EQ(numbers(), (std::vector{3, 2, 1}));
  EXPECT_EQ(history.listings(), QStringList{kMusic});
  EXPECT_EQ(data.readFile(u"history/Music.txt/notes.txt"_qs), "mine");
}

TEST(VersionFile, ATextThatIsNotTheOneOfItsHeadIsRefused) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"a.txt"_qs, listingOf(3));
  VersionHead head;
  head.text = factsOf(*openListing(path), {});
  folder.writeFile(u"a.txt"_qs, listingOf(3, "sing"));
  FileAside file(folder.pathOf(u"version"_qs));
  EXPECT_FAULT(writeVersion(file.writer(), head, *openListing(path), nullptr, {}), 57);
}

TEST(VersionFile, AnAnnouncedSizeTakesNoMemory) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"a.txt"_qs, listingOf(3));
  VersionHead head;
  head.text = factsOf(*openListing(path), {});
  head.text.size = std::uint64_t{1} << 60;
  FileAside file(folder.pathOf(u"version"_qs));
  EXPECT_FAULT(writeVersion(file.writer(), head, *openListing(path), nullptr, {}), 57);
  file.commit();
  EXPECT_EQ(readVersionHead(folder.pathOf(u"version"_qs))->text.size, std::uint64_t{1} << 60);
  EXPECT_FAULT(test::allOf(*openVersion(folder.pathOf(u"version"_qs), nullptr)), 57);
}

TEST(VersionFile, ATextWithoutLineEndsIsOneEntry) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"a.txt"_qs, QByteArray(3'000'000, 'x'));
  const ListingFacts facts = factsOf(*openListing(path), {});
  EXPECT_EQ(facts.entries, 1U);
  EXPECT_EQ(facts.size, 3'000'000U);
}

TEST(VersionFile, AnEmptyTextHasAChecksumToo) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"a.txt"_qs, "");
  const auto openedWith = [&](std::uint64_t checksum) {
    VersionHead head;
    head.text = factsOf(*openListing(path), {});
    FileAside file(folder.pathOf(u"version"_qs));
    writeVersion(file.writer(), head, *openListing(path), nullptr, {});
    file.commit();
    // The head's own checksum is the last of its numbers.
    QByteArray bytes = folder.readFile(u"version"_qs);
    qToLittleEndian<quint64>(checksum, bytes.data() + 32);
    qToLittleEndian<quint64>(XXH3_64bits(bytes.constData(), 56), bytes.data() + 56);
    folder.writeFile(u"version"_qs, bytes);
    return openVersion(folder.pathOf(u"version"_qs), nullptr);
  };
  EXPECT_EQ(test::allOf(*openedWith(XXH3_64bits("", 0))), QByteArray());
  EXPECT_FAULT(openedWith(12345), 57);
}

}  // namespace
}  // namespace quorvin
