// What a server sends, taken apart: an unframed stream in which messages may come split and joined anywhere.
#pragma once

#include "archive/archive_end.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace quorvin {

/// Takes what was found in the stream. Texts are bytes in the peer's code page.
class AnswerSink {
 public:
  virtual ~AnswerSink() = default;

  /// The server's identity, the whole message. It comes again, longer, when more of it arrives.
  virtual void identityArrived(const QByteArray& message) = 0;
  /// The name of a list that the server has. True when it is going to be asked for.
  virtual bool listNamed(const QByteArray& name) = 0;
  /// The archive of the list `name` is coming now; `message` is the whole announcement.
  virtual void archiveAnnounced(const QByteArray& name, const QByteArray& message) = 0;
  /// The next bytes of that archive.
  virtual void archiveBytes(QByteArrayView bytes) = 0;
  /// The archive has come whole.
  virtual void archiveWhole() = 0;
  /// Instead of the announced archive nothing came, or something that is no archive.
  virtual void archiveMissing() = 0;
  /// The archive broke off after `length` of the bytes that were given out: those after it are of other
  /// messages, and are to be fed once more, before any others.
  virtual void archiveCut(std::int64_t length) = 0;
  /// The server took several requests that reached it at once for a single one; these lists must be asked for
  /// again. `isFirstTime` is false when the request for this very list was lost before. True for a list that
  /// is going to be asked for.
  virtual bool requestLost(const QByteArray& name, bool isFirstTime) = 0;
};

/// The order of a conversation is known, and that takes the place of a frame: the identity, the names of the
/// lists, and then for each list that was named its announcement and its archive, in the order named. An
/// announcement is known by the name in it. Where an archive ends is known from its structure, and only when
/// that fails, by the next announcement.
class AnswerStream {
 public:
  /// `sink` must outlive the stream.
  explicit AnswerStream(AnswerSink& sink) : sink_(sink) {}

  /// Takes the next bytes. Throws fault 13 when they make no sense, and whatever the sink throws.
  void feed(QByteArrayView bytes);

  /// Nothing has come for a while, or will come any more: what may have been a beginning is taken for all.
  /// Throws fault 5 when the list of names is empty.
  void settle();
  /// As settle(), and an archive that is not whole is given up too.
  void end();

  /// Whether every list that was named and asked for has been answered.
  bool isComplete() const;
  /// Whether the archive that is coming holds what may be the next announcement: then it may have broken off
  /// there, and be followed by others.
  bool mayBeCut() const { return part_ == Part::Archive && nextAnnouncement_.has_value(); }
  /// Whether the names of the lists have begun to come.
  bool hasLists() const { return part_ != Part::Opening; }
  /// How many lists the server has named.
  std::int64_t namedLists() const { return namedLists_; }

 private:
  enum class Part {
    /// The greeting's answer and the identity.
    Opening,
    Names,
    /// The next announcement must follow.
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
  void tellIdentity(QByteArrayView opening);
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
    /// How many requests the announcement answers: one, or several that were joined.
    qsizetype requests = 0;
    qsizetype length = 0;
  };
  std::optional<Match> announcementAt(QByteArrayView bytes) const;
  bool mayBecomeAnnouncement(QByteArrayView bytes) const;
  void expectedChanged();

  AnswerSink& sink_;
  Part part_ = Part::Opening;
  QByteArray buffer_;
  /// Those whose announcements have not come yet.
  std::deque<Expected> expected_;
  /// The announcements that may come next: the one that answers the first name, and those that answer the
  /// first few as if they were one.
  std::vector<QByteArray> possible_;
  std::int64_t namedLists_ = 0;
  std::int64_t nameBytes_ = 0;
  ArchiveEnd archiveEnd_;
  std::int64_t archiveLength_ = 0;
  /// The last archive bytes, in which the next announcement may have begun, and where in the archive it did.
  QByteArray archiveTail_;
  std::optional<std::int64_t> nextAnnouncement_;
};

}  // namespace quorvin
