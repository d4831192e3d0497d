// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows how lists come from a peer.
#pragma once

#include "peers/client/peer_client.h"
#include "work/progress.h"

#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QString>

namespace quorvin {

/// Labels `Peer`, `List` and `Bytes`, and a `CancelButton`. Like `Progress` it takes no focus when it is
/// shown. The button, Esc and closing the window cancel.
class PeerProgress : public QDialog {
  Q_OBJECT

 public:
  /// `locale` is the one in which numbers are written.
  explicit PeerProgress(const QLocale& locale, QWidget* parent = nullptr);

  /// Shows the window for a new conversation.
  void begin(const QString& peer);
  void showFigures(const PeerFigures& figures);

  void reject() override;

 Q_SIGNALS:
  void cancelled();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QLocale locale_;
  MiddleElidedLabel* peer_;
  MiddleElidedLabel* list_;
  QLabel* bytes_;
  QPushButton* cancelButton_;
};

}  // namespace quorvin
