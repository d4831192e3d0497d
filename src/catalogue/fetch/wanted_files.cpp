// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/wanted_files.h"

#include "catalogue/common_folder.h"
#include "catalogue/entry_sizes.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <xxhash.h>

namespace quorvin {

namespace {

/// As a listing would have it.
std::string cutName(const QString& name) {
  const std::string text = name.toStdString();
  const std::string_view cut = std::string_view(text).substr(0, bytesOfCharacters(text, kNameColumns));
  // Blanks at the end are no part of a name.
  return std::string(cut.substr(0, cut.find_last_not_of(' ') + 1));
}

std::int64_t placeOfBlock(const QString& listing, const Segment& segment, std::uint32_t block) {
  return WantedFiles::placeOf(listing, segment.volumeOfBlock(block), segment.folderOfBlock(block));
}

/// Gives back memory of a segment that was looked at, as far as it is in a file.
void giveBack(const std::shared_ptr<const Segment>& segment, const std::shared_ptr<const Segment>& kept) {
  (kept ? kept : segment)->release();
}

}  // namespace

void WantedFiles::add(const QString& name, std::optional<std::int64_t> size) {
  const std::string listed = cutName(name);
  if (listed.empty()) return;
  const std::string folded = simpleLowerCase(QString::fromStdString(listed)).toStdString();
  const std::uint32_t number = nameLike(folded, listed);
  if (size) {
    want({number, *size});
  } else {
    names_[number].isEvery = true;
  }
}

void WantedFiles::add(const ListedWalk::Text& name, std::int64_t size, std::int64_t place) {
  want({nameLike(name.folded, name.listed), size < 0 ? ~place : size});
}

std::int64_t WantedFiles::placeOf(const QString& listing, std::string_view volume, std::string_view folder) {
  const QByteArray path = listing.toUtf8();
  XXH64_hash_t hash = XXH3_64bits(path.constData(), static_cast<std::size_t>(path.size()));
  for (const std::string_view part : {volume, folder}) {
    hash = XXH3_64bits_withSeed(part.data(), part.size(), hash);
  }
  return static_cast<std::int64_t>(hash >> 1U);
}

void WantedFiles::want(const Key& key) {
  const auto [file, isNew] = filesByKey_.try_emplace(key, kNone);
  if (!isNew || key.value < 0) return;
  file->second = static_cast<std::uint32_t>(files_.size());
  addFile(key.name, key.value);
}

std::uint32_t WantedFiles::find(std::string_view folded) const {
  const auto found = namesByText_.find(folded);
  return found == namesByText_.end() ? kNone : found->second;
}

void WantedFiles::found(std::uint32_t name, std::int64_t size, std::int64_t place, const FileCopy& copy) {
  const Key key{name, size < 0 ? ~place : size};
  if (names_[name].isEvery) filesByKey_.try_emplace(key, kNone);
  const auto wanted = filesByKey_.find(key);
  if (wanted == filesByKey_.end()) return;
  if (wanted->second == kNone) {
    wanted->second = static_cast<std::uint32_t>(files_.size());
    addFile(name, size);
  }
  std::vector<FileCopy>& copies = files_[wanted->second].copies;
  const bool isKnown = !copies.empty() && copies.back().folder == copy.folder;
  if (!isKnown) copies.push_back({copy.volume, copy.folder, texts_.keep(copy.name)});
}

void WantedFiles::complete() {
  for (std::uint32_t name = 0; name < names_.size(); ++name) {
    if (!names_[name].hasFiles) addFile(name, -1);
  }
}

std::size_t WantedFiles::HashOfKey::operator()(const Key& key) const {
  return XXH3_64bits_withSeed(&key.value, sizeof key.value, key.name);
}

std::uint32_t WantedFiles::nameLike(std::string_view folded, std::string_view listed) {
  const std::uint32_t known = find(folded);
  if (known != kNone) return known;
  const auto number = static_cast<std::uint32_t>(names_.size());
  namesByText_.emplace(texts_.keep(folded), number);
  names_.push_back({texts_.keep(listed)});
  return number;
}

void WantedFiles::addFile(std::uint32_t name, std::int64_t size) {
  names_[name].hasFiles = true;
  files_.push_back({names_[name].name, size});
}

bool WantedHits::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  const EntrySizes sizes(*segment, hits.front().entry, hits.back().entry + 1);
  ListedWalk names;
  names.start(segment->arrays().entries);
  for (const FoundEntry& hit : hits) {
    const std::int64_t size = sizes.of(hit.entry);
    const ListedWalk::Text text = names.at(hit.entry);
    const ListedWalk::Text name{fileNameIn(text.listed, size), fileNameIn(text.folded, size)};
    const std::int64_t place = size < 0 ? placeOfBlock(listing_, *segment, segment->blockOf(hit.entry)) : 0;
    wanted_.add(name, size, place);
  }
  return true;
}

void WantedHits::endSegment(const std::shared_ptr<const Segment>& segment,
                            const std::shared_ptr<const Segment>& kept) {
  giveBack(segment, kept);
}

WantedFiles wantedRows(const HitTable& table, const std::vector<int>& rows) {
  WantedFiles wanted;
  WantedHits hits(wanted);
  for (auto row = rows.begin(); row != rows.end();) {
    const HitStretch stretch = table.stretchAt(*row);
    const std::int64_t end = stretch.firstRow + static_cast<std::int64_t>(stretch.hits.size());
    hits.startListing(table.kind(*row), table.listing(*row));
    std::vector<FoundEntry> chosen;
    for (; row != rows.end() && *row < end; ++row) {
      chosen.push_back(stretch.hits[static_cast<std::size_t>(*row - stretch.firstRow)]);
    }
    hits.addHits(stretch.segment, chosen);
  }
  return wanted;
}

void WantedCopies::endSegment(const std::shared_ptr<const Segment>& segment,
                              const std::shared_ptr<const Segment>& kept) {
  giveBack(segment, kept);
}

void WantedCopies::takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                             std::uint32_t end) {
  place_ += end - first;
  const std::string folderPath = segment.folderOfBlock(block);
  const std::uint32_t volume = volumeOf(segment, block, folderPath);
  const EntrySizes sizes(segment, first, end);
  TextWalk foldedNames(segment.arrays().entries);
  ListedWalk names;
  names.start(segment.arrays().entries);
  for (std::uint32_t entry = first; entry < end; ++entry) {
    const std::int64_t size = sizes.of(entry);
    const std::uint32_t name = wanted_.find(fileNameIn(foldedNames.text(entry), size));
    if (name == WantedFiles::kNone) continue;
    const std::string_view listed = fileNameIn(names.at(entry).listed, size);
    const std::int64_t place = size < 0 ? placeOfBlock(places_.listings.back(), segment, block) : 0;
    wanted_.found(name, size, place, {volume, places_.folders.addFolder(volume, folderPath), listed});
  }
}

std::uint32_t WantedCopies::volumeOf(const Segment& segment, std::uint32_t block, std::string_view folder) {
  const auto listing = static_cast<std::uint32_t>(places_.listings.size() - 1);
  const std::uint32_t volume = places_.folders.addVolume(listing, segment.volumeOfBlock(block));
  if (volume >= places_.tops.size()) {
    places_.tops.resize(volume + 1);
    places_.tops[volume] = folder;
  } else {
    cutToCommonFolder(places_.tops[volume], folder);
  }
  return volume;
}

}  // namespace quorvin
