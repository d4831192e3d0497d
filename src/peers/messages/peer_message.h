// SPDX-License-Identifier: GPL-2.0-or-later

// The messages of the peer list exchange: bytes in the system code page, without any frame. Their layout:
// docs/formats/peer-messages.md.
#pragma once

#include "state/program_state.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// The TCP port of the exchange.
inline constexpr std::uint16_t kPeerPort = 6060;

/// A message longer than this is none of ours. Bytes.
inline constexpr qsizetype kLongestPeerMessage = qsizetype{64} << 10;

/// Where a message's argument starts. The server skips the blank after the colon, the client one character
/// more, so it loses the first character of a nickname and of an archive's name. Both are part of the
/// exchange.
enum class ArgumentOffset { Server = 1, Client = 2 };

/// A date as a number: its days since 30 December 1899 in up to 15 significant digits, with the locale's
/// decimal sign and no grouping; a date without time of day is a bare whole number.
QString dayNumberText(DateValue date, const QLocale& locale);

/// What a client sends.
QByteArray greetingMessage(const QString& ownAddress);
QByteArray listRequestMessage(QByteArrayView listName);
inline constexpr char kListInfoRequest[] = "Req List Info:";
inline constexpr char kListRequestStart[] = "GetList: ";

/// What both send: who they are.
QByteArray identityMessage(const ProgramState& state, const QLocale& locale);

/// What a server sends: the descriptions of all online sources, and the announcement of an archive. The bytes
/// of `listName` go back as they came.
QByteArray listsMessage(const ProgramState& state);
QByteArray announcementMessage(QByteArrayView listName);
inline constexpr char kListsStart[] = "Lists:\r\n";
inline constexpr char kGreetingAnswer[] = "OK:";
inline constexpr char kUnknownAnswer[] = "NA:";

/// The bytes before the first colon. Throws fault 5 when there is no colon.
QByteArrayView keywordOf(QByteArrayView message);

/// What follows the colon after as many characters as `offset` says; empty when the message ends before.
/// Throws fault 5 when there is no colon.
QByteArrayView argumentOf(QByteArrayView message, ArgumentOffset offset);

}  // namespace quorvin
