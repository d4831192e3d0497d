// One caller of the server: what it says is answered, and archives are sent to it.
#pragma once

#include "files/sequential_file.h"
#include "peers/server/peer_answers.h"
#include "state/program_state.h"

#include <QByteArray>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>

namespace quorvin {

/// What a caller may take up.
struct PeerServerLimits {
  int connections = 64;
  /// Without a byte read or written.
  std::chrono::milliseconds idle = std::chrono::minutes(10);
  qsizetype messageBytes = qsizetype{64} << 10;
  /// Messages that wait to be answered, in number and in bytes: a client sends no more than 1000 in its life.
  std::size_t waitingMessages = 1000;
  qsizetype waitingBytes = qsizetype{256} << 10;
  /// Accepting stops for this long when the system has no descriptor left.
  std::chrono::milliseconds acceptPause = std::chrono::seconds(1);
};

/// An element of `IPServ`. What one data event brings is one message. Messages are answered in their order,
/// each when the answer before has been handed to the system; an archive is read as fast as it is taken. A
/// fault, a message that is too long, too many messages, or too long a silence ends the connection.
class PeerConnection : public QObject {
  Q_OBJECT

 public:
  /// Takes over `socket`, which is connected. `state` must outlive the connection.
  PeerConnection(std::unique_ptr<QTcpSocket> socket, const ProgramState& state, const QLocale& locale,
                 const PeerServerLimits& limits, QObject* parent = nullptr);
  ~PeerConnection() override;

  /// Ends the connection at once.
  void end();

 Q_SIGNALS:
  /// The connection is over; sent once, and the last that comes.
  void closed();
  /// A message could not be answered. The connection is ended after it.
  void faulted(const QString& description);

 private:
  void IPServ_DataArrival();
  bool mayWait(const QByteArray& message) const;
  void goOn();
  void answerNext();
  void openArchive();
  void sendArchivePiece();
  template <typename Action>
  void endOnFault(Action&& action);

  std::unique_ptr<QTcpSocket> socket_;
  const ProgramState& state_;
  QLocale locale_;
  PeerServerLimits limits_;
  QTimer idle_;
  std::deque<QByteArray> waiting_;
  qsizetype waitingBytes_ = 0;
  /// Set between an announcement and the opening of the archive announced.
  std::optional<int> archiveRow_;
  /// Only while an archive is being sent.
  std::unique_ptr<SequentialFile> archive_;
  std::int64_t archiveBytesLeft_ = 0;
  bool isOver_ = false;
};

}  // namespace quorvin
