#include "index/local_list_refresh.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "index/dir_io.h"
#include "index/own_files.h"
#include "platform/text_encoding.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <memory>

namespace quorvin {
namespace {

/// One refresh, from its first source to its last.
class Refresh {
 public:
  Refresh(ProgramState& state, RefreshView& view, MessageBoxes& messages, const QLocale& locale)
      : state_(state),
        view_(view),
        folders_(makeFolderReader()),
        dirIO_(state, *folders_, view, messages, locale) {}

  void run() {
    for (int row = 1; row <= state_.OnlineSourceCount; ++row) {
      view_.setProgressTitle(
          QStringLiteral(" Updating online file lists... %1 of %2").arg(row).arg(state_.OnlineSourceCount));
      view_.showSource(row, state_.OnlineSourceCount);
      // Copies, since the user may edit the table while events run.
      const QString description = state_.OnlineSources.description(row);
      const QString path = state_.OnlineSources.path(row);
      if (!refreshSource(description, path)) return;
    }
  }

 private:
  // False when the refresh was asked to stop.
  bool refreshSource(const QString& description, const QString& path) {
    const QString base = state_.LocalFolder + trimBlanks(description).toString();
    const QString temporary = base + QStringLiteral(".tmp");
    const QString finished = state_.onlineListingPath(description);
    for (const QString& file : {temporary, finished}) {
      if (!isOwnFile(file, state_)) continue;
      noteNotMade(description, file);
      return true;
    }
    if (!canBeOpened(path)) {
      noteKept(path, description);
      return true;
    }
    FileAside listing(finished, {.nameAside = QFileInfo(temporary).fileName()});
    const bool opened = writeListing(listing, description, path);
    if (state_.RescanAbort) {
      state_.RescanAbort = false;
      return false;
    }
    // Pulled while it was read, be it for a moment: the walk has met errors only, which would cost the
    // catalogue.
    if (opened && folders_->topIsStillAt(path)) {
      listing.commit();
    } else {
      listing.discard();
      noteKept(path, description);
    }
    return true;
  }

  bool canBeOpened(const QString& path) {
    if (folders_->enterTop(path) != 0) return false;
    folders_->leave();
    return true;
  }

  void noteKept(const QString& path, const QString& description) {
    state_.errorLog += QStringLiteral("%1 not found; the listing of %2 was kept\r\n").arg(path, description);
  }

  void noteNotMade(const QString& description, const QString& file) {
    state_.errorLog += QStringLiteral(
                           "The listing of %1 was not made, since it would overwrite %2; please give it "
                           "another description\r\n")
                           .arg(description, file);
  }

  // False when the folder could not be opened any more; the listing is its head alone then.
  bool writeListing(FileAside& listing, const QString& description, QString path) {
    const LineOutputs outputs{&listing.writer(), nullptr};
    const bool opened = dirIO_.walk(path, QStringLiteral("*.*"), outputs, description, kToOutput1);
    listing.finish();
    return opened;
  }

  ProgramState& state_;
  RefreshView& view_;
  std::unique_ptr<FolderReader> folders_;
  DirIO dirIO_;
};

// False when a fault ended it.
bool refreshAll(ProgramState& state, RefreshView& view, MessageBoxes& messages, const QLocale& locale) {
  view.createProgress();
  const QString title = view.progressTitle();
  state.RescanRunning = true;
  view.refreshBegins();
  const auto ending = qScopeGuard([&] {
    state.RescanRunning = false;
    view.refreshEnded();
  });
  try {
    Refresh(state, view, messages, locale).run();
  } catch (const RuntimeFault& fault) {
    messages.inform(QStringLiteral("Error Refreshing Local Lists:") + fault.description());
    return false;
  }
  view.setProgressTitle(title);
  return true;
}

}  // namespace

void refreshLocalLists(ProgramState& state, RefreshView& view, MessageBoxes& messages, const QLocale& locale,
                       const QString& versionCaption) {
  if (state.RescanRunning || !refreshAll(state, view, messages, locale)) return;
  view.setDefaultPointer();
  view.setStatus(versionCaption);
  if (state.errorLog.isEmpty()) return;
  view.showErrorLog(state.errorLog);
  state.errorLog.clear();
}

}  // namespace quorvin
