// SPDX-License-Identifier: GPL-2.0-or-later

// A folder of very many files.
#pragma once

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace quorvin::test {

/// Makes files that are called 0, 1, 2 and so on in a folder, which ends in a slash. All are names of one
/// empty file: a tenth of the work of so many files, and listings hold names.
inline void makeManyFiles(const QByteArray& folder, int count) {
  const TemporaryFolder other;
  const QByteArray file = other.writeFile(QStringLiteral("file"), "").toUtf8();
  for (int i = 0; i < count; ++i) {
    ASSERT_EQ(::link(file.constData(), (folder + QByteArray::number(i)).constData()), 0);
  }
}

}  // namespace quorvin::test
