// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/descriptor.h"

#include <QFile>

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace quorvin {

Descriptor::~Descriptor() {
  if (number_ >= 0) ::close(number_);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

QByteArray encodedPath(const QString& path) {
  if (path.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, path);
  return QFile::encodeName(path);
}

}  // namespace quorvin
