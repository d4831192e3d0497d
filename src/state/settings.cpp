// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/settings.h"

#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "files/path_style.h"
#include "platform/ini_settings_store.h"
#include "platform/standard_folders.h"
#include "state/data_taken_along.h"
#include "state/source_list_file.h"
#include "state/text_line_reader.h"
#include "texts/texts.h"

#include <QDateTime>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kMaximizedKey[] = u"Maximized";

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

RuntimeFault unreadable(const QString& why) {
  return {FaultNumber::TypeMismatch, describe(FaultNumber::TypeMismatch) + QStringLiteral(": ") + why};
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

/// Whether what is stored of the window's place is not known and should stay: it is a number, or even now the
/// store cannot be read, which is no reason to keep anybody from leaving.
bool shouldStay(const SettingsStore& store, const ProgramState& state, const QString& name) {
  if (state.settingsRead.contains(name)) return false;
  try {
    placementValue(readSetting(store, state, name, {}));
    return true;
  } catch (const RuntimeFault& fault) {
    return fault.faultNumber() != FaultNumber::TypeMismatch && fault.faultNumber() != FaultNumber::Overflow;
  }
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
  if (!beginsWithNumber(text)) throw unreadable(Texts::tr("\"%1\" is not a number").arg(text));
  const double value = leadingNumber(text);
  if (std::abs(value) <= std::numeric_limits<float>::max()) return static_cast<float>(value);
  throw RuntimeFault(FaultNumber::Overflow, describe(FaultNumber::Overflow) + QStringLiteral(": ") + text);
}

void readPlacement(const SettingsStore& store, ProgramState& state, const PlacementOf& placement,
                   const SetPlacement& setPlacement) {
  for (const auto& [key, name] : placementNames()) {
    const QString current = placementText(placement(key));
    setPlacement(key, placementValue(readSetting(store, state, name, current)));
    state.settingsRead += name;
  }
}

void readSettings(const SettingsStore& store, ProgramState& state, DateValue now, const QLocale& locale) {
  const auto restore = [&](QString& setting, const QString& key) {
    setting = readSetting(store, state, key, setting);
    state.settingsRead += key;
  };
  restore(state.LocalFolder, QStringLiteral("LocalFolder"));
  restore(state.TextFile, QStringLiteral("TextFile"));
  restore(state.ArchiveFile, QStringLiteral("ArchiveFile"));
  restore(state.WebServer, QStringLiteral("WebServer"));

  const QString joined = readSetting(store, state, QStringLiteral("JoinDate"), generalDateText(now, locale));
  const std::optional<DateValue> joinDate = readGeneralDate(joined, locale);
  if (!joinDate) throw unreadable(Texts::tr("\"%1\" is not a date").arg(joined));
  state.JoinDate = *joinDate;
  state.settingsRead += QStringLiteral("JoinDate");

  state.NickName.clear();
  restore(state.NickName, QStringLiteral("NickName"));
}

std::vector<Setting> settingTexts(const ProgramState& state, const QLocale& locale) {
  // A date that is not known is no date.
  const bool isDateKnown = state.JoinDate != 0 || state.settingsRead.contains(QStringLiteral("JoinDate"));
  return {{QStringLiteral("LocalFolder"), state.LocalFolder},
          {QStringLiteral("TextFile"), state.TextFile},
          {QStringLiteral("ArchiveFile"), state.ArchiveFile},
          {QStringLiteral("WebServer"), state.WebServer},
          {QStringLiteral("JoinDate"), isDateKnown ? generalDateText(state.JoinDate, locale) : QString()},
          {QStringLiteral("NickName"), state.NickName}};
}

void takeSetting(ProgramState& state, const Setting& setting, const QLocale& locale) {
  if (setting.key == u"JoinDate") {
    state.JoinDate = readGeneralDate(setting.text, locale).value_or(state.JoinDate);
    return;
  }
  const std::pair<QString, QString&> texts[] = {{QStringLiteral("LocalFolder"), state.LocalFolder},
                                                {QStringLiteral("TextFile"), state.TextFile},
                                                {QStringLiteral("ArchiveFile"), state.ArchiveFile},
                                                {QStringLiteral("WebServer"), state.WebServer},
                                                {QStringLiteral("NickName"), state.NickName}};
  for (const auto& [key, text] : texts) {
    if (setting.key == key) text = setting.text;
  }
}

void completeLocalFolder(ProgramState& state, const std::function<QString()>& programFolder) {
  if (state.LocalFolder.isEmpty()) state.LocalFolder = programFolder();
  // A folder written as other systems do is not of this one, and is left alone.
  const bool isForeign = state.LocalFolder.endsWith(u'\\') && !state.LocalFolder.contains(u'/');
  if (!isForeign) state.LocalFolder = withTrailingSeparator(state.LocalFolder, nativePathStyle());
}

void noteSettingsAtStart(const SettingsStore& store, ProgramState& state, const QLocale& locale,
                         const std::function<QString()>& programFolder) {
  const QString folderKey = QStringLiteral("LocalFolder");
  try {
    if (state.LocalFolder.isEmpty() && !state.settingsRead.contains(folderKey)) {
      state.LocalFolder = readSetting(store, state, folderKey, {});
    }
  } catch (const RuntimeFault&) {
    // Start-up has reported that the store cannot be read.
  }
  try {
    completeLocalFolder(state, programFolder);
  } catch (const RuntimeFault&) {
    // Without any folder nothing can be saved, which is reported when it comes to that.
  }
  for (const auto& [key, text] : settingTexts(state, locale)) state.settingsAtStart[key] = text;
}

bool isSettingChanged(const ProgramState& state, const Setting& setting) {
  return setting.text != state.settingsAtStart.value(setting.key);
}

void writeSettings(SettingsStore& store, const ProgramState& state, const QLocale& locale) {
  const bool listingIsMissing = !state.missingListing.isEmpty() && state.TextFile == state.missingListing;
  for (const Setting& setting : settingTexts(state, locale)) {
    if (!state.settingsRead.contains(setting.key) && !isSettingChanged(state, setting)) continue;
    if (listingIsMissing && setting.key == u"TextFile") continue;
    store.write(state.RegKey, QString::fromUtf16(kSettingsSection), setting.key, setting.text);
  }
}

void writePlacement(SettingsStore& store, const ProgramState& state, const PlacementOf& placement) {
  for (const auto& [key, name] : placementNames()) {
    if (shouldStay(store, state, name)) continue;
    store.write(state.RegKey, QString::fromUtf16(kSettingsSection), name, placementText(placement(key)));
  }
}

QString readMaximized(const SettingsStore& store, const ProgramState& state) {
  return readSetting(store, state, QString::fromUtf16(kMaximizedKey), QString());
}

void writeMaximized(SettingsStore& store, const ProgramState& state, const QString& place) {
  // Where start-up did not come to the window's place, it did not come to this one either.
  if (!state.settingsRead.contains(placementNames().back().name)) return;
  if (readMaximized(store, state) == place) return;
  store.write(state.RegKey, QString::fromUtf16(kSettingsSection), QString::fromUtf16(kMaximizedKey), place);
}

void loadUserSources(ProgramState& state, const QLocale& locale, MessageBoxes& messages) {
  state.resetFileNames();
  IniSettingsStore store(userSettingsPath());
  takeAlongData(store, state.RegKey, usualProgramPlace(), messages);
  readDefaultsFile(state);
  readSettings(store, state, dateValueOf(QDateTime::currentDateTime()), locale);
  completeLocalFolder(state, programFolder);
  loadSourceLists(state);
}

bool isValidDataFolder(const QString& folder) {
  return !folder.isEmpty() && ordinaryFileExists(folder + QStringLiteral("*.*"));
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
