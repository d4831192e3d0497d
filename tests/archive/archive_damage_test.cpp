// SPDX-License-Identifier: GPL-2.0-or-later

// Archives that are cut or changed anywhere.
#include "archive/archive_fixture.h"
#include "faults/runtime_fault.h"
#include "support/sweep.h"

#include <random>

namespace quorvin::test {
namespace {

class ArchiveDamage : public ArchiveTest {
 protected:
  static QByteArray goodArchive(bool isLarge) {
    MadeEntry first;
    first.name = "a.txt";
    first.content = QByteArray("a line of a listing, a line of a listing\r\n").repeated(8);
    first.method = kDeflated;
    first.isLarge = isLarge;
    MadeEntry second = first;
    second.name = "sub/b.txt";
    second.content = "stored";
    second.method = kStored;
    ArchiveForm form;
    form.largeEnd = isLarge;
    return archiveOf({first, second}, form);
  }

  /// Files of the right names hold either what they held before or what the archive has for them.
  void expectOnlyWholeFiles() const {
    const QByteArray first = QByteArray("a line of a listing, a line of a listing\r\n").repeated(8);
    for (const auto& [name, content] : tree()) {
      if (name == u"a.txt"_qs) {
        EXPECT_TRUE(content == "earlier" || content == first);
      }
      if (name.endsWith(u".part"_qs)) ADD_FAILURE() << name.toStdString();
    }
  }
};

TEST_F(ArchiveDamage, CutAtAnyByteIsRefusedWithAMessage) {
  outer_.writeFile(u"target/a.txt"_qs, "earlier");
  for (const bool isLarge : {false, true}) {
    const QByteArray whole = goodArchive(isLarge);
    for (qsizetype length = 0; length < whole.size(); length += sweep(1, 11)) {
      ASSERT_EQ(unpack(whole.first(length)), UnpackingOutcome::Failed) << length;
      ASSERT_EQ(record_.descriptions.size(), 1);
      ASSERT_TRUE(record_.descriptions[0].endsWith(u" Nothing was unpacked."_qs));
      ASSERT_EQ(tree(), (Tree{{u"a.txt"_qs, "earlier"}}));
    }
    EXPECT_EQ(unpack(whole), UnpackingOutcome::Unpacked);
    outer_.writeFile(u"target/a.txt"_qs, "earlier");
    ASSERT_TRUE(QDir(target_ + u"sub"_qs).removeRecursively());
  }
}

TEST_F(ArchiveDamage, AnyByteThatIsMissingOrAddedPutsNothingHalfInPlace) {
  outer_.writeFile(u"target/a.txt"_qs, "earlier");
  const QByteArray whole = goodArchive(false);
  for (qsizetype at = 0; at < whole.size(); at += sweep(1, 11)) {
    QByteArray missing = whole;
    missing.remove(at, 1);
    unpack(missing);
    expectOnlyWholeFiles();
    QByteArray added = whole;
    added.insert(at, 'P');
    unpack(added);
    expectOnlyWholeFiles();
  }
}

TEST_F(ArchiveDamage, AnyByteThatIsChangedPutsNothingHalfInPlaceOrOutside) {
  for (const bool isLarge : {false, true}) {
    const QByteArray whole = goodArchive(isLarge);
    for (qsizetype at = 0; at < whole.size(); at += sweep(1, 11)) {
      for (const char change : {'\x01', '\x80', '\xFF'}) {
        outer_.writeFile(u"target/a.txt"_qs, "earlier");
        QByteArray changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ change);
        unpack(changed);
        ASSERT_NO_FATAL_FAILURE(expectOnlyWholeFiles()) << at;
        ASSERT_THAT(outer_.names(), testing::UnorderedElementsAre(u"lists.zip"_qs, u"target"_qs));
      }
    }
  }
}

TEST_F(ArchiveDamage, BytesAtRandomAreRefused) {
  std::mt19937 random(20041115);
  for (int round = 0; round < sweep(2000, 200); ++round) {
    QByteArray bytes(static_cast<qsizetype>(random() % 400), '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    bytes.insert(0, "PK\x03\x04");
    ASSERT_EQ(unpack(bytes + QByteArray("PK\x05\x06") + bytes), UnpackingOutcome::Failed);
  }
  EXPECT_EQ(tree(), Tree());
}

}  // namespace
}  // namespace quorvin::test
