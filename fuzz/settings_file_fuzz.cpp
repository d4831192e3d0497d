// SPDX-License-Identifier: GPL-2.0-or-later

// The settings file: reading it, held against its rules written down once more, and writing into it. An input
// is a line each for the application, the section, the key and a new value, and then the file. In the value,
// the bytes 1 to 4 stand for a line feed, a carriage return, a tab and a NUL.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "platform/ini_settings_store.h"
#include "platform/text_encoding.h"
#include "state/settings.h"

#include <QLocale>
#include <QUrl>

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace quorvin::fuzz {
namespace {

struct Input {
  QString application;
  QString section;
  QString key;
  QString value;
  QByteArray file;
};

QByteArray takeLine(QByteArray& rest) {
  const qsizetype end = rest.indexOf('\n');
  const QByteArray line = end < 0 ? rest : rest.first(end);
  rest = end < 0 ? QByteArray() : rest.sliced(end + 1);
  return line;
}

Input inputOf(QByteArray bytes) {
  Input input;
  const auto takeText = [&bytes] { return textOfUtf8(takeLine(bytes).toStdString()); };
  input.application = takeText();
  input.section = takeText();
  input.key = takeText();
  input.value = takeText();
  constexpr char16_t kMeanings[] = {u'\n', u'\r', u'\t', u'\0'};
  for (QChar& sign : input.value) {
    if (sign >= QChar(1) && sign <= QChar(4)) sign = kMeanings[sign.unicode() - 1];
  }
  input.file = bytes;
  return input;
}

QByteArray withoutBlanks(const QByteArray& text) {
  qsizetype start = 0;
  qsizetype end = text.size();
  while (start < end && (text[start] == ' ' || text[start] == '\t')) ++start;
  while (end > start && (text[end - 1] == ' ' || text[end - 1] == '\t')) --end;
  return text.mid(start, end - start);
}

QString plainMeaning(const QByteArray& written) {
  static const std::map<QChar, QChar> meanings = {{u'\\', u'\\'}, {u'n', u'\n'}, {u'r', u'\r'},
                                                  {u't', u'\t'},  {u'0', u'\0'}, {u's', u' '}};
  const QString text = textOfUtf8(written.toStdString());
  QString value;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const auto meaning =
        text[at] == u'\\' && at + 1 < text.size() ? meanings.find(text[at + 1]) : meanings.end();
    value += meaning == meanings.end() ? text[at] : meaning->second;
    if (meaning != meanings.end()) ++at;
  }
  return value;
}

using Names = std::pair<QByteArray, QByteArray>;

/// Every value of a file, by section and key: of what is there twice, the first counts.
std::map<Names, QString> plainReading(QByteArray file) {
  while (file.startsWith("\xEF\xBB\xBF")) file.remove(0, 3);
  std::map<Names, QString> values;
  std::set<QByteArray> sections;
  std::optional<QByteArray> section;
  for (QByteArray line : file.split('\n')) {
    while (line.endsWith('\r')) line.chop(1);
    const QByteArray bare = withoutBlanks(line);
    if (bare.startsWith('[')) {
      const bool isHeading = bare.endsWith(']') && bare.size() > 1;
      const bool isFirst = isHeading && sections.insert(bare.sliced(1).chopped(1)).second;
      section = isFirst ? std::optional(bare.sliced(1).chopped(1)) : std::nullopt;
      continue;
    }
    const qsizetype equals = line.indexOf('=');
    if (!section || equals < 0) continue;
    values.emplace(Names(*section, withoutBlanks(line.first(equals))),
                   plainMeaning(withoutBlanks(line.sliced(equals + 1))));
  }
  return values;
}

/// The file in memory instead of on the disk.
class TextStore : public SettingsStore {
 public:
  explicit TextStore(const QByteArray& file) : text_(file) {}

  QString read(const QString& application, const QString& section, const QString& key,
               const QString& fallback) const override {
    return text_.value(groupOf(application, section), encoded(key)).value_or(fallback);
  }
  void write(const QString& application, const QString& section, const QString& key,
             const QString& value) override {
    text_.setValue(groupOf(application, section), encoded(key), value);
  }

  QByteArray text() const { return text_.text(); }

 private:
  static QString encoded(const QString& name) { return QString::fromLatin1(QUrl::toPercentEncoding(name)); }
  static QString groupOf(const QString& application, const QString& section) {
    return encoded(application) + u'/' + encoded(section);
  }

  IniText text_;
};

Names namesOf(const Input& input) {
  const auto encoded = [](const QString& name) { return QUrl::toPercentEncoding(name); };
  return {encoded(input.application) + '/' + encoded(input.section), encoded(input.key)};
}

void checkReading(const Input& input) {
  const std::map<Names, QString> values = plainReading(input.file);
  const auto written = values.find(namesOf(input));
  const QString none = QStringLiteral("none");
  const QString read = TextStore(input.file).read(input.application, input.section, input.key, none);
  require(read == (written == values.end() ? none : written->second), "a value is read as it is written");
}

void checkWriting(const Input& input) {
  TextStore store(input.file);
  store.write(input.application, input.section, input.key, input.value);
  const QByteArray after = store.text();
  std::map<Names, QString> expected = plainReading(input.file);
  expected[namesOf(input)] = input.value;
  require(plainReading(after) == expected, "one value is changed, and no other");
  TextStore again(after);
  require(again.text() == after, "what was written is read and written as it is");
  again.write(input.application, input.section, input.key, input.value);
  require(again.text() == after, "writing a value twice is writing it once");
}

/// The settings as start-up takes them from the file: their faults are those of numbers and dates.
void checkSettings(const Input& input) {
  const TextStore store(input.file);
  ProgramState state;
  state.RegKey = input.application;
  // Looking up how a locale writes dates takes longer than all the rest.
  const bool hasDate = input.file.contains("JoinDate");
  try {
    if (hasDate) readSettings(store, state, 40000, QLocale::c());
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 13, "only a date is of the wrong type");
  }
  try {
    placementValue(store.read(input.application, input.section, input.key, input.value));
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 13 || fault.number() == 6, "a measure is no number, or too large");
  }
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin::fuzz;
  const Input input = inputOf(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  checkReading(input);
  checkWriting(input);
  checkSettings(input);
  return 0;
}
