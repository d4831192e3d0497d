// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/catalogue_job.h"

#include "faults/runtime_fault.h"
#include "texts/texts.h"

#include <QScopeGuard>

#include <new>

namespace quorvin {

CatalogueJob::~CatalogueJob() = default;

void CatalogueJob::run() {
  const auto ending = qScopeGuard([this] { hasEnded_ = true; });
  try {
    isComplete_ = work() && !isStopped();
  } catch (const RuntimeFault& fault) {
    fail(fault.text());
  } catch (const std::bad_alloc&) {
    fail(Texts::tr("Run-time error: Out of memory"));
  }
}

bool CatalogueJob::fail(const QString& sentence) {
  fault_ = sentence;
  return false;
}

}  // namespace quorvin
