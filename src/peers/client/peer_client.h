// SPDX-License-Identifier: GPL-2.0-or-later

// The side of the peer exchange that connects: asks a peer for its lists, and for the archive of each.
#pragma once

#include "files/file_reader.h"
#include "peers/client/answer_stream.h"
#include "peers/client/list_receiver.h"
#include "peers/messages/peer_names.h"
#include "peers/messages/send_queue.h"
#include "state/program_state.h"

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// How long a peer may be silent, and how much it may send.
struct PeerClientLimits {
  /// After this long without data, what may be the start of an answer is taken for all of it.
  std::chrono::milliseconds settle = std::chrono::seconds(2);
  /// After this long, an archive that seems to have broken off is given up for those after it.
  std::chrono::milliseconds stall = std::chrono::seconds(15);
  /// After this long the conversation ends. The limit for connecting, too.
  std::chrono::milliseconds silence = std::chrono::seconds(60);
  std::int64_t archiveBytes = std::int64_t{4} << 30;
};

/// What came of a conversation.
struct PeerOutcome {
  /// The peer as the user has named it.
  QString peer;
  std::vector<ReceivedList> received;
  /// What went wrong, each a sentence. There may be problems although lists have come.
  QStringList problems;
  bool isCancelled = false;
  /// How many listings the received archives hold; nothing before they have been counted.
  std::optional<std::int64_t> listings = std::nullopt;
};

/// `IPClient`: one conversation at a time. It sends one message after another through the send queue, and
/// keeps every archive that comes in `LocalFolder` + "Received" + separator + peer + separator.
class PeerClient : public QObject {
  Q_OBJECT

 public:
  /// Everything handed over must outlive the client. Messages are sent by `timer`.
  PeerClient(ProgramState& state, SendQueue& queue, SendTimer& timer, const QLocale& locale,
             PeerClientLimits limits = {}, QObject* parent = nullptr);
  ~PeerClient() override;

  /// Starts a conversation; ended() is emitted at its end. Does nothing during another one.
  void start(const HostAndPort& peer);
  /// Ends the conversation at once. The archive that is coming is dropped; those that have come stay.
  void cancel();

  bool isRunning() const { return receiver_ != nullptr; }
  /// Only while it is running.
  const PeerFigures& figures() const { return receiver_->figures(); }

  /// The identity last announced by a server, that server's address, and the archive last announced.
  const QString& PeerIdent() const { return peerIdent_; }
  const QString& PeerAddress() const { return peerAddress_; }
  const QString& PeerListName() const { return peerListName_; }

 Q_SIGNALS:
  /// figures() have changed; at most about 20 times a second.
  void progressed();
  void ended(const quorvin::PeerOutcome& outcome);

 private:
  void IPClient_Connect();
  void IPClient_DataArrival();
  void send(const QByteArray& payload);
  void connectionFailed();
  void connectionClosed();
  void feed(QByteArrayView bytes);
  void noteAnnounced();
  void endStream();
  void startRest();
  void feedRestPiece();
  void endRest();
  void dropRest();
  void settle();
  void stalled();
  void silent();
  void restartTimers();
  void stopTimers();
  void finish(const QString& problem = {});
  template <typename Action>
  bool succeeds(Action&& action);

  ProgramState& state_;
  SendQueue& queue_;
  SendTimer& sndQTime_;
  QLocale locale_;
  PeerClientLimits limits_;
  QTcpSocket IPClient_;
  QTimer settle_{this};
  QTimer stall_;
  QTimer silence_{this};
  QTimer restPiece_{this};
  QTimer progressPace_;
  HostAndPort peer_;
  /// Only during a conversation.
  std::unique_ptr<ListReceiver> receiver_;
  std::unique_ptr<AnswerStream> stream_;
  /// The part of an archive that broke off which is read again before anything else is taken.
  std::optional<ListReceiver::Rest> rest_;
  std::unique_ptr<RandomAccessFile> restFile_;
  bool isClosed_ = false;
  bool isCancelled_ = false;
  QString peerIdent_;
  QString peerAddress_;
  QString peerListName_;
};

}  // namespace quorvin
