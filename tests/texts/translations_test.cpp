// SPDX-License-Identifier: GPL-2.0-or-later

// The translations are whole, and each text says no less than the English one.
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace quorvin::test {
namespace {

struct Message {
  QString english;
  QStringList translations;
};

QString translationsFolder() {
  return QStringLiteral(QUORVIN_PROJECT_FOLDER "/translations/");
}

QStringList languageFiles() {
  return QDir(translationsFolder()).entryList({QStringLiteral("*.ts")});
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

/// What the reader has come to, as text; a <byte> is a character that XML cannot hold.
QString textAt(const QXmlStreamReader& xml) {
  if (xml.isCharacters()) return xml.text().toString();
  if (!xml.isStartElement() || xml.name() != u"byte") return {};
  return QChar(xml.attributes().value(QStringLiteral("value")).mid(1).toUShort(nullptr, 16));
}

/// The text up to the end of the element.
QString textUpTo(QXmlStreamReader& xml, const QString& end) {
  QString text;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isEndElement() && xml.name() == end) break;
    text += textAt(xml);
  }
  return text;
}

/// One, or the plurals.
QStringList translationsFrom(QXmlStreamReader& xml) {
  QString text;
  QStringList plurals;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isEndElement() && xml.name() == u"translation") break;
    if (xml.isStartElement() && xml.name() == u"numerusform") {
      plurals += textUpTo(xml, QStringLiteral("numerusform"));
    } else {
      text += textAt(xml);
    }
  }
  return plurals.isEmpty() ? QStringList{text} : plurals;
}

std::vector<Message> messagesOf(const QString& file) {
  std::vector<Message> messages;
  const QByteArray bytes = bytesOf(translationsFolder() + file);
  QXmlStreamReader xml(bytes);
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"message") messages.push_back({});
    if (xml.name() == u"source") messages.back().english = textUpTo(xml, QStringLiteral("source"));
    if (xml.name() == u"translation") messages.back().translations = translationsFrom(xml);
  }
  EXPECT_FALSE(xml.hasError()) << file.toStdString() << ": " << xml.errorString().toStdString();
  return messages;
}

std::set<QString> placesIn(const QString& text) {
  static const QRegularExpression place(QStringLiteral("%[0-9Ln]"));
  std::set<QString> places;
  for (auto match = place.globalMatch(text); match.hasNext();) places.insert(match.next().captured());
  return places;
}

/// The blanks and line ends at both ends.
QString edgesOf(const QString& text) {
  static const QRegularExpression edges(QStringLiteral("^(\\s*).*?(\\s*)$"),
                                        QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = edges.match(text);
  return match.captured(1) + u'|' + match.captured(2);
}

bool hasLetter(const QString& text) {
  static const QRegularExpression letter(QStringLiteral("&\\w"),
                                         QRegularExpression::UseUnicodePropertiesOption);
  return text.contains(letter);
}

TEST(Translations, HaveEveryTextOfTheSourcesAndNoOther) {
  TemporaryFolder folder;
  for (const QString& file : languageFiles()) {
    ASSERT_TRUE(QFile::copy(translationsFolder() + file, folder.pathOf(file)));
  }
  QProcess update;
  update.setProcessChannelMode(QProcess::MergedChannels);
  update.start(QStringLiteral(QUORVIN_PROJECT_FOLDER "/scripts/translate"), {folder.path()});
  ASSERT_TRUE(update.waitForFinished(600'000));
  ASSERT_EQ(update.exitCode(), 0) << update.readAll().toStdString();
  for (const QString& file : languageFiles()) {
    const QByteArray updated = bytesOf(folder.pathOf(file));
    EXPECT_FALSE(updated.contains("<translation type="))
        << file.toStdString()
        << " lacks texts, or has some that are gone: run scripts/translate, and translate what is "
           "unfinished.";
    EXPECT_TRUE(updated == bytesOf(translationsFolder() + file))
        << file.toStdString() << " is not as scripts/translate writes it.";
  }
}

TEST(Translations, AreNotEmpty) {
  EXPECT_EQ(languageFiles(), (QStringList{u"de.ts"_qs, u"es.ts"_qs, u"fr.ts"_qs}));
  for (const QString& file : languageFiles()) {
    const std::vector<Message> messages = messagesOf(file);
    EXPECT_GT(messages.size(), 700U) << file.toStdString();
    for (const Message& message : messages) {
      EXPECT_FALSE(message.translations.isEmpty() || message.translations.contains(QString()))
          << file.toStdString() << ": " << message.english.toStdString();
    }
  }
}

TEST(Translations, KeepWhatTheTextsAreMadeWith) {
  for (const QString& file : languageFiles()) {
    for (const Message& message : messagesOf(file)) {
      for (const QString& text : message.translations) {
        const std::string what = file.toStdString() + ": " + text.toStdString();
        EXPECT_EQ(placesIn(text), placesIn(message.english)) << what;
        EXPECT_EQ(edgesOf(text), edgesOf(message.english)) << what;
        EXPECT_EQ(text.count(u'\n'), message.english.count(u'\n')) << what;
        EXPECT_EQ(text.count(u'\r'), message.english.count(u'\r')) << what;
        EXPECT_EQ(hasLetter(text), hasLetter(message.english)) << what;
      }
    }
  }
}

}  // namespace
}  // namespace quorvin::test
