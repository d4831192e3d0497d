#include "state/source_list_fields.h"

#include "faults/runtime_fault.h"

namespace quorvin {

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

}  // namespace quorvin
