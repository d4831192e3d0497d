// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copy_contents.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "hits/hit_paths.h"
#include "platform/text_encoding.h"

#include <QFileInfo>

#include <memory>
#include <optional>
#include <utility>
#include <xxhash.h>

namespace quorvin {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;

struct EndOfHash {
  void operator()(XXH3_state_t* state) const { XXH3_freeState(state); }
};

/// The hash of bytes that come one after another.
class Hashing {
 public:
  Hashing() : state_(XXH3_createState()) {
    if (!state_) throw std::bad_alloc();
    XXH3_128bits_reset(state_.get());
  }

  void add(std::string_view bytes) { XXH3_128bits_update(state_.get(), bytes.data(), bytes.size()); }
  ContentHash hash() const {
    const XXH128_hash_t hash = XXH3_128bits_digest(state_.get());
    return {hash.high64, hash.low64};
  }

 private:
  std::unique_ptr<XXH3_state_t, EndOfHash> state_;
};

}  // namespace

/// Finds the files of listed entries, one after another.
class CopyContents::Finder {
 public:
  Finder(const FolderTree& folders, const Parts& parts)
      : folders_(folders), kinds_(parts.kinds), paths_(parts.state) {}

  /// Empty where it is not at hand, as long as listed.
  QString pathOf(ListedFiles::Visited& file) {
    enter(file.folder);
    if (row_.kind != SourceKind::Online) return {};
    row_.name = textOfUtf8(file.name().listed);
    const HitPath found = paths_.of(row_);
    if (found.isEmpty()) return {};
    const QString path = found.fullPath();
    return QFileInfo(path).size() == file.size ? path : QString();
  }

 private:
  /// Neighbours mostly share their folder.
  void enter(std::uint32_t folder) {
    if (folder_ == folder) return;
    folder_ = folder;
    const FolderTree::Volume& volume = folders_.volumes()[folders_.volumeOf(folder)];
    row_.kind = kinds_[volume.listing];
    row_.volume = textOfUtf8(volume.name);
    row_.folder = textOfUtf8(folders_.path(folder));
  }

  const FolderTree& folders_;
  const std::vector<SourceKind>& kinds_;
  HitPaths paths_;
  std::optional<std::uint32_t> folder_;
  HitRow row_;
};

CopyContents::CopyContents(const Copies& copies, Parts parts) : copies_(copies), parts_(std::move(parts)) {}

bool CopyContents::read(const StopAsked& stop) {
  Finder finder(copies_.files().folders(), parts_);
  buffer_.resize(kBufferSize);
  return lookForFiles(finder, stop) && readFiles(finder, stop);
}

bool CopyContents::isAskedAbout(const ListedFiles::Visited& file) const {
  const std::uint32_t group = copies_.groupAt(file.place);
  return group != Copies::kNone && file.size > 0 && copies_.groups()[group].isWanted;
}

/// What is to be read is known before any of it is: only so can it be told how much is left.
bool CopyContents::lookForFiles(Finder& finder, const StopAsked& stop) {
  isAtHand_.assign(copies_.files().placeCount(), false);
  atHand_.assign(copies_.groups().size(), 0);
  const ListedFiles& files = copies_.files();
  bool isStopped = false;
  const auto look = [&](ListedFiles::Visited& file) {
    if (isStopped || !isAskedAbout(file)) return;
    isStopped = stop();
    const bool isThere = !isStopped && !finder.pathOf(file).isEmpty();
    isAtHand_[file.place] = isThere;
    if (!isThere) ++counts_.notAtHand;
    if (!isThere) return;
    const std::uint32_t count = ++atHand_[copies_.groupAt(file.place)];
    if (count > 1) bytesToRead_ = sumOfBytes(bytesToRead_, productOfBytes(file.size, count == 2 ? 2 : 1));
  };
  return files.visitFiles(look, [&] { return isStopped || stop(); }) && !isStopped;
}

bool CopyContents::readFiles(Finder& finder, const StopAsked& stop) {
  bool isStopped = false;
  const auto read = [&](ListedFiles::Visited& file) {
    if (isStopped || !isAtHand_[file.place] || atHand_[copies_.groupAt(file.place)] < 2) return;
    const QString path = finder.pathOf(file);
    try {
      isStopped = !path.isEmpty() && !readFile(path, file, stop);
      if (path.isEmpty()) ++counts_.notAtHand;
    } catch (const RuntimeFault&) {
      ++counts_.notAtHand;
    }
  };
  return copies_.files().visitFiles(read, [&] { return isStopped || stop(); }) && !isStopped;
}

/// False where `stop` ended it. A file that changes its length meanwhile is not the one that is listed.
bool CopyContents::readFile(const QString& path, const ListedFiles::Visited& file, const StopAsked& stop) {
  SequentialFile source(path);
  Hashing hashing;
  std::int64_t length = 0;
  while (const std::size_t size = source.read(buffer_)) {
    hashing.add({buffer_.data(), size});
    length += static_cast<std::int64_t>(size);
    bytesRead_ = sumOfBytes(bytesRead_, static_cast<std::int64_t>(size));
    parts_.reading(bytesRead_, bytesToRead_);
    if (stop()) return false;
  }
  if (length != file.size) {
    ++counts_.notAtHand;
    return true;
  }
  found_.push_back({file.place, hashing.hash()});
  counts_.read.add(file.size);
  return true;
}

}  // namespace quorvin
