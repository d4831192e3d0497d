// SPDX-License-Identifier: GPL-2.0-or-later

// Folders and listing files that are dropped onto a window to be searched.
#pragma once

#include <QMimeData>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace quorvin {

/// What was dropped, as native paths: folders with a separator at their end, and files.
struct DroppedSources {
  QStringList folders;
  QStringList files;

  bool isEmpty() const { return folders.isEmpty() && files.isEmpty(); }
  bool operator==(const DroppedSources&) const = default;
};

/// The folders and ordinary files of this machine among `data`; anything else is left out.
DroppedSources droppedSources(const QMimeData& data);

/// Lets folders and files be dropped onto a window. What is dragged out of the program itself is not taken.
class SourceDrops : public QObject {
  Q_OBJECT

 public:
  /// A child of `window`. `take` is called once the drop is over, so that it may ask the user.
  SourceDrops(QWidget& window, std::function<void(const DroppedSources&)> take);

  /// Takes drops onto `box`, too, which would insert them as text.
  void watch(QWidget& box);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const DroppedSources&)> take_;
};

}  // namespace quorvin
