// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/plain_hit_rows.h"

#include "console/json_text.h"
#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace quorvin::test {

namespace {

std::string nameOf(HitField field) {
  return hitFieldNames().value(static_cast<int>(field)).toStdString();
}

constexpr std::string_view kMarkStart = "\x1B[1;31m";
constexpr std::string_view kMarkEnd = "\x1B[m";

bool isControl(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

void addUtf8(std::string& text, const QString& value) {
  const QByteArray bytes = value.toUtf8();
  text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

std::string utf8Of(const QString& value) {
  std::string text;
  addUtf8(text, value);
  return text;
}

void addMoment(std::string& text, DateValue date) {
  const DayAndSecond moment = splitDateValue(date);
  const CalendarDate day = calendarDateOf(moment.day);
  std::array<char, 48> buffer;
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02dT%02d:%02d:%02d", day.year, day.month,
                    day.day, moment.second / 3600, moment.second / 60 % 60, moment.second % 60);
  text.append(buffer.data(), static_cast<std::size_t>(length));
}

/// `text` from `start` on with a sign in place of each control character.
void replaceControls(std::string& text, std::size_t start, char sign) {
  std::replace_if(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isControl, sign);
}

/// The same for the controls above ASCII and for bytes that are no UTF-8.
void replaceHighControls(std::string& text, std::size_t start) {
  const auto isHigh = [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; };
  if (std::none_of(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isHigh)) return;
  std::string harmless;
  for (std::size_t at = start; at < text.size();) {
    const std::string_view rest = std::string_view(text).substr(at);
    const std::size_t length = isHigh(rest[0]) ? characterLength(rest) : 1;
    const std::string_view character = rest.substr(0, std::max<std::size_t>(length, 1));
    harmless += length == 0 || isHighControl(character) ? std::string_view("?") : character;
    at += character.size();
  }
  text.replace(start, std::string::npos, harmless);
}

void addCsvText(std::string& text, std::string_view value) {
  if (value.find_first_of(",\"\n\r") == std::string_view::npos) {
    text += value;
    return;
  }
  text += '"';
  for (const char byte : value) {
    if (byte == '"') text += '"';
    text += byte;
  }
  text += '"';
}

QString plainMebibytes(std::int64_t bytes, const QLocale& locale) {
  const std::uint64_t magnitude =
      bytes < 0 ? 0 - static_cast<std::uint64_t>(bytes) : static_cast<std::uint64_t>(bytes);
  const std::uint64_t hundredths = (magnitude >> 20) * 100 + (((magnitude & 0xFFFFF) * 100 + 0x80000) >> 20);
  const QString part = QString::number(hundredths % 100).rightJustified(2, u'0');
  return (bytes < 0 && hundredths > 0 ? QStringLiteral("-") : QString()) +
         withLocaleDigits(QString::number(hundredths / 100), locale) + locale.decimalPoint() +
         withLocaleDigits(part, locale) + QStringLiteral("mb");
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
  for (const QString& name : hitFieldNames()) all.push_back(*hitFieldNamed(name));
  return all;
}

void addEscaped(std::string& text, unsigned number) {
  std::array<char, 8> buffer;
  std::snprintf(buffer.data(), buffer.size(), "\\u%04x", number);
  text += buffer.data();
}

void addPlainJsonString(std::string& text, std::string_view value) {
  text += '"';
  for (std::size_t at = 0; at < value.size();) {
    const char byte = value[at];
    if (static_cast<unsigned char>(byte) < 0x80) {
      if (byte == '"' || byte == '\\') text += '\\';
      if (isControl(byte)) {
        addEscaped(text, static_cast<unsigned char>(byte));
      } else {
        text += byte;
      }
      ++at;
      continue;
    }
    const std::size_t length = characterLength(value.substr(at));
    const std::string_view character = value.substr(at, std::max<std::size_t>(length, 1));
    if (length == 0) {
      text += "\\ufffd";
    } else if (isHighControl(character)) {
      addEscaped(text, static_cast<unsigned char>(character[1]));
    } else {
      text += character;
    }
    at += character.size();
  }
  text += '"';
}

std::string lowerCase(std::string_view text) {
  return utf8Of(simpleLowerCase(textOfUtf8(text)));
}

}  // namespace

bool addQuickly(HitRows& rows, const PlainHit& hit, std::string& text, bool entersFolder) {
  const std::string folder = lowerCase(hit.folder);
  const std::string name = lowerCase(hit.name);
  if (entersFolder) rows.enterFolder({hit.kind, hit.volume, hit.folder, folder, hit.listing});
  return rows.add(text, {hit.match, hit.name, name, hit.values, hit.areInherited});
}

PlainHitRows::PlainHitRows(RowOptions options, const QLocale& locale, const SearchQuery& query,
                           const ProgramState& state)
    : options_(std::move(options)),
      locale_(locale),
      query_(query),
      places_(query_),
      state_(state),
      paths_(state),
      looksForPaths_(std::ranges::count(options_.fields, HitField::Path) > 0) {
  options_.fields = columnsOf(options_);
}

bool PlainHitRows::add(std::string& text, const PlainHit& hit) {
  if (options_.format == RowFormat::Json) {
    addObject(text, hit);
  } else if (!addRow(text, hit)) {
    return false;
  }
  text += options_.endsWithNul ? '\0' : '\n';
  return true;
}

bool PlainHitRows::addRow(std::string& text, const PlainHit& hit) {
  const std::size_t start = text.size();
  for (std::size_t column = 0; column < options_.fields.size(); ++column) {
    if (column > 0) text += options_.format == RowFormat::Tsv ? '\t' : ',';
    addCell(text, options_.fields[column], hit);
  }
  const bool isPathAlone = options_.fields.size() == 1 && options_.fields.front() == HitField::Path;
  return !isPathAlone || text.size() > start;
}

void PlainHitRows::addCell(std::string& text, HitField field, const PlainHit& hit) {
  const EntryValues values = hit.values.value_or(EntryValues());
  switch (field) {
    case HitField::Match:
      return addNumber(text, hit.match);
    case HitField::Volume:
      return addText(text, hit.volume);
    case HitField::Folder:
      return addMarked(text, hit.folder);
    case HitField::Name:
      return addMarked(text, hit.name);
    case HitField::Path:
      return addMarked(text, utf8Of(pathOf(hit).value_or(QString())));
    case HitField::Size:
      if (hit.values) addNumber(text, values.size);
      return;
    case HitField::Modified:
      if (hit.values) addMoment(text, values.date);
      return;
    case HitField::Listing:
      return addText(text, hit.listing);
    case HitField::Words:
      return addText(text, utf8Of(wordsIn(hit).join(u' ')));
    case HitField::ShownMatch:
      return addText(text, utf8Of(matchText(hit.match)));
    case HitField::ShownSize:
      return addText(text, utf8Of(plainMebibytes(values.size, locale_)));
    case HitField::ShownDate:
      return addText(text, utf8Of(shortMonthDateText(values.date, locale_)));
  }
}

void PlainHitRows::addText(std::string& text, std::string_view value) const {
  const std::size_t start = text.size();
  if (options_.format == RowFormat::Csv) {
    addCsvText(text, value);
    if (options_.isForTerminal) replaceControls(text, start, '?');
  } else {
    text += value;
    const bool isLeft = options_.endsWithNul && options_.fields.size() == 1 && !options_.isForTerminal;
    if (!isLeft) replaceControls(text, start, ' ');
  }
  if (options_.isForTerminal) replaceHighControls(text, start);
}

void PlainHitRows::addMarked(std::string& text, std::string_view value) const {
  if (!options_.isColoured) return addText(text, value);
  const QString whole = textOfUtf8(value);
  qsizetype done = 0;
  for (const TextRange& range : places_.in(whole)) {
    addText(text, utf8Of(whole.mid(done, range.start - done)));
    text += kMarkStart;
    addText(text, utf8Of(whole.mid(range.start, range.length)));
    text += kMarkEnd;
    done = range.start + range.length;
  }
  addText(text, utf8Of(whole.mid(done)));
}

void PlainHitRows::addObject(std::string& text, const PlainHit& hit) {
  text += '{';
  for (const HitField field : options_.fields) addMember(text, field, hit);
  if (hit.areInherited) text += "\"inherited\":true,";
  if (text.back() == ',') text.pop_back();
  text += '}';
}

/// With a comma behind it; nothing for what is not known.
void PlainHitRows::addMember(std::string& text, HitField field, const PlainHit& hit) {
  std::optional<QString> path;
  if (field == HitField::Path && !(path = pathOf(hit))) return;
  if ((field == HitField::Size || field == HitField::Modified) && !hit.values) return;
  text += '"';
  text += nameOf(field);
  text += "\":";
  switch (field) {
    case HitField::Volume:
      addPlainJsonString(text, hit.volume);
      break;
    case HitField::Folder:
      addPlainJsonString(text, hit.folder);
      break;
    case HitField::Name:
      addPlainJsonString(text, hit.name);
      break;
    case HitField::Path:
      addPlainJsonString(text, utf8Of(*path));
      break;
    case HitField::Listing:
      addPlainJsonString(text, hit.listing);
      break;
    case HitField::Modified:
      text += '"';
      addMoment(text, hit.values->date);
      text += '"';
      break;
    case HitField::Words:
      text += '[';
      for (const QString& word : wordsIn(hit)) {
        if (text.back() != '[') text += ',';
        addPlainJsonString(text, utf8Of(word));
      }
      text += ']';
      break;
    case HitField::Match:
    case HitField::Size:
    case HitField::ShownMatch:
    case HitField::ShownSize:
    case HitField::ShownDate:
      addCell(text, field, hit);
      break;
  }
  text += ',';
}

QStringList PlainHitRows::wordsIn(const PlainHit& hit) const {
  const QString folder = simpleLowerCase(textOfUtf8(hit.folder));
  const QString name = simpleLowerCase(textOfUtf8(hit.name));
  QStringList found;
  for (const SearchQuery::Word& word : query_.words()) {
    const QString text = textOfUtf8(word.bytes);
    if (folder.contains(text) || name.contains(text)) found += text;
  }
  return found;
}

/// Nothing where the hit is from no own folder, or its name in the listing is not the whole name and there is
/// no such file now.
std::optional<QString> PlainHitRows::pathOf(const PlainHit& hit) {
  if (hit.kind != SourceKind::Online) return std::nullopt;
  const QString folder = ownFolderOf(hit);
  if (folder.isEmpty()) return std::nullopt;
  const bool isOpen = mayDiffer(hit.name);
  if (isOpen || looksForPaths_) {
    HitRow row{hit.match, hit.kind, textOfUtf8(hit.volume), textOfUtf8(hit.folder), textOfUtf8(hit.name)};
    const HitPath file = paths_.of(row);
    if (!file.isEmpty()) return file.fullPath();
  }
  if (isOpen) return std::nullopt;
  return folder + textOfUtf8(hit.name);
}

QString PlainHitRows::ownFolderOf(const PlainHit& hit) const {
  HitRow row;
  row.volume = textOfUtf8(hit.volume);
  row.folder = textOfUtf8(hit.folder);
  try {
    return folderOfHit(state_, row, nativePathStyle()).value_or(QString());
  } catch (const RuntimeFault&) {
    return {};
  }
}

std::int16_t PlainHitRows::matchOf(const PlainHit& hit) const {
  return query_.match(places_.found(textOfUtf8(hit.folder), textOfUtf8(hit.name)));
}

}  // namespace quorvin::test
