// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/verification_notes.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr char kFirstLine[] = "quorvin verification 1";
constexpr char kLastLine[] = "end";

constexpr std::array<std::pair<FileVerdict, std::string_view>, 6> kWords{{{FileVerdict::Fine, "fine"},
                                                                          {FileVerdict::Rotten, "rotten"},
                                                                          {FileVerdict::Changed, "changed"},
                                                                          {FileVerdict::Lost, "lost"},
                                                                          {FileVerdict::Added, "added"},
                                                                          {FileVerdict::Unread, "unread"}}};

/// A name may hold a tab or a line end.
QByteArray field(const std::string& text) {
  return QByteArray::fromStdString(text).toPercentEncoding(" /", "\t\n\r");
}

std::optional<FileFinding> findingIn(const QByteArray& line) {
  const QList<QByteArray> fields = line.split('\t');
  if (fields.size() != 3) return std::nullopt;
  const auto word = std::ranges::find(kWords, std::string_view(fields[0].constData()),
                                      &std::pair<FileVerdict, std::string_view>::second);
  if (word == kWords.end()) return std::nullopt;
  return FileFinding{word->first, QByteArray::fromPercentEncoding(fields[1]).toStdString(),
                     QString::fromUtf8(QByteArray::fromPercentEncoding(fields[2]))};
}

}  // namespace

std::string_view wordOf(FileVerdict verdict) {
  return std::ranges::find(kWords, verdict, &std::pair<FileVerdict, std::string_view>::first)->second;
}

std::optional<VerificationNotes> readNotes(const QString& path) {
  if (!fileExists(path)) return std::nullopt;
  QList<QByteArray> lines;
  try {
    lines = contentOfFile(path).split('\n');
  } catch (const RuntimeFault&) {
    return std::nullopt;
  }
  // The last line has a line feed, too.
  const qsizetype last = lines.size() - 2;
  if (last < 4 || lines[0] != kFirstLine || lines[last] != kLastLine) return std::nullopt;
  VerificationNotes notes;
  bool isNumber = false;
  bool isIdentity = false;
  notes.manifest = lines[1].toULongLong(&isIdentity, 16);
  notes.folder = QString::fromUtf8(QByteArray::fromPercentEncoding(lines[2]));
  notes.done = lines[3].toULongLong(&isNumber);
  if (!isNumber || !isIdentity) return std::nullopt;
  for (qsizetype number = 4; number < last; ++number) {
    std::optional<FileFinding> finding = findingIn(lines[number]);
    if (!finding) return std::nullopt;
    notes.findings.push_back(std::move(*finding));
  }
  return notes;
}

void writeNotes(const QString& path, const VerificationNotes& notes) {
  QByteArray text = kFirstLine;
  text += '\n' + QByteArray::number(static_cast<qulonglong>(notes.manifest), 16);
  text += '\n' + field(notes.folder.toStdString());
  text += '\n' + QByteArray::number(static_cast<qulonglong>(notes.done)) + '\n';
  for (const FileFinding& finding : notes.findings) {
    text += QByteArray::fromStdString(std::string(wordOf(finding.verdict))) + '\t' + field(finding.path) +
            '\t' + field(finding.why.toStdString()) + '\n';
  }
  replaceFile(path, text + kLastLine + '\n');
}

}  // namespace quorvin
