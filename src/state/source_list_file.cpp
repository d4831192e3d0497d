#include "state/source_list_file.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_identity.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "state/text_line_reader.h"

#include <QByteArray>

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
          describe(FaultNumber::SubscriptOutOfRange) + QStringLiteral(": ") + path +
              QStringLiteral(" holds more than %1 records").arg(SourceTable::kLastRow)};
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

void loadSourceList(const QString& path, SourceTable& table, int& count) {
  SourceListFields fields(path);
  while (!fields.atEnd()) {
    const QString description = fields.next();
    const QString sourcePath = fields.next();
    if (count >= SourceTable::kLastRow) throw tooManyRecords(path);
    table.set(count + 1, description, sourcePath);
    ++count;
  }
}

void saveSourceList(const QString& path, const SourceTable& table, int count) {
  replaceFile(path, recordsText(table, count));
}

namespace {

struct List {
  QString path;
  /// ProgramState::onlineListRead or its like.
  QString read;
  const SourceTable& table;
  int count;
};

/// A folder may be written in many ways, "data/" and "data/./", so paths alone do not tell.
bool isSameFile(const QString& path, const QString& other) {
  const std::optional<FileIdentity> identity = fileIdentity(path);
  return path == other || (identity && identity == fileIdentity(other));
}

/// Whether there is a list whose records are in no table.
bool holdsUnknownRecords(const List& list) {
  return ordinaryFileExists(list.path) && !isSameFile(list.path, list.read);
}

QByteArray contentOf(const QString& path) {
  SequentialFile file(path);
  QByteArray content(static_cast<qsizetype>(file.sizeWhenOpened()), Qt::Uninitialized);
  const std::size_t size = file.read({content.data(), static_cast<std::size_t>(content.size())});
  content.truncate(static_cast<qsizetype>(size));
  return content;
}

/// A name that is still free: "PATH.kept", "PATH.kept2" and so on.
QString nameForCopy(const QString& path) {
  QString name = path + QStringLiteral(".kept");
  for (int number = 2; ordinaryFileExists(name); ++number) {
    name = path + QStringLiteral(".kept%1").arg(number);
  }
  return name;
}

/// The sentence that tells why the records of the list on disk are unknown.
QString whyUnknown(const List& list) {
  const QString reason =
      list.read.isEmpty()
          ? QStringLiteral("The list %1 was not read completely when the program started.")
          : QStringLiteral("The list %1 was not read, since its folder became the data folder only later.");
  return reason.arg(list.path);
}

void keepCopy(const List& list, MessageBoxes& messages) {
  const QString copy = nameForCopy(list.path);
  replaceFile(copy, contentOf(list.path));
  messages.inform(
      whyUnknown(list) +
      QStringLiteral("\r\nIt is kept as %1, and the list as it is now is saved in its place.").arg(copy));
}

void save(const ProgramState& state, const List& list, MessageBoxes& messages) {
  if (!isValidDataFolder(state.LocalFolder)) {
    messages.inform(
        QStringLiteral("The Local Data Folder path is invalid.\r\n\r\n"
                       "Unable to save the online sources list."));
    return;
  }
  const bool isUnknown = holdsUnknownRecords(list);
  // An empty table is no gain over records that somebody has entered once. They stay, so that there is
  // nothing to report. Nor does a start-up that never came as far as the lists leave an empty one behind.
  if (list.count == 0 && (isUnknown || list.read.isEmpty())) return;
  if (isUnknown) keepCopy(list, messages);
  saveSourceList(list.path, list.table, list.count);
}

}  // namespace

void saveOnlineSources(const ProgramState& state, MessageBoxes& messages) {
  save(
      state,
      {state.LocalFolder + state.LocFile, state.onlineListRead, state.OnlineSources, state.OnlineSourceCount},
      messages);
}

void saveOfflineSources(const ProgramState& state, MessageBoxes& messages) {
  save(state,
       {state.LocalFolder + state.OffLineFile, state.offlineListRead, state.OfflineSources,
        state.OfflineSourceCount},
       messages);
}

}  // namespace quorvin
