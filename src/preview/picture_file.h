// A picture's file as the image readers see it.
#pragma once

#include "preview/picture_stop.h"

#include <QFile>
#include <QIODevice>
#include <QString>

#include <limits>

namespace quorvin {

/// A regular file whose reading fails as soon as it is stopped: that is the only way to call an image reader
/// off.
class PictureFile : public QIODevice {
  Q_OBJECT

 public:
  /// Opens `path`. Throws RuntimeFault as SequentialFile does, a file that is not a regular one included.
  PictureFile(const QString& path, PictureStop stop);

  /// `count` bytes from `position` on, or as many as the file has; the place for reading is the start again.
  QByteArray part(qint64 position, qsizetype count);

  /// From now on one read gives at most `bytes`, so that a reader that can do much with few bytes comes to
  /// look more often. Only for readers that take less than they have asked for.
  void limitSteps(qint64 bytes) { largestStep_ = bytes; }

  /// From now on a read gives `byte` for the one at `position`, whatever the file says.
  void replaceByte(qint64 position, char byte);

  /// May be called from another thread while this one reads.
  void stop() const { stop_.request(); }

  qint64 size() const override { return file_.size(); }
  bool seek(qint64 position) override;

 protected:
  qint64 readData(char* buffer, qint64 wanted) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  QFile file_;
  PictureStop stop_;
  qint64 largestStep_ = std::numeric_limits<qint64>::max();
  qint64 replacedPosition_ = -1;
  char replacement_ = 0;
};

}  // namespace quorvin
