// SPDX-License-Identifier: GPL-2.0-or-later

// A settings store for tests: it keeps its values in memory and remembers what was read and written.
#pragma once

#include "faults/runtime_fault.h"
#include "platform/settings_store.h"

#include <QString>

#include <map>
#include <tuple>
#include <vector>

namespace quorvin {

class MemorySettingsStore : public SettingsStore {
 public:
  /// One call of read() or write(); `value` is the fallback that was offered, or the text to be stored.
  struct Access {
    QString application;
    QString section;
    QString key;
    QString value;
  };

  QString read(const QString& application, const QString& section, const QString& key,
               const QString& fallback) const override {
    if (refusesReads) throw RuntimeFault(FaultNumber::PermissionDenied);
    reads.push_back({application, section, key, fallback});
    const auto found = values.find({application, section, key});
    return found == values.end() ? fallback : found->second;
  }

  void write(const QString& application, const QString& section, const QString& key,
             const QString& value) override {
    if (refusesWrites) throw RuntimeFault(FaultNumber::PathFileAccess);
    writes.push_back({application, section, key, value});
    values[{application, section, key}] = value;
  }

  /// Puts a value there as an earlier run would have left it, without recording a write.
  void put(const QString& application, const QString& key, const QString& value) {
    values[{application, QStringLiteral("Settings"), key}] = value;
  }

  /// The stored text of section "Settings"; empty when the key is absent (ask has() for that).
  QString stored(const QString& application, const QString& key) const {
    const auto found = values.find({application, QStringLiteral("Settings"), key});
    return found == values.end() ? QString() : found->second;
  }

  bool has(const QString& application, const QString& key) const {
    return values.contains({application, QStringLiteral("Settings"), key});
  }

  /// The values by application, section and key.
  std::map<std::tuple<QString, QString, QString>, QString> values;
  /// All calls so far, in order.
  mutable std::vector<Access> reads;
  std::vector<Access> writes;
  /// Makes every read throw fault 70.
  bool refusesReads = false;
  /// Makes every write throw fault 75 with nothing stored.
  bool refusesWrites = false;
};

}  // namespace quorvin
