// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows the earlier versions of listings.
#pragma once

#include "history/listing_history.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QString>
#include <QTreeWidget>

#include <functional>

namespace quorvin {

/// The window `ListingHistory`: the listings that have a history, the listing as it is now, and its versions
/// with date, entries, size and whether they are complete. `Restore` puts the selected one in the listing's
/// place, `Compare` shows what has changed since.
class HistoryWindow : public QDialog {
  Q_OBJECT

 public:
  /// Restores a version, which may take its time; calls `ended` when that has been done, or has failed and
  /// the message has been shown.
  using Restore = std::function<void(const QString& listing, int number, std::function<void()> ended)>;

  /// Shows what has changed since a version.
  using Compare = std::function<void(const QString& listing, int number)>;

  /// `history` must outlive the window.
  HistoryWindow(const ListingHistory& history, const QLocale& locale, Restore restore, Compare compare,
                QWidget* owner);

 private:
  void showListings();
  void showVersions();
  void listVersions(const QString& listing);
  void showPresent(const QString& listing);
  void Restore_Click();
  void allowChoice(bool allowed);
  void allowUse(bool allowed);
  int selectedNumber() const;
  QString textOf(const ListingVersion& version) const;

  const ListingHistory& history_;
  QLocale locale_;
  Restore restore_;
  Compare compare_;
  QComboBox* listing_;
  QLabel* present_;
  QTreeWidget* versions_;
  QPushButton* restoreButton_;
  QPushButton* compareButton_;
};

}  // namespace quorvin
