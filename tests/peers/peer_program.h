// SPDX-License-Identifier: GPL-2.0-or-later

// The parts of a program that the peer exchange works with, with a data folder of its own.
#pragma once

#include "archive/archive_packing.h"
#include "peers/client/peer_client.h"
#include "peers/server/peer_server.h"
#include "state/program_state.h"
#include "support/eventually.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/recording_work_display.h"
#include "support/temporary_folder.h"
#include "work/work.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>

namespace quorvin::test {

/// Events really run, and then `onEvents`.
class LiveWorkDisplay : public RecordingWorkDisplay {
 public:
  void processEvents() override {
    QCoreApplication::processEvents();
    RecordingWorkDisplay::processEvents();
  }
};

/// Bob, who joined on a day without a time: number 37622.
struct PeerProgram {
  PeerProgram() {
    state.LocalFolder = folder.path();
    state.NickName = QStringLiteral("Bob");
    state.JoinDate = 37622;
  }

  void addSource(const QString& description) {
    state.OnlineSources.set(++state.OnlineSourceCount, description, QStringLiteral("/nowhere/"));
  }
  /// A source whose archive holds these bytes.
  void addSource(const QString& description, const QByteArray& archive) {
    addSource(description);
    folder.writeFile(description + QStringLiteral(".zip"), archive);
  }
  /// A source that has been listed.
  void addListedSource(const QString& description, const QByteArray& listing) {
    addSource(description);
    folder.writeFile(description + QStringLiteral(".txt"), listing);
  }

  TemporaryFolder folder;
  ProgramState state;
  LiveWorkDisplay display;
  Work work{state, display};
  RecordingMessageBoxes messages;
};

/// As long as it lives, sockets go through a proxy that is not there, unless they know better.
class OnlyThroughAProxy {
 public:
  OnlyThroughAProxy() {
    QNetworkProxy::setApplicationProxy({QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), 1});
  }
  ~OnlyThroughAProxy() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
  OnlyThroughAProxy(const OnlyThroughAProxy&) = delete;
  OnlyThroughAProxy& operator=(const OnlyThroughAProxy&) = delete;
};

/// A real, small archive of a listing with this text in it.
inline QByteArray smallArchive(const QByteArray& text = "a listing") {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(QStringLiteral("list.txt"), text);
  packListing(listing, folder.pathOf(QStringLiteral("list.zip")), [](int) { return false; });
  return folder.readFile(QStringLiteral("list.zip"));
}

/// So that an answer whose pieces come slowly on a busy machine is not taken for half of it.
inline PeerClientLimits patience() {
  PeerClientLimits limits;
  limits.settle = limits.stall = limits.silence = std::chrono::hours(1);
  return limits;
}

/// A program that gets lists. It asks as soon as it may.
struct GettingProgram : PeerProgram {
  explicit GettingProgram(const PeerClientLimits& limits = patience())
      : timer(work, queue, std::chrono::milliseconds(1)), client(state, queue, timer, QLocale::c(), limits) {
    QObject::connect(&client, &PeerClient::ended, &client, [this](const PeerOutcome& it) { outcome = it; });
  }

  void start(quint16 port) { client.start({QStringLiteral("127.0.0.1"), port}); }
  bool waitForEnd() {
    return eventually([this] { return outcome.has_value(); });
  }
  /// What was received under this name in the folder of the peer at `port`.
  QString receivedName(const QString& file, quint16 port) const {
    return QStringLiteral("Received/127.0.0.1_%1/").arg(port) + file;
  }

  SendQueue queue;
  SendTimer timer;
  PeerClient client;
  std::optional<PeerOutcome> outcome;
};

}  // namespace quorvin::test
