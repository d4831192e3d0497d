#include "peers/client/peer_received_archive.h"

#include "faults/runtime_fault.h"
#include "files/sequential_file.h"
#include "peers/messages/peer_names.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <string_view>
#include <vector>

namespace quorvin {

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 16;
constexpr int kMostTries = 10;

RuntimeFault cannotMake(const QString& path) {
  return {FaultNumber::PathFileAccess, describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path};
}

bool holdSameBytes(const QString& first, const QString& second) {
  if (QFileInfo(first).size() != QFileInfo(second).size()) return false;
  SequentialFile one(first);
  SequentialFile other(second);
  std::vector<char> piece(kPiece);
  std::vector<char> otherPiece(kPiece);
  for (;;) {
    const std::size_t count = one.read(piece);
    if (count != other.read(otherPiece)) return false;
    if (count == 0) return true;
    if (!std::equal(piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count), otherPiece.begin())) {
      return false;
    }
  }
}

bool isThisArchiveAlready(const QString& path, const QString& aside) {
  if (!QFileInfo(path).isFile()) return false;
  try {
    return holdSameBytes(aside, path);
  } catch (const RuntimeFault&) {
    // What cannot be read is another file.
    return false;
  }
}

}  // namespace

PeerReceivedArchive::PeerReceivedArchive(const QString& folder, const QString& name)
    : folder_(folder), name_(name) {
  if (!QDir().mkpath(folder)) throw cannotMake(folder);
  asidePath_ = freePath(folder, name, QStringLiteral(".zip.part"));
  writer_ = std::make_unique<FileWriter>(asidePath_);
}

PeerReceivedArchive::~PeerReceivedArchive() {
  writer_.reset();
  if (!asidePath_.isEmpty()) QFile::remove(asidePath_);
}

void PeerReceivedArchive::write(QByteArrayView bytes) {
  writer_->write(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
  size_ += bytes.size();
}

QString PeerReceivedArchive::closeForReading() {
  if (writer_) writer_->close();
  writer_.reset();
  return asidePath_;
}

QString PeerReceivedArchive::keep() {
  closeForReading();
  const QString ending = QStringLiteral(".zip");
  const QString wanted = folder_ + name_ + ending;
  if (isThisArchiveAlready(wanted, asidePath_)) return wanted;
  // A name may be taken between the look and the renaming, which refuses to replace a file.
  for (int tries = 0; tries < kMostTries; ++tries) {
    const QString path = freePath(folder_, name_, ending);
    if (!QFile::rename(asidePath_, path)) continue;
    asidePath_.clear();
    return path;
  }
  throw cannotMake(wanted);
}

}  // namespace quorvin
