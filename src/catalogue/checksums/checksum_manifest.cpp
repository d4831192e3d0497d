// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/checksum_manifest.h"

#include "catalogue/import/checksum_line.h"
#include "files/file_reader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cctype>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>
#include <xxhash.h>

namespace quorvin {

namespace {

constexpr std::size_t kSha256Digits = 64;
constexpr std::string_view kListingRemark = "# of the listing ";

/// As sha256sum has it: only what would end the line, and what begins an escape, has one.
std::string escapedPath(std::string_view path) {
  std::string text;
  for (const char byte : path) {
    if (byte == '\\') {
      text += "\\\\";
    } else if (byte == '\n') {
      text += "\\n";
    } else if (byte == '\r') {
      text += "\\r";
    } else {
      text += byte;
    }
  }
  return text;
}

}  // namespace

QString manifestOf(const QString& listing) {
  return listing + QStringLiteral(".sha256");
}

QString verifyingNotesOf(const QString& manifest) {
  return manifest + QStringLiteral(".verifying");
}

OwnFilesBelow::OwnFilesBelow(const QString& folder, const QString& listing) {
  const QFileInfo place(listing);
  const QString inFolder = QFileInfo(place.absolutePath()).canonicalFilePath() + u'/' + place.fileName();
  const QString path = QDir(QFileInfo(folder).canonicalFilePath()).relativeFilePath(inFolder);
  const QString manifest = manifestOf(path);
  for (const QString& own : {path, manifest, verifyingNotesOf(manifest)}) {
    paths_.push_back(QFile::encodeName(own).toStdString());
  }
}

std::string manifestLine(const FileChecksum& file) {
  const std::string path = escapedPath(file.path);
  const bool hasEscapes = path.size() != file.path.size();
  // A dash alone is standard input to sha256sum.
  const std::string_view front = path == "-" ? "./" : "";
  return (hasEscapes ? "\\" : "") + file.checksum + "  " + std::string(front) + path + '\n';
}

std::string listingRemark(std::uint64_t listing) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), listing, 16).ptr;
  return std::string(kListingRemark) + std::string(digits.data(), end) + '\n';
}

std::uint64_t listingIdentity(const QString& path) {
  constexpr std::size_t kChunk = std::size_t{1} << 20;
  SequentialFile file(path);
  std::vector<char> chunk(kChunk);
  std::uint64_t identity = 0;
  while (const std::size_t size = file.read(chunk)) {
    identity = XXH3_64bits_withSeed(chunk.data(), size, identity);
  }
  return identity;
}

ChecksumManifest::ChecksumManifest(const QString& path) {
  const QByteArray content = contentOfFile(path);
  std::string_view rest(content.constData(), static_cast<std::size_t>(content.size()));
  identity_ = XXH3_64bits(rest.data(), rest.size());
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    take(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  for (std::size_t number = 0; number < files_.size(); ++number) byPath_.emplace(files_[number].path, number);
}

void ChecksumManifest::take(std::string_view line) {
  if (line.starts_with(kListingRemark)) {
    const std::string_view digits = line.substr(kListingRemark.size());
    std::uint64_t listing = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), listing, 16);
    // One that cannot be read is of no listing that there is.
    listing_ = error == std::errc() && end == digits.data() + digits.size() ? listing : ~listing;
  }
  if (line.empty() || line.starts_with('#')) return;
  std::optional<ChecksumLine> read = checksumLineIn(line);
  if (!read || read->checksum.size() != kSha256Digits) {
    ++notUnderstood_;
    return;
  }
  FileChecksum file{std::move(read->path), std::string(read->checksum)};
  std::ranges::transform(file.checksum, file.checksum.begin(),
                         [](unsigned char digit) { return static_cast<char>(std::tolower(digit)); });
  if (file.path.starts_with("./")) file.path.erase(0, 2);
  files_.push_back(std::move(file));
}

const FileChecksum* ChecksumManifest::find(std::string_view path) const {
  const auto found = byPath_.find(path);
  return found == byPath_.end() ? nullptr : &files_[found->second];
}

}  // namespace quorvin
