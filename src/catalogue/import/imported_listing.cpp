// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/imported_listing.h"

#include "catalogue/import/list_dates.h"
#include "index/listed_name.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
/// So long is a line from whose tail a reader takes size and date.
constexpr std::size_t kShortestWholeLine = std::size_t{kEntryColumns} - 1 + kShortTailLength + 1;

}  // namespace

ImportedListing::ImportedListing(FileWriter& writer, const QString& label, const QLocale& locale,
                                 std::optional<DayMonthOrder> order)
    : writer_(writer), order_(order), entryLines_(locale) {
  appendVolumeLine(volumeLine_, lineText(encodeSystemText(label).toStdString()));
}

void ImportedListing::add(const SortedEntry& entry) {
  const bool isNewFolder = !isStarted_ || entry.folder != folder_;
  if (isNewFolder || entry.name != name_) finishName();
  if (isNewFolder) {
    finishFolder();
    startFolder(entry.folder);
  }
  if (entry.name.empty()) {
    isGoneInto_ = true;
    return;
  }
  if (times_ == 0 && !isFolder_) name_ = entry.name;
  if (entry.kind == EntryKind::Folder) {
    isFolder_ = true;
    return;
  }
  ++times_;
  size_ = entry.size;
  modified_ = entry.modified;
}

void ImportedListing::startFolder(std::string_view folder) {
  isStarted_ = true;
  folder_ = folder;
  listedFolder_.assign(1, '\\');
  canBeListed_ = true;
  isGoneInto_ = false;
  while (!folder.empty()) {
    const std::string_view name = folder.substr(0, folder.find('\0'));
    canBeListed_ = canBeListed_ && (traitsOfName(name) & kHoldsQuestion) == 0;
    listedFolder_ += name;
    listedFolder_ += '\\';
    folder.remove_prefix(std::min(name.size() + 1, folder.size()));
  }
  canBeListed_ = canBeListed_ && listedFolder_.size() <= kLongestListedFolder;
}

void ImportedListing::finishName() {
  if (isFolder_) {
    addFolder();
  } else if (times_ > 0) {
    counts_.repeated += times_ - 1;
    addFile();
  }
  name_.clear();
  isFolder_ = false;
  times_ = 0;
}

void ImportedListing::addFolder() {
  const NameTraits traits = traitsOfName(name_);
  const bool isText = (traits & kHoldsQuestion) == 0;
  if (!canBeListed_ || !isText) {
    ++counts_.leftOut;
    return;
  }
  if ((traits & kMayHoldMark) != 0 && !markInFolder(name_).empty()) ++counts_.misread;
  ++subFolders_;
  appendSubFolderLine(subFolderLines_, name_);
  subFolderLines_ += kLineEnd;
}

void ImportedListing::addFile() {
  if (!canBeListed_) {
    ++counts_.leftOut;
    return;
  }
  ListedFile file{name_, size_.value_or(-1), std::nullopt};
  const ListDate date = inOrder(modified_, order_);
  if (date.kind != ListDate::Kind::None) file.modified = date.seconds;
  if (modified_.kind == ListDate::Kind::EitherOrder && !file.modified) ++counts_.undecidedDates;
  std::string listed;
  const NameTraits traits = traitsOfName(name_);
  if ((traits & kHoldsQuestion) != 0) {
    listed = listedText(name_);
    file = {listed, -1, std::nullopt};
  }
  if ((traits & kMayHoldMark) != 0 && !markInEntry(cutToColumns(file.name, kNameColumns)).empty()) {
    ++counts_.misread;
  }
  ++files_;
  if (file.size < 0) ++counts_.withoutSize;
  if (!file.modified) ++counts_.withoutDate;
  const std::size_t start = fileLines_.size();
  if (date.kind == ListDate::Kind::Moment) {
    entryLines_.append(fileLines_, file);
  } else {
    entryLines_.appendWithWallClock(fileLines_, file);
  }
  const std::size_t length = characterCount(std::string_view(fileLines_).substr(start));
  if (length < kShortestWholeLine) fileLines_.append(kShortestWholeLine - length, ' ');
  fileLines_ += kLineEnd;
}

void ImportedListing::finishFolder() {
  const bool isWayOnly = !hasBlocks_ && !isGoneInto_ && files_ == 0 && subFolders_ == 1;
  if (isStarted_ && canBeListed_ && !isWayOnly) {
    hasBlocks_ = true;
    ++counts_.folders;
    counts_.files += files_;
    std::string head;
    head += kLineEnd;
    head += volumeLine_;
    head += kLineEnd;
    appendDirectoryLine(head, listedFolder_);
    head += kLineEnd;
    head += kLineEnd;
    writer_.write(head);
    writer_.write(subFolderLines_);
    if (subFolders_ > 0) writer_.write(kLineEnd);
    writer_.write(fileLines_);
  }
  subFolders_ = 0;
  files_ = 0;
  subFolderLines_.clear();
  fileLines_.clear();
}

void ImportedListing::finish() {
  finishName();
  finishFolder();
  isStarted_ = false;
}

}  // namespace quorvin
