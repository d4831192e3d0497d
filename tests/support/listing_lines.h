// SPDX-License-Identifier: GPL-2.0-or-later

// Lines of listings for tests.
#pragma once

#include <QByteArray>

namespace quorvin::test {

/// An entry line in the writer's columns: name padded or cut to 65, size right-aligned in 16, " bytes ",
/// date.
inline QByteArray entryLine(const QByteArray& name, const QByteArray& size = "1,024",
                            const QByteArray& date = "15 Jan 2004 10:20:30") {
  return name.leftJustified(65, ' ', true) + size.rightJustified(16) + " bytes " + date + "\r\n";
}

/// The head of a directory block.
inline QByteArray blockHead(const QByteArray& volume, const QByteArray& folder) {
  return "\r\nVolume:    " + volume + "\r\nDirectory: " + folder + "\r\n\r\n";
}

}  // namespace quorvin::test
