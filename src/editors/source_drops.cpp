// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/source_drops.h"

#include "files/file_lookup.h"
#include "files/path_style.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace quorvin {

DroppedSources droppedSources(const QMimeData& data) {
  DroppedSources dropped;
  for (const QUrl& url : data.urls()) {
    if (!url.isLocalFile()) continue;
    const QString path = QDir::toNativeSeparators(url.toLocalFile());
    if (QFileInfo(path).isDir()) {
      dropped.folders.append(withTrailingSeparator(path, nativePathStyle()));
    } else if (ordinaryFileExists(path) || fileExists(path)) {
      dropped.files.append(path);
    }
  }
  return dropped;
}

SourceDrops::SourceDrops(QWidget& window, std::function<void(const DroppedSources&)> take)
    : QObject(&window), take_(std::move(take)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

void SourceDrops::watch(QWidget& box) {
  box.installEventFilter(this);
}

bool SourceDrops::eventFilter(QObject* watched, QEvent* event) {
  const bool isDrop = event->type() == QEvent::Drop;
  const bool isOver = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  if (!isDrop && !isOver) return QObject::eventFilter(watched, event);
  auto* drop = static_cast<QDropEvent*>(event);
  if (drop->source() || !drop->mimeData()->hasUrls()) return QObject::eventFilter(watched, event);
  const DroppedSources dropped = droppedSources(*drop->mimeData());
  if (dropped.isEmpty()) return QObject::eventFilter(watched, event);
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  // The program that they come from waits until the drop is over.
  if (isDrop) QTimer::singleShot(0, this, [this, dropped] { take_(dropped); });
  return true;
}

}  // namespace quorvin
