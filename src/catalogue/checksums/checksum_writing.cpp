// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/checksum_writing.h"

#include "catalogue/checksums/file_checksum.h"
#include "catalogue/compared_place.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"

#include <QFile>

namespace quorvin {

bool ChecksumWriting::write(FileWriter& manifest) {
  std::optional<FilesBelow> now = filesBelow(parts_.folder, parts_.stop);
  if (!now || !readEarlier(*now)) return false;
  const OwnFilesBelow own(parts_.folder, parts_.listing);
  std::erase_if(now->files, [&](const FileBelow& file) { return own.contains(file.path); });
  for (const UnreadPath& path : now->unread) {
    unread_ += faultOfSystemError(path.error, QFile::decodeName(path.path.c_str())).description();
  }
  progress_.filesAll = static_cast<std::int64_t>(now->files.size());
  for (const FileBelow& file : now->files) {
    if (!keptChecksum(file)) progress_.bytesAll += file.size;
  }
  for (const FileBelow& file : now->files) {
    if (parts_.stop() || !writeFile(manifest, file)) return false;
    ++progress_.files;
    parts_.progress(progress_);
  }
  for (const FileChecksum& file : earlier_.files()) {
    if (now->unreadOf(file.path)) manifest.write(manifestLine(file));
  }
  return true;
}

bool ChecksumWriting::readEarlier(const FilesBelow& now) {
  const QString manifest = manifestOf(parts_.listing);
  if (!fileExists(manifest) || !fileExists(parts_.listing)) return true;
  earlier_ = ChecksumManifest(manifest);
  isOfListing_ = earlier_.isOfListing(parts_.listing);
  if (!isOfListing_) return true;
  if (!facts_.read(openerOfListing(parts_.listing), parts_.locale, parts_.stop)) return false;
  std::vector<std::string_view> paths;
  for (const FileBelow& file : now.files) paths.emplace_back(file.path);
  facts_.lookBelow(parts_.folder, commonFolderOf(paths));
  return true;
}

/// Null for a file that has to be read.
const std::string* ChecksumWriting::keptChecksum(const FileBelow& file) const {
  const FileChecksum* known = earlier_.find(file.path);
  const std::optional<ListedFacts::Facts> facts = facts_.find(file.path);
  const bool isAsListed = facts && facts->modified && facts->mayBeOf(file);
  return known && isAsListed ? &known->checksum : nullptr;
}

bool ChecksumWriting::writeFile(FileWriter& manifest, const FileBelow& file) {
  if (const std::string* kept = keptChecksum(file)) {
    ++filesKept_;
    manifest.write(manifestLine({file.path, *kept}));
    return true;
  }
  const std::optional<std::string> checksum = read(file);
  if (parts_.stop()) return false;
  if (checksum) {
    ++filesRead_;
    manifest.write(manifestLine({file.path, *checksum}));
    const FileChecksum* known = earlier_.find(file.path);
    if (!isOfListing_ && known && known->checksum != *checksum) {
      doubtful_ += QFile::decodeName(file.path.c_str());
    }
  } else if (const FileChecksum* known = earlier_.find(file.path)) {
    manifest.write(manifestLine(*known));
  }
  return true;
}

/// Nothing where it cannot be read, and when it was stopped.
std::optional<std::string> ChecksumWriting::read(const FileBelow& file) {
  try {
    return fileChecksum(pathBelow(parts_.folder, file.path), [this](std::int64_t bytes) {
      progress_.bytes += bytes;
      parts_.progress(progress_);
      return !parts_.stop();
    });
  } catch (const RuntimeFault& fault) {
    unread_ += fault.description();
    return std::nullopt;
  }
}

}  // namespace quorvin
