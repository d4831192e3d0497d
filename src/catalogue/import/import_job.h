// SPDX-License-Identifier: GPL-2.0-or-later

// An import of lists that goes on in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/import/list_importer.h"

#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <vector>

namespace quorvin {

/// Unlike other jobs it writes: listings, each of which is put in place whole. A list that is being read when
/// it is stopped leaves none; those before it stay.
class ImportJob : public CatalogueJob {
 public:
  struct Progress {
    /// The list that is being read.
    QString list;
    std::int64_t lines = 0;
  };

  /// `lists` are imported one after another.
  ImportJob(QStringList lists, ImportChoices choices, ImportControls controls);

  /// May be asked while it runs.
  Progress progress() const;

  // What has come of it; only once it has ended, also where it is not complete.

  /// The listings that were made, in the order of their lists.
  const QStringList& places() const { return places_; }
  /// Whether each list has its listing, with everything that it names.
  bool isWhole() const { return isWhole_; }
  /// What there is to say of each list: as what it was read, or why it was not, and what the listing lacks.
  const QStringList& sentences() const { return sentences_; }

 protected:
  bool work() override;

 private:
  void importOne(const ListImporter& importer, const QString& list);
  void tell(const QString& list, const ImportedList& made);

  QStringList lists_;
  ImportChoices choices_;
  ImportControls controls_;
  QStringList places_;
  QStringList sentences_;
  bool isWhole_ = true;

  mutable QMutex mutex_;
  QString list_;
  std::atomic<std::int64_t> lines_ = 0;
};

}  // namespace quorvin
