#include "editors/source_entry.h"

#include <algorithm>
#include <string_view>

namespace quorvin {

namespace {

constexpr int kShortestPath = 3;
constexpr std::u16string_view kNotInDescriptions = u":|*?\\/";

bool isAllowedInDescriptions(QChar character) {
  return kNotInDescriptions.find(character.unicode()) == std::u16string_view::npos;
}

}  // namespace

std::optional<QString> whyNotAdded(const SourceEntry& entry) {
  if (entry.path.size() < kShortestPath) {
    return QStringLiteral("The Path must be at lease 3 characters long. (ex: C:\\)");
  }
  const QString& description = entry.description;
  if (description.isEmpty() ||
      !std::all_of(description.begin(), description.end(), isAllowedInDescriptions)) {
    return QStringLiteral("Description must not be left blank or contain the characters /?\\:|*");
  }
  return std::nullopt;
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
    return QStringLiteral(
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

}  // namespace quorvin
