// SPDX-License-Identifier: GPL-2.0-or-later

// Taking apart what a server sends: a stream without frames, in which messages may be split and joined
// anywhere.
#pragma once

#include "archive/archive_end.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace quorvin {

/// Takes what was found in the stream. Texts are bytes in the peer's code page. It is the edge to the
/// network: what strangers send is taken apart at random and byte by byte with nothing behind it that keeps
/// files.
class AnswerSink {
 public:
  virtual ~AnswerSink() = default;

  /// The server's identity, the whole message. Called again, with more of it, when more arrives.
  virtual void identityArrived(const QByteArray& message) = 0;
  /// The name of a list that the server has. True if it will be asked for.
  virtual bool listNamed(const QByteArray& name) = 0;
  /// The archive of the list `name` comes next; `message` is the whole announcement.
  virtual void archiveAnnounced(const QByteArray& name, const QByteArray& message) = 0;
  /// The next bytes of that archive.
  virtual void archiveBytes(QByteArrayView bytes) = 0;
  /// The archive has come whole.
  virtual void archiveWhole() = 0;
  /// Nothing came in place of the announced archive, or something that is no archive.
  virtual void archiveMissing() = 0;
  /// The archive broke off after `length` of the bytes that were handed out. The bytes after them belong to
  /// other messages and must be fed again, before any others.
  virtual void archiveCut(std::int64_t length) = 0;
  /// Several requests reached the server at once, and it took them for one. Called for each of these lists,
  /// which must be asked for again. `isFirstTime` is false if the request for this very list was lost before.
  /// True if the list will be asked for.
  virtual bool requestLost(const QByteArray& name, bool isFirstTime) = 0;
};

/// The order of a conversation is known and takes the place of frames: the identity, the names of the lists,
/// and then, in the order named, the announcement and the archive of each list. An announcement is recognized
/// by the name in it. Where an archive ends shows in its structure; only if that fails, the next announcement
/// marks the end.
class AnswerStream {
 public:
  /// `sink` must outlive the stream.
  explicit AnswerStream(AnswerSink& sink) : sink_(sink) {}

  /// Takes the next bytes. Throws fault 13 when they make no sense, and whatever the sink throws.
  void feed(QByteArrayView bytes);

  /// Nothing has come for a while, or nothing more will come: what may have been the start of something is
  /// taken for all of it. Throws fault 5 when the list of names is empty.
  void settle();
  /// As settle(); an archive that is not whole is given up too.
  void end();

  /// Whether every list that was named and asked for has been answered.
  bool isComplete() const;
  /// Whether the archive that is coming contains what may be the next announcement. Then it may have broken
  /// off there, with others after it.
  bool mayBeCut() const { return part_ == Part::Archive && nextAnnouncement_.has_value(); }
  /// Whether the list of names has started to arrive.
  bool hasLists() const { return part_ != Part::Opening; }
  /// How many lists the server has named.
  std::int64_t namedLists() const { return namedLists_; }

 private:
  enum class Part {
    /// The answer to the greeting, and the identity.
    Opening,
    Names,
    /// An announcement has to come next.
    Announcement,
    ArchiveStart,
    Archive,
  };

  bool step();
  bool takeOpening();
  bool takeName();
  bool takeAnnouncement();
  bool skipToAnnouncement();
  bool takeArchiveStart();
  bool takeArchive();
  void reportIdentity(QByteArrayView opening);
  void giveArchiveBytes(QByteArrayView bytes);
  void lookForNextAnnouncement(QByteArrayView bytes);
  void announce(qsizetype length);
  void askAgain(qsizetype requests);

  /// A list that has been asked for. Several may have the same name.
  struct Expected {
    QByteArray name;
    bool wasAskedAgain = false;
  };
  struct Match {
    /// How many requests are answered: one, or several that were joined.
    qsizetype requests = 0;
    qsizetype length = 0;
  };
  std::optional<Match> announcementAt(QByteArrayView bytes) const;
  bool mayBecomeAnnouncement(QByteArrayView bytes) const;
  void expectedChanged();

  AnswerSink& sink_;
  Part part_ = Part::Opening;
  QByteArray buffer_;
  /// Those that have not been announced yet.
  std::deque<Expected> expected_;
  /// The announcements that may come next: the answer to the first request, and the answers to the first few
  /// taken for one.
  std::vector<QByteArray> possible_;
  std::int64_t namedLists_ = 0;
  std::int64_t nameBytes_ = 0;
  ArchiveEnd archiveEnd_;
  std::int64_t archiveLength_ = 0;
  /// The last bytes of the archive, in which the next announcement may start, and where in the archive it
  /// starts.
  QByteArray archiveTail_;
  std::optional<std::int64_t> nextAnnouncement_;
};

}  // namespace quorvin
