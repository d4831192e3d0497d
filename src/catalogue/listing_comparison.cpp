// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/listing_comparison.h"

#include "platform/text_encoding.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace quorvin {

namespace {

constexpr std::uint32_t kNoFile = FileChange::kNone;

/// The marks from the front of `marks` that have the same path as the first one; they are taken away.
std::span<const FileMark> takeSamePath(std::span<const FileMark>& marks) {
  std::size_t count = 1;
  while (count < marks.size() && marks[count].path == marks.front().path) ++count;
  const std::span<const FileMark> same = marks.first(count);
  marks = marks.subspan(count);
  return same;
}

/// Dates in the order of their values; files without one come first.
double dateOf(const ComparedFile& file) {
  return file.modified.value_or(-std::numeric_limits<double>::infinity());
}

QString foldedName(std::string_view name) {
  return simpleLowerCase(decodeSystemText(QByteArrayView(name.data(), static_cast<qsizetype>(name.size()))));
}

}  // namespace

bool ListingComparison::run(const StopAsked& stop) {
  if (!before_.readMarks(stop) || !after_.readMarks(stop)) return false;
  rule_.withVolume = before_.volumeCount() > 1 || after_.volumeCount() > 1;
  rule_.belowTop = !rule_.withVolume && !before_.sharesFolderWith(after_);
  pair(before_.takeMarks(rule_), after_.takeMarks(rule_));
  if (stop() || !readDifferent(stop)) return false;
  judgePairs();
  findMoved();
  sortChanges();
  sumUp();
  return true;
}

void ListingComparison::pair(const std::vector<FileMark>& before, const std::vector<FileMark>& after) {
  std::span<const FileMark> left(before);
  std::span<const FileMark> right(after);
  while (!left.empty() || !right.empty()) {
    if (right.empty() || (!left.empty() && left.front().path < right.front().path)) {
      pairSamePath(takeSamePath(left), {});
    } else if (left.empty() || right.front().path < left.front().path) {
      pairSamePath({}, takeSamePath(right));
    } else {
      pairSamePath(takeSamePath(left), takeSamePath(right));
    }
  }
}

/// A listing may have the same name twice, where it had to be cut. Those that are equal belong together, then
/// the others in their order.
void ListingComparison::pairSamePath(std::span<const FileMark> before, std::span<const FileMark> after) {
  std::vector<std::uint32_t> gone;
  std::vector<std::uint32_t> come;
  auto left = before.begin();
  auto right = after.begin();
  while (left != before.end() || right != after.end()) {
    if (right == after.end() || (left != before.end() && left->values < right->values)) {
      gone.push_back(left++->place);
    } else if (left == before.end() || right->values < left->values) {
      come.push_back(right++->place);
    } else {
      ++left;
      ++right;
    }
  }
  std::ranges::sort(gone);
  std::ranges::sort(come);
  for (std::size_t i = 0; i < std::max(gone.size(), come.size()); ++i) {
    differences_.push_back({i < gone.size() ? gone[i] : kNoFile, i < come.size() ? come[i] : kNoFile});
  }
}

bool ListingComparison::readDifferent(const StopAsked& stop) {
  std::vector<std::uint32_t> gone;
  std::vector<std::uint32_t> come;
  for (const Difference& difference : differences_) {
    if (difference.before != kNoFile) gone.push_back(difference.before);
    if (difference.after != kNoFile) come.push_back(difference.after);
  }
  std::ranges::sort(gone);
  std::ranges::sort(come);
  return before_.readFiles(gone, stop) && after_.readFiles(come, stop);
}

/// Two paths that only happen to have the same hash are two.
void ListingComparison::judgePairs() {
  for (const Difference& difference : std::exchange(differences_, {})) {
    const std::uint32_t before = difference.before == kNoFile ? kNoFile : before_.fileAt(difference.before);
    const std::uint32_t after = difference.after == kNoFile ? kNoFile : after_.fileAt(difference.after);
    if (before != kNoFile && after != kNoFile && haveSamePath(before, after)) {
      changes_.push_back({ChangeKind::Changed, before, after});
      continue;
    }
    if (before != kNoFile) gone_.push_back(before);
    if (after != kNoFile) come_.push_back(after);
  }
  std::ranges::sort(gone_);
  std::ranges::sort(come_);
}

bool ListingComparison::haveSamePath(std::uint32_t before, std::uint32_t after) const {
  const ComparedFile& one = before_.files()[before];
  const ComparedFile& other = after_.files()[after];
  return one.name == other.name && before_.pathOf(one.folder) == after_.pathOf(other.folder);
}

bool ListingComparison::areAlike(std::uint32_t before, std::uint32_t after) const {
  const ComparedFile& one = before_.files()[before];
  const ComparedFile& other = after_.files()[after];
  return one.size == other.size && foldedName(one.name) == foldedName(other.name);
}

/// Finds for each file that is gone one like it that has come.
class ListingComparison::Likeness {
 public:
  using Numbers = std::vector<std::uint32_t>;

  explicit Likeness(ListingComparison& comparison) : comparison_(comparison) {
    order(comparison.gone_, comparison.before_.files());
    order(comparison.come_, comparison.after_.files());
  }

  void find() {
    const Numbers gone = std::exchange(comparison_.gone_, {});
    const Numbers come = std::exchange(comparison_.come_, {});
    auto left = gone.begin();
    auto right = come.begin();
    while (left != gone.end() && right != come.end()) {
      const std::uint64_t one = before(*left).likeness;
      const std::uint64_t other = after(*right).likeness;
      const auto leftEnd = one <= other ? endOfLike(left, gone.end(), comparison_.before_) : left;
      const auto rightEnd = other <= one ? endOfLike(right, come.end(), comparison_.after_) : right;
      pairLike({left, leftEnd}, {right, rightEnd});
      left = leftEnd;
      right = rightEnd;
    }
    comparison_.gone_.insert(comparison_.gone_.end(), left, gone.end());
    comparison_.come_.insert(comparison_.come_.end(), right, come.end());
  }

 private:
  const ComparedFile& before(std::uint32_t number) const { return comparison_.before_.files()[number]; }
  const ComparedFile& after(std::uint32_t number) const { return comparison_.after_.files()[number]; }

  static void order(Numbers& numbers, const std::vector<ComparedFile>& files) {
    std::ranges::sort(numbers, {}, [&](std::uint32_t number) {
      return std::tuple(files[number].likeness, dateOf(files[number]), number);
    });
  }

  static Numbers::const_iterator endOfLike(Numbers::const_iterator begin, Numbers::const_iterator end,
                                           const ComparedListing& listing) {
    const std::uint64_t likeness = listing.files()[*begin].likeness;
    return std::find_if(begin, end,
                        [&](std::uint32_t number) { return listing.files()[number].likeness != likeness; });
  }

  /// First those with the same date, which both are ordered by, then the others one by one.
  void pairLike(std::span<const std::uint32_t> gone, std::span<const std::uint32_t> come) {
    Numbers goneLeft;
    Numbers comeLeft;
    auto left = gone.begin();
    auto right = come.begin();
    while (left != gone.end() && right != come.end()) {
      const double one = dateOf(before(*left));
      const double other = dateOf(after(*right));
      if (one == other && before(*left).modified && comparison_.areAlike(*left, *right)) {
        comparison_.changes_.push_back({ChangeKind::Moved, *left++, *right++});
      } else if (one <= other) {
        goneLeft.push_back(*left++);
      } else {
        comeLeft.push_back(*right++);
      }
    }
    goneLeft.insert(goneLeft.end(), left, gone.end());
    comeLeft.insert(comeLeft.end(), right, come.end());
    pairOthers(goneLeft, comeLeft);
  }

  void pairOthers(const Numbers& gone, const Numbers& come) {
    std::size_t paired = 0;
    while (paired < std::min(gone.size(), come.size()) && before(gone[paired]).size > 0 &&
           comparison_.areAlike(gone[paired], come[paired])) {
      comparison_.changes_.push_back({ChangeKind::Moved, gone[paired], come[paired]});
      ++paired;
    }
    const auto skipped = static_cast<std::ptrdiff_t>(paired);
    comparison_.gone_.insert(comparison_.gone_.end(), gone.begin() + skipped, gone.end());
    comparison_.come_.insert(comparison_.come_.end(), come.begin() + skipped, come.end());
  }

  ListingComparison& comparison_;
};

void ListingComparison::findMoved() {
  Likeness(*this).find();
  for (const std::uint32_t file : std::exchange(gone_, {})) {
    changes_.push_back({ChangeKind::Removed, file, kNoFile});
  }
  for (const std::uint32_t file : std::exchange(come_, {})) {
    changes_.push_back({ChangeKind::Added, kNoFile, file});
  }
}

const ComparedFile& ListingComparison::shownFile(const FileChange& change) const {
  return change.after != kNoFile ? after_.files()[change.after] : before_.files()[change.before];
}

const FolderTree& ListingComparison::shownTree(const FileChange& change) const {
  return change.after != kNoFile ? after_.folders() : before_.folders();
}

std::string ListingComparison::shownPath(const FileChange& change) const {
  return (change.after != kNoFile ? after_ : before_).pathOf(shownFile(change).folder);
}

void ListingComparison::sortChanges() {
  struct Folder {
    std::string path;
    bool isAfter;
    std::uint32_t number;
  };
  std::vector<Folder> folders;
  for (const FileChange& change : changes_) {
    const bool isAfter = change.after != kNoFile;
    const std::uint32_t folder = shownFile(change).folder;
    const bool isAsBefore =
        !folders.empty() && folders.back().isAfter == isAfter && folders.back().number == folder;
    if (!isAsBefore) folders.push_back({shownPath(change), isAfter, folder});
  }
  std::ranges::sort(folders, {}, &Folder::path);
  std::array<std::vector<std::uint32_t>, 2> ranks;
  ranks[0].resize(before_.folders().count());
  ranks[1].resize(after_.folders().count());
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < folders.size(); ++i) {
    if (i > 0 && folders[i].path != folders[i - 1].path) ++rank;
    ranks[folders[i].isAfter ? 1 : 0][folders[i].number] = rank;
  }
  std::ranges::stable_sort(changes_, {}, [&](const FileChange& change) {
    const ComparedFile& file = shownFile(change);
    return std::tuple(ranks[change.after != kNoFile ? 1 : 0][file.folder], file.name, change.kind);
  });
}

void ListingComparison::sumUp() {
  same_ = {before_.fileCount(), before_.bytes()};
  for (const FileChange& change : changes_) {
    const auto sizeOf = [](const ComparedFile& file) { return std::max<std::int64_t>(file.size, 0); };
    sums_[static_cast<std::size_t>(change.kind)].add(sizeOf(shownFile(change)));
    if (change.before == kNoFile) continue;
    --same_.files;
    same_.bytes -= sizeOf(before_.files()[change.before]);
  }
}

std::vector<FolderChanges> changesOfFolders(const ListingComparison& comparison) {
  std::vector<FolderChanges> folders;
  std::string before;
  for (const FileChange& change : comparison.changes()) {
    const ComparedFile& file = comparison.shownFile(change);
    // The same folder may be in the trees of both listings.
    const std::string path = comparison.shownPath(change);
    if (folders.empty() || path != before) {
      const auto first = static_cast<std::size_t>(&change - comparison.changes().data());
      folders.push_back({&comparison.shownTree(change), file.folder, first});
    }
    before = path;
    ++folders.back().count;
    folders.back().sums[static_cast<std::size_t>(change.kind)].add(std::max<std::int64_t>(file.size, 0));
  }
  return folders;
}

}  // namespace quorvin
