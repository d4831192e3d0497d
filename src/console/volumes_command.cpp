// SPDX-License-Identifier: GPL-2.0-or-later

// "volumes": what is on each volume, and notes on them.
#include "catalogue/volumes/volume_texts.h"
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/search_parts.h"
#include "console/volume_rows.h"
#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "platform/stop_signal.h"
#include "state/settings.h"
#include "state/volume_notes.h"
#include "texts/texts.h"

#include <QLocale>
#include <QStringList>

#include <numeric>
#include <string>
#include <unistd.h>

namespace quorvin {

namespace {

class VolumesCommand {
 public:
  explicit VolumesCommand(const VolumesRequest& request)
      : request_(request),
        progress_(!request.isQuiet, SearchProgress::Shows::Searched),
        finder_(wish(), parts()) {}

  int run() {
    try {
      if (!loadSources()) return 2;
      watchStopSignal();
      if (finder_.find(request_.listings)) request_.note ? setNote() : write();
    } catch (const RuntimeFault& fault) {
      hasFailed_ = true;
      printError(fault.description());
    }
    progress_.line().clear();
    return status();
  }

 private:
  /// A note is for a volume of that name, whatever is on it.
  VolumeFinder::Wish wish() const {
    VolumeFinder::Wish wish = request_;
    if (request_.note) wish.searchText.clear();
    return wish;
  }

  VolumeFinder::Parts parts() {
    VolumeFinder::Parts parts{state_, messages_, locale_};
    parts.display = progress_.line().isOnTerminal() ? &progress_ : nullptr;
    parts.endRequested = stopSignalled;
    parts.streamAt = listingStreamAt;
    return parts;
  }

  /// Listings that are named have their notes in the user's data folder, too.
  bool loadSources() {
    if (request_.listings.empty()) return loadSourcesToSearch(state_, locale_, messages_);
    loadUserSources(state_, locale_, messages_);
    return true;
  }

  void write() {
    progress_.line().clear();
    FileWriter output(STDOUT_FILENO, Texts::tr("standard output"));
    if (request_.isJson) {
      for (const std::uint32_t volume : order()) {
        std::string row;
        addVolumeJson(row, finder_.volumes()[volume]);
        output.write(row);
      }
    } else {
      output.write(volumeTable(finder_.volumes(), order(), ::isatty(STDOUT_FILENO) == 1, QDate::currentDate(),
                               locale_));
    }
    output.flush();
    if (request_.isQuiet) return;
    printErrorLog(
        volumesSumText(static_cast<std::int64_t>(finder_.volumes().size()), finder_.sum(), locale_));
  }

  std::vector<std::uint32_t> order() const {
    if (request_.sortedBy) {
      return orderOfVolumes(finder_.volumes(), *request_.sortedBy, request_.isDescending);
    }
    std::vector<std::uint32_t> order(finder_.volumes().size());
    std::iota(order.begin(), order.end(), 0U);
    return order;
  }

  void setNote() {
    std::vector<const KnownVolume*> named;
    QStringList listings;
    for (const KnownVolume& volume : finder_.volumes()) {
      if (volume.name != request_.searchText) continue;
      named.push_back(&volume);
      listings += volume.listing;
    }
    if (named.size() == 1) {
      setNoteOf(*named.front());
      return;
    }
    hasFailed_ = true;
    printError(named.empty()
                   ? Texts::tr("there is no volume \"%1\"; quorvin-cli volumes shows those that there are")
                         .arg(request_.searchText)
                   : Texts::tr("several listings have a volume \"%1\"; name one of them behind it: %2")
                         .arg(request_.searchText, listings.join(QStringLiteral(", "))));
  }

  void setNoteOf(const KnownVolume& volume) {
    if (!listingStreamAt(volume.listing)) {
      VolumeNotes(state_.LocalFolder).set(volume.listing, volume.name, *request_.note);
      return;
    }
    hasFailed_ = true;
    printError(Texts::tr("%1 is no file, so nothing can be noted on its volumes").arg(volume.listing));
  }

  int status() const {
    if (hasFailed_) return 2;
    if (stopSignalled()) return stopStatus();
    if (request_.note) return 0;
    if (finder_.failedListings() > 0) return 2;
    return finder_.volumes().empty() ? 1 : 0;
  }

  const VolumesRequest& request_;
  QLocale locale_;
  ProgramState state_;
  ErrorLines messages_;
  SearchProgress progress_;
  VolumeFinder finder_;
  bool hasFailed_ = false;
};

}  // namespace

int runVolumes(const VolumesRequest& request) {
  const QString complaint =
      request.note ? QString() : complaintAboutSearch(request.searchText, request.desiredMatch);
  if (complaint.isEmpty()) return VolumesCommand(request).run();
  printError(complaint);
  return 2;
}

}  // namespace quorvin
