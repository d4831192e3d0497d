// SPDX-License-Identifier: GPL-2.0-or-later
#include "work/job_table.h"

#include "texts/texts.h"

#include <array>
#include <cstddef>

namespace quorvin {

namespace {

using Row = std::array<Answer, kJobKinds>;

constexpr Answer kStart = Answer::Starts;
constexpr Answer kStop = Answer::Stops;
constexpr Answer kWait = Answer::Waits;
constexpr Answer kRefuse = Answer::Refused;

// A search reads finished listings only, so it may run beside anything. Rescans that are asked for while
// listings are searched, made or packed follow: the folders have changed, and nobody wants to ask twice. What
// shows `Progress` excludes the others that do, since there is one window and one stop request for it.
// Received lists and packing have nobody waiting in front of the screen, so they wait. Lists are being got
// until what came has been unpacked. An export needs the hits as they are: none starts during a search, and
// it gives up by itself when a search takes the hits away.
//
// Wanted:         Search  Refresh  Update   Extract. Packing Getting  Unpack.  Export   Closing
constexpr std::array<Row, kJobKinds> kTable = {{
    /* Search */ {kStop, kWait, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Refresh */ {kStart, kWait, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Update */ {kStart, kRefuse, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Extraction */ {kStart, kRefuse, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Packing */ {kStart, kWait, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Getting */ {kStart, kStart, kStart, kStart, kStart, kRefuse, kStart, kStart, kStop},
    /* Unpacking */ {kStart, kRefuse, kRefuse, kRefuse, kWait, kRefuse, kWait, kRefuse, kStop},
    /* Export */ {kStart, kWait, kRefuse, kRefuse, kWait, kStart, kWait, kRefuse, kStop},
    /* Closing */ {kRefuse, kRefuse, kRefuse, kRefuse, kRefuse, kRefuse, kRefuse, kRefuse, kRefuse},
}};

QString sentenceOf(JobKind running) {
  switch (running) {
    case JobKind::Search:
      return Texts::tr("A search is running.");
    case JobKind::Refresh:
      return Texts::tr("The local folders are being rescanned.");
    case JobKind::Update:
      return Texts::tr("A web update is running.");
    case JobKind::Extraction:
      return Texts::tr("The main data file is being unpacked.");
    case JobKind::Packing:
      return Texts::tr("Your lists are being packed for sharing.");
    case JobKind::Getting:
      return Texts::tr("Lists are being received from a peer.");
    case JobKind::Unpacking:
      return Texts::tr("Lists that came from a peer are being unpacked.");
    case JobKind::Export:
      return Texts::tr("Hits are being exported.");
    case JobKind::Closing:
      break;
  }
  return {};
}

QString subjectOf(JobKind wanted) {
  switch (wanted) {
    case JobKind::Search:
      return Texts::tr("A search");
    case JobKind::Refresh:
      return Texts::tr("The rescan");
    case JobKind::Update:
      return Texts::tr("The web update");
    case JobKind::Extraction:
      return Texts::tr("Unpacking the main data file");
    case JobKind::Packing:
      return Texts::tr("Packing your lists");
    case JobKind::Getting:
      return Texts::tr("Getting lists");
    case JobKind::Unpacking:
      return Texts::tr("Unpacking received lists");
    case JobKind::Export:
      return Texts::tr("The export");
    case JobKind::Closing:
      break;
  }
  return {};
}

}  // namespace

Answer answerWhile(JobKind running, JobKind wanted) {
  return kTable[static_cast<std::size_t>(running)][static_cast<std::size_t>(wanted)];
}

QString refusalText(JobKind running, JobKind wanted) {
  if (running == JobKind::Closing || wanted == JobKind::Closing) return {};
  if (running == JobKind::Getting && wanted == JobKind::Getting) {
    return Texts::tr("Lists are already being received.");
  }
  return sentenceOf(running) + u' ' +
         Texts::tr("%1 can be started when that has ended.").arg(subjectOf(wanted));
}

}  // namespace quorvin
