// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/text_line_reader.h"

#include "platform/text_encoding.h"

#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr QCryptographicHash::Algorithm kDigest = QCryptographicHash::Sha256;

}  // namespace

QByteArray digestOf(QByteArrayView bytes) {
  return QCryptographicHash::hash(bytes.toByteArray(), kDigest);
}

TextLineReader::TextLineReader(const QString& path) : file_(path), digest_(kDigest) {}

std::optional<TextLine> TextLineReader::next() {
  qsizetype searched = 0;
  for (;;) {
    const qsizetype lineFeed = bytes_.indexOf('\n', start_ + searched);
    if (lineFeed >= 0) return take(lineFeed + 1 - start_);
    searched = bytes_.size() - start_;
    if (!readChunk()) break;
  }
  if (searched == 0) return std::nullopt;
  return take(searched);
}

bool TextLineReader::readChunk() {
  std::array<char, 16 * 1024> chunk;
  const auto count = static_cast<qsizetype>(file_.read(chunk));
  const QByteArrayView read(chunk.data(), count);
  digest_.addData(read);
  // The first chunk is shorter than a mark only where the file is.
  const qsizetype mark = std::exchange(isAtStart_, false) ? byteOrderMarkLength(read) : 0;
  bytes_.remove(0, start_);
  start_ = 0;
  bytes_.append(read.sliced(mark));
  return count > 0;
}

TextLine TextLineReader::take(qsizetype length) {
  QByteArrayView text = QByteArrayView(bytes_).sliced(start_, length);
  start_ += length;
  if (text.endsWith('\n')) text.chop(1);
  if (text.endsWith('\r')) text.chop(1);
  const QByteArrayView end(text.data() + text.size(), length - text.size());
  return {decodeSystemText(text), QString::fromLatin1(end)};
}

}  // namespace quorvin
