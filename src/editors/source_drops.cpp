#include "editors/source_drops.h"

#include "files/file_lookup.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

QString withoutEnd(const QString& path) {
  return QDir::cleanPath(path);
}

bool isAmong(const std::vector<SourceEntry>& entries, const QString& path) {
  return std::ranges::any_of(entries, [known = withoutEnd(path)](const SourceEntry& entry) {
    return withoutEnd(entry.path) == known;
  });
}

bool isTaken(const std::vector<SourceEntry>& entries, const QString& description) {
  return std::ranges::any_of(entries, [&description](const SourceEntry& entry) {
    return entry.description.compare(description, Qt::CaseInsensitive) == 0;
  });
}

/// Each folder needs a listing of its own.
QString freeDescription(const QString& folder, const std::vector<SourceEntry>& entries, PathStyle style) {
  QString name = descriptionOfFolder(folder, style).replace(u'"', u'\'');
  if (name.isEmpty()) name = QStringLiteral("Online");
  QString description = name;
  for (int number = 2; isTaken(entries, description); ++number) {
    description = name + u' ' + QString::number(number);
  }
  return description;
}

/// The sentence that says why the entry is not added; empty when it is.
QString addEntry(const SourceEntry& entry, std::vector<SourceEntry>& entries) {
  if (isAmong(entries, entry.path)) return QStringLiteral("%1 is in the list already.").arg(entry.path);
  if (const auto refusal = whyNotAdded(entry)) return entry.path + QStringLiteral(": ") + *refusal;
  entries.push_back(entry);
  return {};
}

void addLine(QString& lines, const QString& line) {
  if (line.isEmpty()) return;
  if (!lines.isEmpty()) lines += QStringLiteral("\r\n");
  lines += line;
}

}  // namespace

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

QString addFolders(const QStringList& folders, std::vector<SourceEntry>& entries, PathStyle style) {
  QString told;
  for (const QString& folder : folders) {
    addLine(told, addEntry({freeDescription(folder, entries, style), folder}, entries));
  }
  return told;
}

QString addListings(const QStringList& files, std::vector<SourceEntry>& entries) {
  QString told;
  for (const QString& file : files) addLine(told, addEntry({QStringLiteral("Offline"), file}, entries));
  return told;
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
