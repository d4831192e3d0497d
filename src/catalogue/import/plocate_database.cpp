// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/plocate_database.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "texts/texts.h"

#include <QByteArray>
#include <QStringList>

#include <array>
#include <string_view>
#include <utility>

namespace quorvin {

namespace {

constexpr std::string_view kMagic("\0plocate", 8);
constexpr int kMillisecondsBetweenLooks = 100;

}  // namespace

bool isPlocateDatabase(const QString& path) {
  try {
    SequentialFile file(path);
    std::array<char, kMagic.size()> start{};
    return file.read(start) == start.size() && std::string_view(start.data(), start.size()) == kMagic;
  } catch (const RuntimeFault&) {
    return false;
  }
}

PlocatePaths::PlocatePaths(const QString& database, std::function<bool()> stopRequested)
    : database_(database), stopRequested_(std::move(stopRequested)) {
  // Every path holds the empty text.
  plocate_.start(QStringLiteral("plocate"),
                 {QStringLiteral("--null"), QStringLiteral("--database"), database, QString()});
  if (plocate_.waitForStarted()) return;
  throw RuntimeFault(
      FaultNumber::FileNotFound,
      Texts::tr("%1 is a database of plocate, which has to be installed to read it").arg(database));
}

PlocatePaths::~PlocatePaths() {
  if (plocate_.state() == QProcess::NotRunning) return;
  plocate_.kill();
  plocate_.waitForFinished();
}

std::size_t PlocatePaths::read(std::span<char> buffer) {
  std::size_t size = 0;
  while (size < buffer.size()) {
    const qint64 count = plocate_.read(buffer.data() + size, static_cast<qint64>(buffer.size() - size));
    if (count > 0) size += static_cast<std::size_t>(count);
    if (count > 0 || plocate_.waitForReadyRead(kMillisecondsBetweenLooks)) continue;
    if (stopRequested_()) return size;
    if (plocate_.state() != QProcess::NotRunning || plocate_.bytesAvailable() > 0) continue;
    checkEnd();
    return size;
  }
  return size;
}

/// A database without any path ends with status 1, as a search that finds nothing, and without a word.
void PlocatePaths::checkEnd() {
  const QByteArray said = plocate_.readAllStandardError().trimmed();
  const bool isWell = plocate_.exitStatus() == QProcess::NormalExit && plocate_.exitCode() == 0;
  const bool isEmpty =
      plocate_.exitStatus() == QProcess::NormalExit && plocate_.exitCode() == 1 && said.isEmpty();
  if (isWell || isEmpty) return;
  throw RuntimeFault(
      FaultNumber::DeviceError,
      Texts::tr("plocate could not read %1: %2")
          .arg(database_, said.isEmpty() ? plocate_.errorString() : QString::fromLocal8Bit(said)));
}

}  // namespace quorvin
