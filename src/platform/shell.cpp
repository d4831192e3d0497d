// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/shell.h"

#include <QProcess>

#include <array>

namespace quorvin {

namespace {

struct KnownPlayer {
  const char16_t* program;
  /// Parted by blanks; the file comes behind them.
  const char16_t* arguments;
};

constexpr std::array<KnownPlayer, 6> kKnownPlayers = {{
    {u"audacious", u"-e"},
    {u"vlc", u"--one-instance --playlist-enqueue"},
    {u"strawberry", u"--append"},
    {u"clementine", u"--append"},
    {u"deadbeef", u"--queue"},
    {u"rhythmbox-client", u"--enqueue"},
}};

constexpr char16_t kFilePlace[] = u"%f";

}  // namespace

PlayerCommand playerCommandOfSetting(const QString& setting, const QString& file) {
  QStringList arguments = QProcess::splitCommand(setting);
  if (arguments.isEmpty()) return {};
  const QString program = arguments.takeFirst();
  const QString place = QString::fromUtf16(kFilePlace);
  const bool hasPlace = !arguments.filter(place).isEmpty();
  arguments.replaceInStrings(place, file);
  if (!hasPlace) arguments.append(file);
  return {program, arguments};
}

PlayerCommand installedPlayerCommand(const QString& file,
                                     const std::function<QString(const QString& name)>& findProgram) {
  for (const KnownPlayer& player : kKnownPlayers) {
    const QString program = findProgram(QString::fromUtf16(player.program));
    if (program.isEmpty()) continue;
    return {program, QString::fromUtf16(player.arguments).split(u' ') << file};
  }
  return {};
}

}  // namespace quorvin
