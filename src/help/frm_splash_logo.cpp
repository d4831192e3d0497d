#include "help/frm_splash_logo.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace quorvin {

namespace {

/// The height of the logo in lines of text.
constexpr int kLogoLines = 8;

}  // namespace

LogoPicture::LogoPicture(QWidget* parent)
    : QWidget(parent), drawing_(QStringLiteral(":/quorvin/help/quorvin.svg")) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LogoPicture::sizeHint() const {
  const int side = fontMetrics().height() * kLogoLines;
  return {side, side};
}

void LogoPicture::paintEvent(QPaintEvent*) {
  const int side = std::min(width(), height());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QRectF square(0, 0, side, side);
  square.moveCenter(QRectF(rect()).center());
  drawing_.render(&painter, square);
}

}  // namespace quorvin
