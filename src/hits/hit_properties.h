// SPDX-License-Identifier: GPL-2.0-or-later

// The window with everything that is known of a hit.
#pragma once

#include "hits/hit_facts.h"

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

namespace quorvin {

/// Shows the values of a hit, each in a box whose text can be selected and copied; a button copies them all.
/// The number of the line in the listing appears as soon as it has been found there; the window never waits
/// for it. Esc closes the window.
class HitProperties : public QDialog {
  Q_OBJECT

 public:
  HitProperties(const KnownHit& hit, const QLocale& locale, QWidget* parent = nullptr);

 private:
  QLineEdit* addRow(QFormLayout* rows, const HitFact& fact);
  void readOn();
  void showLine();
  void Copy_Click();

  QLocale locale_;
  int leastValueWidth_ = 0;
  std::vector<QLineEdit*> values_;
  QLineEdit* line_ = nullptr;
  EntryLineFinder finder_;
  QTimer reading_;
};

}  // namespace quorvin
