// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_formats.h"

#include <algorithm>

namespace quorvin {

namespace {

template <LsNames names>
std::unique_ptr<ListReader> makeLs(const ListReadOptions& options) {
  return makeLsReader(options, names);
}

/// How well a reader gets on with the lines.
struct Score {
  std::int64_t entries = 0;
  std::int64_t doubtful = 0;
  std::int64_t notUnderstood = 0;

  bool isEnough() const { return entries > 0 && entries >= doubtful + notUnderstood; }
  bool isBetterThan(const Score& other) const {
    const std::int64_t bad = 2 * notUnderstood + doubtful;
    const std::int64_t otherBad = 2 * other.notUnderstood + other.doubtful;
    return bad != otherBad ? bad < otherBad : entries > other.entries;
  }
};

Score scoreOf(ListReader& reader, const std::vector<std::string_view>& lines) {
  Score score;
  ListEntry entry;
  for (const std::string_view line : lines) {
    const LineSays says = reader.read(line, entry);
    if (says == LineSays::Entry) ++score.entries;
    if (says == LineSays::DoubtfulEntry) ++score.doubtful;
    if (says == LineSays::NotUnderstood) ++score.notUnderstood;
  }
  return score;
}

}  // namespace

const std::vector<ListFormat>& listFormats() {
  static const std::vector<ListFormat> formats{{"find-ls", true, makeFindLsReader},
                                               {"rsync", true, makeRsyncReader},
                                               {"tar", true, makeTarReader},
                                               {"ls", true, makeLs<LsNames::Plain>},
                                               {"ls-quoted", true, makeLs<LsNames::Quoted>},
                                               {"ls-escaped", true, makeLs<LsNames::Escaped>},
                                               {"unzip", true, makeUnzipReader},
                                               {"rclone", true, makeRcloneReader},
                                               {"dir", true, makeDirReader},
                                               {"bagit", true, makeBagItReader},
                                               {"checksums", true, makeChecksumsReader},
                                               {"du", true, makeDuReader},
                                               {"tree", true, makeTreeReader},
                                               {"csv", true, makeTableReader},
                                               {"paths", true, makePathsReader},
                                               {"find-printf", false, makePrintfReader}};
  return formats;
}

bool takesColumns(const ListFormat& format) {
  return format.name == "find-printf" || format.name == "csv";
}

const ListFormat* listFormatNamed(std::string_view name) {
  const auto found = std::ranges::find(listFormats(), name, &ListFormat::name);
  return found == listFormats().end() ? nullptr : &*found;
}

const ListFormat* recognisedFormat(const std::vector<std::string_view>& lines,
                                   const ListReadOptions& options) {
  const ListFormat* best = nullptr;
  Score bestScore;
  for (const ListFormat& format : listFormats()) {
    if (!format.isRecognised) continue;
    const Score score = scoreOf(*format.makeReader(options), lines);
    if (!score.isEnough() || (best && !score.isBetterThan(bestScore))) continue;
    best = &format;
    bestScore = score;
  }
  return best;
}

}  // namespace quorvin
