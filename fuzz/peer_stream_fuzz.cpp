// SPDX-License-Identifier: GPL-2.0-or-later

// What a peer's server sends, held against the order that AnswerSink promises. An input is a byte for the
// size of the pieces in which the stream comes, and the stream.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "peers/client/answer_stream.h"

#include <algorithm>
#include <cstdint>
#include <set>

namespace quorvin {
namespace {

using fuzz::require;

class OrderCheck : public AnswerSink {
 public:
  void identityArrived(const QByteArray& message) override {
    require(!message.isEmpty(), "an identity has a text");
  }
  bool listNamed(const QByteArray& name) override { return asked_.insert(name).second; }
  void archiveAnnounced(const QByteArray& name, const QByteArray& message) override {
    require(!isComing_, "one archive comes at a time");
    require(asked_.count(name) != 0, "what is announced was asked for");
    require(!message.isEmpty(), "an announcement has a text");
    isComing_ = true;
    length_ = 0;
  }
  void archiveBytes(QByteArrayView bytes) override {
    require(isComing_, "bytes belong to an archive");
    length_ += bytes.size();
  }
  void archiveWhole() override { endArchive(); }
  void archiveMissing() override { endArchive(); }
  void archiveCut(std::int64_t length) override {
    require(length >= 0 && length <= length_, "an archive is cut where it was");
    endArchive();
  }
  // Asked for once more only once, as a client does that does not go on for ever.
  bool requestLost(const QByteArray&, bool isFirstTime) override { return isFirstTime; }

 private:
  void endArchive() {
    require(isComing_, "an archive ends that has come");
    isComing_ = false;
  }

  std::set<QByteArray> asked_;
  bool isComing_ = false;
  std::int64_t length_ = 0;
};

}  // namespace
}  // namespace quorvin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  if (size == 0) return 0;
  const qsizetype piece = 1 + data[0];
  const QByteArrayView bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  OrderCheck check;
  AnswerStream stream(check);
  try {
    for (qsizetype at = 0; at < bytes.size(); at += piece) {
      stream.feed(bytes.sliced(at, std::min(piece, bytes.size() - at)));
    }
    stream.settle();
    stream.end();
  } catch (const RuntimeFault&) {
    // What makes no sense is said to make none.
  }
  return 0;
}
