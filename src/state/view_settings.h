// SPDX-License-Identifier: GPL-2.0-or-later

// How the user wants to see things, kept from run to run.
#pragma once

#include "platform/settings_store.h"

#include <QString>
#include <QStringList>

namespace quorvin {

/// What the user has set in the window and its View menu, and has searched for. It is kept in the section
/// "View" of the settings set, one key for each field, and the searches in one of their own; a field that was
/// never changed has no key.
struct ViewSettings {
  /// Key "Columns": widths, order and visibility of the hit list's columns, as HitListView understands them;
  /// empty, the default, for those that the window divides by itself.
  QString columns;
  /// Key "SearchWhileTyping", 0 (the default) or 1: what is typed is searched for at once.
  bool searchWhileTyping = false;
  /// Key "KeepSearchHistory", 0 or 1 (the default): whether `searches` are kept.
  bool keepSearchHistory = true;
  /// The texts that were searched for, newest first; section "Searches", key "Texts". See search_history.h.
  QStringList searches;

  bool operator==(const ViewSettings&) const = default;
};

/// What is kept in the settings set `application`; what is missing there, or is not understood, is the
/// default. Throws as the store does.
ViewSettings readViewSettings(const SettingsStore& store, const QString& application);

/// Stores the fields that differ from what is kept. Throws as the store does; what was stored before the
/// fault stays.
void writeViewSettings(SettingsStore& store, const QString& application, const ViewSettings& settings);

}  // namespace quorvin
