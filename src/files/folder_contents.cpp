// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/folder_contents.h"

#include <utility>

namespace quorvin {

namespace {

/// What is kept of a folder with more names is some megabytes; the walk reads the rest of it.
constexpr std::size_t kMostNames = 65'536;

/// Decides what is done with the names of one folder.
class Planning {
 public:
  Planning(FolderContents& contents, const Descriptor& folder, const WalkPlan& plan)
      : contents_(contents),
        folder_(folder),
        plan_(plan),
        lookUps_(std::make_shared<LookUps>(contents.bytes)) {}

  void run(std::size_t way, const std::atomic<bool>& isGivenUp) {
    for (std::size_t row = 0; row < contents_.names.size() && !isGivenUp; ++row) decide(row, way);
    if (!contents_.isWhole || folders_ + links_ > plan_.mostSubFolders) contents_.subFolders.clear();
    lookUps_->takeUpTo(lookUps_->size());
    if (contents_.isWhole && files_ + links_ <= plan_.mostFiles) {
      for (const std::size_t place : later_) lookUps_->add(place);
    }
    if (lookUps_->size() > 0) contents_.lookUps = std::move(lookUps_);
  }

 private:
  void decide(std::size_t row, std::size_t way) {
    const FolderName name = contents_.name(row);
    const NameUse use = plan_.use(name);
    const std::size_t place = contents_.names[row].place;
    if (name.kind == NameKind::Link) ++links_;
    if (use.enter) {
      ++folders_;
      if (way + name.bytes.size() + 1 <= plan_.longestWay) contents_.subFolders.emplace_back(name.bytes);
    }
    NameStatus status{name.kind, 0, 0};
    if (use.lookUpAtOnce) {
      const int error = lookUpName(folder_, name.bytes.data(), status);
      lookUps_->add(place, error, status);
      if (error != 0) return;
    }
    if (!use.lookUpLater || status.kind != NameKind::File) return;
    if (name.kind == NameKind::File) ++files_;
    later_.push_back(place);
  }

  FolderContents& contents_;
  const Descriptor& folder_;
  const WalkPlan& plan_;
  std::shared_ptr<LookUps> lookUps_;
  std::vector<std::size_t> later_;
  std::size_t folders_ = 0;
  std::size_t files_ = 0;
  std::size_t links_ = 0;
};

void readNames(FolderContents& contents, const Descriptor& folder, FolderStretch& stretch,
               const std::atomic<bool>& isGivenUp) {
  const auto bytes = std::make_shared<std::string>();
  contents.bytes = bytes;
  stretch.forget();
  while (!isGivenUp) {
    FolderName name;
    contents.error = stretch.next(folder, name);
    if (contents.error != 0) break;
    contents.isWhole = name.bytes.empty();
    if (contents.isWhole) break;
    contents.names.push_back({bytes->size(), name.bytes.size(), name.kind});
    bytes->append(name.bytes).push_back('\0');
    if (contents.names.size() >= kMostNames && stretch.isUsedUp()) break;
  }
  // The walk may do better: it can close folders.
  if (isExhaustion(contents.error)) contents.error = 0;
}

}  // namespace

void LookUps::add(std::size_t place, int error, const NameStatus& status) {
  Row& row = rows_.emplace_back(place);
  row.error = isExhaustion(error) ? kNotKnown : error;
  row.status = status;
  row.isMade = true;
}

std::shared_ptr<LookUps> LookUps::from(std::size_t row) const {
  auto rest = std::make_shared<LookUps>(names_);
  for (; row < rows_.size(); ++row) rest->add(rows_[row].place);
  return rest;
}

void LookUps::make(const Descriptor& folder, std::size_t first, std::size_t end) {
  for (std::size_t i = first; i < end && !areGivenUp_.load(std::memory_order_relaxed); ++i) {
    Row& row = rows_[i];
    const int error = lookUpName(folder, name(i), row.status);
    row.error = isExhaustion(error) ? kNotKnown : error;
    row.isMade.store(true, std::memory_order_release);
  }
}

int LookUps::result(std::size_t row, NameStatus& status) const {
  status = rows_[row].status;
  return rows_[row].error;
}

FolderContents readContents(const Descriptor& folder, std::size_t way, const WalkPlan& plan,
                            FolderStretch& stretch, const std::atomic<bool>& isGivenUp) {
  FolderContents contents;
  readNames(contents, folder, stretch, isGivenUp);
  Planning(contents, folder, plan).run(way, isGivenUp);
  return contents;
}

}  // namespace quorvin
