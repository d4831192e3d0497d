// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/client/answer_stream.h"

#include "faults/runtime_fault.h"
#include "peers/messages/peer_message.h"
#include "texts/texts.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr QByteArrayView kLineEnd("\r\n");
// Requests leave a tenth of a second apart, so no more than a few are ever joined.
constexpr std::size_t kMostJoinedRequests = 8;
// Far more than 1000 names need.
constexpr std::int64_t kMostNameBytes = std::int64_t{1} << 20;

RuntimeFault noSense(const QString& what) {
  return {FaultNumber::TypeMismatch, what};
}

RuntimeFault noLists() {
  return {FaultNumber::InvalidProcedureCall, describe(FaultNumber::InvalidProcedureCall) +
                                                 QStringLiteral(": ") +
                                                 Texts::tr("the answer names no lists")};
}

}  // namespace

void AnswerStream::feed(QByteArrayView bytes) {
  buffer_.append(bytes.data(), bytes.size());
  while (step()) continue;
}

/// Takes one piece from the front of the buffer. False if there is none, or it is not whole yet.
bool AnswerStream::step() {
  switch (part_) {
    case Part::Opening:
      return takeOpening();
    case Part::Names:
      return takeName();
    case Part::Announcement:
      return takeAnnouncement();
    case Part::ArchiveStart:
      return takeArchiveStart();
    case Part::Archive:
      return takeArchive();
  }
  return false;
}

bool AnswerStream::takeOpening() {
  const qsizetype lists = buffer_.indexOf(kListsStart);
  reportIdentity(lists < 0 ? QByteArrayView(buffer_) : QByteArrayView(buffer_).first(lists));
  if (lists < 0 && buffer_.size() > kLongestPeerMessage) {
    throw noSense(Texts::tr("The answer is not that of a list exchange"));
  }
  if (lists < 0) return false;
  buffer_.remove(0, lists + QByteArrayView(kListsStart).size());
  part_ = Part::Names;
  return true;
}

void AnswerStream::reportIdentity(QByteArrayView opening) {
  for (const QByteArrayView answer : {QByteArrayView(kGreetingAnswer), QByteArrayView(kUnknownAnswer)}) {
    if (opening.startsWith(answer)) opening = opening.sliced(answer.size());
  }
  if (opening.startsWith("I AM:")) sink_.identityArrived(opening.toByteArray());
}

bool AnswerStream::takeName() {
  if (announcementAt(buffer_)) {
    part_ = Part::Announcement;
    return true;
  }
  if (mayBecomeAnnouncement(buffer_)) return false;
  const qsizetype end = buffer_.indexOf(kLineEnd);
  if (end < 0 && buffer_.size() > kLongestPeerMessage) {
    throw noSense(Texts::tr("The name of a list has no end"));
  }
  if (end < 0) return false;
  nameBytes_ += end + kLineEnd.size();
  if (nameBytes_ > kMostNameBytes) throw noSense(Texts::tr("The names of the lists have no end"));
  const QByteArray name = buffer_.first(end);
  buffer_.remove(0, end + kLineEnd.size());
  ++namedLists_;
  if (!sink_.listNamed(name)) return true;
  expected_.push_back({name});
  if (expected_.size() <= kMostJoinedRequests) expectedChanged();
  return true;
}

bool AnswerStream::takeAnnouncement() {
  if (buffer_.isEmpty()) return false;
  const std::optional<Match> match = announcementAt(buffer_);
  if (!match) return !mayBecomeAnnouncement(buffer_) && skipToAnnouncement();
  if (match->requests == 1) {
    announce(match->length);
  } else {
    askAgain(match->requests);
    buffer_.remove(0, match->length);
  }
  return true;
}

/// Drops what is between an archive and the next announcement.
bool AnswerStream::skipToAnnouncement() {
  for (qsizetype at = 1; at < buffer_.size(); ++at) {
    at = buffer_.indexOf('L', at);
    if (at < 0) break;
    const QByteArrayView rest = QByteArrayView(buffer_).sliced(at);
    if (!announcementAt(rest) && !mayBecomeAnnouncement(rest)) continue;
    buffer_.remove(0, at);
    return true;
  }
  buffer_.clear();
  return false;
}

void AnswerStream::announce(qsizetype length) {
  const QByteArray name = expected_.front().name;
  expected_.pop_front();
  expectedChanged();
  const QByteArray message = buffer_.first(length);
  buffer_.remove(0, length);
  part_ = Part::ArchiveStart;
  archiveEnd_ = {};
  archiveLength_ = 0;
  archiveTail_.clear();
  nextAnnouncement_.reset();
  sink_.archiveAnnounced(name, message);
}

void AnswerStream::askAgain(qsizetype requests) {
  for (qsizetype i = 0; i < requests; ++i) {
    const Expected lost = expected_.front();
    expected_.pop_front();
    if (sink_.requestLost(lost.name, !lost.wasAskedAgain)) expected_.push_back({lost.name, true});
  }
  expectedChanged();
}

bool AnswerStream::takeArchiveStart() {
  if (buffer_.isEmpty()) return false;
  const std::optional<bool> isArchive = ArchiveEnd::canStartWith(buffer_);
  if (!isArchive) return false;
  part_ = *isArchive ? Part::Archive : Part::Announcement;
  if (!*isArchive) sink_.archiveMissing();
  return true;
}

bool AnswerStream::takeArchive() {
  if (buffer_.isEmpty()) return false;
  const std::optional<qsizetype> end = archiveEnd_.feed(buffer_);
  const qsizetype taken = end.value_or(buffer_.size());
  giveArchiveBytes(QByteArrayView(buffer_).first(taken));
  buffer_.remove(0, taken);
  if (!end) return false;
  part_ = Part::Announcement;
  sink_.archiveWhole();
  return true;
}

void AnswerStream::giveArchiveBytes(QByteArrayView bytes) {
  lookForNextAnnouncement(bytes);
  archiveLength_ += bytes.size();
  sink_.archiveBytes(bytes);
}

/// Notes where the next announcement, with an archive after it, appears in this archive's bytes. If this
/// archive turns out to have broken off, it ended there.
void AnswerStream::lookForNextAnnouncement(QByteArrayView bytes) {
  if (nextAnnouncement_ || expected_.empty()) return;
  const QByteArray wanted = announcementMessage(expected_.front().name) + "PK";
  const std::int64_t tailStart = archiveLength_ - archiveTail_.size();
  archiveTail_.append(bytes.data(), bytes.size());
  const qsizetype at = archiveTail_.indexOf(wanted);
  if (at >= 0) nextAnnouncement_ = tailStart + at;
  archiveTail_.remove(0, std::max<qsizetype>(0, archiveTail_.size() - wanted.size() + 1));
}

bool AnswerStream::isComplete() const {
  const bool isBetween = part_ == Part::Announcement || part_ == Part::Names;
  return isBetween && expected_.empty() && namedLists_ > 0;
}

void AnswerStream::settle() {
  if (part_ == Part::Names && namedLists_ == 0) throw noLists();
  if (part_ != Part::ArchiveStart || !expected_.empty()) return;
  part_ = Part::Announcement;
  buffer_.clear();
  sink_.archiveMissing();
}

void AnswerStream::end() {
  settle();
  if (part_ == Part::ArchiveStart) {
    part_ = Part::Announcement;
    sink_.archiveMissing();
  }
  if (part_ != Part::Archive) return;
  part_ = Part::Announcement;
  buffer_.clear();
  sink_.archiveCut(nextAnnouncement_.value_or(archiveLength_));
}

void AnswerStream::expectedChanged() {
  possible_.clear();
  QByteArray joined;
  for (std::size_t i = 0; i < std::min(expected_.size(), kMostJoinedRequests); ++i) {
    const QByteArray& name = expected_[i].name;
    joined += i == 0 ? name : listRequestMessage(name);
    possible_.push_back(announcementMessage(joined));
  }
}

std::optional<AnswerStream::Match> AnswerStream::announcementAt(QByteArrayView bytes) const {
  for (std::size_t i = 0; i < possible_.size(); ++i) {
    if (bytes.startsWith(possible_[i])) return Match{static_cast<qsizetype>(i) + 1, possible_[i].size()};
  }
  return std::nullopt;
}

bool AnswerStream::mayBecomeAnnouncement(QByteArrayView bytes) const {
  return std::any_of(possible_.begin(), possible_.end(), [bytes](const QByteArray& message) {
    return QByteArrayView(message).startsWith(bytes);
  });
}

}  // namespace quorvin
