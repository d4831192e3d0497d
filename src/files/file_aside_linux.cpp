// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvin {
namespace {

constexpr mode_t kWhatTheUmaskLeaves = 0666;
/// Until it is known who may read what is replaced.
constexpr mode_t kOnlyTheUser = 0600;
constexpr mode_t kReadAndWrite = 0666;
constexpr int kMostLinks = 40;
constexpr std::time_t kDay = 24 * 60 * 60;

/// The folder is needed for its names only, which also one that cannot be listed has.
Descriptor openFolder(const QByteArray& path) {
  return Descriptor(::open(path.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

struct SplitPath {
  QByteArray folder;
  QByteArray name;
};

SplitPath split(const QByteArray& path) {
  const qsizetype slash = path.lastIndexOf('/');
  return {slash < 0 ? QByteArray("./") : path.first(slash + 1), path.mid(slash + 1)};
}

bool isFileName(const QByteArray& name) {
  return !name.isEmpty() && name != "." && name != "..";
}

/// Where the link at `path` leads to, as a path; empty when there is no link.
QByteArray linkTarget(const QByteArray& path) {
  QByteArray target(PATH_MAX, '\0');
  const ssize_t length = ::readlink(path.constData(), target.data(), static_cast<std::size_t>(target.size()));
  if (length <= 0) return {};
  target.truncate(length);
  return target.startsWith('/') ? target : split(path).folder + target;
}

QByteArray withoutLinks(QByteArray path, const QString& shownPath) {
  for (int links = 0; links < kMostLinks; ++links) {
    const QByteArray target = linkTarget(path);
    if (target.isEmpty()) return path;
    path = target;
  }
  throw faultOfSystemError(ELOOP, shownPath);
}

/// Hidden, so that it is no part of a listing, and not to be guessed, so that nobody takes it beforehand.
QByteArray freshName() {
  const QByteArray random = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
  return ".quorvin-" + QByteArray::number(::getpid()) + '-' + random.rightJustified(16, '0') + ".part";
}

/// The process in a name that freshName() made, or an earlier version in its ways; nothing for other names.
std::optional<pid_t> processOf(const QString& name) {
  static const QRegularExpression pattern(
      QStringLiteral("^\\.quorvin-([1-9][0-9]{0,8})(-[0-9a-f]{16}\\.part|-[0-9]{1,15}\\.part|\\.tmp)$"));
  const QRegularExpressionMatch match = pattern.match(name);
  if (!match.hasMatch()) return std::nullopt;
  return match.captured(1).toInt();
}

bool isRunning(pid_t process) {
  return ::kill(process, 0) == 0 || errno != ESRCH;
}

enum class LockState { Free, Held, Unknown };

LockState lockState(const QString& path) {
  constexpr int kNoLink = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const Descriptor file(::open(encodedPath(path).constData(), kNoLink));
  if (!file.isOpen()) return LockState::Unknown;
  if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0) return LockState::Free;
  return errno == EWOULDBLOCK ? LockState::Held : LockState::Unknown;
}

/// Six letters, of which some are small and some, not only the first, are capitals: "list.backup" and
/// "list.Backup" are somebody's own.
bool isEarlierEnding(QStringView ending) {
  const auto isSmall = [](QChar letter) { return letter >= u'a' && letter <= u'z'; };
  const auto isCapital = [](QChar letter) { return letter >= u'A' && letter <= u'Z'; };
  const bool isLetters = std::ranges::all_of(
      ending, [&](QChar character) { return isSmall(character) || isCapital(character); });
  return ending.size() == 6 && isLetters && std::ranges::any_of(ending, isSmall) &&
         std::ranges::any_of(ending.mid(1), isCapital);
}

bool isUntouchedForADay(const QString& path) {
  struct stat found {};
  if (::lstat(encodedPath(path).constData(), &found) != 0) return false;
  return std::time(nullptr) - found.st_mtim.tv_sec > kDay;
}

/// 0, or the system's error number: EEXIST when `to` is taken.
int renameUnlessTaken(int folder, const char* from, const char* to) {
  if (::renameat2(folder, from, folder, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // The file system cannot refuse by itself. A second name for the file cannot be one that is taken either.
  if (::linkat(folder, from, folder, to, 0) == 0) {
    ::unlinkat(folder, from, 0);
    return 0;
  }
  if (errno == EEXIST) return errno;
  // Nor does it know second names: a look, and the hope that nobody comes between.
  if (::faccessat(folder, to, F_OK, AT_SYMLINK_NOFOLLOW) == 0) return EEXIST;
  return ::renameat(folder, from, folder, to) == 0 ? 0 : errno;
}

}  // namespace

FileAside::FileAside(const QString& path, const AsideOptions& options)
    : FileAside(placeOf(path, options), options) {
  start();
}

FileAside::FileAside(Descriptor folder, const QString& folderPath, const QString& name,
                     const AsideOptions& options)
    : FileAside(Place{std::move(folder), folderPath, encodedPath(name), folderPath + name}, options) {
  start();
}

// Nothing that can fail: once this is through, a constructor that fails has the destructor run, which removes
// the file.
FileAside::FileAside(Place place, const AsideOptions& options)
    : place_(std::move(place)), options_(options) {}

void FileAside::start() {
  if (!isFileName(place_.name)) fail(EISDIR);
  lookAtPlace();
  make();
  writer_.emplace(file_.get(), shownWhileWritten());
}

FileAside::~FileAside() {
  if (vanishes_) ::unlinkat(place_.folder.get(), nameAside_.constData(), 0);
}

FileAside::Place FileAside::placeOf(const QString& path, const AsideOptions& options) {
  const QString shown = options.shownPath.isEmpty() ? path : options.shownPath;
  const QByteArray written = encodedPath(path);
  const auto [folder, name] = split(options.followsLink ? withoutLinks(written, shown) : written);
  const QString folderPath = QFile::decodeName(folder);
  Place place{openFolder(folder), folderPath, name, shown};
  if (place.folder.isOpen()) return place;
  throw faultOfSystemError(errno, options.nameAside.isEmpty() ? shown : folderPath + options.nameAside);
}

void FileAside::make() {
  if (!options_.nameAside.isEmpty()) {
    const QByteArray name = encodedPath(options_.nameAside);
    ::unlinkat(place_.folder.get(), name.constData(), 0);
    if (!tryToMake(name)) failWriting(errno);
    return;
  }
  while (!tryToMake(freshName())) {
    if (errno != EEXIST) fail(errno);
  }
  vanishes_ = true;
  // For isOfDeadProcess(); where the file system has no locks the program's number must do.
  static_cast<void>(::flock(file_.get(), LOCK_EX | LOCK_NB));
}

bool FileAside::tryToMake(const QByteArray& name) {
  constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  const mode_t rights = replaced_ ? kOnlyTheUser : kWhatTheUmaskLeaves;
  file_ = Descriptor(::openat(place_.folder.get(), name.constData(), kNewFile, rights));
  if (!file_.isOpen()) return false;
  nameAside_ = name;
  return true;
}

void FileAside::writeAt(std::int64_t position, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::pwrite(file_.get(), bytes.data(), bytes.size(), position);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) failWriting(errno);
    position += count;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void FileAside::finish() {
  if (std::exchange(isFinished_, true)) {
    writer_->flush();
    return;
  }
  writer_->flush();
  lookAtPlace();
  takeOverRights();
  const bool isNeeded =
      options_.durability == Durability::New || (options_.durability == Durability::OldOrNew && replaced_);
  if (isNeeded && ::fsync(file_.get()) != 0) failWriting(errno);
  // Closing is where network drives report that there was no room. The file itself stays open for its lock.
  const int copy = ::fcntl(file_.get(), F_DUPFD_CLOEXEC, 0);
  if (copy < 0 || ::close(copy) != 0) failWriting(errno);
}

QString FileAside::path() const {
  return place_.folderPath + QFile::decodeName(nameAside_);
}

void FileAside::commit() {
  finish();
  const int folder = place_.folder.get();
  if (::renameat(folder, nameAside_.constData(), folder, place_.name.constData()) != 0) fail(errno);
  vanishes_ = false;
  if (options_.durability == Durability::New) bringFolderToMedium();
}

bool FileAside::commitUnlessTaken(const QString& name) {
  finish();
  const QByteArray wanted = encodedPath(name);
  const int error = renameUnlessTaken(place_.folder.get(), nameAside_.constData(), wanted.constData());
  if (error == EEXIST) return false;
  if (error != 0) fail(error);
  vanishes_ = false;
  if (options_.durability == Durability::New) bringFolderToMedium();
  return true;
}

void FileAside::discard() {
  vanishes_ = false;
  ::unlinkat(place_.folder.get(), nameAside_.constData(), 0);
}

// What was there at the start counts even if it is gone meanwhile: its rights were meant for this content.
void FileAside::lookAtPlace() {
  struct stat found {};
  if (!options_.mayReplace) return;
  if (::fstatat(place_.folder.get(), place_.name.constData(), &found, AT_SYMLINK_NOFOLLOW) != 0) return;
  if (!S_ISREG(found.st_mode)) return;
  replaced_ = Replaced{found.st_mode & kReadAndWrite, found.st_uid, found.st_gid};
}

// Not every file system knows owners and rights; the content is what counts.
void FileAside::takeOverRights() {
  if (!replaced_) return;
  mode_t rights = replaced_->rights;
  struct stat own {};
  static_cast<void>(::fstat(file_.get(), &own));
  const bool isOther = own.st_uid != replaced_->user || own.st_gid != replaced_->group;
  constexpr auto kSameUser = static_cast<uid_t>(-1);
  if (isOther && ::fchown(file_.get(), replaced_->user, replaced_->group) != 0 &&
      ::fchown(file_.get(), kSameUser, replaced_->group) != 0) {
    // What one group was allowed is not for another: that one gets what everybody has.
    rights = (rights & 0606) | (rights & 0006) << 3;
  }
  static_cast<void>(::fchmod(file_.get(), rights));
}

void FileAside::bringFolderToMedium() const {
  const Descriptor folder(::openat(place_.folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // One that cannot be listed cannot be synced, and some file systems see to it by themselves.
  if (!folder.isOpen() || ::fsync(folder.get()) == 0 || errno == EINVAL) return;
  fail(errno);
}

QString FileAside::shownWhileWritten() const {
  return options_.nameAside.isEmpty() ? place_.shownPath : place_.folderPath + options_.nameAside;
}

void FileAside::failWriting(int errorNumber) const {
  throw faultOfSystemError(errorNumber, shownWhileWritten());
}

void FileAside::fail(int errorNumber) const {
  throw faultOfSystemError(errorNumber, place_.shownPath);
}

void replaceFile(const QString& path, QByteArrayView contents) {
  const QFileInfo old(path);
  if (old.exists() && !old.isFile()) throw faultOfSystemError(EISDIR, path);
  if (old.exists() && !old.isWritable()) throw faultOfSystemError(EACCES, path);
  // "File not found" would name a file that need not be there.
  if (!QFileInfo(old.path()).isDir()) throw faultOfSystemError(ENOTEMPTY, path);
  FileAside file(path, {.durability = Durability::New, .followsLink = true});
  file.write({contents.data(), static_cast<std::size_t>(contents.size())});
  file.commit();
}

QStringList filesAside(const QString& folder) {
  QStringList paths;
  const QDir place(folder);
  for (const QStringView pattern : {u".quorvin-*.part", u".quorvin-*.tmp"}) {
    for (const QString& name : namesThatFit(folder, pattern, QDir::Files | QDir::Hidden)) {
      if (processOf(name)) paths += place.filePath(name);
    }
  }
  return paths;
}

bool isOfDeadProcess(const QString& path) {
  const std::optional<pid_t> process = processOf(QFileInfo(path).fileName());
  return process && !isRunning(*process) && lockState(path) == LockState::Free;
}

bool isHeld(const QString& path) {
  return lockState(path) != LockState::Free;
}

void removeLeftovers(const QString& folder) {
  for (const QString& path : filesAside(folder)) {
    const bool isOld = isUntouchedForADay(path) && lockState(path) != LockState::Held;
    if (isOld || isOfDeadProcess(path)) ::unlink(encodedPath(path).constData());
  }
}

void removeEarlierLeftovers(const QString& path) {
  const QFileInfo place(path);
  const QDir folder = place.dir();
  const QString start = place.fileName() + u'.';
  for (const QString& name : folder.entryList(QDir::Files)) {
    if (!name.startsWith(start) || !isEarlierEnding(QStringView(name).mid(start.size()))) continue;
    const QString leftover = folder.filePath(name);
    if (isUntouchedForADay(leftover)) ::unlink(encodedPath(leftover).constData());
  }
}

}  // namespace quorvin
