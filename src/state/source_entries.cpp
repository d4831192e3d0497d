// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/source_entries.h"

#include "texts/texts.h"

#include <QDir>
#include <QSet>

#include <algorithm>
#include <string_view>

namespace quorvin {

namespace {

constexpr int kShortestPath = 3;
constexpr std::u16string_view kNotInDescriptions = u":|*?\\/";

bool isAllowedInDescriptions(QChar character) {
  return kNotInDescriptions.find(character.unicode()) == std::u16string_view::npos;
}

QString withoutEnd(const QString& path) {
  return QDir::cleanPath(path);
}

bool isAmong(const std::vector<SourceEntry>& entries, const QString& path) {
  return std::ranges::any_of(entries, [known = withoutEnd(path)](const SourceEntry& entry) {
    return withoutEnd(entry.path) == known;
  });
}

bool isTaken(const std::vector<SourceEntry>& entries, const QString& description) {
  return std::ranges::any_of(entries, [&description](const SourceEntry& entry) {
    return entry.description.compare(description, Qt::CaseInsensitive) == 0;
  });
}

/// Each folder needs a listing of its own.
QString freeDescription(const QString& folder, const std::vector<SourceEntry>& entries, PathStyle style) {
  QString name = descriptionOfFolder(folder, style).replace(u'"', u'\'');
  if (name.isEmpty()) name = QStringLiteral("Online");
  QString description = name;
  for (int number = 2; isTaken(entries, description); ++number) {
    description = name + u' ' + QString::number(number);
  }
  return description;
}

/// The sentence that says why the entry is not added; empty when it is.
QString addEntry(const SourceEntry& entry, std::vector<SourceEntry>& entries) {
  if (isAmong(entries, entry.path)) return Texts::tr("%1 is in the list already.").arg(entry.path);
  if (const auto refusal = whyNotAdded(entry)) return entry.path + QStringLiteral(": ") + *refusal;
  entries.push_back(entry);
  return {};
}

void addLine(QString& lines, const QString& line) {
  if (line.isEmpty()) return;
  if (!lines.isEmpty()) lines += QStringLiteral("\r\n");
  lines += line;
}

}  // namespace

std::optional<QString> whyNotAdded(const SourceEntry& entry) {
  if (entry.path.size() < kShortestPath) {
    return Texts::tr("The Path must be at lease 3 characters long. (ex: C:\\)");
  }
  const QString& description = entry.description;
  if (description.isEmpty() ||
      !std::all_of(description.begin(), description.end(), isAllowedInDescriptions)) {
    return Texts::tr("Description must not be left blank or contain the characters /?\\:|*");
  }
  if (entry.path.contains(u'"')) {
    return Texts::tr(
        "The Path must not contain a double quote, since a list of sources cannot keep one. Please give "
        "the folder another name, or use a link to it.");
  }
  return std::nullopt;
}

QString descriptionNotice(const std::vector<SourceEntry>& entries, const ProgramState& state) {
  QSet<QString> listings;
  for (const SourceEntry& entry : entries) {
    const QString listing = state.onlineListingPath(entry.description);
    if (state.isOwnFile(listing)) {
      return Texts::tr("\"%1\" is a file of the program; it needs another description.")
          .arg(entry.description);
    }
    if (listings.contains(listing)) {
      return Texts::tr("\"%1\" is there twice; both would share one listing.").arg(entry.description);
    }
    listings.insert(listing);
  }
  return {};
}

QString descriptionOfFolder(const QString& path, PathStyle style) {
  QString name = path;
  while (name.endsWith(style.separator)) name.chop(1);
  name = name.mid(std::max<qsizetype>(name.lastIndexOf(style.separator) + 1, style.drivePrefixLength));
  for (QChar& character : name) {
    if (!isAllowedInDescriptions(character)) character = u'_';
  }
  return name;
}

std::vector<SourceEntry> entriesOf(const SourceTable& table, int count) {
  std::vector<SourceEntry> entries;
  entries.reserve(static_cast<std::size_t>(count));
  for (int row = 1; row <= count; ++row) entries.push_back({table.description(row), table.path(row)});
  return entries;
}

std::optional<QString> storeEntries(const std::vector<SourceEntry>& entries, SourceTable& table, int& count) {
  // Looked at before the first row is touched, so that a list is never stored in part.
  if (entries.size() > static_cast<std::size_t>(SourceTable::kLastRow)) {
    return Texts::tr(
               "A list can hold %1 entries at most, and this one has %2.\r\n\r\n"
               "Nothing has been saved. Please delete entries and save again.")
        .arg(SourceTable::kLastRow)
        .arg(entries.size());
  }
  int row = 0;
  for (const SourceEntry& entry : entries) table.set(++row, entry.description, entry.path);
  count = row;
  return std::nullopt;
}

QString addFolders(const QStringList& folders, std::vector<SourceEntry>& entries, PathStyle style) {
  QString told;
  for (const QString& folder : folders) {
    addLine(told, addEntry({freeDescription(folder, entries, style), folder}, entries));
  }
  return told;
}

QString addListings(const QStringList& files, std::vector<SourceEntry>& entries) {
  QString told;
  for (const QString& file : files) addLine(told, addEntry({QStringLiteral("Offline"), file}, entries));
  return told;
}

}  // namespace quorvin
