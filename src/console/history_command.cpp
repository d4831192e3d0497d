// SPDX-License-Identifier: GPL-2.0-or-later

// "history": the earlier versions of listings.
#include "console/commands.h"
#include "console/compared_sources.h"
#include "console/error_lines.h"
#include "console/json_text.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "history/listing_history.h"
#include "platform/text_encoding.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QLocale>

#include <cstdio>
#include <optional>
#include <unistd.h>

namespace quorvin {

namespace {

const char* completeness(const ListingVersion& version) {
  if (!version.isReadable) return "damaged";
  return version.isComplete ? "complete" : "incomplete";
}

QString dateOf(const ListingVersion& version) {
  return QDateTime::fromMSecsSinceEpoch(version.made).toString(Qt::ISODate);
}

std::string jsonRowOf(const QString& listing, const ListingVersion& version) {
  JsonLine line;
  line.add("listing", listing).add("number", std::int64_t{version.number}).add("made", dateOf(version));
  line.add("entries", static_cast<std::int64_t>(version.entries))
      .add("size", static_cast<std::int64_t>(version.size));
  return line.add("state", QString::fromLatin1(completeness(version))).text();
}

class HistoryCommand {
 public:
  HistoryCommand(const HistoryRequest& request, const ProgramState& state)
      : request_(request), state_(state), history_(state.LocalFolder) {}

  /// Gives the exit status. Throws RuntimeFault.
  int run() {
    QStringList listings = history_.listings();
    if (!request_.listing.isEmpty()) {
      const QString listing = listingWithHistory(request_.listing, history_, state_);
      if (listing.isEmpty()) {
        printError(Texts::tr("there is no earlier version of %1").arg(request_.listing));
        return request_.restores ? 2 : 1;
      }
      if (request_.restores) return restore(listing);
      listings = {listing};
    } else if (request_.restores) {
      printError(Texts::tr("name the listing that is to be restored"));
      return 2;
    }
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    for (const QString& listing : listings) print(output, listing);
    output.flush();
    return listings.isEmpty() ? 1 : 0;
  }

 private:
  void print(FileWriter& output, const QString& listing) {
    for (const ListingVersion& version : history_.versions(listing)) {
      if (request_.isJson) {
        output.write(jsonRowOf(listing, version));
        continue;
      }
      const QString line = QStringLiteral("%1\t%2\t%3\t%4\t%5\t%6\n")
                               .arg(listing, QString::number(version.number), dateOf(version),
                                    QString::number(version.entries), QString::number(version.size),
                                    QString::fromLatin1(completeness(version)));
      output.write(encodeSystemText(line).toStdString());
    }
  }

  int restore(const QString& listing) {
    int number = request_.number;
    if (number == 0) {
      const std::optional<ListingVersion> newest = history_.newestComplete(listing);
      if (!newest) {
        printError(Texts::tr("there is no complete earlier version of %1").arg(listing));
        return 2;
      }
      number = newest->number;
    }
    history_.restore(listing, number);
    const std::optional<ListingVersion> present = history_.present(listing);
    if (present) {
      printErrorLog(Texts::tr("%1 is version %2 again, with %3 entries")
                        .arg(listing, QString::number(number), QString::number(present->entries)));
    }
    return 0;
  }

  const HistoryRequest& request_;
  const ProgramState& state_;
  ListingHistory history_;
};

}  // namespace

int runHistory(const HistoryRequest& request) {
  ProgramState state;
  ErrorLines messages;
  try {
    loadUserSources(state, QLocale(), messages);
    return HistoryCommand(request, state).run();
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
}

}  // namespace quorvin
