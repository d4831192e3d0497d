// SPDX-License-Identifier: GPL-2.0-or-later

// Unpacking archives that are made from the input: each has whole records whose numbers fit each other, but
// for a few lies, so that the checks behind the first ones are reached too.
#include "archive/archive_maker.h"
#include "fuzz/choices.h"
#include "fuzz/unpacking_check.h"

#include <QString>

#include <cstdint>
#include <map>
#include <vector>

namespace quorvin::fuzz {
namespace {

constexpr int kMostEntries = 12;

/// Names that may be unpacked, and others.
const std::vector<QByteArray>& names() {
  static const std::vector<QByteArray> names = {"a.txt",
                                                "b.txt",
                                                "folder/a.txt",
                                                "folder/b.txt",
                                                "folder/",
                                                "A.TXT",
                                                "deep/er/a.txt",
                                                "M\xC3\xBCsic",
                                                "M\x81sic",
                                                "../a.txt",
                                                "/a.txt",
                                                "C:\\a.txt",
                                                "a\\b.txt",
                                                ".",
                                                "..",
                                                "folder/../a",
                                                "a//b",
                                                "a/./b",
                                                "a.txt/",
                                                "a.txt/b",
                                                "con",
                                                "a\nb",
                                                "trail. ",
                                                "\xFF\xFE",
                                                "",
                                                "main.txt",
                                                QByteArray(255, 'n'),
                                                QByteArray(256, 'n'),
                                                QByteArray("a\0b", 3)};
  return names;
}

QByteArray madeName(Choices& choices) {
  if (choices.oneIn(12)) return choices.bytes(1 + choices.below(20));
  if (choices.oneIn(12)) return QByteArray("d/").repeated(choices.below(80)) + "a.txt";
  return choices.of(names());
}

QByteArray madeContent(Choices& choices) {
  const QByteArray piece = choices.bytes(choices.below(24));
  return choices.oneIn(4) ? piece.repeated(1 + choices.below(200)) : piece;
}

/// A number that does not fit, as a rule.
std::uint64_t lie(Choices& choices) {
  constexpr std::uint64_t kLies[] = {0,          1,          100,         0x7FFFFFFF,
                                     0xFFFFFFFE, 0xFFFFFFFF, 0x100000000, ~std::uint64_t{0}};
  return choices.oneIn(2) ? choices.number() : choices.of(kLies);
}

test::MadeEntry madeEntry(Choices& choices, std::size_t before, bool& isHonest) {
  constexpr std::uint16_t kFlags[] = {0, 0, 0, 1U << 11U, 1, 1U << 3U, 1U << 6U};
  constexpr std::uint16_t kMethods[] = {test::kStored, test::kDeflated, test::kDeflated, 12};
  constexpr std::uint32_t kModes[] = {test::kPlainFileMode, test::kPlainFileMode, 0,
                                      test::kFolderMode,    test::kLinkMode,      test::kPipeMode};
  test::MadeEntry entry;
  entry.name = madeName(choices);
  entry.content = madeContent(choices);
  entry.method = choices.of(kMethods);
  entry.flags = choices.of(kFlags);
  entry.mode = choices.of(kModes);
  entry.isLarge = choices.oneIn(5);
  entry.isStreamed = choices.oneIn(5);
  if (entry.isStreamed && choices.oneIn(3))
    entry.headerSize = static_cast<std::uint32_t>(entry.content.size());
  isHonest = !choices.oneIn(3);
  if (isHonest) return entry;
  if (choices.oneIn(6)) entry.packed = choices.bytes(choices.below(40));
  if (choices.oneIn(6)) entry.toldSize = lie(choices);
  if (choices.oneIn(6)) entry.toldPackedSize = lie(choices);
  if (choices.oneIn(6)) entry.toldChecksum = choices.number();
  if (choices.oneIn(6)) entry.innerName = madeName(choices);
  if (choices.oneIn(6)) entry.headerSize = choices.number();
  if (choices.oneIn(6)) entry.headerPackedSize = choices.number();
  if (before > 0 && choices.oneIn(6)) {
    entry.sharesBytesOf = static_cast<std::size_t>(choices.below(static_cast<int>(before)));
  }
  return entry;
}

/// What may happen to an archive on its way: bytes before and behind it, changed ones, and a cut. Whether it
/// is as it was.
bool spoil(QByteArray& archive, Choices& choices) {
  if (!choices.oneIn(3)) return true;
  if (choices.oneIn(4)) archive.prepend(choices.bytes(choices.below(40)));
  if (choices.oneIn(4)) archive.append(choices.bytes(choices.below(40)));
  if (choices.oneIn(4)) archive.append(archive);
  if (choices.oneIn(4))
    archive.truncate(archive.size() - std::min<qsizetype>(archive.size(), choices.byte()));
  for (int change = choices.below(4); change > 0 && !archive.isEmpty(); --change) {
    archive[static_cast<qsizetype>(choices.number() % static_cast<std::uint32_t>(archive.size()))] =
        static_cast<char>(choices.byte());
  }
  return false;
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  fuzz::Choices choices(data, size);
  test::ArchiveForm form;
  form.largeEnd = choices.oneIn(4);
  if (choices.oneIn(12)) form.toldCount = fuzz::lie(choices);
  std::vector<test::MadeEntry> entries;
  std::map<QString, QByteArray> contents;
  while (!choices.atEnd() && entries.size() < fuzz::kMostEntries) {
    bool isHonest = false;
    entries.push_back(fuzz::madeEntry(choices, entries.size(), isHonest));
    const test::MadeEntry& entry = entries.back();
    if (isHonest && !entry.name.isEmpty()) contents[QString::fromUtf8(entry.name)] = entry.content;
  }
  QByteArray archive = test::archiveOf(entries, form);
  if (!fuzz::spoil(archive, choices)) contents.clear();
  fuzz::checkUnpacking(archive, contents);
  return 0;
}
