// How the user wants to see things, kept from run to run.
#pragma once

#include "platform/settings_store.h"

#include <QString>

namespace quorvin {

/// What the user has set in the window and its View menu. It is kept in the section "View" of the settings
/// set, one key for each field; a field that was never changed has no key.
struct ViewSettings {
  /// Key "Columns": widths, order and visibility of the hit list's columns, as HitListView understands them;
  /// empty, the default, for those that the window divides by itself.
  QString columns;

  bool operator==(const ViewSettings&) const = default;
};

/// What is kept in the settings set `application`; what is missing there, or is not understood, is the
/// default. Throws as the store does.
ViewSettings readViewSettings(const SettingsStore& store, const QString& application);

/// Stores the fields that differ from what is kept. Throws as the store does; what was stored before the
/// fault stays.
void writeViewSettings(SettingsStore& store, const QString& application, const ViewSettings& settings);

}  // namespace quorvin
