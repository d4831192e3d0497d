// SPDX-License-Identifier: GPL-2.0-or-later

// What is on the disk, and what is catalogued of it, kept as plainly as can be: the judge of a soak.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>
#include <random>

namespace quorvin::test {

/// Random choices; the same for the same seed on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}

  /// A number from 0 to `count` - 1; `count` is at least 1.
  int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  bool oneIn(int count) { return below(count) == 0; }
  template <typename List>
  auto& pick(List& list) {
    return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
  }

 private:
  std::mt19937_64 engine_;
};

/// Some of the words that names are made of, all different, some of them cut; 1 to 3.
QStringList randomWords(Dice& dice);
/// All of those words.
QString allWords();

struct FileFacts {
  qint64 size = 0;
  /// The file was changed at noon of it.
  QDate day;

  bool operator==(const FileFacts&) const = default;
};

/// A listing as it ought to be.
struct Listing {
  QString volume;
  /// The top folder as it is listed: with backslashes, one at its end.
  QString top;
  /// By the paths below the top folder, with slashes.
  std::map<QString, FileFacts> files;

  /// A file that holds the listing, for a program that has not made it itself.
  QByteArray text() const;
  /// Whether a file holds exactly these entries. Throws std::runtime_error for one that is no listing of the
  /// volume.
  bool isIn(const QByteArray& file) const;
  /// What is left of it where only the folders that `file` has were walked.
  Listing cutAs(const QByteArray& file) const;
  /// What a search for `words` at a desired match of 50% has to find in it, as rows of the hit list when they
  /// are copied.
  QStringList hits(const QStringList& words) const;
};

/// A listing of `count` files that exist nowhere.
Listing randomListing(const QString& volume, const QString& top, int count, Dice& dice);

/// A folder on the disk that is changed at random, and known without looking at it.
class SourceFolder {
 public:
  /// Makes the folder at `path`, which ends in a slash, with `usualCount` files: around that many it will
  /// have later. Throws std::runtime_error, as all functions do, when the disk does not do what it is asked.
  SourceFolder(const QString& description, const QString& path, int usualCount, Dice& dice);

  const QString& description() const { return description_; }
  const QString& path() const { return path_; }

  /// Adds a file that stays as long as the folder.
  void addLasting(const QString& name, const QByteArray& bytes);
  /// Adds, removes, renames or moves a few files or a sub-folder, and says what it did. The folder is there.
  QString change(Dice& dice);

  /// Takes the folder away as a medium is taken out, and brings it back.
  void takeAway();
  void bringBack();
  bool isThere() const { return isThere_; }

  /// What a refresh has to list now.
  Listing listing() const;

 private:
  void write(const QString& name, const FileFacts& facts) const;
  void addFiles(int count, Dice& dice);
  QString randomFile(Dice& dice) const;
  void renameFile(const QString& from, const QString& to);
  QString removeFile(const QString& name);
  QString renameSubFolder(const QString& from, const QString& to);
  QString freshName(Dice& dice);

  QString description_;
  QString path_;
  int usualCount_;
  bool isThere_ = true;
  int names_ = 0;
  std::map<QString, FileFacts> files_;
  std::map<QString, FileFacts> lasting_;
};

}  // namespace quorvin::test
