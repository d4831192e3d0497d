// SPDX-License-Identifier: GPL-2.0-or-later

// The receiving end of a conversation: asks for the lists that a peer names, and keeps their archives.
#pragma once

#include "files/file_aside.h"
#include "peers/client/answer_stream.h"
#include "peers/messages/send_queue.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// An archive on its way in. It is written aside in its folder and gets its name when it is whole; otherwise
/// nothing of it stays.
class ReceivedArchive {
 public:
  /// `folder` ends in a separator and is made if need be; `name` is the archive's name without its ending,
  /// safe for a file. Throws RuntimeFault when the folder or the file cannot be made.
  ReceivedArchive(const QString& folder, const QString& name);

  /// Throws RuntimeFault when the bytes cannot be written.
  void write(QByteArrayView bytes);
  std::int64_t size() const { return size_; }

  /// Gives the archive its name and returns its path. No file is replaced: if there is one of that name, the
  /// archive gets a number, unless that file holds the very same bytes and so is this archive already. Throws
  /// RuntimeFault when it cannot be put in place.
  QString keep();

  /// Finishes writing and returns the path at which the file can be read while the object lives. Throws
  /// RuntimeFault when the last bytes cannot be written.
  QString finishForReading();

 private:
  QString folder_;
  QString name_;
  FileAside file_;
  std::int64_t size_ = 0;
};

/// A list that has come from a peer.
struct ReceivedList {
  /// Its name as the peer gave it.
  QString name;
  /// The path of its archive.
  QString archivePath;

  bool operator==(const ReceivedList&) const = default;
};

/// How far a conversation has come.
struct PeerFigures {
  /// The list that is coming, as it may be shown; empty before the first.
  QString list;
  /// Its number, and how many there are.
  std::int64_t listNumber = 0;
  std::int64_t listCount = 0;
  /// The bytes of it that have come.
  std::int64_t bytes = 0;
};

/// One conversation's receiving end.
class ListReceiver : public AnswerSink {
 public:
  /// What follows an archive that broke off, in the same file: further messages.
  struct Rest {
    QString path;
    /// The first byte, and the one after the last.
    std::int64_t from = 0;
    std::int64_t to = 0;
  };

  /// Archives go into `folder`, which ends in a separator and is made when the first one comes. None may be
  /// larger than `mostBytes`. `queue` must outlive the object.
  ListReceiver(SendQueue& queue, const QString& folder, std::int64_t mostBytes);

  /// The identity last announced, and the name of the archive last announced, each without its first
  /// character.
  const QString& PeerIdent() const { return peerIdent_; }
  const QString& PeerListName() const { return peerListName_; }

  const PeerFigures& figures() const { return figures_; }
  const std::vector<ReceivedList>& received() const { return received_; }
  /// What went wrong with single lists, each a sentence.
  const QStringList& problems() const { return problems_; }

  bool hasRest() const { return cut_ != nullptr; }
  /// What must be fed to the stream again. Throws RuntimeFault when it cannot be read.
  Rest takeRest();

  // For the stream. Each may throw RuntimeFault when a file cannot be written.
  void identityArrived(const QByteArray& message) override;
  bool listNamed(const QByteArray& name) override;
  void archiveAnnounced(const QByteArray& name, const QByteArray& message) override;
  void archiveBytes(QByteArrayView bytes) override;
  void archiveWhole() override;
  void archiveMissing() override;
  void archiveCut(std::int64_t length) override;
  bool requestLost(const QByteArray& name, bool isFirstTime) override;

 private:
  bool ask(const QByteArray& name);
  QString shownName() const;

  SendQueue& queue_;
  QString folder_;
  std::int64_t mostBytes_;
  QString peerIdent_;
  QString peerListName_;
  PeerFigures figures_;
  std::vector<ReceivedList> received_;
  QStringList problems_;
  bool queueIsFull_ = false;
  /// The list that is coming, and its archive from its first byte on.
  QString name_;
  std::unique_ptr<ReceivedArchive> archive_;
  /// An archive that broke off, until what follows it has been taken.
  std::unique_ptr<ReceivedArchive> cut_;
  std::unique_ptr<ReceivedArchive> cutBeingRead_;
  std::int64_t cutLength_ = 0;
};

}  // namespace quorvin
