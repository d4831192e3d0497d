// The logo, drawn.
#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace quorvin {

/// A drawing that is drawn anew for every size and every scale of the screen, so that it is never blurred.
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

}  // namespace quorvin
