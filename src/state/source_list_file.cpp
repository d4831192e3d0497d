// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/source_list_file.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_identity.h"
#include "files/file_lock.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"
#include "files/folder_writer.h"
#include "files/path_style.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "state/text_line_reader.h"
#include "texts/texts.h"

#include <QByteArray>
#include <QFileInfo>

#include <optional>

namespace quorvin {

namespace {

/// Reads the comma-separated fields of a text file one after another, whatever lines they stand on. The rules
/// are in docs/formats/source-lists.md.
class SourceListFields {
 public:
  /// Opens `path`; throws RuntimeFault as SequentialFile does.
  explicit SourceListFields(const QString& path);

  /// Whether nothing is left of the file, not even a blank. Throws RuntimeFault when reading fails.
  bool atEnd();

  /// The next field. Throws RuntimeFault: 62 when there is none, and when reading fails.
  QString next();

  /// As TextLineReader::digest().
  QByteArray digest() const { return lines_.digest(); }

 private:
  QString takeQuoted();
  QString takeUnquoted();
  void skipBlanks();
  void skipSeparator();

  QString path_;
  TextLineReader lines_;
  /// The current line with its end, how much of it is text, and where the next field begins.
  QString line_;
  qsizetype textSize_ = 0;
  qsizetype position_ = 0;
};

SourceListFields::SourceListFields(const QString& path) : path_(path), lines_(path) {}

bool SourceListFields::atEnd() {
  while (position_ == line_.size()) {
    const std::optional<TextLine> next = lines_.next();
    if (!next) return true;
    line_ = next->text + next->end;
    textSize_ = next->text.size();
    position_ = 0;
  }
  return false;
}

QString SourceListFields::next() {
  if (!atEnd()) skipBlanks();
  if (atEnd()) {
    throw RuntimeFault(FaultNumber::InputPastEnd,
                       describe(FaultNumber::InputPastEnd) + QStringLiteral(": ") + path_);
  }
  return line_[position_] == u'"' ? takeQuoted() : takeUnquoted();
}

QString SourceListFields::takeQuoted() {
  ++position_;
  QString field;
  while (!atEnd()) {
    const qsizetype close = line_.indexOf(u'"', position_);
    if (close >= 0) {
      field += QStringView(line_).mid(position_, close - position_);
      position_ = close + 1;
      skipBlanks();
      skipSeparator();
      return field;
    }
    field += QStringView(line_).mid(position_);
    position_ = line_.size();
  }
  // Never closed: the end of the file's last line is not part of the field.
  field.chop(line_.size() - textSize_);
  return field;
}

QString SourceListFields::takeUnquoted() {
  const qsizetype comma = line_.indexOf(u',', position_);
  const qsizetype end = comma >= 0 ? comma : textSize_;
  QStringView field = QStringView(line_).mid(position_, end - position_);
  while (field.endsWith(u' ')) field.chop(1);
  position_ = end;
  skipSeparator();
  return field.toString();
}

void SourceListFields::skipBlanks() {
  while (position_ < textSize_ && line_[position_] == u' ') ++position_;
}

/// Passes over the comma or the line end, if there is one here.
void SourceListFields::skipSeparator() {
  if (position_ >= textSize_) {
    position_ = line_.size();
  } else if (line_[position_] == u',') {
    ++position_;
  }
}

RuntimeFault tooManyRecords(const QString& path) {
  return {FaultNumber::SubscriptOutOfRange,
          describe(FaultNumber::SubscriptOutOfRange) + QStringLiteral(": ") +
              Texts::tr("%1 holds more than %2 records").arg(path, QString::number(SourceTable::kLastRow))};
}

QByteArray recordsText(const SourceTable& table, int count) {
  QByteArray text;
  for (int row = 1; row <= count; ++row) {
    const QString record =
        u'"' + table.description(row) + QStringLiteral("\",\"") + table.path(row) + QStringLiteral("\"\r\n");
    text += encodeSystemText(record);
  }
  return text;
}

}  // namespace

QByteArray loadSourceList(const QString& path, SourceTable& table, int& count) {
  SourceListFields fields(path);
  while (!fields.atEnd()) {
    const QString description = fields.next();
    const QString sourcePath = fields.next();
    if (count >= SourceTable::kLastRow) throw tooManyRecords(path);
    table.set(count + 1, description, sourcePath);
    ++count;
  }
  return fields.digest();
}

void saveSourceList(const QString& path, const SourceTable& table, int count) {
  replaceFile(path, recordsText(table, count));
}

namespace {

bool looksLikeAPath(const QString& description) {
  const bool hasDrive = description.size() > 2 && description[0].isLetter() && description[1] == u':' &&
                        (description[2] == u'\\' || description[2] == u'/');
  return hasDrive || description.startsWith(u'/') || description.startsWith(QStringLiteral("\\\\"));
}

/// The first description that can only be a path; the editors take none of this kind. Empty for none.
QString shiftedPath(const SourceTable& table, int count) {
  for (int row = 1; row <= count; ++row) {
    if (looksLikeAPath(table.description(row))) return table.description(row);
  }
  return {};
}

void noteRecords(const SourceTable& table, int count, SourceListRead& read) {
  read.records = recordsText(table, count);
  read.shiftedPath = shiftedPath(table, count);
}

void load(const QString& path, SourceTable& table, int& count, SourceListRead& read) {
  read = {};
  read.path = path;
  try {
    if (fileIsThere(path)) read.digest = loadSourceList(path, table, count);
  } catch (const RuntimeFault&) {
    noteRecords(table, count, read);
    throw;
  }
  noteRecords(table, count, read);
  read.isComplete = true;
}

/// One of the two lists, as it is saved.
struct List {
  QString path;
  const SourceTable& table;
  int count;
  SourceListRead& read;
};

bool isChanged(const SourceListRead& read, const SourceTable& table, int count) {
  return recordsText(table, count) != read.records;
}

QByteArray digestOfFile(const QString& path) {
  TextLineReader lines(path);
  while (lines.next()) {
  }
  return lines.digest();
}

/// Whether the list on disk is what would be saved, as after a save that failed at its very end.
bool isSavedAlready(const List& list) {
  return digestOfFile(list.path) == digestOf(recordsText(list.table, list.count));
}

/// The sentence that tells why the list on disk may hold records that no table has; empty where it is the one
/// that was read, or there is none.
QString whyUnknown(const List& list) {
  if (!ordinaryFileExists(list.path) || isSavedAlready(list)) return {};
  const auto sentence = [&](const QString& reason) { return reason.arg(list.path); };
  if (!list.read.isComplete) {
    return sentence(Texts::tr("The list %1 was not read completely when the program started."));
  }
  if (!isSameFile(list.path, list.read.path)) {
    return sentence(
        Texts::tr("The list %1 was not read, since its folder became the data folder only later."));
  }
  if (list.read.digest.isEmpty()) {
    return sentence(Texts::tr("The list %1 was not there when the program started."));
  }
  if (digestOfFile(list.path) == list.read.digest) return {};
  return sentence(Texts::tr("The list %1 has been changed by another program."));
}

/// Whether the user has nothing to save in the place of a list that is not the one that was read.
bool hasNothingToSave(const List& list) {
  if (list.count == 0) return true;
  const bool isSameList = list.read.isComplete && isSameFile(list.path, list.read.path);
  return isSameList && !isChanged(list.read, list.table, list.count);
}

QString whyShifted(const List& list) {
  return Texts::tr(
             "The list %1 looks damaged: it has the path \"%2\" where a description should be. A double "
             "quote in a description or a path does that.")
      .arg(list.path, list.read.shiftedPath);
}

/// A name that is still free: "PATH.kept", "PATH.kept2" and so on.
QString nameForCopy(const QString& path) {
  QString name = path + QStringLiteral(".kept");
  for (int number = 2; ordinaryFileExists(name); ++number) {
    name = path + QStringLiteral(".kept%1").arg(number);
  }
  return name;
}

void keepCopy(const List& list, const QString& why, MessageBoxes& messages) {
  const QString copy = nameForCopy(list.path);
  replaceFile(copy, contentOfFile(list.path));
  messages.inform(why + QStringLiteral("\r\n") +
                  Texts::tr("It is kept as %1, and the list as it is now is saved in its place.").arg(copy));
}

/// The folders for a list whose name has separators, as that of a listing without a dot in its name has.
void makeFolders(const QString& localFolder, const QString& name) {
  QStringList names = name.split(nativePathStyle().separator, Qt::SkipEmptyParts);
  names.removeAll(QStringLiteral("."));
  if (names.size() < 2 || names.contains(QStringLiteral(".."))) return;
  names.removeLast();
  FolderWriter(localFolder).makeFolder(names);
}

/// False where there is something at the place already.
bool makeFirst(const List& list) {
  const QFileInfo place(list.path);
  if (place.exists() || place.isSymLink() || !QFileInfo(place.path()).isDir()) return false;
  FileAside file(list.path, {.durability = Durability::New, .mayReplace = false});
  const QByteArray text = recordsText(list.table, list.count);
  file.write({text.constData(), static_cast<std::size_t>(text.size())});
  return file.commitUnlessTaken(place.fileName());
}

void noteSaved(const List& list) {
  list.read.path = list.path;
  list.read.isComplete = true;
  noteRecords(list.table, list.count, list.read);
  list.read.digest = digestOf(list.read.records);
}

void replace(const List& list) {
  saveSourceList(list.path, list.table, list.count);
  noteSaved(list);
}

// Long enough for any other program to finish its own write.
constexpr int kLockWaitMilliseconds = 5000;

/// False where another program has made a list at the same moment, which is to be looked at then.
bool saveFirst(const ProgramState& state, const QString& name, const List& list) {
  // A start-up that never came as far as the lists leaves no empty one behind.
  if (list.count == 0 && !list.read.isComplete) return true;
  makeFolders(state.LocalFolder, name);
  if (makeFirst(list)) {
    noteSaved(list);
    return true;
  }
  if (ordinaryFileExists(list.path)) return false;
  replace(list);
  return true;
}

void saveAgain(const List& list, MessageBoxes& messages) {
  const QString unknown = whyUnknown(list);
  // Nothing is lost by a list that stays, so there is nothing to report.
  if (!unknown.isEmpty() && hasNothingToSave(list)) return;
  if (list.count == 0 && !list.read.isComplete) return;
  const bool isShifted = !list.read.shiftedPath.isEmpty();
  if (!unknown.isEmpty()) {
    keepCopy(list, unknown, messages);
  } else if (isShifted && isChanged(list.read, list.table, list.count)) {
    keepCopy(list, whyShifted(list), messages);
  } else if (isShifted) {
    return messages.inform(whyShifted(list) + QStringLiteral("\r\n") + Texts::tr("It was left as it is."));
  }
  replace(list);
}

bool save(const ProgramState& state, const QString& name, const List& list, MessageBoxes& messages) {
  if (!isValidDataFolder(state.LocalFolder)) {
    messages.inform(
        Texts::tr("The Local Data Folder path is invalid.\r\n\r\n"
                  "Unable to save the online sources list."));
    return false;
  }
  // Two programs may be closed at the same moment, as at the end of a session.
  while (!ordinaryFileExists(list.path)) {
    if (saveFirst(state, name, list)) return true;
  }
  const FileLock lock = FileLock::onFileItself(list.path, kLockWaitMilliseconds);
  saveAgain(list, messages);
  return true;
}

}  // namespace

void loadSourceLists(ProgramState& state) {
  load(state.LocalFolder + state.LocFile, state.OnlineSources, state.OnlineSourceCount, state.onlineListRead);
  load(state.LocalFolder + state.OffLineFile, state.OfflineSources, state.OfflineSourceCount,
       state.offlineListRead);
}

bool saveOnlineSources(ProgramState& state, MessageBoxes& messages) {
  return save(
      state, state.LocFile,
      {state.LocalFolder + state.LocFile, state.OnlineSources, state.OnlineSourceCount, state.onlineListRead},
      messages);
}

bool saveOfflineSources(ProgramState& state, MessageBoxes& messages) {
  return save(state, state.OffLineFile,
              {state.LocalFolder + state.OffLineFile, state.OfflineSources, state.OfflineSourceCount,
               state.offlineListRead},
              messages);
}

bool onlineSourcesAreChanged(const ProgramState& state) {
  return isChanged(state.onlineListRead, state.OnlineSources, state.OnlineSourceCount);
}

bool offlineSourcesAreChanged(const ProgramState& state) {
  return isChanged(state.offlineListRead, state.OfflineSources, state.OfflineSourceCount);
}

}  // namespace quorvin
