// SPDX-License-Identifier: GPL-2.0-or-later

// The about window.
#pragma once

#include <QDialog>
#include <QString>
#include <QSvgRenderer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace quorvin {

/// A drawing that is redrawn for every size and every scale of the screen, so that it is never blurred.
class LogoPicture : public QWidget {
  Q_OBJECT

 public:
  explicit LogoPicture(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSvgRenderer drawing_;
};

/// What the about window shows.
struct ProductFacts {
  QString productName;
  int majorVersion;
  int minorVersion;
  int revision;
  QString description;
  /// The system that the program runs on; may be empty.
  QString system = {};
};

/// The about window `frmSplash`: modal, closed by its button, by Esc and by the window's own close box.
class frmSplash : public QDialog {
  Q_OBJECT

 public:
  explicit frmSplash(const ProductFacts& facts, QWidget* parent = nullptr);

 private:
  void Form_Load(const ProductFacts& facts);
  void layOut();
  void wrapWideLabels();
  QLabel* addLabel(const QString& name);

  QLabel* lblProductName_;
  QLabel* lblVersion_;
  QLabel* AppDesc_;
  QLabel* lblPlatform_;
  QLabel* lblSystem_;
  QLabel* lblLicence_;
  QWidget* imgLogo_;
  QPushButton* Command1_;
};

}  // namespace quorvin
