// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/volume_notes.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lock.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <QDir>
#include <QList>

namespace quorvin {

namespace {

// Long enough for any other program to finish its own change.
constexpr int kNotesLockWaitMilliseconds = 5000;
constexpr char kFirstLine[] = "# Notes on volumes. A line each: listing, volume and note, parted by tabs.\n";

struct Escape {
  QChar sign;
  QChar letter;
};
constexpr Escape kEscapes[] = {{u'\\', u'\\'}, {u'\t', u't'}, {u'\n', u'n'}, {u'\r', u'r'}};

QString escaped(const QString& text) {
  QString result;
  for (const QChar sign : text) {
    QChar letter;
    for (const Escape& escape : kEscapes) {
      if (escape.sign == sign) letter = escape.letter;
    }
    // At the front it would begin a remark.
    if (sign == u'#' && result.isEmpty()) letter = u'#';
    if (!letter.isNull()) result += u'\\';
    result += letter.isNull() ? sign : letter;
  }
  return result;
}

QChar signOf(QChar letter) {
  for (const Escape& escape : kEscapes) {
    if (escape.letter == letter) return escape.sign;
  }
  return letter == u'#' ? letter : QChar();
}

/// A backslash before anything else stands for itself: people write such paths.
QString unescaped(const QString& text) {
  QString result;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar sign = text[at] == u'\\' && at + 1 < text.size() ? signOf(text[at + 1]) : QChar();
    result += sign.isNull() ? text[at] : sign;
    if (!sign.isNull()) ++at;
  }
  return result;
}

/// What a line says.
struct NoteLine {
  QString listing;
  QString volume;
  QString note;
};

/// Nothing for remarks and what is no note.
std::optional<NoteLine> noteIn(QByteArray line) {
  if (line.endsWith('\r')) line.chop(1);
  if (line.startsWith('#')) return std::nullopt;
  const QStringList fields = decodeSystemText(line).split(u'\t');
  if (fields.size() != 3) return std::nullopt;
  return NoteLine{unescaped(fields[0]), unescaped(fields[1]), VolumeNotes::cleanNote(unescaped(fields[2]))};
}

QList<QByteArray> linesOf(const QByteArray& content) {
  QList<QByteArray> lines = content.sliced(byteOrderMarkLength(content)).split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

std::pair<std::int64_t, std::int64_t> stampOf(const RandomAccessFile& file) {
  const RandomAccessFile::Writing writing = file.lastWriting();
  return {writing.time, writing.size};
}

}  // namespace

VolumeNotes::VolumeNotes(QString dataFolder)
    : dataFolder_(std::move(dataFolder)), path_(dataFolder_ + QString::fromUtf16(kFileName)) {}

void VolumeNotes::refresh() {
  if (!fileExists(path_)) {
    read_.reset();
    notes_.clear();
    return;
  }
  const RandomAccessFile file(path_);
  const auto stamp = stampOf(file);
  if (read_ == stamp) return;
  take(file.read(0, file.sizeWhenOpened()));
  read_ = stamp;
}

void VolumeNotes::take(const QByteArray& content) {
  notes_.clear();
  for (const QByteArray& line : linesOf(content)) {
    const std::optional<NoteLine> note = noteIn(line);
    if (note) notes_.insert({note->listing, note->volume}, note->note);
  }
}

QString VolumeNotes::of(const QString& listing, const QString& volume) const {
  return notes_.value(keyOf(listing, volume));
}

/// Listings in the data folder are known by what follows it, so that the folder can be moved.
VolumeNotes::Key VolumeNotes::keyOf(const QString& listing, const QString& volume) const {
  const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(listing));
  const QString folder = QDir::cleanPath(QDir::current().absoluteFilePath(dataFolder_)) + u'/';
  return {path.startsWith(folder) ? path.sliced(folder.size()) : path, volume};
}

void VolumeNotes::set(const QString& listing, const QString& volume, const QString& note) {
  const QString clean = cleanNote(note);
  if (clean.size() > kLongestNote) {
    throw RuntimeFault(FaultNumber::InvalidProcedureCall,
                       Texts::tr("A note has at most %1 characters").arg(kLongestNote));
  }
  const FileLock lock(path_, kNotesLockWaitMilliseconds);
  const QByteArray content = fileExists(path_) ? contentOfFile(path_) : QByteArray(kFirstLine);
  const Key key = keyOf(listing, volume);
  const QByteArray added =
      QStringList{escaped(key.first), escaped(key.second), escaped(clean)}.join(u'\t').toUtf8();
  QByteArray changed = content.first(byteOrderMarkLength(content));
  bool isThere = clean.isEmpty();
  for (const QByteArray& line : linesOf(content)) {
    const std::optional<NoteLine> known = noteIn(line);
    if (!known || Key(known->listing, known->volume) != key) {
      changed += line + '\n';
    } else if (!isThere) {
      changed += added + '\n';
      isThere = true;
    }
  }
  if (!isThere) changed += added + '\n';
  replaceFile(path_, changed);
  take(changed);
  read_.reset();
}

QString VolumeNotes::cleanNote(const QString& note) {
  QString line = note;
  for (QChar& sign : line) {
    const bool endsLine = sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator;
    if (endsLine || sign.category() == QChar::Other_Control) sign = u' ';
  }
  return line.trimmed();
}

QString NotesAtHand::of(const QString& listing, const QString& volume) {
  if (!notes_ || dataFolder_ != state_.LocalFolder) {
    dataFolder_ = state_.LocalFolder;
    notes_.emplace(dataFolder_);
  }
  try {
    notes_->refresh();
  } catch (const RuntimeFault&) {
    // Whoever changes a note is told.
    return {};
  }
  return notes_->of(listing, volume);
}

}  // namespace quorvin
