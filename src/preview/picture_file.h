// SPDX-License-Identifier: GPL-2.0-or-later

// The file of a picture: its format, and how the image readers see it.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QIODevice>
#include <QString>

#include <limits>
#include <optional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// The formats that can be shown.
enum class PictureFormat { Bitmap, Icon, Jpeg, Gif, WindowsMetafile, EnhancedMetafile };

/// So many bytes of a file are enough to recognise its format.
inline constexpr qsizetype kFormatBytes = 64;

/// The format of a file that starts with `start`, or nothing for every other file. Names do not count: a
/// picture is what its bytes say.
std::optional<PictureFormat> pictureFormatOf(QByteArrayView start);

bool isMetafile(PictureFormat format);

/// The toolkit's name of the image reader for a format that is no metafile.
QByteArray imageReaderOf(PictureFormat format);

/// A regular file that can be stopped: from then on every read fails. There is no other way to interrupt an
/// image reader.
class PictureFile : public QIODevice {
  Q_OBJECT

 public:
  /// Opens `path`. Throws RuntimeFault as SequentialFile does, also for what is not a regular file.
  PictureFile(const QString& path, std::stop_source stop);

  /// `count` bytes from `position` on, or as many as the file has. Reading then goes on from the start.
  QByteArray part(qint64 position, qsizetype count);

  /// From now on one read gives at most `bytes`, so that a reader that can do much with a few bytes reads
  /// more often, and can be stopped. Only for readers that accept less than they have asked for.
  void limitSteps(qint64 bytes) { largestStep_ = bytes; }

  /// From now on a read gives `bytes` for those at `position`, whatever the file says.
  void replaceBytes(qint64 position, const QByteArray& bytes);

  /// May be called while another thread reads.
  void stop() { stop_.request_stop(); }

  qint64 size() const override { return file_.size(); }
  bool seek(qint64 position) override;

 protected:
  qint64 readData(char* buffer, qint64 wanted) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  QFile file_;
  std::stop_source stop_;
  qint64 largestStep_ = std::numeric_limits<qint64>::max();
  struct Replacement {
    qint64 position;
    QByteArray bytes;
  };
  std::vector<Replacement> replacements_;
};

}  // namespace quorvin
