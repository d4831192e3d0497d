// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/fault_report.h"

#include "texts/texts.h"

#include <cstdio>
#include <new>

namespace quorvin {

namespace {

QString whatHappened(const std::exception& fault) {
  if (const auto* known = dynamic_cast<const RuntimeFault*>(&fault)) {
    return known->text();
  }
  if (dynamic_cast<const std::bad_alloc*>(&fault)) return Texts::tr("Run-time error: Out of memory");
  return Texts::tr("Run-time error: %1").arg(QString::fromUtf8(fault.what()));
}

}  // namespace

QString faultReport(const std::exception& fault, const QString& doing) {
  return whatHappened(fault) + QStringLiteral("\r\n\r\n") + Texts::tr("This happened while %1.").arg(doing);
}

void showFault(MessageBoxes& messages, const std::exception& fault, const QString& doing) noexcept {
  try {
    messages.inform(faultReport(fault, doing));
  } catch (const std::exception&) {
    std::fprintf(stderr, "quorvin: %s\n", fault.what());
  }
}

}  // namespace quorvin
