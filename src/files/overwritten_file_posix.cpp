#include "faults/runtime_fault.h"
#include "files/overwritten_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace quorvin {
namespace {

Descriptor openRegularFile(const QString& path) {
  // The system would end the path at a NUL and write another file.
  if (path.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, path);
  // Not blocking, so that a pipe without a reader is refused instead of holding the program up.
  constexpr int kKeepContent = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  constexpr mode_t kAllThatTheUserAllows = 0666;
  Descriptor file(::open(QFile::encodeName(path).constData(), kKeepContent, kAllThatTheUserAllows));
  if (file.get() < 0) throw faultOfSystemError(errno, path);
  struct stat status {};
  if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) throw faultOfSystemError(EISDIR, path);
  return file;
}

}  // namespace

OverwrittenFile::OverwrittenFile(const QString& path)
    : file_(openRegularFile(path)), writer_(file_.get(), path) {}

}  // namespace quorvin
