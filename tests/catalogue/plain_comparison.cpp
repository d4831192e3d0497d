// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/plain_comparison.h"

#include "platform/text_encoding.h"
#include "support/listing_lines.h"

#include <QString>

#include <algorithm>
#include <set>

namespace quorvin::test {

namespace {

/// An entry with what it is compared by.
struct Known {
  PlainEntry entry;
  std::string path;
  QString lower;
};

class PlainComparison {
 public:
  PlainComparison(const std::vector<PlainEntry>& before, const std::vector<PlainEntry>& after) {
    std::set<std::string> volumes[2];
    for (const PlainEntry& entry : before) volumes[0].insert(entry.volume);
    for (const PlainEntry& entry : after) volumes[1].insert(entry.volume);
    const bool withVolume = volumes[0].size() > 1 || volumes[1].size() > 1;
    for (const PlainEntry& entry : before) gone_.push_back(known(entry, withVolume));
    for (const PlainEntry& entry : after) come_.push_back(known(entry, withVolume));
  }

  std::vector<std::string> changes() {
    const auto samePath = [](const Known& a, const Known& b) { return a.path == b.path; };
    const auto sameSize = [](const Known& a, const Known& b) { return a.entry.size == b.entry.size; };
    const auto sameDay = [](const Known& a, const Known& b) { return a.entry.day == b.entry.day; };
    take([&](const Known& a, const Known& b) {
      return sameSize(a, b) && samePath(a, b) && (!a.entry.size || sameDay(a, b));
    });
    for (const auto& [a, b] : take(samePath)) changes_.push_back("* " + b.path);
    auto moved = take([&](const Known& a, const Known& b) {
      return sameSize(a, b) && a.entry.size && sameDay(a, b) && a.lower == b.lower;
    });
    const auto others = take([&](const Known& a, const Known& b) {
      return sameSize(a, b) && a.entry.size.value_or(0) > 0 && a.lower == b.lower;
    });
    moved.insert(moved.end(), others.begin(), others.end());
    for (const auto& [a, b] : moved) changes_.push_back("> " + b.path + " < " + a.path);
    for (const Known& gone : gone_) changes_.push_back("- " + gone.path);
    for (const Known& come : come_) changes_.push_back("+ " + come.path);
    std::ranges::sort(changes_);
    return changes_;
  }

 private:
  using Pair = std::pair<Known, Known>;

  static Known known(const PlainEntry& entry, bool withVolume) {
    return {entry, (withVolume ? entry.volume : std::string()) + entry.folder + entry.name,
            simpleLowerCase(QString::fromStdString(entry.name))};
  }

  /// Takes pairs that fit away, in their order.
  template <typename Fits>
  std::vector<Pair> take(Fits fits) {
    std::vector<Pair> pairs;
    std::vector<Known> left;
    for (const Known& gone : gone_) {
      const auto come = std::ranges::find_if(come_, [&](const Known& other) { return fits(gone, other); });
      if (come == come_.end()) {
        left.push_back(gone);
        continue;
      }
      pairs.emplace_back(gone, *come);
      come_.erase(come);
    }
    gone_ = left;
    return pairs;
  }

  std::vector<Known> gone_;
  std::vector<Known> come_;
  std::vector<std::string> changes_;
};

}  // namespace

QByteArray listingOf(const std::vector<PlainEntry>& entries) {
  QByteArray listing;
  const PlainEntry* before = nullptr;
  for (const PlainEntry& entry : entries) {
    if (before == nullptr || before->volume != entry.volume || before->folder != entry.folder) {
      listing += blockHead(QByteArray::fromStdString(entry.volume), QByteArray::fromStdString(entry.folder));
    }
    before = &entry;
    // The columns count characters.
    const QByteArray name = QString::fromStdString(entry.name).leftJustified(65).toUtf8();
    if (entry.size) {
      listing += name + QByteArray::number(qlonglong{*entry.size}).rightJustified(16) + " bytes " +
                 QByteArray::number(entry.day) + " Jan 2004 10:20:30\r\n";
    } else {
      listing += QByteArray::fromStdString(entry.name) + "\r\n";
    }
  }
  return listing;
}

std::vector<std::string> plainChanges(const std::vector<PlainEntry>& before,
                                      const std::vector<PlainEntry>& after) {
  return PlainComparison(before, after).changes();
}

}  // namespace quorvin::test
