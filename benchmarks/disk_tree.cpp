// SPDX-License-Identifier: GPL-2.0-or-later
#include "disk_tree.h"

#include "file_traits.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <numeric>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr int kDeepest = 12;
constexpr std::int64_t kSecondsBefore1996 = 820'454'400;

[[noreturn]] void fail(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

timespec timeOf(const FileMoment& moment) {
  return {kSecondsBefore1996 + moment.day * std::int64_t{kSecondsOfDay} + moment.secondOfDay, 0};
}

/// An open file or folder, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { ::close(number_); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }

 private:
  int number_;
};

}  // namespace

DiskTree::DiskTree(std::uint64_t seed, std::int64_t files, std::int64_t folders)
    : random_(seed), files_(files), folderCount_(folders) {}

void DiskTree::make(const std::string& top) {
  if (::mkdir(top.c_str(), 0777) != 0) fail(top);
  folders_.push_back({top, 0});
  // Files come with their folder, as on a disk that has grown, not after all folders.
  const std::vector<std::int64_t> counts = fileCounts();
  makeFiles(folders_.front(), counts.front());
  for (std::size_t i = 1; i < counts.size(); ++i) {
    folders_.push_back(newFolder());
    makeFiles(folders_.back(), counts[i]);
  }
}

std::vector<std::int64_t> DiskTree::fileCounts() {
  std::vector<std::int64_t> weights(static_cast<std::size_t>(folderCount_));
  for (std::int64_t& weight : weights) {
    const std::uint32_t start = std::uint32_t{1} << static_cast<unsigned>(random_.heads(16));
    weight = start + random_.below(start);
  }
  const std::int64_t sum = std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
  for (std::int64_t& weight : weights) weight = weight * files_ / sum;
  std::int64_t left = files_ - std::accumulate(weights.begin(), weights.end(), std::int64_t{0});
  for (std::size_t i = 0; left > 0; i = (i + 1) % weights.size(), --left) ++weights[i];
  return weights;
}

DiskTree::Folder DiskTree::newFolder() {
  for (;;) {
    const Folder& parent = folders_[random_.below(static_cast<std::uint32_t>(folders_.size()))];
    if (parent.depth >= kDeepest) continue;
    Folder folder{parent.path + '/' + names_.folderName(), parent.depth + 1};
    if (::mkdir(folder.path.c_str(), 0777) == 0) return folder;
    // The top folder may have every name already.
    if (errno == EEXIST) folder.path += ' ' + std::to_string(folders_.size());
    if (errno != EEXIST || ::mkdir(folder.path.c_str(), 0777) != 0) fail(folder.path);
    return folder;
  }
}

void DiskTree::makeFiles(const Folder& folder, std::int64_t count) {
  const Descriptor descriptor(::open(folder.path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.number() < 0) fail(folder.path);
  for (std::int64_t i = 0; i < count; ++i) makeFile(descriptor.number());
}

void DiskTree::makeFile(int folderDescriptor) {
  constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  int number = -1;
  while (number < 0) {
    const std::string& name = names_.fileName();
    number = ::openat(folderDescriptor, name.c_str(), kNewFile, 0666);
    if (number < 0 && errno != EEXIST) fail(name);
  }
  const Descriptor file(number);
  const FileTraits traits = traitsOf(random_.next());
  const timespec times[2] = {timeOf(traits.moment), timeOf(traits.moment)};
  const bool made = ::ftruncate(file.number(), traits.size) == 0 && ::futimens(file.number(), times) == 0;
  if (!made) fail("a file's length and date");
}

}  // namespace quorvin
