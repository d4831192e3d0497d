// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/verification.h"

#include "catalogue/checksums/file_checksum.h"
#include "catalogue/compared_place.h"
#include "faults/runtime_fault.h"
#include "files/file_lookup.h"
#include "texts/texts.h"

#include <QFile>

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

/// One that was stopped has no verdict.
struct Stopped {};

}  // namespace

bool Verification::run() {
  if (!prepare()) return false;
  goOnFromNotes();
  const QString notes = verifyingNotesOf(manifestOf(parts_.listing));
  if (!judgeAll()) {
    writeNotes(notes, notes_);
    return false;
  }
  addNewFiles();
  QFile::remove(notes);
  return true;
}

bool Verification::prepare() {
  const QString manifest = manifestOf(parts_.listing);
  if (!fileExists(manifest)) {
    throw RuntimeFault(FaultNumber::FileNotFound,
                       Texts::tr("there are no checksums of %1; quorvin-cli index --checksums makes them")
                           .arg(parts_.listing));
  }
  manifest_ = ChecksumManifest(manifest);
  isOfListing_ = manifest_.isOfListing(parts_.listing);
  if (!facts_.read(openerOfListing(parts_.listing), parts_.locale, parts_.stop)) return false;
  chooseFolder();
  std::optional<FilesBelow> below = filesBelow(notes_.folder, parts_.stop);
  if (!below) return false;
  below_ = std::move(*below);
  for (const FileBelow& file : below_.files) belowByPath_.emplace(file.path, &file);
  progress_.filesAll = static_cast<std::int64_t>(manifest_.files().size());
  for (const FileChecksum& file : manifest_.files()) progress_.bytesAll += bytesToRead(file);
  return true;
}

void Verification::chooseFolder() {
  std::vector<std::string_view> paths;
  for (const FileChecksum& file : manifest_.files()) paths.emplace_back(file.path);
  const bool isListed = facts_.lookBelow(parts_.folder, commonFolderOf(paths));
  notes_.folder = parts_.folder.isEmpty() && isListed ? facts_.folder() : parts_.folder;
  if (!notes_.folder.isEmpty()) return;
  throw RuntimeFault(
      FaultNumber::InvalidProcedureCall,
      Texts::tr("%1 does not tell which folder it is of; please name the folder").arg(parts_.listing));
}

/// Added files are looked for anew each time.
void Verification::goOnFromNotes() {
  notes_.manifest = manifest_.identity();
  if (parts_.beginsAgain) return;
  std::optional<VerificationNotes> notes = readNotes(verifyingNotesOf(manifestOf(parts_.listing)));
  const bool isSame = notes && notes->manifest == notes_.manifest && notes->folder == notes_.folder &&
                      notes->done <= manifest_.files().size();
  if (!isSame) return;
  notes_ = std::move(*notes);
  filesBefore_ = static_cast<std::int64_t>(notes_.done);
}

bool Verification::judgeAll() {
  const std::vector<FileChecksum>& files = manifest_.files();
  for (std::size_t number = 0; number < notes_.done; ++number)
    progress_.bytesAll -= bytesToRead(files[number]);
  progress_.files = filesBefore_;
  std::int64_t noted = 0;
  while (notes_.done < files.size()) {
    if (parts_.stop()) return false;
    try {
      FileFinding finding = judge(files[notes_.done]);
      if (finding.verdict != FileVerdict::Fine) notes_.findings.push_back(std::move(finding));
    } catch (const Stopped&) {
      return false;
    }
    ++notes_.done;
    ++progress_.files;
    parts_.progress(progress_);
    if (progress_.bytes - noted < parts_.bytesBetweenNotes) continue;
    writeNotes(verifyingNotesOf(manifestOf(parts_.listing)), notes_);
    noted = progress_.bytes;
  }
  return true;
}

FileFinding Verification::judge(const FileChecksum& file) {
  const auto now = belowByPath_.find(file.path);
  if (now == belowByPath_.end()) {
    const UnreadPath* unread = below_.unreadOf(file.path);
    if (!unread) return {FileVerdict::Lost, file.path};
    return {FileVerdict::Unread, file.path,
            faultOfSystemError(unread->error, QFile::decodeName(unread->path.c_str())).description()};
  }
  try {
    return {verdictOf(file, *now->second), file.path};
  } catch (const RuntimeFault& fault) {
    return {FileVerdict::Unread, file.path, fault.description()};
  }
}

FileVerdict Verification::verdictOf(const FileChecksum& file, const FileBelow& now) {
  const std::optional<ListedFacts::Facts> facts = factsOf(file);
  if (facts && !facts->mayBeOf(now)) return FileVerdict::Changed;
  const std::optional<std::string> checksum =
      fileChecksum(pathBelow(notes_.folder, file.path), [this](std::int64_t bytes) {
        progress_.bytes += bytes;
        parts_.progress(progress_);
        return !parts_.stop();
      });
  if (!checksum) throw Stopped();
  if (*checksum == file.checksum) return FileVerdict::Fine;
  return facts && facts->modified ? FileVerdict::Rotten : FileVerdict::Changed;
}

void Verification::addNewFiles() {
  const OwnFilesBelow own(notes_.folder, parts_.listing);
  for (const FileBelow& file : below_.files) {
    if (!manifest_.find(file.path) && !own.contains(file.path))
      notes_.findings.push_back({FileVerdict::Added, file.path});
  }
}

std::optional<ListedFacts::Facts> Verification::factsOf(const FileChecksum& file) const {
  return isOfListing_ ? facts_.find(file.path) : std::nullopt;
}

std::int64_t Verification::bytesToRead(const FileChecksum& file) const {
  const auto now = belowByPath_.find(file.path);
  if (now == belowByPath_.end()) return 0;
  const std::optional<ListedFacts::Facts> facts = factsOf(file);
  return !facts || facts->mayBeOf(*now->second) ? now->second->size : 0;
}

std::int64_t Verification::count(FileVerdict verdict) const {
  if (verdict != FileVerdict::Fine) {
    return std::ranges::count(notes_.findings, verdict, &FileFinding::verdict);
  }
  const auto judged = static_cast<std::int64_t>(notes_.done);
  const auto others = static_cast<std::int64_t>(notes_.findings.size());
  return judged - (others - count(FileVerdict::Added));
}

}  // namespace quorvin
