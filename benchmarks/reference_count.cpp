// SPDX-License-Identifier: GPL-2.0-or-later

// Counts the hits of a search by the slow, plain rules of tests/support: the judge of the benchmarks'
// answers.
#include "platform/text_encoding.h"
#include "support/reference_scan.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

#include <cstdio>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 4) {
    std::fprintf(stderr, "usage: reference_count LISTING TEXT MATCH\n");
    return 2;
  }
  QFile file(arguments[1]);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "reference_count: %s: %s\n", qPrintable(arguments[1]),
                 qPrintable(file.errorString()));
    return 2;
  }
  const quorvin::test::ReferenceResult result = quorvin::test::referenceScan(
      file.readAll(), quorvin::simpleLowerCase(arguments[2]), arguments[3].toInt(), QLocale());
  std::printf("%zu found, %lld searched\n", result.hits.size(), static_cast<long long>(result.searched));
  return 0;
}
