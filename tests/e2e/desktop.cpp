// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/desktop.h"

#include <QDeadlineTimer>
#include <QThread>

#include <stdexcept>

namespace quorvin::test {

namespace {

// How long nothing at all may happen; it only ends a test that hangs.
constexpr int kLongestStandstill = 180'000;
constexpr int kBetweenLooksMilliseconds = 20;
constexpr int kBetweenKeysMilliseconds = 4;

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

}  // namespace

void waitUntil(const QString& what, const std::function<bool()>& condition,
               const std::function<QString()>& instead, const std::function<qint64()>& progress) {
  QDeadlineTimer deadline(kLongestStandstill);
  qint64 seen = 0;
  while (!condition()) {
    if (const qint64 now = progress ? progress() : 0; now != seen) {
      seen = now;
      deadline.setRemainingTime(kLongestStandstill);
    }
    if (deadline.hasExpired()) {
      fail(QStringLiteral("waited in vain ") + what +
           (instead ? QStringLiteral("; instead: ") + instead() : QString()));
    }
    QThread::msleep(kBetweenLooksMilliseconds);
  }
}

Desktop::Desktop() : environment_(QProcessEnvironment::systemEnvironment()) {
  for (const char* name : {"WAYLAND_DISPLAY", "XAUTHORITY", "XDG_CURRENT_DESKTOP", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR", "DBUS_SESSION_BUS_ADDRESS"}) {
    environment_.remove(QString::fromLatin1(name));
  }
  environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  environment_.insert(QStringLiteral("DISPLAY"), screen_.display());
  startWindowManager();
}

Desktop::~Desktop() {
  windowManager_.kill();
  windowManager_.waitForFinished();
}

void Desktop::startWindowManager() {
  endWithTest(windowManager_);
  windowManager_.setProcessEnvironment(environment_);
  windowManager_.setStandardOutputFile(QProcess::nullDevice());
  windowManager_.setStandardErrorFile(QProcess::nullDevice());
  windowManager_.start(QStringLiteral(QUORVIN_OPENBOX), {QStringLiteral("--sm-disable")});
  waitUntil(QStringLiteral("for a window manager"), [this] {
    return run(QStringLiteral(QUORVIN_XDOTOOL), {QStringLiteral("get_num_desktops")}).isGood;
  });
}

Desktop::Answer Desktop::run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  endWithTest(process);
  process.setProcessEnvironment(environment_);
  process.start(program, arguments);
  if (!process.waitForFinished(kLongestStandstill)) fail(program + QStringLiteral(" does not end"));
  return {process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
          QString::fromUtf8(process.readAllStandardOutput())};
}

QString Desktop::control(const QStringList& arguments) const {
  const Answer answer = run(QStringLiteral(QUORVIN_XDOTOOL), arguments);
  if (!answer.isGood) fail(QStringLiteral("xdotool failed: ") + arguments.join(u' '));
  return answer.output.trimmed();
}

void Desktop::press(const QStringList& keys) const {
  control(QStringList{QStringLiteral("key"), QStringLiteral("--delay"),
                      QString::number(kBetweenKeysMilliseconds)} +
          keys);
}

void Desktop::type(const QString& text) const {
  control(
      {QStringLiteral("type"), QStringLiteral("--delay"), QString::number(kBetweenKeysMilliseconds), text});
}

void Desktop::click(QPoint place, const QString& heldKey) const {
  QStringList does = {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
  if (!heldKey.isEmpty()) does += {QStringLiteral("keydown"), heldKey};
  does += {QStringLiteral("click"), QStringLiteral("1")};
  if (!heldKey.isEmpty()) does += {QStringLiteral("keyup"), heldKey};
  control(does);
}

void Desktop::drag(QPoint from, QPoint to) const {
  const auto moveTo = [this](QPoint place) {
    control({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
  };
  moveTo(from);
  control({QStringLiteral("mousedown"), QStringLiteral("1")});
  constexpr int kSteps = 10;
  for (int step = 1; step <= kSteps; ++step) moveTo(from + (to - from) * step / kSteps);
  control({QStringLiteral("mouseup"), QStringLiteral("1")});
}

QString Desktop::activeWindow() const {
  const Answer answer = run(QStringLiteral(QUORVIN_XDOTOOL), {QStringLiteral("getactivewindow")});
  return answer.isGood ? answer.output.trimmed() : QString();
}

void Desktop::activate(const QString& window) const {
  control({QStringLiteral("windowactivate"), window});
}

/// Empty for a window that has just gone.
QString Desktop::titleOf(const QString& window) const {
  if (window.isEmpty()) return {};
  return run(QStringLiteral(QUORVIN_XDOTOOL), {QStringLiteral("getwindowname"), window}).output.trimmed();
}

QStringList Desktop::windowsOf(qint64 process, const QString& title) const {
  const Answer answer =
      run(QStringLiteral(QUORVIN_XDOTOOL),
          {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
           QStringLiteral("--pid"), QString::number(process), QStringLiteral("--name"),
           QStringLiteral("^%1$").arg(title)});
  return answer.output.split(u'\n', Qt::SkipEmptyParts);
}

qint64 Desktop::processOf(const QString& window) const {
  const Answer answer = run(QStringLiteral(QUORVIN_XDOTOOL), {QStringLiteral("getwindowpid"), window});
  return answer.isGood ? answer.output.trimmed().toLongLong() : 0;
}

QString Desktop::placeOf(const QString& window) const {
  QStringList lines =
      control({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window}).split(u'\n');
  lines.removeIf([](const QString& line) {
    return line.startsWith(QStringLiteral("WINDOW=")) || line.startsWith(QStringLiteral("SCREEN="));
  });
  return lines.join(u' ');
}

void Desktop::move(const QString& window, int x, int y) const {
  control({QStringLiteral("windowmove"), window, QString::number(x), QString::number(y)});
}

void Desktop::resize(const QString& window, int width, int height) const {
  control({QStringLiteral("windowsize"), window, QString::number(width), QString::number(height)});
}

QString Desktop::clipboardText() const {
  return run(QStringLiteral(QUORVIN_XCLIP),
             {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-o")})
      .output;
}

}  // namespace quorvin::test
