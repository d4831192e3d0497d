// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/messages/peer_message.h"

#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"

namespace quorvin {

namespace {

constexpr int kSignificantDigits = 15;

qsizetype colonOf(QByteArrayView message) {
  const qsizetype colon = message.indexOf(':');
  if (colon < 0) throw RuntimeFault(FaultNumber::InvalidProcedureCall);
  return colon;
}

/// How many bytes the character at the front takes.
qsizetype frontCharacterLength(QByteArrayView text, bool isUtf8) {
  qsizetype length = 1;
  const auto goesOn = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
  while (isUtf8 && length < text.size() && goesOn(text[length])) ++length;
  return length;
}

}  // namespace

QString dayNumberText(DateValue date, const QLocale& locale) {
  QString number = QString::number(date, 'G', kSignificantDigits);
  return number.replace(u'.', locale.decimalPoint());
}

QByteArray greetingMessage(const QString& ownAddress) {
  return "Connecting from: " + encodeSystemText(ownAddress);
}

QByteArray listRequestMessage(QByteArrayView listName) {
  return kListRequestStart + listName.toByteArray();
}

QByteArray identityMessage(const ProgramState& state, const QLocale& locale) {
  return "I AM: " + encodeSystemText(state.NickName) + ' ' +
         encodeSystemText(dayNumberText(state.JoinDate, locale));
}

QByteArray listsMessage(const ProgramState& state) {
  QByteArray message = kListsStart;
  for (int row = 1; row <= state.OnlineSourceCount; ++row) {
    message += encodeSystemText(state.OnlineSources.description(row)) + "\r\n";
  }
  return message;
}

QByteArray announcementMessage(QByteArrayView listName) {
  return "List: " + listName.toByteArray() + ".zip";
}

QByteArrayView keywordOf(QByteArrayView message) {
  return message.first(colonOf(message));
}

QByteArrayView argumentOf(QByteArrayView message, ArgumentOffset offset) {
  QByteArrayView rest = message.sliced(colonOf(message) + 1);
  const bool isUtf8 = isUtf8AsItStands(rest);
  for (int skipped = 0; skipped < static_cast<int>(offset) && !rest.isEmpty(); ++skipped) {
    rest = rest.sliced(frontCharacterLength(rest, isUtf8));
  }
  return rest;
}

}  // namespace quorvin
