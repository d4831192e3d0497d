#include "faults/runtime_fault.h"
#include "platform/ini_settings_lock.h"

#include <QDeadlineTimer>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace quorvin {

namespace {

// A write takes some milliseconds; waiting longer than that between looks would only add to it.
constexpr std::chrono::milliseconds kBetweenLooks(5);

bool isHeldByAnother(int errorNumber) {
  return errorNumber == EWOULDBLOCK || errorNumber == EINTR;
}

/// False when another program held it until the time was over.
bool takeLock(int descriptor, int milliseconds) {
  const QDeadlineTimer deadline(milliseconds);
  while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    // The settings file is replaced whole in any case; without locks it may only miss another's last change.
    if (!isHeldByAnother(errno)) return true;
    if (deadline.hasExpired()) return false;
    std::this_thread::sleep_for(kBetweenLooks);
  }
  return true;
}

int openLockFile(const QString& settingsPath) {
  const QByteArray path = QFile::encodeName(settingsPath + QStringLiteral(".lock"));
  constexpr mode_t kOnlyTheUser = 0600;
  return ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kOnlyTheUser);
}

}  // namespace

IniSettingsLock::IniSettingsLock(const QString& settingsPath, int milliseconds)
    : descriptor_(openLockFile(settingsPath)) {
  if (descriptor_ < 0) throw faultOfSystemError(errno, settingsPath);
  if (takeLock(descriptor_, milliseconds)) return;
  ::close(descriptor_);
  throw faultOfSystemError(EBUSY, settingsPath);
}

// Closing gives the lock back.
IniSettingsLock::~IniSettingsLock() {
  ::close(descriptor_);
}

}  // namespace quorvin
