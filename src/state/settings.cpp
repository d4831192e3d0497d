#include "state/settings.h"

#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "platform/ini_settings_store.h"
#include "platform/standard_folders.h"
#include "state/source_list_file.h"
#include "state/text_line_reader.h"

#include <QDateTime>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quorvin {

namespace {

struct PlacementName {
  PlacementKey key;
  QString name;
};

std::array<PlacementName, 4> placementNames() {
  return {{{PlacementKey::Top, QStringLiteral("Top")},
           {PlacementKey::Left, QStringLiteral("Left")},
           {PlacementKey::Width, QStringLiteral("Width")},
           {PlacementKey::Height, QStringLiteral("Height")}}};
}

RuntimeFault unreadable(const QString& kind, const QString& text) {
  return {FaultNumber::TypeMismatch,
          describe(FaultNumber::TypeMismatch) + QStringLiteral(": \"%1\" is not a %2").arg(text, kind)};
}

bool beginsWithNumber(QStringView text) {
  while (text.startsWith(u' ')) text = text.mid(1);
  if (text.startsWith(u'-') || text.startsWith(u'+')) text = text.mid(1);
  if (text.startsWith(u'.')) text = text.mid(1);
  return !text.isEmpty() && text[0] >= u'0' && text[0] <= u'9';
}

QString readSetting(const SettingsStore& store, const ProgramState& state, const QString& key,
                    const QString& fallback) {
  return store.read(state.RegKey, QString::fromUtf16(kSettingsSection), key, fallback);
}

}  // namespace

QString placementText(float twips) {
  // Room for the longest single-precision number without an exponent.
  std::array<char, 128> digits;
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), twips, std::chars_format::fixed);
  return QString::fromLatin1(digits.data(), written.ptr - digits.data());
}

float placementValue(const QString& text) {
  if (!beginsWithNumber(text)) throw unreadable(QStringLiteral("number"), text);
  const double value = leadingNumber(text);
  if (std::abs(value) <= std::numeric_limits<float>::max()) return static_cast<float>(value);
  throw RuntimeFault(FaultNumber::Overflow, describe(FaultNumber::Overflow) + QStringLiteral(": ") + text);
}

void readPlacement(const SettingsStore& store, const ProgramState& state, WindowPlacement& window) {
  for (const auto& [key, name] : placementNames()) {
    const QString current = placementText(window.placement(key));
    window.setPlacement(key, placementValue(readSetting(store, state, name, current)));
  }
}

void readSettings(const SettingsStore& store, ProgramState& state, DateValue now, const QLocale& locale) {
  const auto restore = [&](QString& setting, const QString& key) {
    setting = readSetting(store, state, key, setting);
  };
  restore(state.LocalFolder, QStringLiteral("LocalFolder"));
  restore(state.TextFile, QStringLiteral("TextFile"));
  restore(state.ArchiveFile, QStringLiteral("ArchiveFile"));
  restore(state.WebServer, QStringLiteral("WebServer"));

  const QString joined = readSetting(store, state, QStringLiteral("JoinDate"), generalDateText(now, locale));
  const std::optional<DateValue> joinDate = readGeneralDate(joined, locale);
  if (!joinDate) throw unreadable(QStringLiteral("date"), joined);
  state.JoinDate = *joinDate;

  state.NickName = readSetting(store, state, QStringLiteral("NickName"), QString());
  state.settingsRead = true;
}

void writeSettings(SettingsStore& store, const ProgramState& state, const QLocale& locale) {
  const auto keep = [&](const QString& key, const QString& value) {
    if (value.isEmpty() && !state.settingsRead) return;
    store.write(state.RegKey, QString::fromUtf16(kSettingsSection), key, value);
  };
  keep(QStringLiteral("LocalFolder"), state.LocalFolder);
  keep(QStringLiteral("TextFile"), state.TextFile);
  keep(QStringLiteral("ArchiveFile"), state.ArchiveFile);
  keep(QStringLiteral("WebServer"), state.WebServer);
  const bool joinDateKnown = state.settingsRead || state.JoinDate != 0;
  keep(QStringLiteral("JoinDate"), joinDateKnown ? generalDateText(state.JoinDate, locale) : QString());
  keep(QStringLiteral("NickName"), state.NickName);
}

void writePlacement(SettingsStore& store, const ProgramState& state, const WindowPlacement& window) {
  for (const auto& [key, name] : placementNames()) {
    store.write(state.RegKey, QString::fromUtf16(kSettingsSection), name,
                placementText(window.placement(key)));
  }
}

void loadSourceLists(ProgramState& state, const std::function<QString()>& programFolder) {
  if (state.LocalFolder.isEmpty()) state.LocalFolder = programFolder();
  const QString online = state.LocalFolder + state.LocFile;
  if (ordinaryFileExists(online)) loadSourceList(online, state.OnlineSources, state.OnlineSourceCount);
  state.onlineListRead = online;
  const QString offline = state.LocalFolder + state.OffLineFile;
  if (ordinaryFileExists(offline)) loadSourceList(offline, state.OfflineSources, state.OfflineSourceCount);
  state.offlineListRead = offline;
}

void loadUserSources(ProgramState& state, const QLocale& locale) {
  state.resetFileNames();
  readDefaultsFile(state);
  const IniSettingsStore store(userSettingsPath());
  readSettings(store, state, dateValueOf(QDateTime::currentDateTime()), locale);
  loadSourceLists(state, programFolder);
}

bool isValidDataFolder(const QString& folder) {
  return ordinaryFileExists(folder + QStringLiteral("*.*"));
}

void readDefaultsFile(const QString& path, ProgramState& state) {
  TextLineReader lines(path);
  for (QString* setting : {&state.LocalFolder, &state.TextFile, &state.ArchiveFile, &state.WebServer}) {
    const std::optional<TextLine> line = lines.next();
    if (!line) {
      throw RuntimeFault(FaultNumber::InputPastEnd,
                         describe(FaultNumber::InputPastEnd) + QStringLiteral(": ") + path);
    }
    *setting = line->text;
  }
}

void readDefaultsFile(ProgramState& state) {
  const QString path = QString::fromUtf16(kDefaultsFileName);
  if (ordinaryFileExists(path)) readDefaultsFile(path, state);
}

}  // namespace quorvin
