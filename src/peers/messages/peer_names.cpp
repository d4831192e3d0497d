// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/messages/peer_names.h"

#include "faults/runtime_fault.h"
#include "peers/messages/peer_message.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QHostAddress>
#include <QRegularExpression>

namespace quorvin {

namespace {

constexpr qsizetype kLongestName = 60;
constexpr qsizetype kMostShownCharacters = 80;
constexpr qsizetype kMostShownProblems = 10;
constexpr char16_t kNoName[] = u"list";

bool isAllowed(QChar character) {
  static const QString pathSigns = QStringLiteral("/\\:*?\"<>|");
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    default:
      return !pathSigns.contains(character) && character != QChar::ReplacementCharacter;
  }
}

QString withAllowedCharacters(const QString& text) {
  QString name;
  for (const QChar character : text) name += isAllowed(character) ? character : QChar(u'_');
  return name;
}

QString withoutEdges(QString name) {
  static const QRegularExpression edges(QStringLiteral("^[. ]+|[. ]+$"));
  return name.remove(edges);
}

/// Such names open devices on some systems, whatever ending they have.
bool isDeviceName(const QString& name) {
  static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\..*)?$"),
                                         QRegularExpression::CaseInsensitiveOption);
  return device.match(name).hasMatch();
}

/// Cuts between characters, never inside one of two code units.
QString shortened(const QString& name) {
  if (name.size() <= kLongestName) return name;
  const bool splits = name[kLongestName - 1].isHighSurrogate();
  return name.left(splits ? kLongestName - 1 : kLongestName);
}

bool isIp6(const QString& text) {
  return QHostAddress(text).protocol() == QAbstractSocket::IPv6Protocol;
}

HostAndPort withPort(const QString& host, const QString& portText) {
  bool isNumber = false;
  const quint16 port = portText.toUShort(&isNumber);
  if (!isNumber || port == 0) return {};
  return {host, port};
}

bool isHarmless(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    default:
      return true;
  }
}

}  // namespace

QString shownPeerText(const QString& text) {
  QString shown;
  for (const QChar character : text) {
    if (shown.size() == kMostShownCharacters) return shown + QStringLiteral("...");
    shown += isHarmless(character) ? character : QChar(u' ');
  }
  return shown;
}

QString sentence(const QString& text) {
  static const QRegularExpression end(QStringLiteral("[.\\s]+$"));
  return QString(text).remove(end) + u'.';
}

QString faultSentence(const RuntimeFault& fault) {
  return sentence(fault.text());
}

QString shownProblems(const QStringList& problems) {
  QStringList shown = problems.first(qMin(problems.size(), kMostShownProblems));
  const qsizetype more = problems.size() - shown.size();
  if (more == 1) shown += Texts::tr("There was 1 more problem.");
  if (more > 1) shown += Texts::tr("There were %1 more problems.", nullptr, Texts::plural(more)).arg(more);
  return shown.join(QStringLiteral("\r\n"));
}

QString safeFileName(const QString& text) {
  const QString name = withoutEdges(shortened(withoutEdges(withAllowedCharacters(text))));
  if (name.isEmpty()) return QString::fromUtf16(kNoName);
  return isDeviceName(name) ? u'_' + name : name;
}

QString freePath(const QString& folder, const QString& name, const QString& ending) {
  QString path = folder + name + ending;
  for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number) {
    path = folder + name + QStringLiteral(" (%1)").arg(number) + ending;
  }
  return path;
}

QString HostAndPort::text() const {
  const QString shownHost = host.contains(u':') ? u'[' + host + u']' : host;
  return port == kPeerPort ? host : shownHost + u':' + QString::number(port);
}

HostAndPort readHostAndPort(const QString& text) {
  static const QRegularExpression bracketed(QStringLiteral("^\\[([^\\[\\]]+)\\](?::(.*))?$"));
  static const QRegularExpression plain(QStringLiteral("^([^:\\s\\[\\]/\\\\]+)(?::(.*))?$"));
  const QString trimmed = text.trimmed();
  if (isIp6(trimmed)) return {trimmed, kPeerPort};
  const QRegularExpressionMatch inBrackets = bracketed.match(trimmed);
  const QRegularExpressionMatch match = inBrackets.hasMatch() ? inBrackets : plain.match(trimmed);
  if (!match.hasMatch() || (inBrackets.hasMatch() && !isIp6(match.captured(1)))) return {};
  if (match.capturedLength(2) == 0 && match.capturedStart(2) < 0) return {match.captured(1), kPeerPort};
  return withPort(match.captured(1), match.captured(2));
}

}  // namespace quorvin
