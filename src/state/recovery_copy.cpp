// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/recovery_copy.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "state/settings.h"
#include "state/source_list_file.h"
#include "texts/texts.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

const QLatin1String kOnline("online");
const QLatin1String kOffline("offline");
const QLatin1String kSettings("settings");

using Records = std::vector<std::pair<QString, QString>>;

Records recordsOf(const SourceTable& table, int count) {
  Records records;
  for (int row = 1; row <= count; ++row) records.emplace_back(table.description(row), table.path(row));
  return records;
}

QJsonArray arrayOf(const Records& records) {
  QJsonArray array;
  for (const auto& [description, path] : records) array.append(QJsonArray{description, path});
  return array;
}

/// Nothing for what is no list, or one that no table can hold.
std::optional<Records> recordsIn(const QJsonValue& value) {
  const QJsonArray array = value.toArray();
  if (!value.isArray() || array.size() > SourceTable::kLastRow) return std::nullopt;
  Records records;
  for (const QJsonValue& record : array) records.emplace_back(record[0].toString(), record[1].toString());
  return records;
}

void fill(const Records& records, SourceTable& table, int& count) {
  count = 0;
  for (const auto& [description, path] : records) table.set(++count, description, path);
}

/// What a copy holds that the state does not.
struct Difference {
  std::optional<Records> online;
  std::optional<Records> offline;
  std::vector<Setting> settings;

  bool isEmpty() const { return !online && !offline && settings.empty(); }
};

Difference differenceOf(const QByteArray& copy, const ProgramState& state, const QLocale& locale) {
  const QJsonObject kept = QJsonDocument::fromJson(copy).object();
  Difference difference{recordsIn(kept[kOnline]), recordsIn(kept[kOffline]), {}};
  if (difference.online == recordsOf(state.OnlineSources, state.OnlineSourceCount)) difference.online.reset();
  if (difference.offline == recordsOf(state.OfflineSources, state.OfflineSourceCount)) {
    difference.offline.reset();
  }
  const QJsonObject settings = kept[kSettings].toObject();
  for (const auto& [key, text] : settingTexts(state, locale)) {
    const QJsonValue value = settings[key];
    if (value.isString() && value.toString() != text) difference.settings.push_back({key, value.toString()});
  }
  return difference;
}

QString question(const Difference& difference, const QString& time) {
  QString text =
      Texts::tr("An earlier run ended without saving these changes, the last of them on %1:").arg(time) +
      QStringLiteral("\r\n");
  const auto addCount = [&](const QString& what, const std::optional<Records>& records) {
    if (records) text += QStringLiteral("\r\n%1: %2").arg(what).arg(records->size());
  };
  addCount(Texts::tr("Local folders in the search list"), difference.online);
  addCount(Texts::tr("Offline list files"), difference.offline);
  for (const auto& [key, value] : difference.settings) text += QStringLiteral("\r\n%1: %2").arg(key, value);
  return text + QStringLiteral("\r\n\r\n") + Texts::tr("Do you want to have them back? No removes them.");
}

void takeOver(const Difference& difference, ProgramState& state, const QLocale& locale) {
  if (difference.online) fill(*difference.online, state.OnlineSources, state.OnlineSourceCount);
  if (difference.offline) fill(*difference.offline, state.OfflineSources, state.OfflineSourceCount);
  for (const Setting& setting : difference.settings) takeSetting(state, setting, locale);
}

}  // namespace

RecoveryCopy::RecoveryCopy(ProgramState& state, const QLocale& locale, const QString& settingsPath)
    : state_(state), locale_(locale), settingsPath_(settingsPath) {}

/// The set's name may be a path, which is no part of a file's name.
QString RecoveryCopy::path() const {
  constexpr qsizetype kEnoughDigits = 16;
  const QByteArray digest = QCryptographicHash::hash(state_.RegKey.toUtf8(), QCryptographicHash::Sha256);
  return settingsPath_ + QStringLiteral(".recovery-") +
         QString::fromLatin1(digest.toHex().left(kEnoughDigits));
}

void RecoveryCopy::offer(MessageBoxes& messages) {
  if (QFileInfo::exists(path()) && !isAnothers()) takeOverIfWanted(messages);
  // Over the question: the next start asks again.
  if (isClosed_) return;
  isReady_ = true;
  keep();
}

void RecoveryCopy::takeOverIfWanted(MessageBoxes& messages) {
  try {
    const QString time = locale_.toString(QFileInfo(path()).lastModified(), QLocale::ShortFormat);
    const Difference difference = differenceOf(contentOfFile(path()), state_, locale_);
    const bool isWanted = !difference.isEmpty() && messages.askYesNo(question(difference, time));
    if (isWanted) takeOver(difference, state_, locale_);
  } catch (const RuntimeFault&) {
    // One that cannot be read helps nobody.
  }
}

void RecoveryCopy::keep() {
  if (!isReady_ || isAnothers()) return;
  const QByteArray text = changes();
  if (text == kept_ && QFileInfo::exists(path()) == !text.isEmpty()) return;
  try {
    text.isEmpty() ? remove() : write(text);
    kept_ = text;
  } catch (const RuntimeFault&) {
    // See the header.
  }
}

void RecoveryCopy::close(bool isSaved) {
  isClosed_ = true;
  if (!isSaved) {
    keep();
  } else if (isReady_ && !isAnothers()) {
    remove();
  }
  isReady_ = false;
}

bool RecoveryCopy::isAnothers() const {
  return !file_ && QFileInfo::exists(path()) && isHeld(path());
}

QByteArray RecoveryCopy::changes() const {
  QJsonObject changes;
  if (onlineSourcesAreChanged(state_)) {
    changes[kOnline] = arrayOf(recordsOf(state_.OnlineSources, state_.OnlineSourceCount));
  }
  if (offlineSourcesAreChanged(state_)) {
    changes[kOffline] = arrayOf(recordsOf(state_.OfflineSources, state_.OfflineSourceCount));
  }
  QJsonObject settings;
  for (const Setting& setting : settingTexts(state_, locale_)) {
    if (isSettingChanged(state_, setting)) settings[setting.key] = setting.text;
  }
  if (!settings.isEmpty()) changes[kSettings] = settings;
  return changes.isEmpty() ? QByteArray() : QJsonDocument(changes).toJson();
}

void RecoveryCopy::write(const QByteArray& text) {
  QDir().mkpath(QFileInfo(settingsPath_).path());
  auto file = std::make_unique<FileAside>(path());
  file->write({text.data(), static_cast<std::size_t>(text.size())});
  file->commit();
  file_ = std::move(file);
}

void RecoveryCopy::remove() {
  QFile::remove(path());
  file_.reset();
}

}  // namespace quorvin
