#include "state/text_line_reader.h"

#include "platform/text_encoding.h"

#include <array>

namespace quorvin {

TextLineReader::TextLineReader(const QString& path) : file_(path) {}

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
  const std::size_t count = file_.read(chunk);
  bytes_.remove(0, start_);
  start_ = 0;
  bytes_.append(chunk.data(), static_cast<qsizetype>(count));
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
