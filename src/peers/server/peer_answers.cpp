#include "peers/server/peer_answers.h"

#include "peers/messages/peer_message.h"
#include "platform/text_encoding.h"

#include <QFileInfo>

namespace quorvin {

namespace {

/// The first source of that name whose archive exists, else the row after the last source.
int rowOfArchive(QByteArrayView listName, const ProgramState& state) {
  int row = 1;
  for (; row <= state.OnlineSourceCount; ++row) {
    const bool isNamedSo = encodeSystemText(state.OnlineSources.description(row)) == listName;
    if (isNamedSo && QFileInfo(archivePathOf(state, row)).isFile()) break;
  }
  return row;
}

}  // namespace

PeerAnswer answerTo(QByteArrayView message, const ProgramState& state, const QLocale& locale) {
  const QByteArrayView keyword = keywordOf(message);
  const QByteArrayView argument = argumentOf(message, ArgumentOffset::Server);
  if (keyword == "Req List Info") return {listsMessage(state), std::nullopt};
  if (keyword == "Connecting from") return {kGreetingAnswer, std::nullopt};
  if (keyword == "I AM") return {identityMessage(state, locale), std::nullopt};
  if (keyword == "GetList") return {announcementMessage(argument), rowOfArchive(argument, state)};
  return {kUnknownAnswer, std::nullopt};
}

QString archivePathOf(const ProgramState& state, int row) {
  return state.LocalFolder + state.OnlineSources.description(row) + QStringLiteral(".zip");
}

}  // namespace quorvin
