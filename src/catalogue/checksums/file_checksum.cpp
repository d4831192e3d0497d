// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/file_checksum.h"

#include "files/file_reader.h"

#include <QCryptographicHash>

#include <vector>

namespace quorvin {

std::optional<std::string> fileChecksum(const QString& path, const BytesRead& read) {
  constexpr std::size_t kBuffer = std::size_t{1} << 20;
  SequentialFile file(path);
  QCryptographicHash hash(QCryptographicHash::Sha256);
  std::vector<char> buffer(kBuffer);
  while (const std::size_t size = file.read(buffer)) {
    hash.addData(QByteArrayView(buffer.data(), static_cast<qsizetype>(size)));
    if (!read(static_cast<std::int64_t>(size))) return std::nullopt;
  }
  return hash.result().toHex().toStdString();
}

}  // namespace quorvin
