#include "platform/ini_settings_store.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lock.h"
#include "platform/ini_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <optional>

namespace quorvin {

namespace {

// Long enough for any other program to finish its own write.
constexpr int kLockWaitMilliseconds = 5000;

QString encoded(const QString& name) {
  return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

// The application's name may be a path; encoded, its slashes are not the one before the section.
QString groupOf(const QString& application, const QString& section) {
  return encoded(application) + u'/' + encoded(section);
}

RuntimeFault accessFault(const QString& path) {
  return {FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path};
}

// Nothing when the file is there but cannot be read.
std::optional<IniText> load(const QString& path) {
  QFile file(path);
  if (!file.exists()) return IniText();
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray text = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return IniText(text);
}

}  // namespace

IniSettingsStore::IniSettingsStore(const QString& path) : path_(path) {}

QString IniSettingsStore::read(const QString& application, const QString& section, const QString& key,
                               const QString& fallback) const {
  const std::optional<IniText> ini = load(path_);
  if (!ini) return fallback;
  return ini->value(groupOf(application, section), encoded(key)).value_or(fallback);
}

void IniSettingsStore::write(const QString& application, const QString& section, const QString& key,
                             const QString& value) {
  if (!QDir().mkpath(QFileInfo(path_).path())) throw accessFault(path_);
  const FileLock lock(path_, kLockWaitMilliseconds);
  // A file that cannot be read is not replaced: it may hold all that the user has set.
  std::optional<IniText> ini = load(path_);
  if (!ini) throw accessFault(path_);
  removeLeftovers(QFileInfo(path_).path());
  ini->setValue(groupOf(application, section), encoded(key), value);
  replaceFile(path_, ini->text());
}

QString userSettingsPath() {
  const QString chosen = qEnvironmentVariable("QUORVIN_SETTINGS");
  if (!chosen.isEmpty()) return chosen;
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/quorvin/settings.ini");
}

}  // namespace quorvin
