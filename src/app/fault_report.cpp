#include "app/fault_report.h"

#include <cstdio>
#include <new>

namespace quorvin {

namespace {

QString whatHappened(const std::exception& fault) {
  if (const auto* known = dynamic_cast<const RuntimeFault*>(&fault)) {
    return known->text();
  }
  if (dynamic_cast<const std::bad_alloc*>(&fault)) return QStringLiteral("Run-time error: Out of memory");
  return QStringLiteral("Run-time error: ") + QString::fromUtf8(fault.what());
}

}  // namespace

QString faultReport(const std::exception& fault, const QString& doing) {
  return whatHappened(fault) + QStringLiteral("\r\n\r\nThis happened while ") + doing + QStringLiteral(".");
}

void showFault(MessageBoxes& messages, const std::exception& fault, const QString& doing) noexcept {
  try {
    messages.inform(faultReport(fault, doing));
  } catch (const std::exception&) {
    std::fprintf(stderr, "quorvin: %s\n", fault.what());
  }
}

}  // namespace quorvin
