// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/hit_rows.h"

#include "console/json_text.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

struct FieldName {
  HitField field;
  const char* name;
  const char* title;
};

/// In the order of the fields.
constexpr std::array<FieldName, 12> kFields{{{HitField::Match, "match", "match"},
                                             {HitField::Volume, "volume", "volume"},
                                             {HitField::Folder, "folder", "folder"},
                                             {HitField::Name, "name", "name"},
                                             {HitField::Path, "path", "path"},
                                             {HitField::Size, "size", "size"},
                                             {HitField::Modified, "modified", "modified"},
                                             {HitField::Listing, "listing", "listing"},
                                             {HitField::Words, "words", "words"},
                                             {HitField::ShownMatch, "", "Match"},
                                             {HitField::ShownSize, "", "Size"},
                                             {HitField::ShownDate, "", "Date"}}};
constexpr std::size_t kNamedFields = 9;

const FieldName& nameOf(HitField field) {
  return kFields[static_cast<std::size_t>(field)];
}

bool isShared(HitField field) {
  return field == HitField::Volume || field == HitField::Folder || field == HitField::Listing;
}

/// Whether a hit may have no value of its own.
bool mayBeUnknown(HitField field) {
  return field == HitField::Path || field == HitField::Size || field == HitField::Modified;
}

std::string keyOf(HitField field) {
  return std::string("\"") + nameOf(field).name + "\":";
}

constexpr std::int16_t kWholeMatch = 100;

constexpr std::string_view kMarkStart = "\x1B[1;31m";
constexpr std::string_view kMarkEnd = "\x1B[m";

std::string utf8Of(QStringView value) {
  const QByteArray bytes = value.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool isUtf8(std::string_view text) {
  return isAscii(text) || isUtf8AsItStands({text.data(), static_cast<qsizetype>(text.size())});
}

/// Whether the name in a listing may be that of another file: it is cut, or has signs in place of others.
bool mayDiffer(std::string_view name) {
  return name.size() >= static_cast<std::size_t>(kNameColumns) ||
         name.find_first_of("*?") != std::string_view::npos;
}

std::vector<HitField> columnsOf(const RowOptions& options) {
  if (!options.fields.empty()) return options.fields;
  if (options.format != RowFormat::Json) {
    return {HitField::ShownMatch, HitField::Volume,    HitField::Folder,
            HitField::Name,       HitField::ShownSize, HitField::ShownDate};
  }
  std::vector<HitField> all;
  for (std::size_t i = 0; i < kNamedFields; ++i) all.push_back(kFields[i].field);
  return all;
}

CellRule ruleOf(const RowOptions& options) {
  if (options.format == RowFormat::Csv) return CellRule::Quotes;
  return options.endsWithNul && options.fields.size() == 1 ? CellRule::AsItIs : CellRule::Blanks;
}

}  // namespace

QStringList hitFieldNames() {
  QStringList names;
  for (std::size_t i = 0; i < kNamedFields; ++i) names += QString::fromLatin1(kFields[i].name);
  return names;
}

std::optional<HitField> hitFieldNamed(const QString& name) {
  const qsizetype place = hitFieldNames().indexOf(name.trimmed().toLower());
  return place < 0 ? std::nullopt : std::optional(kFields[static_cast<std::size_t>(place)].field);
}

/// The words, by their places in the query, that `areFound`.
template <typename AreFound>
void HitRows::addWordsThat(std::string& text, AreFound areFound) const {
  if (isJson()) text += '[';
  const std::size_t start = text.size();
  for (std::size_t i = 0; i < query_.words().size(); ++i) {
    if (!areFound(i)) continue;
    if (text.size() > start) text += isJson() ? ',' : ' ';
    const std::string& word = query_.words()[i].bytes;
    if (isJson()) {
      addJsonString(text, word);
    } else {
      text += word;
    }
  }
  if (isJson()) {
    text += ']';
  } else {
    cells_.finish(text, start);
  }
}

HitRows::HitRows(RowOptions options, const QLocale& locale, SearchQuery query, const ProgramState& state)
    : options_(std::move(options)),
      query_(std::move(query)),
      places_(query_),
      state_(state),
      paths_(state),
      cells_(ruleOf(options_), options_.isForTerminal),
      looksForPaths_(asksFor(HitField::Path)),
      isPathAlone_(options_.format != RowFormat::Json && options_.fields == std::vector{HitField::Path}),
      rowEnd_(options_.endsWithNul ? '\0' : '\n'),
      sizes_(locale),
      shownDays_([this, locale](int day) {
        std::string cell;
        cells_.add(cell, utf8Of(shortMonthDateText(day, locale)));
        return cell;
      }) {
  options_.fields = columnsOf(options_);
  for (const HitField field : options_.fields) {
    if (!isShared(field)) own_.push_back({field, isJson() ? keyOf(field) : std::string()});
  }
  shared_.resize(own_.size() + 1);
  addWordsThat(allWords_, [](std::size_t) { return true; });
}

bool HitRows::asksFor(HitField field) const {
  return std::ranges::count(options_.fields, field) > 0;
}

void HitRows::addHead(std::string& text) const {
  if (isJson()) return;
  // With the window's columns their titles, too, are the window's.
  const bool isWindows = options_.fields.front() == HitField::ShownMatch;
  for (std::size_t column = 0; column < options_.fields.size(); ++column) {
    if (column > 0) text += options_.format == RowFormat::Tsv ? '\t' : ',';
    const std::size_t start = text.size();
    text += nameOf(options_.fields[column]).title;
    if (isWindows && text[start] >= 'a') text[start] = static_cast<char>(text[start] - 'a' + 'A');
  }
  text += rowEnd_;
}

void HitRows::enterFolder(const HitFolder& folder) {
  kind_ = folder.kind;
  volume_ = folder.volume;
  folder_ = folder.folder;
  listing_ = folder.listing;
  ownFolder_.reset();
  folderHas_.clear();
  if (asksFor(HitField::Words)) {
    for (const SearchQuery::Word& word : query_.words()) {
      folderHas_.push_back(folder.lowerFolder.find(word.bytes) != std::string_view::npos);
    }
  }
  auto text = shared_.begin();
  text->clear();
  if (isJson()) *text += '{';
  for (std::size_t column = 0; column < options_.fields.size(); ++column) {
    if (column > 0 && !isJson()) *text += options_.format == RowFormat::Tsv ? '\t' : ',';
    const HitField field = options_.fields[column];
    if (isShared(field)) {
      addShared(*text, field);
      continue;
    }
    const bool isMember = isJson() && !mayBeUnknown(field);
    if (isMember) *text += keyOf(field);
    (++text)->clear();
    if (isMember) *text += ',';
  }
}

void HitRows::addShared(std::string& text, HitField field) const {
  const std::string& value = field == HitField::Volume   ? volume_
                             : field == HitField::Folder ? folder_
                                                         : listing_;
  if (isJson()) {
    text += keyOf(field);
    addJsonString(text, value);
    text += ',';
  } else if (field == HitField::Folder) {
    addName(text, value);
  } else {
    cells_.add(text, value);
  }
}

bool HitRows::add(std::string& text, const FoundHit& hit) {
  const std::size_t start = text.size();
  for (std::size_t i = 0; i < own_.size(); ++i) {
    text += shared_[i];
    if (isJson()) {
      addMember(text, own_[i], hit);
    } else {
      addCell(text, own_[i].field, hit);
    }
  }
  text += shared_.back();
  if (isJson()) endObject(text, hit);
  if (isPathAlone_ && text.size() == start) return false;
  text += rowEnd_;
  return true;
}

void HitRows::addCell(std::string& text, HitField field, const FoundHit& hit) {
  const EntryValues values = hit.values.value_or(EntryValues());
  switch (field) {
    case HitField::Match:
      return addNumber(text, hit.match);
    case HitField::Name:
      return addName(text, hit.name);
    case HitField::Path:
      if (const std::string* path = pathOf(hit)) addName(text, *path);
      return;
    case HitField::Size:
      if (hit.values) addNumber(text, values.size);
      return;
    case HitField::Modified:
      if (hit.values) addMoment(text, values.date);
      return;
    case HitField::Words:
      return addWords(text, hit);
    case HitField::ShownMatch:
      text += matchCell(hit.match);
      return;
    case HitField::ShownSize: {
      const std::size_t start = text.size();
      sizes_.add(text, values.size);
      return cells_.finish(text, start);
    }
    case HitField::ShownDate:
      text += shownDays_.of(splitDateValue(values.date).day);
      return;
    case HitField::Volume:
    case HitField::Folder:
    case HitField::Listing:
      return addShared(text, field);
  }
}

/// The value alone where each hit has one: the shared texts have the rest. Else the whole member with a comma
/// behind it, or nothing for what is not known.
void HitRows::addMember(std::string& text, const OwnColumn& column, const FoundHit& hit) {
  if (column.field == HitField::Name) return addJsonString(text, hit.name);
  if (!mayBeUnknown(column.field)) return addCell(text, column.field, hit);
  const std::string* path = column.field == HitField::Path ? pathOf(hit) : nullptr;
  const bool isKnown = column.field == HitField::Path ? path != nullptr : hit.values.has_value();
  if (!isKnown) return;
  text += column.key;
  if (path != nullptr) {
    addJsonString(text, *path);
  } else if (column.field == HitField::Modified) {
    text += '"';
    addMoment(text, hit.values->date);
    text += '"';
  } else {
    addNumber(text, hit.values->size);
  }
  text += ',';
}

void HitRows::endObject(std::string& text, const FoundHit& hit) const {
  if (hit.areInherited) text += "\"inherited\":true,";
  if (text.back() == ',') text.pop_back();
  text += '}';
}

/// A folder, name or path.
void HitRows::addName(std::string& text, std::string_view value) const {
  if (options_.isColoured) {
    addMarked(text, value);
  } else {
    cells_.add(text, value);
  }
}

void HitRows::addMarked(std::string& text, std::string_view value) const {
  const QString whole = textOfUtf8(value);
  qsizetype done = 0;
  for (const TextRange& range : places_.in(whole)) {
    cells_.add(text, utf8Of(QStringView(whole).mid(done, range.start - done)));
    text += kMarkStart;
    cells_.add(text, utf8Of(QStringView(whole).mid(range.start, range.length)));
    text += kMarkEnd;
    done = range.start + range.length;
  }
  cells_.add(text, utf8Of(QStringView(whole).mid(done)));
}

void HitRows::addWords(std::string& text, const FoundHit& hit) const {
  if (hit.match == kWholeMatch) {
    text += allWords_;
    return;
  }
  addWordsThat(text, [&](std::size_t word) {
    return folderHas_[word] || hit.lowerName.find(query_.words()[word].bytes) != std::string_view::npos;
  });
}

const std::string& HitRows::matchCell(std::int16_t match) {
  std::string& cell = matches_[static_cast<std::size_t>(std::clamp<std::int16_t>(match, 0, kWholeMatch))];
  if (cell.empty()) cell = utf8Of(matchText(match));
  return cell;
}

/// Null where the hit is from no own folder, or its name in the listing is not the whole name and there is no
/// such file now. Valid until the next call.
const std::string* HitRows::pathOf(const FoundHit& hit) {
  if (kind_ != SourceKind::Online || ownFolder().empty()) return nullptr;
  const bool isOpen = mayDiffer(hit.name);
  if (isOpen || looksForPaths_) {
    const HitPath file =
        paths_.of({hit.match, kind_, textOfUtf8(volume_), textOfUtf8(folder_), textOfUtf8(hit.name)});
    if (!file.isEmpty()) {
      path_ = utf8Of(file.fullPath());
      return &path_;
    }
  }
  if (isOpen) return nullptr;
  path_ = ownFolder();
  if (isUtf8(hit.name)) {
    path_ += hit.name;
  } else {
    path_ += utf8Of(textOfUtf8(hit.name));
  }
  return &path_;
}

const std::string& HitRows::ownFolder() {
  if (ownFolder_) return *ownFolder_;
  HitRow row;
  row.volume = textOfUtf8(volume_);
  row.folder = textOfUtf8(folder_);
  try {
    ownFolder_ = utf8Of(folderOfHit(state_, row, nativePathStyle()).value_or(QString()));
  } catch (const RuntimeFault&) {
    ownFolder_ = std::string();
  }
  return *ownFolder_;
}

}  // namespace quorvin
