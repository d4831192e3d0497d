// SPDX-License-Identifier: GPL-2.0-or-later

// Open files and folders as the system knows them.
#pragma once

#include <QByteArray>
#include <QString>

namespace quorvin {

/// An open file or folder that is closed with the object. Nothing outside of src/files uses its number.
class Descriptor {
 public:
  /// Takes over `number`; a negative one stands for nothing open.
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;

  int get() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

/// `path` as the system wants it. Throws fault 52 for a path with a NUL: the system would end it there and
/// open another file.
QByteArray encodedPath(const QString& path);

}  // namespace quorvin
