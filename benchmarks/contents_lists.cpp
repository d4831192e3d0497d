// SPDX-License-Identifier: GPL-2.0-or-later
#include "contents_lists.h"

#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <stdexcept>

namespace quorvin {
namespace {

// A list may be compressed in any of the ways that apt knows; apt's own helper undoes them all.
const QString kAptHelper = QStringLiteral("/usr/lib/apt/apt-helper");

[[noreturn]] void throwFailure(const QProcess& process) {
  throw std::runtime_error((process.program() + QStringLiteral(": ") + process.errorString()).toStdString());
}

void waitForSuccess(QProcess& process) {
  if (!process.waitForFinished(-1) && process.error() != QProcess::UnknownError) throwFailure(process);
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    throw std::runtime_error((process.program() + QStringLiteral(" failed: ") + said).toStdString());
  }
}

// "bookworm-updates", "main" and "amd64" give "DEBIAN-UPDATES-AMD64".
std::string volumeLabel(const QString& codename, const QString& component, const QString& architecture) {
  QStringList parts{QStringLiteral("DEBIAN")};
  const auto hyphen = codename.indexOf(u'-');
  if (hyphen >= 0) parts << codename.mid(hyphen + 1);
  if (component != u"main") parts << component;
  parts << architecture;
  return parts.join(u'-').toUpper().toStdString();
}

// A line is the path, blanks or tabs, and the packages, which hold no blank; the path may hold some.
std::string_view pathOfLine(std::string_view line) {
  const auto packages = line.find_last_of(" \t");
  if (packages == std::string_view::npos) return {};
  const auto pathEnd = line.find_last_not_of(" \t", packages);
  return pathEnd == std::string_view::npos ? std::string_view{} : line.substr(0, pathEnd + 1);
}

}  // namespace

std::vector<ContentsList> fetchedContentsLists() {
  QProcess apt;
  apt.start(QStringLiteral("apt-get"),
            {QStringLiteral("indextargets"), QStringLiteral("--format"),
             QStringLiteral("$(CODENAME)|$(COMPONENT)|$(ARCHITECTURE)|$(FILENAME)"),
             QStringLiteral("Created-By: Contents-deb")},
            QIODevice::ReadOnly);
  waitForSuccess(apt);

  std::vector<ContentsList> lists;
  const QString answer = QString::fromLocal8Bit(apt.readAllStandardOutput());
  for (const QString& line : answer.split(u'\n', Qt::SkipEmptyParts)) {
    const QStringList fields = line.split(u'|');
    if (fields.size() != 4) throw std::runtime_error("apt-get answered with a line of an unknown form");
    lists.push_back({fields[3], volumeLabel(fields[0], fields[1], fields[2])});
  }
  std::sort(lists.begin(), lists.end(), [](const ContentsList& a, const ContentsList& b) {
    return a.volume != b.volume ? a.volume < b.volume : a.path < b.path;
  });
  return lists;
}

void readContentsList(const ContentsList& list, const std::function<void(std::string_view)>& take) {
  QProcess helper;
  helper.start(kAptHelper, {QStringLiteral("cat-file"), list.path}, QIODevice::ReadOnly);
  if (!helper.waitForStarted(-1)) throwFailure(helper);

  std::string pending;
  while (helper.waitForReadyRead(-1) || helper.bytesAvailable() > 0) {
    const QByteArray chunk = helper.readAllStandardOutput();
    pending.append(chunk.constData(), static_cast<std::size_t>(chunk.size()));

    std::string_view rest = pending;
    for (auto end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
      const std::string_view path = pathOfLine(rest.substr(0, end));
      if (!path.empty()) take(path);
      rest.remove_prefix(end + 1);
    }
    pending.erase(0, pending.size() - rest.size());
  }
  waitForSuccess(helper);
  if (!pending.empty()) throw std::runtime_error(list.path.toStdString() + " ends in the middle of a line");
}

}  // namespace quorvin
