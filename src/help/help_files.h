// SPDX-License-Identifier: GPL-2.0-or-later

// The help pages on disk, and nothing else on disk.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quorvin {

enum class HelpFileState {
  Read,
  /// It would be one of the help's files, but it is not there or cannot be read.
  Missing,
  /// It is no file of the help: it lies elsewhere, is a device or a pipe, or of a kind that help has not.
  Refused,
};

enum class HelpFileKind { Page, Picture };

struct HelpFile {
  HelpFileState state = HelpFileState::Refused;
  QByteArray bytes;
};

/// Reads files of one folder, the help's own. What a page or a user names is only ever opened when it is a
/// regular file inside that folder after all links have been followed, is named like a page or a picture, and
/// is of a sensible size.
class HelpFiles {
 public:
  /// The largest file that is read, in bytes.
  static constexpr qint64 kLargestFile = qint64{16} << 20;

  /// `folder` as the system writes paths, with or without a separator at its end.
  explicit HelpFiles(const QString& folder);

  /// With a separator at its end.
  const QString& folder() const { return folder_; }

  /// The address of one of the help's pages, such as "genhelp.htm" or "manual/hits.htm#menu": that of its
  /// translation where it has one into the language that is spoken, in a folder named after the language.
  QString addressOf(const QString& page) const;

  /// The file that `url` names (its fragment and query do not count). One whose name is not that of a file of
  /// this kind is refused. Never throws.
  HelpFile read(const QUrl& url, HelpFileKind kind) const;

 private:
  bool isInside(const QString& path) const;

  QString folder_;
};

/// The folder that holds the help pages, with a separator at its end: the one of the executable, or, where
/// the program is installed and its pages are elsewhere, the shared folder beside it.
QString helpFolder();

/// The rule behind helpFolder: the first of `executableFolder` and its "../share/quorvin/help" that holds
/// "genhelp.htm"; `executableFolder` when neither does.
QString chooseHelpFolder(const QString& executableFolder);

/// HelpFiles::addressOf() of the help folder.
QString helpPageAddress(const QString& pageName);

}  // namespace quorvin
