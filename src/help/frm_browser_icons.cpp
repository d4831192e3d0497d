#include "help/frm_browser_icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <initializer_list>

namespace quorvin {

namespace {

constexpr int kIconSide = 24;

/// The colour that the drawings have in their files.
constexpr char kDrawnColour[] = "#000000";

QByteArray drawing(const QString& key, const QColor& colour) {
  QFile file(QStringLiteral(":/quorvin/help/%1.svg").arg(key.toLower()));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().replace(kDrawnColour, colour.name().toLatin1());
}

void addDrawing(QIcon& icon, QIcon::Mode mode, const QByteArray& drawing) {
  QSvgRenderer renderer(drawing);
  for (const int scale : {1, 2, 3}) {
    QPixmap pixmap(QSize(kIconSide, kIconSide) * scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    icon.addPixmap(pixmap, mode);
  }
}

}  // namespace

QIcon toolbarIcon(const QString& key, const QColor& colour, const QColor& disabledColour) {
  QIcon icon;
  addDrawing(icon, QIcon::Normal, drawing(key, colour));
  addDrawing(icon, QIcon::Disabled, drawing(key, disabledColour));
  return icon;
}

}  // namespace quorvin
