// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/stream_reader.h"
#include "texts/texts.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvin {

namespace {

constexpr int kMillisecondsBetweenLooks = 200;

Descriptor opened(const QString& path, const StreamReader::EndRequested& endRequested) {
  const QByteArray encoded = encodedPath(path);
  while (true) {
    const int number = ::open(encoded.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (number >= 0) return Descriptor(number);
    if (errno != EINTR || endRequested()) throw faultOfSystemError(errno, path);
  }
}

}  // namespace

bool isStream(const QString& path) {
  struct stat status {};
  if (::stat(encodedPath(path).constData(), &status) != 0) return false;
  return S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode) || S_ISSOCK(status.st_mode);
}

StreamReader::StreamReader(const QString& path, EndRequested endRequested)
    : stream_(opened(path, endRequested)), name_(path), endRequested_(std::move(endRequested)) {}

StreamReader::StreamReader(Descriptor stream, QString name, EndRequested endRequested)
    : stream_(std::move(stream)), name_(std::move(name)), endRequested_(std::move(endRequested)) {}

StreamReader StreamReader::standardInput(EndRequested endRequested) {
  const QString name = Texts::tr("standard input");
  Descriptor copy(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0));
  if (!copy.isOpen()) throw faultOfSystemError(errno, name);
  return {std::move(copy), name, std::move(endRequested)};
}

/// False when an end has been requested meanwhile. A read would go on waiting after a signal.
bool StreamReader::waitForBytes() const {
  pollfd waited{stream_.get(), POLLIN, 0};
  while (!endRequested_()) {
    const int ready = ::poll(&waited, 1, kMillisecondsBetweenLooks);
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) throw faultOfSystemError(errno, name_);
  }
  return false;
}

std::size_t StreamReader::read(std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size() && waitForBytes()) {
    const ssize_t count = ::read(stream_.get(), buffer.data() + filled, buffer.size() - filled);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (count < 0) throw faultOfSystemError(errno, name_);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  return filled;
}

}  // namespace quorvin
