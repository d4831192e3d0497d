// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/peer_load.h"

#include "peers/hostile_callers.h"
#include "peers/peer_caller.h"
#include "peers/peer_program.h"
#include "peers/server/peer_server.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <ctime>

namespace quorvin::test {

namespace {

constexpr qsizetype kLargeList = 50000000;
constexpr int kMillisecondsBetweenSamples = 50;

double busyMilliseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

std::int64_t residentBytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) throw std::runtime_error("no figures of this process");
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.simplified().split(' ').at(1).toLongLong() * 1024;
  }
  throw std::runtime_error("no figure of the memory of this process");
}

/// Notes gaps, memory and connections as long as it lives.
class LoadWatch {
 public:
  LoadWatch(const PeerServer& server, PeerLoadFigures& figures)
      : server_(server), figures_(figures), memoryBefore_(residentBytes()) {
    turn_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&turn_, &QTimer::timeout, &turn_, [this] { turn(); });
    QObject::connect(&sample_, &QTimer::timeout, &sample_, [this] { sample(); });
    clock_.start();
    busyBefore_ = busyMilliseconds();
    turn_.start(1);
    sample_.start(kMillisecondsBetweenSamples);
  }

 private:
  void turn() {
    const double busy = busyMilliseconds();
    figures_.longestGap = std::max(figures_.longestGap, static_cast<double>(clock_.nsecsElapsed()) / 1e6);
    figures_.longestBusyGap = std::max(figures_.longestBusyGap, busy - busyBefore_);
    figures_.mostConnections = std::max(figures_.mostConnections, server_.connectionCount());
    busyBefore_ = busy;
    clock_.start();
  }
  void sample() { figures_.memoryGrowth = std::max(figures_.memoryGrowth, residentBytes() - memoryBefore_); }

  const PeerServer& server_;
  PeerLoadFigures& figures_;
  std::int64_t memoryBefore_;
  QTimer turn_;
  QTimer sample_;
  QElapsedTimer clock_;
  double busyBefore_ = 0;
};

void take(const HostileCallers& callers, PeerLoadFigures& figures) {
  figures.begun = callers.begun();
  figures.connected = callers.connected();
  figures.received = callers.received();
}

/// Milliseconds until a usual caller had the small list; -1 when it never had.
double timeOfUsualCall(quint16 port, const QByteArray& expected) {
  QElapsedTimer clock;
  clock.start();
  QTcpSocket caller;
  QObject::connect(&caller, &QTcpSocket::connected, &caller, [&] { caller.write("GetList: small"); });
  caller.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
  const bool came = eventually([&] { return caller.bytesAvailable() >= expected.size(); });
  return came && caller.readAll() == expected ? static_cast<double>(clock.nsecsElapsed()) / 1e6 : -1;
}

}  // namespace

PeerLoadFigures runPeerLoad(const std::function<bool(const PeerLoadFigures& soFar)>& isEnough) {
  PeerProgram program;
  const QByteArray small = smallArchive();
  program.addSource(QStringLiteral("large"), QByteArray(kLargeList, 'x'));
  program.addSource(QStringLiteral("small"), small);
  PeerServer server(program.state, QLocale::c());
  if (!server.start(0)) throw std::runtime_error("no port could be opened");

  PeerLoadFigures figures;
  HostileCallers callers(server.port(), "large");
  {
    const LoadWatch watch(server, figures);
    const auto progress = [&callers] { return callers.received() + callers.connected(); };
    eventually(
        [&] {
          take(callers, figures);
          return isEnough(figures);
        },
        progress);
  }
  callers.stop();
  figures.serviceBack = timeOfUsualCall(server.port(), "List: small.zip" + small);
  take(callers, figures);
  return figures;
}

}  // namespace quorvin::test
