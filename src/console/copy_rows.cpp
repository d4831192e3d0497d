// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/copy_rows.h"

#include "catalogue/sum_texts.h"
#include "texts/texts.h"

#include <algorithm>
#include <initializer_list>

namespace quorvin {

namespace {

/// Appends `pattern` with texts in the places of %1, %2 and so on. Far quicker than QString::arg().
void fill(std::string& text, std::string_view pattern, std::initializer_list<std::string_view> values) {
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const std::size_t number = pattern[i] == '%' && i + 1 < pattern.size()
                                   ? static_cast<std::size_t>(pattern[i + 1] - '1')
                                   : SIZE_MAX;
    if (number < values.size()) {
      text += values.begin()[number];
      ++i;
    } else {
      text += pattern[i];
    }
  }
}

}  // namespace

/// A row that may hold a place.
class CopyRows::Row : public TableRow {
 public:
  Row(const CopyRows& rows, std::string& text)
      : TableRow(rows.options_.format, rows.cells_, text), rows_(rows) {}

  template <typename Value>
  Row& add(std::string_view key, const Value& value) {
    TableRow::add(key, value);
    return *this;
  }
  /// Volume, folder and listing.
  Row& addPlace(std::uint32_t folder) {
    const std::uint32_t volume = rows_.tree_.volumeOf(folder);
    add("volume", rows_.tree_.volumes()[volume].name).add("folder", rows_.tree_.path(folder));
    return add("listing", rows_.listingOf(volume));
  }
  void end() { TableRow::end(rows_.options_.endsWithNul); }

 private:
  const CopyRows& rows_;
};

CopyRows::CopyRows(const Copies& copies, const EqualFolders& folders, const Options& options,
                   const QLocale& locale)
    : copies_(copies),
      equalFolders_(folders),
      tree_(copies.files().folders()),
      options_(options),
      locale_(locale),
      cells_(cellRuleOf(options.format), options.isForTerminal),
      labels_(cells_) {
  const bool hasNul = options.format == TableFormat::Tsv || options.format == TableFormat::Csv;
  options_.endsWithNul = options.endsWithNul && hasNul;
  for (const QString& listing : copies.files().listings()) listings_.push_back(listing.toStdString());
  for (const FolderTree::Volume& volume : tree_.volumes()) {
    labels_.add(volume.name, copies.files().listings()[volume.listing]);
  }
}

void CopyRows::addHead(std::string& text, CopyTable table) const {
  if (isText() || options_.format == TableFormat::Json) return;
  std::vector<std::string_view> titles;
  switch (table) {
    case CopyTable::Copies:
      titles = {"group", "kind", "copies", "size", "name", "volume", "folder", "listing"};
      break;
    case CopyTable::SingleFiles:
      titles = {"size", "name", "volume", "folder", "listing"};
      break;
    case CopyTable::Volumes:
      titles = {"files", "size", "volume", "listing"};
      break;
    case CopyTable::Folders:
      titles = {"files", "size", "volume", "folder", "listing"};
      break;
  }
  Row row(*this, text);
  for (const std::string_view title : titles) row.add(title, title);
  row.end();
}

void CopyRows::addLine(std::string& text, const CopyLine& line, std::int64_t number) {
  if (line.isFolders) {
    addSet(text, equalFolders_.sets()[line.number], number);
    return;
  }
  std::vector<std::uint32_t> folders;
  for (const std::uint32_t place : copies_.placesOf(line.number)) {
    folders.push_back(copies_.files().folderOf(place));
  }
  addGroup(text, copies_.groups()[line.number], folders, number);
}

void CopyRows::addGroup(std::string& text, const Copies::Group& group,
                        const std::vector<std::uint32_t>& folders, std::int64_t number) {
  if (isText()) {
    std::string& pattern = groupTexts_[group.copies];
    if (pattern.empty()) {
      pattern = Texts::tr("%1 copies of %2: %3", nullptr, Texts::plural(group.copies)).toStdString();
    }
    std::string name;
    addShown(name, group.name);
    fill(text, pattern, {locale_.toString(group.copies).toStdString(), sizeText(group.size), name});
    text += '\n';
    addPlaces(text, folders);
    return;
  }
  const std::int64_t copies = group.copies;
  if (options_.format == TableFormat::Json) {
    Row row(*this, text);
    row.add("kind", "file").add("name", group.name).add("size", group.size).add("copies", copies);
    row.add("volumes", volumesOf(folders)).add("beyondFirst", group.bytesBeyondFirst()).startCell("places");
    addJsonPlaces(text, folders);
    row.end();
    return;
  }
  for (const std::uint32_t folder : folders) {
    Row row(*this, text);
    row.add("group", number).add("kind", "file").add("copies", copies).add("size", group.size);
    row.add("name", group.name).addPlace(folder).end();
  }
}

void CopyRows::addSet(std::string& text, const EqualFolders::Set& set, std::int64_t number) {
  const auto copies = static_cast<std::int64_t>(set.folders.size());
  const std::string_view name = tree_.title(set.folders.front());
  if (isText()) {
    std::string shown;
    addShown(shown, name);
    fill(text,
         Texts::tr("%1 equal folders of %2 with %3 files: %4", nullptr, Texts::plural(copies)).toStdString(),
         {locale_.toString(qlonglong{copies}).toStdString(), sizeText(set.holds.bytes),
          locale_.toString(qlonglong{set.holds.files}).toStdString(), shown});
    text += '\n';
    addPlaces(text, set.folders);
    return;
  }
  if (options_.format == TableFormat::Json) {
    Row row(*this, text);
    row.add("kind", "folder").add("name", name).add("size", set.holds.bytes).add("files", set.holds.files);
    row.add("copies", copies).add("volumes", volumesOf(set.folders));
    row.add("beyondFirst", set.bytesBeyondFirst()).startCell("places");
    addJsonPlaces(text, set.folders);
    row.end();
    return;
  }
  for (const std::uint32_t folder : set.folders) {
    Row row(*this, text);
    row.add("group", number).add("kind", "folder").add("copies", copies).add("size", set.holds.bytes);
    row.add("name", tree_.title(folder)).addPlace(folder).end();
  }
}

void CopyRows::addPlaces(std::string& text, const std::vector<std::uint32_t>& folders) {
  for (const std::uint32_t folder : folders) addPlaceLine(text, folder);
}

void CopyRows::addPlaceLine(std::string& text, std::uint32_t folder) {
  text += "  ";
  text += labelOf(tree_.volumeOf(folder));
  text += ": ";
  addShown(text, tree_.path(folder));
  text += '\n';
}

void CopyRows::addJsonPlaces(std::string& text, const std::vector<std::uint32_t>& folders) const {
  text += '[';
  bool isFirst = true;
  for (const std::uint32_t folder : folders) {
    if (!isFirst) text += ',';
    isFirst = false;
    Row place(*this, text);
    place.addPlace(folder).endObject();
  }
  text += ']';
}

void CopyRows::addSingleFile(std::string& text, ListedFiles::Visited& file,
                             const std::vector<FileSum>& inVolumes, const std::vector<FileSum>& inFolders) {
  if (!isText()) {
    Row row(*this, text);
    row.add("size", file.size).add("name", file.name().listed).addPlace(file.folder).end();
    return;
  }
  const std::uint32_t volume = tree_.volumeOf(file.folder);
  if (volume != lastVolume_) addVolumeSum(text, volume, inVolumes[volume]);
  if (file.folder != lastFolder_) {
    text += "  ";
    addShown(text, tree_.path(file.folder));
    text += ": " + sumText(inFolders[file.folder]) + '\n';
  }
  lastVolume_ = volume;
  lastFolder_ = file.folder;
  text += "    ";
  addShown(text, file.name().listed);
  text += ", " + sizeText(file.size) + '\n';
}

void CopyRows::addVolumeSum(std::string& text, std::uint32_t volume, const FileSum& sum) {
  if (isText()) {
    text += labelOf(volume) + ": " + sumText(sum) + '\n';
    return;
  }
  Row row(*this, text);
  row.add("files", sum.files).add("size", sum.bytes).add("volume", tree_.volumes()[volume].name);
  row.add("listing", listingOf(volume)).end();
}

void CopyRows::addFolderSum(std::string& text, std::uint32_t folder, const FileSum& sum) {
  if (isText()) {
    text += labelOf(tree_.volumeOf(folder)) + ": ";
    addShown(text, tree_.path(folder));
    text += ": " + sumText(sum) + '\n';
    return;
  }
  Row row(*this, text);
  row.add("files", sum.files).add("size", sum.bytes).addPlace(folder).end();
}

std::string_view CopyRows::listingOf(std::uint32_t volume) const {
  return listings_[tree_.volumes()[volume].listing];
}

std::int64_t CopyRows::volumesOf(const std::vector<std::uint32_t>& folders) const {
  std::vector<std::uint32_t> volumes;
  for (const std::uint32_t folder : folders) volumes.push_back(tree_.volumeOf(folder));
  std::ranges::sort(volumes);
  return std::ranges::unique(volumes).begin() - volumes.begin();
}

std::string CopyRows::sizeText(std::int64_t bytes) const {
  return quorvin::sizeText(bytes, locale_).toStdString();
}

std::string CopyRows::sumText(const FileSum& sum) const {
  return quorvin::sumText(sum, locale_).toStdString();
}

}  // namespace quorvin
