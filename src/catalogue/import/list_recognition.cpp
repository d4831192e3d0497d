// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_recognition.h"

#include "catalogue/import/list_importer.h"
#include "faults/runtime_fault.h"

#include <QScopeGuard>

#include <new>
#include <utility>

namespace quorvin {

ListRecognition::ListRecognition(QStringList lists, ImportRequest request)
    : lists_(std::move(lists)),
      request_(std::move(request)),
      formats_(static_cast<std::size_t>(lists_.size()), nullptr) {}

void ListRecognition::run() {
  const auto ending = qScopeGuard([this] { hasEnded_ = true; });
  const ListImporter importer({request_, {}}, {}, [this] { return isStopped_.load(); });
  for (qsizetype number = 0; number < lists_.size() && !isStopped_; ++number) {
    try {
      formats_[static_cast<std::size_t>(number)] = importer.formatOf(lists_[number]);
    } catch (const RuntimeFault&) {
      // The import will say why.
    } catch (const std::bad_alloc&) {
    }
  }
}

}  // namespace quorvin
