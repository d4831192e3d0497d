// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/compare_rows.h"

#include "catalogue/sum_texts.h"
#include "dates/general_date.h"
#include "texts/texts.h"

#include <QStringList>

#include <initializer_list>
#include <string_view>

namespace quorvin {

namespace {

constexpr std::array<std::string_view, 4> kSigns{"+", "-", "*", ">"};
constexpr std::array<std::string_view, 4> kNames{"added", "removed", "changed", "moved"};
constexpr std::array<std::string_view, 4> kBytes{"addedBytes", "removedBytes", "changedBytes", "movedBytes"};

std::size_t numberOf(ChangeKind kind) {
  return static_cast<std::size_t>(kind);
}

std::string isoText(DateValue date) {
  std::string text;
  addMoment(text, date);
  return text;
}

void addSize(TableRow& row, std::string_view key, const ComparedFile* file) {
  if (file == nullptr || file->size < 0) {
    row.skip();
  } else {
    row.add(key, file->size);
  }
}

void addModified(TableRow& row, std::string_view key, const ComparedFile* file) {
  if (file == nullptr || !file->modified) {
    row.skip();
  } else {
    row.add(key, isoText(*file->modified));
  }
}

}  // namespace

CompareRows::CompareRows(const ListingComparison& comparison, const Options& options, const QLocale& locale)
    : comparison_(comparison),
      options_(options),
      locale_(locale),
      cells_(cellRuleOf(options.format), options.isForTerminal),
      withVolume_(comparison.rule().withVolume) {
  const bool hasNul = options.format == TableFormat::Tsv || options.format == TableFormat::Csv;
  options_.endsWithNul = options.endsWithNul && hasNul;
}

void CompareRows::addHead(std::string& text, bool byFolder) const {
  if (isText() || options_.format == TableFormat::Json) return;
  TableRow row(options_.format, cells_, text);
  const auto add = [&row](std::initializer_list<std::string_view> titles) {
    for (const std::string_view title : titles) row.add(title, title);
  };
  if (byFolder) {
    for (std::size_t kind = 0; kind < kNames.size(); ++kind) add({kNames[kind], kBytes[kind]});
    add({"volume", "folder"});
  } else {
    add({"change", "size", "modified", "volume", "folder", "name"});
    add({"sizeBefore", "modifiedBefore", "volumeBefore", "folderBefore", "nameBefore"});
  }
  row.end(options_.endsWithNul);
}

void CompareRows::addChange(std::string& text, const FileChange& change) const {
  if (isText()) {
    addLine(text, change);
    return;
  }
  const ComparedFile& file = comparison_.shownFile(change);
  const FolderTree& tree = comparison_.shownTree(change);
  TableRow row(options_.format, cells_, text);
  row.add("change", kNames[numberOf(change.kind)]);
  addSize(row, "size", &file);
  addModified(row, "modified", &file);
  row.add("volume", tree.volumes()[tree.volumeOf(file.folder)].name).add("folder", tree.path(file.folder));
  row.add("name", file.name);
  const bool hasBoth = change.before != FileChange::kNone && change.after != FileChange::kNone;
  const ComparedFile* before = hasBoth ? &comparison_.before().files()[change.before] : nullptr;
  addSize(row, "sizeBefore", before);
  addModified(row, "modifiedBefore", before);
  if (change.kind == ChangeKind::Moved) {
    const FolderTree& earlier = comparison_.before().folders();
    row.add("volumeBefore", earlier.volumes()[earlier.volumeOf(before->folder)].name);
    row.add("folderBefore", earlier.path(before->folder)).add("nameBefore", before->name);
  } else {
    row.skip().skip().skip();
  }
  row.end(options_.endsWithNul);
}

void CompareRows::addLine(std::string& text, const FileChange& change) const {
  const ComparedFile& file = comparison_.shownFile(change);
  text += kSigns[numberOf(change.kind)];
  text += ' ';
  addPath(text, comparison_.shownTree(change), file);
  std::string facts = factsOf(file);
  if (change.kind == ChangeKind::Changed) {
    facts = Texts::tr("%1 (before: %2)")
                .arg(QString::fromStdString(facts),
                     QString::fromStdString(factsOf(comparison_.before().files()[change.before])))
                .toStdString();
  }
  if (!facts.empty()) text += ", " + facts;
  text += '\n';
  if (change.kind != ChangeKind::Moved) return;
  text += "  < ";
  addPath(text, comparison_.before().folders(), comparison_.before().files()[change.before]);
  text += '\n';
}

void CompareRows::addFolder(std::string& text, const FolderChanges& changes) const {
  if (!isText()) {
    TableRow row(options_.format, cells_, text);
    for (std::size_t kind = 0; kind < kNames.size(); ++kind) {
      row.add(kNames[kind], changes.sums[kind].files).add(kBytes[kind], changes.sums[kind].bytes);
    }
    row.add("volume", changes.tree->volumes()[changes.tree->volumeOf(changes.folder)].name);
    row.add("folder", changes.tree->path(changes.folder)).end(options_.endsWithNul);
    return;
  }
  addVolume(text, *changes.tree, changes.folder);
  cells_.add(text, changes.tree->path(changes.folder));
  text += ':';
  for (std::size_t kind = 0; kind < kSigns.size(); ++kind) {
    if (changes.sums[kind].files == 0) continue;
    text += ' ';
    text += kSigns[kind];
    text += ' ' + sumText(changes.sums[kind], locale_).toStdString() + ';';
  }
  text.back() = '\n';
}

void CompareRows::addPath(std::string& text, const FolderTree& tree, const ComparedFile& file) const {
  addVolume(text, tree, file.folder);
  cells_.add(text, tree.path(file.folder) + std::string(file.name));
}

void CompareRows::addVolume(std::string& text, const FolderTree& tree, std::uint32_t folder) const {
  if (!withVolume_) return;
  cells_.add(text, tree.volumes()[tree.volumeOf(folder)].name);
  text += ": ";
}

/// Size and date, as far as the listing has them.
std::string CompareRows::factsOf(const ComparedFile& file) const {
  QStringList facts;
  if (file.size >= 0) facts += sizeText(file.size, locale_);
  if (file.modified) facts += generalDateText(*file.modified, locale_);
  return facts.join(QStringLiteral(", ")).toStdString();
}

}  // namespace quorvin
