// SPDX-License-Identifier: GPL-2.0-or-later

// The per-user settings store: texts kept between runs, addressed by application, section and key.
#pragma once

#include <QString>

namespace quorvin {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or `fallback` when the key is absent. A key that was stored empty gives empty text.
  /// Throws RuntimeFault when the store is there but cannot be read: what it holds is not known then.
  virtual QString read(const QString& application, const QString& section, const QString& key,
                       const QString& fallback) const = 0;

  /// Stores `value`, making the application and the section as needed. Throws RuntimeFault when the store
  /// cannot be written; the values stored before stay.
  virtual void write(const QString& application, const QString& section, const QString& key,
                     const QString& value) = 0;
};

}  // namespace quorvin
