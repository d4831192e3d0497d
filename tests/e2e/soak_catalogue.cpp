// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/soak_catalogue.h"

#include "support/plain_walker.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTimeZone>

#include <stdexcept>

namespace quorvin::test {

namespace {

const QStringList kWords = {QStringLiteral("alpha"),   QStringLiteral("bravo"),   QStringLiteral("cobalt"),
                            QStringLiteral("delta"),   QStringLiteral("ember"),   QStringLiteral("fjord"),
                            QStringLiteral("garnet"),  QStringLiteral("harbour"), QStringLiteral("indigo"),
                            QStringLiteral("juniper"), QStringLiteral("kestrel"), QStringLiteral("lantern")};
const QStringList kEndings = {QStringLiteral(".mp3"), QStringLiteral(".txt"), QStringLiteral(" é.flac"),
                              QStringLiteral(" Ωmega.pdf"), QStringLiteral("")};
const QStringList kSubFolders = {QString(), QStringLiteral("Cobalt records/"), QStringLiteral("ember/"),
                                 QStringLiteral("ember/fjord tapes/"), QStringLiteral("Ünder/")};
const QTime kNoon(12, 0);

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

QStringList differentWords(int count, Dice& dice) {
  QStringList words;
  while (words.size() < count) {
    const QString& word = dice.pick(kWords);
    if (!words.contains(word)) words += word;
  }
  return words;
}

FileFacts randomFacts(Dice& dice) {
  // Whole hundredths of a megabyte, so that the column has no ties to round; days of two digits.
  constexpr qint64 kHundredth = 10'486;
  return {dice.below(300) * kHundredth,
          QDate(1990 + dice.below(30), 1 + dice.below(12), 10 + dice.below(18))};
}

QString randomName(int number, Dice& dice) {
  QString name = differentWords(1 + dice.below(3), dice).join(u' ');
  if (dice.oneIn(2)) name[0] = name[0].toUpper();
  return name + u' ' + QString::number(number) + dice.pick(kEndings);
}

QString folderPart(const QString& path) {
  return path.left(path.lastIndexOf(u'/') + 1);
}

QString namePart(const QString& path) {
  return path.mid(path.lastIndexOf(u'/') + 1);
}

QString listedFolder(const QString& top, const QString& path) {
  return top + folderPart(path).replace(u'/', u'\\');
}

std::string entryOf(const QString& name, const FileFacts& facts) {
  QLocale locale = QLocale::c();
  locale.setNumberOptions(QLocale::DefaultNumberOptions);
  const QString size = locale.toString(facts.size).rightJustified(16);
  return (name.leftJustified(65) + size + QStringLiteral(" bytes ") +
          locale.toString(facts.day, QStringLiteral("d MMM yyyy")) + QStringLiteral(" 12:00:00"))
      .toStdString();
}

/// Entry lines by folder. What sub-folders are named is left to the judges of single listings.
using Entries = std::map<std::string, std::multiset<std::string>>;

Entries entriesOf(const Listing& listing) {
  Entries entries;
  for (const auto& [path, facts] : listing.files) {
    entries[listedFolder(listing.top, path).toStdString()].insert(entryOf(namePart(path), facts));
  }
  return entries;
}

}  // namespace

QStringList randomWords(Dice& dice) {
  QStringList words = differentWords(1 + dice.below(3), dice);
  if (dice.oneIn(4)) words.front().chop(2);
  if (dice.oneIn(4)) words.back() = words.back().toUpper();
  return words;
}

QString allWords() {
  return kWords.join(u' ');
}

QByteArray Listing::text() const {
  std::string text;
  for (const auto& [folder, lines] : entriesOf(*this)) {
    text += "\r\nVolume:    " + volume.toStdString() + "\r\nDirectory: " + folder + "\r\n\r\n";
    for (const std::string& line : lines) text += line + "\r\n";
  }
  return QByteArray::fromStdString(text);
}

bool Listing::isIn(const QByteArray& file) const {
  Entries found;
  for (const auto& [folder, block] : blocksOf(file, volume.toStdString())) {
    if (!block.entries.empty()) found[folder] = block.entries;
  }
  return found == entriesOf(*this);
}

Listing Listing::cutAs(const QByteArray& file) const {
  const PlainBlocks blocks = blocksOf(file, volume.toStdString());
  Listing cut = *this;
  std::erase_if(cut.files, [&](const auto& one) {
    return !blocks.contains(listedFolder(top, one.first).toStdString());
  });
  return cut;
}

QStringList Listing::hits(const QStringList& words) const {
  QStringList rows;
  const auto count = static_cast<int>(words.size());
  for (const auto& [path, facts] : files) {
    const QString folder = listedFolder(top, path);
    const QString searched = (folder + u' ' + namePart(path)).toLower();
    int found = 0;
    for (const QString& word : words) found += searched.contains(word.toLower()) ? 1 : 0;
    const int match = (100 * found + count / 2) / count;
    if (match <= 50) continue;
    rows += QStringLiteral("%1%\t%2\t%3\t%4\t%5mb\t%6")
                .arg(QString::number(match).rightJustified(3, u'0'), volume, folder, namePart(path),
                     QString::number(static_cast<double>(facts.size) / 1'048'576, 'f', 2),
                     QLocale::c().toString(facts.day, QStringLiteral("MMM, dd yy")));
  }
  return rows;
}

Listing randomListing(const QString& volume, const QString& top, int count, Dice& dice) {
  Listing listing{volume, top, {}};
  for (int number = 1; number <= count; ++number) {
    const QString folder = dice.pick(kSubFolders);
    const QString name = randomName(number, dice);
    listing.files[folder + name] = randomFacts(dice);
  }
  return listing;
}

SourceFolder::SourceFolder(const QString& description, const QString& path, int usualCount, Dice& dice)
    : description_(description), path_(path), usualCount_(usualCount) {
  addFiles(usualCount, dice);
}

void SourceFolder::write(const QString& name, const FileFacts& facts) const {
  QDir().mkpath(path_ + folderPart(name));
  QFile file(path_ + name);
  const QDateTime noon(facts.day, kNoon, QTimeZone::utc());
  const bool isWritten = file.open(QIODevice::ReadWrite) && file.resize(facts.size) &&
                         file.setFileTime(noon, QFileDevice::FileModificationTime);
  if (!isWritten) fail(QStringLiteral("could not write ") + file.fileName());
}

void SourceFolder::addLasting(const QString& name, const QByteArray& bytes) {
  QDir().mkpath(path_ + folderPart(name));
  QFile file(path_ + name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) fail(file.errorString());
  file.close();
  const FileFacts facts{bytes.size(), QDate(2004, 1, 15)};
  write(name, facts);
  lasting_[name] = facts;
}

QString SourceFolder::freshName(Dice& dice) {
  const QString folder = dice.pick(kSubFolders);
  return folder + randomName(++names_, dice);
}

void SourceFolder::addFiles(int count, Dice& dice) {
  for (int number = 0; number < count; ++number) {
    const QString name = freshName(dice);
    const FileFacts facts = randomFacts(dice);
    write(name, facts);
    files_[name] = facts;
  }
}

QString SourceFolder::randomFile(Dice& dice) const {
  return std::next(files_.begin(), dice.below(static_cast<int>(files_.size())))->first;
}

void SourceFolder::renameFile(const QString& from, const QString& to) {
  QDir().mkpath(path_ + folderPart(to));
  if (!QFile::rename(path_ + from, path_ + to)) fail(QStringLiteral("could not rename ") + from);
  files_[to] = files_.at(from);
  files_.erase(from);
}

QString SourceFolder::removeFile(const QString& name) {
  if (!QFile::remove(path_ + name)) fail(QStringLiteral("could not remove ") + name);
  files_.erase(name);
  return QStringLiteral("remove ") + name;
}

/// Both end in a slash; the new one does not exist yet.
QString SourceFolder::renameSubFolder(const QString& from, const QString& to) {
  QDir().mkpath(path_ + folderPart(to.chopped(1)));
  if (!QDir().rename(path_ + from, path_ + to)) fail(QStringLiteral("could not rename ") + from);
  std::map<QString, FileFacts> renamed;
  for (const auto& [name, facts] : files_) {
    renamed[name.startsWith(from) ? to + name.mid(from.size()) : name] = facts;
  }
  files_ = renamed;
  return QStringLiteral("rename %1 to %2").arg(from, to);
}

QString SourceFolder::change(Dice& dice) {
  const auto count = static_cast<int>(files_.size());
  if (count > usualCount_ + usualCount_ / 4) return removeFile(randomFile(dice));
  const QString file = randomFile(dice);
  switch (count < usualCount_ / 2 ? 0 : dice.below(6)) {
    case 0: {
      const int more = 1 + dice.below(5);
      addFiles(more, dice);
      return QStringLiteral("add %1 files").arg(more);
    }
    case 1:
    case 2:
      return removeFile(file);
    case 3: {
      const QString name = freshName(dice);
      renameFile(file, name);
      return QStringLiteral("move %1 to %2").arg(file, name);
    }
    case 4: {
      const FileFacts facts = randomFacts(dice);
      write(file, facts);
      files_[file] = facts;
      return QStringLiteral("change ") + file;
    }
    default: {
      const QString folder = folderPart(file);
      if (folder.isEmpty()) return removeFile(file);
      return renameSubFolder(folder, QStringLiteral("Garnet box %1/").arg(++names_));
    }
  }
}

void SourceFolder::takeAway() {
  if (!QDir().rename(path_, path_.chopped(1) + QStringLiteral(".away")))
    fail(QStringLiteral("not taken away"));
  isThere_ = false;
}

void SourceFolder::bringBack() {
  if (!QDir().rename(path_.chopped(1) + QStringLiteral(".away"), path_)) fail(QStringLiteral("not back"));
  isThere_ = true;
}

Listing SourceFolder::listing() const {
  Listing listing{description_, QString(path_).replace(u'/', u'\\'), files_};
  listing.files.insert(lasting_.begin(), lasting_.end());
  return listing;
}

}  // namespace quorvin::test
