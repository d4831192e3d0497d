#include "preview/picture_file.h"

#include "faults/runtime_fault.h"
#include "files/sequential_file.h"

#include <algorithm>
#include <utility>

namespace quorvin {

PictureFile::PictureFile(const QString& path, PictureStop stop) : file_(path), stop_(std::move(stop)) {
  // Opening it this way first tells what is wrong with a file that cannot be read, and never waits for a
  // pipe.
  const SequentialFile check(path);
  if (!file_.open(QIODevice::ReadOnly)) {
    throw RuntimeFault(FaultNumber::PathFileAccess,
                       describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path);
  }
  open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

QByteArray PictureFile::part(qint64 position, qsizetype count) {
  seek(position);
  const QByteArray bytes = read(count);
  seek(0);
  return bytes;
}

void PictureFile::replaceByte(qint64 position, char byte) {
  replacedPosition_ = position;
  replacement_ = byte;
}

bool PictureFile::seek(qint64 position) {
  return QIODevice::seek(position) && file_.seek(position);
}

qint64 PictureFile::readData(char* buffer, qint64 wanted) {
  if (stop_.isRequested()) return -1;
  const qint64 position = file_.pos();
  const qint64 count = file_.read(buffer, std::min(wanted, largestStep_));
  const qint64 replaced = replacedPosition_ - position;
  if (replacedPosition_ >= 0 && replaced >= 0 && replaced < count) buffer[replaced] = replacement_;
  return count;
}

}  // namespace quorvin
